#pragma once

#include <QDialog>

class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;

namespace QMWidgets
{

/// The base of the dialogs that ask the user to help the program along: a logo, a text and buttons,
/// with a place between them for what a form adds.
class ReminderDialog : public QDialog
{
    Q_OBJECT

public:
    enum Answer : int { NoAnswer, Now, MaybeLater, NeverAskMeAgain };

    explicit ReminderDialog(QWidget* parent);

    /// NoAnswer until a button was pressed, also when the dialog was closed in another way.
    int answer() const { return m_answer; }

public slots:
    void slotNow();
    void slotMaybeLater();
    void slotNeverAskMeAgain();

protected:
    /// Puts `text` behind the opening of the text and closes the heading.
    void finishText(const QString& text);
    /// Makes the dialog one that shows `widget` and has no button to answer at once.
    void showInstead(QWidget* widget);

    QLabel* textLabel() const { return m_textLabel; }
    QPushButton* nowButton() const { return m_nowButton; }
    QPushButton* laterButton2() const { return m_laterButton2; }

private:
    void answerWith(Answer answer);
    void setUpButtons();
    QBoxLayout* makeUpperRow();

    QLabel* m_textLabel;
    int m_answer = NoAnswer;
    QPushButton* m_nowButton;
    QPushButton* m_laterButton;
    QPushButton* m_laterButton2;
    QPushButton* m_neverButton;
    QHBoxLayout* m_extraLayout;
    QLabel* m_logoLabel;
};

} // namespace QMWidgets
