#pragma once

#include <QDialog>
#include <QString>

class ComboSlider;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;

/// Chooses how the batch delivers: output format, JPEG quality, renaming, and whether the
/// destination opens at the end. The values live in the settings store; a change holds from the
/// next run on.
class AppSettingsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AppSettingsDialog(QWidget* parent);

    static bool keyOpenLocation();
    /// A format name of the image writer, as in "JPEG".
    static QString keyFormat();
    /// Of JPEG files, 1 to 100.
    static int keyQuality();
    static bool keyRename();
    /// What renamed files begin with; stored as it was typed.
    static QString keyNewName();
    /// Numbering of renamed files: 0 all, 1 odd, 2 even.
    static int keyNumbers();

public slots:
    void slotLoadSettings();
    void slotSaveSettings();
    void slotFormatChanged();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QGroupBox* makeFormatBox();
    QGroupBox* makeRenameBox();

    QCheckBox* m_openLocationCheck;
    QLabel* m_qualityLabel;
    QComboBox* m_formatBox;
    ComboSlider* m_quality;
    QLineEdit* m_newNameEdit;
    QComboBox* m_numbersBox;
    QGroupBox* m_renameBox;
};
