#include "AboutDialog.h"
#include "App.h"
#include "CssEditor.h"
#include "DialogGate.h"
#include "DialogParent.h"
#include "HelpDialog.h"
#include "JoinDialog.h"
#include "TellDialog.h"

#include <QTimer>

namespace QMWidgets
{

void App::showHelpIfDue()
{
    if (!HelpDialog::isNeverShown()) {
        m_helpTimer->start();
    }
}

void App::showHelpWhenGateOpens()
{
    m_dialogGate->whenOpen([this] { slotHelp(); });
}

void App::slotHelp()
{
    // Whoever opens the help by hand has seen it for this start.
    m_helpTimer->stop();
    if (!m_helpDialog) {
        m_helpDialog = new HelpDialog(nullptr);
        for (const QString& path : qAsConst(m_helpImages)) {
            m_helpDialog->addSlide(path);
        }
    }
    if (m_helpDialog->isVisible()) {
        return;
    }
    // Another dialog may be the active window, and it may go before the help is opened again. The
    // help stays, since its numbers count on from one dialog to the next.
    m_helpDialog->setParent(dialogParent(), m_helpDialog->windowFlags());
    m_helpDialog->exec();
    // One that still shows was left by the end of the program. It counts as modal no more, so Qt
    // would block the other windows for ever if it were hidden now, as a change of parent does.
    if (m_helpDialog && !m_helpDialog->isVisible()) {
        m_helpDialog->setParent(nullptr, m_helpDialog->windowFlags());
    }
}

void App::slotShareApp()
{
    TellDialog dialog(activeWindow());
    dialog.exec();
}

void App::slotJoin()
{
    JoinDialog dialog(activeWindow());
    dialog.exec();
}

void App::slotAbout()
{
    const QPointer<AboutDialog> dialog = new AboutDialog(m_mainWidget);
    dialog->exec();
    delete dialog;
}

void App::slotShowCssEditor()
{
    auto* editor = new CssEditor;
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->setAttribute(Qt::WA_QuitOnClose, false);
    connect(this, &App::aboutToQuit, editor, &CssEditor::deleteLater);
    editor->show();
}

} // namespace QMWidgets
