#pragma once

#include <QDialog>

class QDate;
class QLabel;
class QPushButton;
class QTextBrowser;

namespace QMWidgets
{

/// Tells the program's name, version and build date under its logo; at a button the legal notices
/// take the place of both. Needs an App.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent);

    /// The rich text under the logo, for a program built on that day. The maker's web site is a
    /// link only if `asLink`.
    static QString infoText(const QDate& buildDate, bool asLink);

public slots:
    /// Changes between the logo and the legal notices.
    void slotLegalNoticesClicked();
    void slotOkClicked();

private:
    void showLogo(bool on);
    void layOut(QPushButton* okButton);

    QLabel* m_logoLabel;
    QTextBrowser* m_legalBrowser;
    QLabel* m_infoLabel;
    QPushButton* m_legalButton;
};

} // namespace QMWidgets
