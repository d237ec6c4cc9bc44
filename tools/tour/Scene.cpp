#include "Scene.h"

#include "scenes/Scenes.h"

#include <algorithm>

const QVector<Scene>& scenes()
{
    static const QVector<Scene> all = {
        {QStringLiteral("drop"), QStringLiteral("Drop photos on the window"), dropPhotos},
        {QStringLiteral("empty"), QStringLiteral("The page before the first photo"),
         openWithoutPhotos},
        {QStringLiteral("add"), QStringLiteral("Add operations to the flow"), addOperations},
        {QStringLiteral("tune"), QStringLiteral("Tune an operation"), tuneOperation},
        {QStringLiteral("step"), QStringLiteral("Step through the photos"), stepThroughPhotos},
        {QStringLiteral("view"), QStringLiteral("View a result large"), viewLarge},
        {QStringLiteral("order"), QStringLiteral("Order, switch off and remove operations"),
         orderOperations},
        {QStringLiteral("favourites"), QStringLiteral("Save, load and delete a flow"),
         keepFavourites},
        {QStringLiteral("bubbles"), QStringLiteral("Look closer at a step of the flow"),
         showBubbles},
        {QStringLiteral("menus"), QStringLiteral("All menus"), showMenus},
        {QStringLiteral("dialogs"), QStringLiteral("Questions, warnings and choices"), showDialogs},
        {QStringLiteral("states"), QStringLiteral("Buttons and fields in all states"), showStates},
        {QStringLiteral("settings"), QStringLiteral("Choose format and names"), chooseSettings},
        {QStringLiteral("updates"), QStringLiteral("Hear of a newer release"), checkUpdates},
        {QStringLiteral("operations"), QStringLiteral("Each operation with its options"),
         showEachOperation},
        {QStringLiteral("save"), QStringLiteral("Save the results"), saveResults},
        {QStringLiteral("rename"), QStringLiteral("Save the results under new names"), saveRenamed},
        {QStringLiteral("unreadable"), QStringLiteral("Save what can be read"), saveReadable},
        {QStringLiteral("help"), QStringLiteral("The help, by itself and by hand"), showHelp},
        {QStringLiteral("outreach"), QStringLiteral("Share, join and the about box"),
         showAppDialogs},
        {QStringLiteral("reminders"), QStringLiteral("The reminders"), showReminders},
        {QStringLiteral("stylesheet"), QStringLiteral("Edit the style sheet"), editStyleSheet},
    };
    return all;
}

QVector<Scene> scenesNamed(const QStringList& names)
{
    QVector<Scene> chosen;
    for (const Scene& scene : scenes()) {
        if (names.isEmpty() || names.contains(scene.name)) {
            chosen.append(scene);
        }
    }
    return chosen;
}

QStringList unknownNames(const QStringList& names)
{
    QStringList unknown = names;
    for (const Scene& scene : scenes()) {
        unknown.removeAll(scene.name);
    }
    return unknown;
}
