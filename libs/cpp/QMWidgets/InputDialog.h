#pragma once

#include <QDialog>
#include <QLineEdit>

class QPushButton;
class QSpinBox;
class QStackedWidget;

namespace QMWidgets
{

/// A modal dialog that asks for one number or one line of text. Enter accepts, Escape cancels; the
/// buttons stand in a column on a small screen.
class InputDialog : public QDialog
{
    Q_OBJECT

public:
    /// `mode` 0 asks for a number, 1 for a text; any other is kept and shows the number. `input`
    /// and `flags` have no effect.
    InputDialog(const QString& label, QWidget* parent, QWidget* input, Qt::WindowFlags flags,
                int mode);

    /// Returns the line's text, after a cancel as well; `ok`, if given, receives whether it was
    /// accepted. `flags` have no effect.
    static QString getText(QWidget* parent, const QString& title, const QString& label,
                           QLineEdit::EchoMode echoMode = QLineEdit::Normal,
                           const QString& text = QString(), bool* ok = nullptr,
                           Qt::WindowFlags flags = Qt::WindowFlags());

    /// The same for a number. A value outside the range is pulled to its nearer end. `step` and
    /// `flags` have no effect.
    static int getInteger(QWidget* parent, const QString& title, const QString& label,
                          int value = 0, int minimum = -2147483647, int maximum = 2147483647,
                          int step = 1, bool* ok = nullptr,
                          Qt::WindowFlags flags = Qt::WindowFlags());

    int mode() const { return m_mode; }

public slots:
    void accept() override;
    void reject() override;

private:
    QSpinBox* m_spinBox;
    QLineEdit* m_lineEdit;
    QPushButton* m_okButton;
    QPushButton* m_cancelButton;
    QStackedWidget* m_stack;
    int m_mode;
};

} // namespace QMWidgets
