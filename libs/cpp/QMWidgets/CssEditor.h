#pragma once

#include <QMainWindow>

namespace QMWidgets
{

class CssDoc;

/// A developer's window, in which the application's style sheet is edited and tried on the running
/// program.
class CssEditor : public QMainWindow
{
    Q_OBJECT

public:
    explicit CssEditor(QWidget* parent = nullptr);

public slots:
    /// Makes the text the application's style sheet.
    void slotApply();
    void slotAbout();
    /// Takes the application's style sheet away.
    void slotReset();
    void slotChangeWindowTitle(const QString& title);
    /// Adds class and object name of every widget that has a name to its tool tip.
    void slotApplyToolTipsInfo();

private:
    void makeActions();

    CssDoc* m_doc;
};

} // namespace QMWidgets
