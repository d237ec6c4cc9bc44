#include "CssEditor.h"

#include "CssDoc.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QToolBar>

namespace QMWidgets
{

namespace
{

/// Tells the selectors that reach a widget. Said twice it stands there once.
void addSelectorTip(QWidget* widget)
{
    if (widget->objectName().isEmpty()) {
        return;
    }
    const QString info =
        QLatin1String(widget->metaObject()->className()) + QLatin1Char('\n') + widget->objectName();
    const QString tip = widget->toolTip();
    if (!tip.endsWith(info)) {
        widget->setToolTip(tip.isEmpty() ? info : tip + QLatin1Char('\n') + info);
    }
}

} // namespace

CssEditor::CssEditor(QWidget* parent)
    : QMainWindow(parent),
      m_doc(new CssDoc(this))
{
    setCentralWidget(m_doc);
    setWindowTitle(tr("CSS Style Editor"));
    resize(640, 480);
    connect(m_doc, &CssDoc::changeWindowTitle, this, &CssEditor::slotChangeWindowTitle);
    makeActions();
    statusBar()->showMessage(tr("Ready"));
    m_doc->setFocus();
}

void CssEditor::makeActions()
{
    QMenu* const file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open..."), m_doc, &CssDoc::slotLoad, int(Qt::CTRL) + int(Qt::Key_O));
    file->addAction(tr("&Save"), m_doc, &CssDoc::slotSave, int(Qt::CTRL) + int(Qt::Key_S));
    file->addAction(tr("S&ave As..."), m_doc, &CssDoc::slotSaveAs);

    QToolBar* const operations = addToolBar(tr("Operations"));
    QAction* const setInfo =
        operations->addAction(tr("&SetInfo"), this, &CssEditor::slotApplyToolTipsInfo);
    setInfo->setShortcut(int(Qt::CTRL) + int(Qt::Key_I));
    QAction* const apply = operations->addAction(tr("&Apply"), this, &CssEditor::slotApply);
    apply->setShortcut(int(Qt::CTRL) + int(Qt::Key_A));
    QAction* const reset = operations->addAction(tr("&Reset"), this, &CssEditor::slotReset);
    // The only one without a key of its own.
    file->addSeparator();
    file->addAction(reset);

    menuBar()->addMenu(tr("&Help"))->addAction(tr("&About"), this, &CssEditor::slotAbout);
}

void CssEditor::slotApply()
{
    qApp->setStyleSheet(m_doc->toPlainText());
    m_doc->applyLook();
}

void CssEditor::slotAbout()
{
    QMessageBox::about(this, tr("About"), tr("CSS Style Editor"));
}

void CssEditor::slotReset()
{
    qApp->setStyleSheet(QString());
}

void CssEditor::slotChangeWindowTitle(const QString& title)
{
    setWindowTitle(title);
}

void CssEditor::slotApplyToolTipsInfo()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        addSelectorTip(window);
        const QWidgetList parts = window->findChildren<QWidget*>();
        for (QWidget* const part : parts) {
            addSelectorTip(part);
        }
    }
}

} // namespace QMWidgets
