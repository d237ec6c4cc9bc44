#include "batch/AppSettingsDialog.h"
#include "flow/ComboSlider.h"
#include "support/ModalDialog.h"
#include "support/TestMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMWidgets/App.h>
#include <QSettings>

class TestAppSettingsDialog : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings(QStringLiteral("Corvane"), QStringLiteral("Tessarin")).clear(); }

    void okKeepsWhatWasChosen()
    {
        AppSettingsDialog dialog(nullptr);
        dialog.show();
        const auto boxes = dialog.findChildren<QComboBox*>();
        boxes.at(0)->setCurrentText(QStringLiteral("PNG"));
        dialog.findChild<ComboSlider*>()->setValue(55);
        auto* const rename = qobject_cast<QGroupBox*>(boxes.at(1)->parentWidget());
        rename->setChecked(true);
        rename->findChild<QLineEdit*>()->setText(QString());
        boxes.at(1)->setCurrentIndex(2);
        dialog.findChild<QCheckBox*>()->setChecked(false);
        QCOMPARE(AppSettingsDialog::keyFormat(), QStringLiteral("JPEG"));
        buttonOf(&dialog, QStringLiteral("Ok"))->click();
        QCOMPARE(AppSettingsDialog::keyFormat(), QStringLiteral("PNG"));
        QCOMPARE(AppSettingsDialog::keyQuality(), 55);
        QVERIFY(AppSettingsDialog::keyRename());
        QCOMPARE(AppSettingsDialog::keyNewName(), QString());
        QCOMPARE(AppSettingsDialog::keyNumbers(), 2);
        QVERIFY(!AppSettingsDialog::keyOpenLocation());

        boxes.at(0)->setCurrentText(QStringLiteral("BMP"));
        buttonOf(&dialog, QStringLiteral("Cancel"))->click();
        QCOMPARE(AppSettingsDialog::keyFormat(), QStringLiteral("PNG"));
    }

    void aStoredFormatThatIsNotOfferedIsPassedOver()
    {
        QMWidgets::App::app()->setSettingsValue(QStringLiteral("KeyFormat"), QStringLiteral("GIF"));
        AppSettingsDialog dialog(nullptr);
        QCOMPARE(dialog.findChild<QComboBox*>()->currentText(), QStringLiteral("JPEG"));
        QCOMPARE(AppSettingsDialog::keyFormat(), QStringLiteral("GIF"));
    }
};

TESSARIN_TEST(TestAppSettingsDialog);
#include "tst_AppSettingsDialog.moc"
