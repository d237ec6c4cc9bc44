#include "support/ModalDialog.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

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
    void showsNoStoreButtons()
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
            QCOMPARE(button->size(), QSize(60, 32));
            QVERIFY(!button->accessibleName().isEmpty());
        }
        visible.sort();
        QCOMPARE(visible, QStringList({"AppButton", "IntroButton", "JoinButton", "MoreButton",
                                       "ShareButton"}));
    }

    void catalogueOpensAddresses()
    {
        UrlCatcher catcher;
        PromoMenuBar bar;
        const QMenu* menu = menuOf(bar, "MoreButton");
        const QString address = QStringLiteral("https://corvane.example/apps/%1");
        bar.addCatalogueEntry(QPixmap(), QStringLiteral("None"), QString());
        QVERIFY(menu->isEmpty());
        bar.addCatalogueEntry(QPixmap(), QStringLiteral("One"), address.arg(1));
        bar.addMoreAppsEntry();
        bar.addCatalogueEntry(QPixmap(), QStringLiteral("Two"), address.arg(2));
        const QString line = QStringLiteral("-");
        QCOMPARE(textsOf(menu),
                 QStringList({QStringLiteral("One"), line, QStringLiteral("More Apps"), line,
                              QStringLiteral("Two")}));
        for (const int index : {4, 2, 0}) {
            menu->actions().at(index)->trigger();
        }
        QCOMPARE(catcher.take(), QList<QUrl>({QUrl(address.arg(2)),
                                              QUrl(QStringLiteral("https://corvane.example/apps")),
                                              QUrl(address.arg(1))}));
    }

    void appMenuCallsTheApplication()
    {
        UrlCatcher catcher;
        const PromoMenuBar bar;
        const QMenu* menu = menuOf(bar, "AppButton");
        QCOMPARE(textsOf(menu),
                 QStringList({"Share", "Join Us", "More Apps", "Contacts Us", "Support Page",
                              "Check Updates", "About", "-", "Quit"}));
        menu->actions().at(2)->trigger();
        QCOMPARE(catcher.take().value(0).path(), QStringLiteral("/apps"));
        menu->actions().at(3)->trigger();
        QCOMPARE(catcher.take().value(0).scheme(), QStringLiteral("mailto"));
        menu->actions().at(4)->trigger();
        QCOMPARE(catcher.take().value(0).host(), QUrl(QMWidgets::MakerSite::home()).host());
    }

    void opensTheDialogs()
    {
        const PromoMenuBar bar;
        const QList<QAction*> entries = menuOf(bar, "AppButton")->actions();
        const auto button = [&bar](const char* name) {
            return bar.findChild<QPushButton*>(QLatin1String(name));
        };
        const struct {
            std::function<void()> open;
            const char* title;
        } ways[] = {{[&] { button("IntroButton")->click(); }, "Tessarin Introduction"},
                    {[&] { button("ShareButton")->click(); }, "Share Tessarin"},
                    {[&] { entries.at(0)->trigger(); }, "Share Tessarin"},
                    {[&] { button("JoinButton")->click(); }, "Join us"},
                    {[&] { entries.at(1)->trigger(); }, "Join us"},
                    {[&] { entries.at(6)->trigger(); }, "Tessarin Info"}};
        for (const auto& way : ways) {
            QString title;
            withModalDialog(way.open, [&title](QDialog* dialog) { title = dialog->windowTitle(); });
            QCOMPARE(title, QLatin1String(way.title));
        }
    }

    void quitEndsTheProgram()
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
};

TESSARIN_TEST(tst_PromoMenuBar);
#include "tst_PromoMenuBar.moc"
