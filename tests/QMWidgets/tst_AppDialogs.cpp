#include "support/TestMain.h"

#include <QMWidgets/App.h>
#include <QTimer>

using QMWidgets::App;

namespace
{

void openReminder()
{
    App* const app = App::app();
    app->setSettingsValue(QStringLiteral("AutoReminder"), true);
    app->scheduleReminder(1, 2);
    app->slotCallRateReminderInternal();
    app->setSettingsValue(QStringLiteral("AutoReminder"), false);
}

} // namespace

class tst_AppDialogs : public QObject
{
    Q_OBJECT

private slots:
    /// With each of the dialogs open: the dialog's own loop ends, and so does the program's.
    void theProgramEndsAroundThem()
    {
        App* const app = App::app();
        QWidget page;
        app->setMainWidget(&page);
        const struct {
            std::function<void()> open;
            const char* title;
        } ways[] = {{[app] { app->slotHelp(); }, "Tessarin Introduction"},
                    {[app] { app->slotShareApp(); }, "Share Tessarin"},
                    {[app] { app->slotJoin(); }, "Join us"},
                    {[app] { app->slotAbout(); }, "Tessarin Info"},
                    {&openReminder, "Share"},
                    {[app] { app->slotShowCssEditor(); }, "CSS Style Editor"}};
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
        app->setMainWidget(nullptr);
    }
};

TESSARIN_TEST(tst_AppDialogs);
#include "tst_AppDialogs.moc"
