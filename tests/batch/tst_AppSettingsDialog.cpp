#include "batch/AppSettingsDialog.h"
#include "flow/ComboSlider.h"
#include "support/TestMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMWidgets/App.h>
#include <QPushButton>
#include <QSettings>

namespace
{

/// The dialog's controls by what they stand for.
class Settings
{
public:
    Settings()
        : dialog(nullptr)
    {
        dialog.show();
    }

    QComboBox* format() { return dialog.findChildren<QComboBox*>().at(0); }
    QComboBox* numbers() { return dialog.findChildren<QComboBox*>().at(1); }
    ComboSlider* quality() { return dialog.findChild<ComboSlider*>(); }
    QLineEdit* newName() { return rename()->findChild<QLineEdit*>(); }
    QCheckBox* open() { return dialog.findChild<QCheckBox*>(); }
    QGroupBox* rename() { return qobject_cast<QGroupBox*>(numbers()->parentWidget()); }
    void press(const char* text)
    {
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String(text)) {
                button->click();
            }
        }
    }

    AppSettingsDialog dialog;
};

} // namespace

class TestAppSettingsDialog : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings(QStringLiteral("Corvane"), QStringLiteral("Tessarin")).clear(); }

    void okKeepsWhatWasChosen()
    {
        {
            Settings settings;
            settings.format()->setCurrentText(QStringLiteral("PNG"));
            settings.quality()->setValue(55);
            settings.rename()->setChecked(true);
            settings.newName()->setText(QString());
            settings.numbers()->setCurrentIndex(2);
            settings.open()->setChecked(false);
            settings.press("Ok");
            QCOMPARE(settings.dialog.result(), int(QDialog::Accepted));
        }
        QCOMPARE(AppSettingsDialog::keyFormat(), QStringLiteral("PNG"));
        QCOMPARE(AppSettingsDialog::keyQuality(), 55);
        QVERIFY(AppSettingsDialog::keyRename());
        QCOMPARE(AppSettingsDialog::keyNewName(), QString());
        QCOMPARE(AppSettingsDialog::keyNumbers(), 2);
        QVERIFY(!AppSettingsDialog::keyOpenLocation());

        Settings again;
        QVERIFY2(!again.quality()->isEnabled(), "only JPEG has a quality");
        again.format()->setCurrentText(QStringLiteral("JPEG"));
        QVERIFY(again.quality()->isEnabled());
        QCOMPARE(again.quality()->value(), 55);
    }

    void cancelKeepsTheOldValues()
    {
        Settings settings;
        settings.format()->setCurrentText(QStringLiteral("BMP"));
        settings.newName()->setText(QStringLiteral("x"));
        settings.press("Cancel");
        QCOMPARE(AppSettingsDialog::keyFormat(), QStringLiteral("JPEG"));
        settings.dialog.show();
        QCOMPARE(settings.format()->currentText(), QStringLiteral("JPEG"));
        QCOMPARE(settings.newName()->text(), QStringLiteral("NewName"));
    }

    void aStoredFormatThatIsNotOfferedIsPassedOver()
    {
        QMWidgets::App::app()->setSettingsValue(QStringLiteral("KeyFormat"), QStringLiteral("GIF"));
        Settings settings;
        QCOMPARE(settings.format()->currentText(), QStringLiteral("JPEG"));
        QCOMPARE(AppSettingsDialog::keyFormat(), QStringLiteral("GIF"));
    }
};

TESSARIN_TEST(TestAppSettingsDialog);
#include "tst_AppSettingsDialog.moc"
