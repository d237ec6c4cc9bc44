#include "batch/AppSettingsDialog.h"
#include "scenes/Scenes.h"
#include "scenes/SettingsSteps.h"
#include "ShownText.h"
#include "Stage.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

QComboBox* boxWith(const QWidget* dialog, const QString& item)
{
    for (QComboBox* const box : dialog->findChildren<QComboBox*>()) {
        if (box->findText(shownText(box, item)) >= 0) {
            return box;
        }
    }
    return nullptr;
}

void withSettings(Stage& stage, const std::function<void(QWidget* dialog)>& act)
{
    stage.withDialog(stage.find<QPushButton>(QStringLiteral("SettingsButton")),
                     QStringLiteral("the settings"), act);
}

void setRenaming(Stage& stage, const QWidget* dialog, const QString& newName)
{
    QGroupBox* renameBox = nullptr;
    for (QGroupBox* const box : dialog->findChildren<QGroupBox*>()) {
        renameBox = box->isCheckable() ? box : renameBox;
    }
    QLineEdit* edit = nullptr;
    for (QLineEdit* const one : dialog->findChildren<QLineEdit*>()) {
        // A spin box holds an edit of its own.
        edit = qobject_cast<QAbstractSpinBox*>(one->parent()) ? edit : one;
    }
    if (!stage.check(renameBox && edit, QStringLiteral("photos can be renamed"))) {
        return;
    }
    if (renameBox->isChecked() == newName.isEmpty()) {
        stage.press(renameBox, Qt::Key_Space);
    }
    if (!newName.isEmpty()) {
        stage.pointer().click(edit);
        edit->selectAll();
        QTest::keyClicks(edit, newName);
        stage.check(edit->text() == newName, QStringLiteral("the new name can be typed"));
    }
}

void chooseSettings(Stage& stage)
{
    stage.dropPhotos();
    withSettings(stage, [&stage](QWidget* dialog) {
        stage.shoot(QStringLiteral("dialog"), dialog);
        QComboBox* const formats = boxWith(dialog, QStringLiteral("TIFF"));
        stage.click(formats);
        if (stage.waitFor([formats] { return formats->view()->isVisible(); },
                          QStringLiteral("the list of formats"))) {
            QWidget* const list = formats->view()->window();
            stage.shootTogether(QStringLiteral("formats"), {dialog, list});
            stage.press(formats->view(), Qt::Key_Escape);
        }
        stage.chooseItem(formats, QStringLiteral("PNG"));
        setRenaming(stage, dialog, QStringLiteral("Holiday "));
        stage.chooseItem(boxWith(dialog, QStringLiteral("Odd")), QStringLiteral("Odd"));
        stage.shoot(QStringLiteral("renaming"), dialog);
        stage.shootTogether(QStringLiteral("page"), {stage.page(), dialog});
        stage.clickButton(dialog, QStringLiteral("Ok"));
    });
    stage.check(AppSettingsDialog::keyFormat() == QLatin1String("PNG") &&
                    AppSettingsDialog::keyRename() && AppSettingsDialog::keyNumbers() == 1 &&
                    AppSettingsDialog::keyNewName() == QLatin1String("Holiday "),
                QStringLiteral("the settings are kept"));
}
