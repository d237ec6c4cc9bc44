#pragma once

#include <QDialog>
#include <QMessageBox>

class QBoxLayout;
class QLabel;

namespace QMWidgets
{

/// The program's message box: it wears the application's style sheet and buttons, and its row of
/// buttons becomes a column on a small screen. It takes the size that its text needs, within the
/// screen; a text that is higher still scrolls, so the buttons always show.
///
/// exec() returns the QMessageBox::StandardButton that was pressed, or 0 if the box was closed in
/// another way. The first button has the focus, so Enter presses it.
class MMessageBox : public QDialog
{
    Q_OBJECT

public:
    /// Messages of the four kinds: `type` 1 information, 2 warning, 3 critical, 4 question; any
    /// other number shows no icon. The order of the buttons is the box's own; bits that stand for
    /// none of its buttons are passed over. Without a button, only Escape or closing the window
    /// ends the box.
    MMessageBox(int type, const QString& title, const QString& text,
                QMessageBox::StandardButtons buttons, QWidget* parent);

    /// Show a modal box and return the result of exec(). The box stays a child of its parent; one
    /// without a parent is deleted. The last argument has no effect.
    static int information(QWidget* parent, const QString& title, const QString& text,
                           QMessageBox::StandardButtons buttons, int unused = 0);
    static int warning(QWidget* parent, const QString& title, const QString& text,
                       QMessageBox::StandardButtons buttons, int unused = 0);
    static int critical(QWidget* parent, const QString& title, const QString& text,
                        QMessageBox::StandardButtons buttons, int unused = 0);
    static int question(QWidget* parent, const QString& title, const QString& text,
                        QMessageBox::StandardButtons buttons, int unused = 0);

    void setVisible(bool visible) override;

public slots:
    void slotOk();
    void slotCancel();
    void slotYes();
    void slotNo();
    void slotAbort();
    void slotRetry();
    void slotIgnore();
    void slotYesAll();
    void slotNoAll();

private:
    static int ask(int type, QWidget* parent, const QString& title, const QString& text,
                   QMessageBox::StandardButtons buttons);
    QBoxLayout* makeButtons(QMessageBox::StandardButtons buttons);
    QSize sizeOnScreen() const;

    QLabel* m_textLabel;
    QLabel* m_iconLabel;
};

} // namespace QMWidgets
