#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <QAction>
#include <QMenu>
#include <QMWidgets/App.h>
#include <QMWidgets/MakerSite.h>
#include <QMWidgets/PromoMenuBar.h>
#include <QPushButton>
#include <QTimer>

using QMWidgets::App;
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
    for (const QAction* action : menu->actions()) {
        texts.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    return texts;
}

void openReminder()
{
    App* const app = App::app();
    app->setSettingsValue(QStringLiteral("AutoReminder"), true);
    app->scheduleReminder(1, 2);
    app->slotCallRateReminderInternal();
    app->setSettingsValue(QStringLiteral("AutoReminder"), false);
}

} // namespace

class tst_PromoMenuBar : public QObject
{
    Q_OBJECT

private slots:
    void entriesOpenAddresses()
    {
        const QString home = QMWidgets::MakerSite::home();
        UrlCatcher catcher;
        PromoMenuBar bar;
        const QMenu* const catalogue = menuOf(bar, "MoreButton");
        bar.addCatalogueEntry(QPixmap(), QStringLiteral("None"), QString());
        bar.addCatalogueEntry(QPixmap(), QStringLiteral("One"), home + QStringLiteral("/1"));
        bar.addMoreAppsEntry();
        bar.addCatalogueEntry(QPixmap(), QStringLiteral("Two"), home + QStringLiteral("/2"));
        QCOMPARE(textsOf(catalogue), QStringList({"One", "-", "More Apps", "-", "Two"}));
        for (QAction* entry : catalogue->actions()) {
            entry->trigger();
        }
        QCOMPARE(catcher.take(), QList<QUrl>({home + "/1", home + "/apps", home + "/2"}));

        const QMenu* const menu = menuOf(bar, "AppButton");
        QCOMPARE(textsOf(menu),
                 QStringList({"Share", "Join Us", "More Apps", "Contacts Us", "Support Page",
                              "Check Updates", "About", "-", "Quit"}));
        for (const int index : {2, 3, 4}) {
            menu->actions().at(index)->trigger();
        }
        const QList<QUrl> opened = catcher.take();
        QCOMPARE(opened.count(), 3);
        QCOMPARE(opened.at(0).path(), QStringLiteral("/apps"));
        QCOMPARE(opened.at(1).scheme(), QStringLiteral("mailto"));
        QCOMPARE(opened.at(2).host(), QUrl(home).host());
        // Only a store has a use for these.
        QVERIFY(bar.findChild<QPushButton*>(QStringLiteral("RateButton"))->isHidden());
        QVERIFY(bar.findChild<QPushButton*>(QStringLiteral("MoreAppsButton"))->isHidden());
    }

    /// With each of the dialogs open: the dialog's own loop ends, and so does the program's.
    void theProgramEndsAroundTheDialogs()
    {
        App* const app = App::app();
        const PromoMenuBar bar;
        const QList<QAction*> entries = menuOf(bar, "AppButton")->actions();
        const auto click = [&bar](const char* name) {
            bar.findChild<QPushButton*>(QLatin1String(name))->click();
        };
        const struct {
            std::function<void()> open;
            const char* title;
        } ways[] = {{[&] { click("IntroButton"); }, "Tessarin Introduction"},
                    {[&] { click("ShareButton"); }, "Share Tessarin"},
                    {[&] { entries.at(0)->trigger(); }, "Share Tessarin"},
                    {[&] { click("JoinButton"); }, "Join us"},
                    {[&] { entries.at(1)->trigger(); }, "Join us"},
                    {[&] { entries.at(6)->trigger(); }, "Tessarin Info"},
                    {[&] { entries.last()->trigger(); }, ""}, // quits
                    {&openReminder, "Share"},
                    {[app] { app->slotShowCssEditor(); }, "CSS Style Editor"}};
        QWidget page;
        app->setMainWidget(&page);
        for (const auto& way : ways) {
            page.show();
            QString shown;
            QTimer looker;
            connect(&looker, &QTimer::timeout, [&] {
                for (QWidget* const window : QApplication::topLevelWidgets()) {
                    if (window != &page && window->isVisible()) {
                        shown = window->windowTitle();
                        window->isModal() ? QCoreApplication::quit() : void(page.close());
                    }
                }
            });
            looker.start(0);
            // Ends the loop with another value if nothing else does.
            QTimer guard;
            connect(&guard, &QTimer::timeout, [] { QCoreApplication::exit(1); });
            guard.start(30000);
            QTimer::singleShot(0, app, way.open);
            QCOMPARE(QCoreApplication::exec(), 0);
            looker.stop();
            QCOMPARE(shown, QLatin1String(way.title));
            page.close();
            // The help is kept to the end, and goes with its parent.
            for (QWidget* const window : QApplication::topLevelWidgets()) {
                if (window->isVisible()) {
                    delete window;
                }
            }
        }
    }
};

TESSARIN_TEST(tst_PromoMenuBar);
#include "tst_PromoMenuBar.moc"
