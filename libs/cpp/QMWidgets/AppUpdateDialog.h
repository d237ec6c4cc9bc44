#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;

namespace QMWidgets
{

/// Tells whether there is a newer release, and leads to the page where it can be had. Needs an App.
class AppUpdateDialog : public QDialog
{
    Q_OBJECT

public:
    /// For a newer release, or for being told that this one is the latest.
    AppUpdateDialog(bool hasNewerVersion, QWidget* parent);

public slots:
    void slotCancel();
    /// Opens the support page and closes the dialog.
    void slotUpdate();
    /// Switches the check at the start, at once and however the dialog is left.
    void slotSetChecked(bool on);

private:
    QCheckBox* m_checkBox;
    QLabel* m_textLabel;
    QLabel* m_pictureLabel;
};

} // namespace QMWidgets
