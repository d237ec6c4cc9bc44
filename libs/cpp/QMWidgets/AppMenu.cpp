#include "AppMenu.h"

#include "App.h"
#include "FollowLanguage.h"

namespace QMWidgets
{

namespace
{

struct Entry {
    const char* text;
    const char* icon;
    void (App::*slot)();
    bool isInStoreBuilds = true;
};

const Entry kRateEntry = {QT_TRANSLATE_NOOP("QMWidgets::AppMenu", "Rate this App"), ":/star.png",
                          &App::slotRateApp};

/// The entries above the separator, from top to bottom.
const Entry kEntries[] = {
    {QT_TRANSLATE_NOOP("QMWidgets::AppMenu", "Share"), ":/share_hover.png", &App::slotShareApp},
    {QT_TRANSLATE_NOOP("QMWidgets::AppMenu", "Join Us"), ":/join_hover.png", &App::slotJoin},
    {QT_TRANSLATE_NOOP("QMWidgets::AppMenu", "More Apps"), ":/moreappsicon.png",
     &App::slotShowMoreApps},
    {QT_TRANSLATE_NOOP("QMWidgets::AppMenu", "Contacts Us"), ":/feedback.png", // sic
     &App::slotContactUs},
    {QT_TRANSLATE_NOOP("QMWidgets::AppMenu", "Support Page"), ":/webpage.png",
     &App::slotSupportPage},
    {QT_TRANSLATE_NOOP("QMWidgets::AppMenu", "Check Updates"), ":/star.png", &App::slotCheckUpdate,
     false},
    {QT_TRANSLATE_NOOP("QMWidgets::AppMenu", "About"), ":/appicon.png", &App::slotAbout},
};

void addEntry(QMenu* menu, const Entry& entry, App* app)
{
    QAction* action = menu->addAction(QIcon(QLatin1String(entry.icon)), QString());
    const char* const text = entry.text;
    followLanguage(menu, [action, text] { action->setText(AppMenu::tr(text)); });
    QObject::connect(action, &QAction::triggered, app, entry.slot);
}

} // namespace

AppMenu::AppMenu(QWidget* parent)
    : QMenu(parent)
{
    App* app = App::app();
    // Only a store has a page to rate the application on, and it brings the updates itself.
    if (app->isStoreBuild()) {
        addEntry(this, kRateEntry, app);
    }
    for (const Entry& entry : kEntries) {
        if (entry.isInStoreBuilds || !app->isStoreBuild()) {
            addEntry(this, entry, app);
        }
    }
    addSeparator();
    QAction* quit = addAction(QString());
    followLanguage(this, [quit] { quit->setText(tr("Quit")); });
    connect(quit, &QAction::triggered, this, &AppMenu::quitPressed);
}

} // namespace QMWidgets
