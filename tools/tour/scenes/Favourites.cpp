#include "flow/FlowsFolder.h"
#include "scenes/Scenes.h"
#include "Stage.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTest>

namespace
{

const QString kName = QStringLiteral("Autumn & light");
const QString kFile = kName + QStringLiteral(".flow");

QPushButton* flowsButton(Stage& stage)
{
    // The button shares its object name with others; its menu has one of its own.
    auto* const menu = stage.find<QMenu>(QStringLiteral("FavoritesMenu"));
    return menu ? qobject_cast<QPushButton*>(menu->parentWidget()) : nullptr;
}

void choose(Stage& stage, const QString& text)
{
    stage.withMenu(flowsButton(stage),
                   [&stage, &text](QMenu* menu) { stage.chooseEntry(menu, text); });
}

/// Types the name and photographs the dialog.
void typeName(Stage& stage, QWidget* dialog, const QString& picture)
{
    auto* const edit = qobject_cast<QLineEdit*>(dialog->focusWidget());
    if (stage.check(edit, QStringLiteral("a name can be typed at once"))) {
        QTest::keyClicks(edit, kName);
    }
    stage.shoot(picture, dialog);
    stage.shootTogether(picture + QStringLiteral("-page"), {stage.page(), dialog});
    stage.clickButton(dialog, QStringLiteral("Ok"));
}

/// Photographs a question and answers it.
Stage::DialogAct answer(Stage& stage, const QString& picture, const QString& caption)
{
    return [&stage, picture, caption](QWidget* dialog) {
        stage.shoot(picture, dialog);
        stage.clickButton(dialog, caption);
    };
}

bool isSaved()
{
    return QFile::exists(flowsFolder() + kFile);
}

void saveFlow(Stage& stage)
{
    stage.withDialogs([&stage] { choose(stage, QStringLiteral("&Save...")); },
                      QStringLiteral("the name"), {[&stage](QWidget* dialog) {
                          typeName(stage, dialog, QStringLiteral("name"));
                      }});
    stage.check(isSaved(), QStringLiteral("a flow is saved"));
}

void saveAgain(Stage& stage)
{
    stage.withDialogs(
        [&stage] { choose(stage, QStringLiteral("&Save...")); },
        QStringLiteral("the question whether to overwrite"),
        {[&stage](QWidget* dialog) { typeName(stage, dialog, QStringLiteral("same-name")); },
         answer(stage, QStringLiteral("overwrite"), QStringLiteral("Yes"))});
}

void clearAndLoad(Stage& stage)
{
    const QStringList names = stage.operationNames();
    const QImage result = stage.result();
    choose(stage, QStringLiteral("&Clear"));
    stage.check(stage.operationNames().isEmpty(), QStringLiteral("a cleared flow is empty"));
    stage.shoot(QStringLiteral("cleared"));

    QString entry = kFile;
    entry.replace(QLatin1Char('&'), QLatin1String("&&"));
    stage.withMenu(flowsButton(stage), [&stage, &entry](QMenu* menu) {
        stage.press(menu, Qt::Key_Up);
        stage.shootTogether(QStringLiteral("menu"), {stage.page(), menu});
        stage.shoot(QStringLiteral("menu-alone"), menu);
        stage.chooseEntry(menu, entry);
    });
    stage.check(stage.operationNames() == names && stage.result() == result,
                QStringLiteral("a loaded flow is the saved one"));
    stage.shoot(QStringLiteral("loaded"));
}

void deleteFlow(Stage& stage)
{
    stage.withDialogs(
        [&stage] { choose(stage, QStringLiteral("&Delete...")); },
        QStringLiteral("the dialog and the question before a deletion"),
        {[&stage](QWidget* dialog) {
             auto* const list = stage.find<QListWidget>(dialog);
             for (int i = 0; list && i < list->count() && list->currentItem()->text() != kFile;
                  ++i) {
                 stage.press(list, Qt::Key_Down);
             }
             stage.shoot(QStringLiteral("delete"), dialog);
             stage.shootTogether(QStringLiteral("delete-page"), {stage.page(), dialog});
             stage.clickButton(dialog, QStringLiteral("&Delete"));
         },
         answer(stage, QStringLiteral("delete-question"), QStringLiteral("Yes"))});
    stage.check(!isSaved(), QStringLiteral("a deleted flow is gone"));
}

} // namespace

void keepFavourites(Stage& stage)
{
    // An earlier tour that was cut short may have left it.
    QFile::remove(flowsFolder() + kFile);
    stage.dropPhotos();
    stage.addOperation(QStringLiteral("Brightness, Contrast, Saturation"));
    stage.setSlider(QStringLiteral("Saturation:"), 60);
    stage.addOperation(QStringLiteral("Vignetting"));
    stage.addOperation(QStringLiteral("Frame"));
    stage.shoot(QStringLiteral("flow"));

    saveFlow(stage);
    clearAndLoad(stage);
    saveAgain(stage);
    deleteFlow(stage);

    choose(stage, QStringLiteral("&Go To Flows Location"));
    const QList<QUrl> opened = stage.urls().urls();
    stage.check(!opened.isEmpty() && QDir(opened.last().toLocalFile()) == QDir(flowsFolder()),
                QStringLiteral("the folder of flows opens"));
    choose(stage, QStringLiteral("sample.flow"));
    stage.check(stage.operationNames().size() == 4, QStringLiteral("the sample loads"));
    stage.shoot(QStringLiteral("sample"));
}
