#include "support/TestMain.h"
#include "UrlCatcher.h"

#include <QAction>
#include <QMenu>
#include <QMWidgets/App.h>
#include <QMWidgets/MakerSite.h>
#include <QMWidgets/PromoMenuBar.h>
#include <QPushButton>
#include <QTimer>

using QMWidgets::PromoMenuBar;

namespace
{

QMenu* menuOf(const PromoMenuBar& bar, const char* button)
{
    return bar.findChild<QPushButton*>(QLatin1String(button))->menu();
}

/// The texts of a menu; separators are dashes.
QStringList textsOf(const QMenu* menu)
{
    QStringList texts;
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions) {
        texts.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    return texts;
}

} // namespace

class tst_PromoMenuBar : public QObject
{
    Q_OBJECT

private slots:
    void showsOnlyWhatWorks();
    void buttonsHaveNames();
    void catalogueOpensAddresses();
    void moreAppsStandsBetweenSeparators();
    void appMenuCallsTheApplication();
    void quitEndsTheProgram();
    void holdsWidgetsOfTheApplication();
};

void tst_PromoMenuBar::showsOnlyWhatWorks()
{
    PromoMenuBar bar;
    bar.setMoreAppsButtonHidden();
    bar.show();
    QStringList visible;
    const QList<QPushButton*> buttons = bar.findChildren<QPushButton*>();
    for (const QPushButton* button : buttons) {
        if (button->isVisible()) {
            visible.append(button->objectName());
        }
    }
    visible.sort();
    QCOMPARE(visible, QStringList({QStringLiteral("AppButton"), QStringLiteral("MoreButton")}));
}

void tst_PromoMenuBar::buttonsHaveNames()
{
    const PromoMenuBar bar;
    const QList<QPushButton*> buttons = bar.findChildren<QPushButton*>();
    QCOMPARE(buttons.count(), 7);
    for (const QPushButton* button : buttons) {
        QVERIFY(button->isFlat());
        QVERIFY(!button->accessibleName().isEmpty());
        QCOMPARE(button->accessibleName(), button->toolTip());
        QCOMPARE(button->minimumSize(), QSize(60, 32));
        QCOMPARE(button->maximumSize(), QSize(60, 32));
    }
}

void tst_PromoMenuBar::catalogueOpensAddresses()
{
    UrlCatcher catcher;
    PromoMenuBar bar;
    const QMenu* menu = menuOf(bar, "MoreButton");
    const QString address = QStringLiteral("https://corvane.example/apps/%1");
    bar.addCatalogueEntry(QPixmap(), QStringLiteral("None"), QString());
    QVERIFY(menu->isEmpty());
    bar.addCatalogueEntry(QPixmap(), QStringLiteral("One"), address.arg(1));
    bar.addCatalogueSeparator();
    bar.addCatalogueEntry(QPixmap(), QStringLiteral("Two"), address.arg(2));
    QCOMPARE(textsOf(menu),
             QStringList({QStringLiteral("One"), QStringLiteral("-"), QStringLiteral("Two")}));
    menu->actions().at(2)->trigger();
    menu->actions().at(0)->trigger();
    QCOMPARE(catcher.take(), QList<QUrl>({QUrl(address.arg(2)), QUrl(address.arg(1))}));
}

void tst_PromoMenuBar::moreAppsStandsBetweenSeparators()
{
    UrlCatcher catcher;
    PromoMenuBar bar;
    bar.addMoreAppsEntry();
    const QMenu* menu = menuOf(bar, "MoreButton");
    QCOMPARE(textsOf(menu),
             QStringList({QStringLiteral("-"), QStringLiteral("More Apps"), QStringLiteral("-")}));
    menu->actions().at(1)->trigger();
    QCOMPARE(catcher.take(), QList<QUrl>({QUrl(QStringLiteral("https://corvane.example/apps"))}));
}

void tst_PromoMenuBar::appMenuCallsTheApplication()
{
    UrlCatcher catcher;
    const PromoMenuBar bar;
    const QMenu* menu = menuOf(bar, "AppButton");
    QCOMPARE(textsOf(menu), QStringList({QStringLiteral("More Apps"), QStringLiteral("Contacts Us"),
                                         QStringLiteral("Support Page"), QStringLiteral("-"),
                                         QStringLiteral("Quit")}));
    menu->actions().at(0)->trigger();
    QCOMPARE(catcher.take().value(0).path(), QStringLiteral("/apps"));
    menu->actions().at(1)->trigger();
    QCOMPARE(catcher.take().value(0).scheme(), QStringLiteral("mailto"));
    menu->actions().at(2)->trigger();
    QCOMPARE(catcher.take().value(0).host(), QUrl(QMWidgets::MakerSite::home()).host());
}

void tst_PromoMenuBar::quitEndsTheProgram()
{
    const PromoMenuBar bar;
    QAction* quit = menuOf(bar, "AppButton")->actions().last();
    QTimer::singleShot(0, quit, &QAction::trigger);
    // Ends the loop with another value if the entry didn't.
    QTimer guard;
    connect(&guard, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
    guard.start(10000);
    QCOMPARE(QCoreApplication::exec(), 0);
}

void tst_PromoMenuBar::holdsWidgetsOfTheApplication()
{
    PromoMenuBar bar;
    auto* right = new QPushButton;
    auto* center = new QPushButton;
    bar.addRightWidget(right);
    bar.addCenterWidget(center);
    bar.resize(735, 45);
    bar.show();
    QCOMPARE(right->parentWidget(), &bar);
    const int more = bar.findChild<QPushButton*>(QStringLiteral("MoreButton"))->x();
    const int app = bar.findChild<QPushButton*>(QStringLiteral("AppButton"))->x();
    QVERIFY(more < center->x());
    QVERIFY(center->x() < right->x());
    QVERIFY(right->x() < app);
}

TESSARIN_TEST(tst_PromoMenuBar);
#include "tst_PromoMenuBar.moc"
