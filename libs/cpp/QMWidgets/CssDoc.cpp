#include "CssDoc.h"

#include "CssSyntaxHighlighter.h"
#include "FileDialog.h"
#include "WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QTextStream>

namespace QMWidgets
{

CssDoc::CssDoc(QWidget* parent)
    : QTextEdit(parent)
{
    setAcceptRichText(false);
    setAccessibleName(tr("Style sheet"));
    applyLook();
    // The document owns it.
    new CssSyntaxHighlighter(document());
}

void CssDoc::applyLook()
{
    QFont font(QStringLiteral("Lucida Console"), 12, QFont::Normal);
    font.setStyleHint(QFont::Monospace); // where that one is missing
    setFont(font);
    setStyleSheet(QStringLiteral("QTextEdit{background: #000060; color: yellow;}"));
}

bool CssDoc::event(QEvent* event)
{
    // The text's own "select all" would take the window's key for "apply".
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::SelectAll)) {
        event->ignore();
        return true;
    }
    return QTextEdit::event(event);
}

void CssDoc::slotLoad()
{
    const QString folder = m_fileName.isEmpty() ? QString() : QFileInfo(m_fileName).path();
    const QString name = FileDialog::getOpenFileName(this, tr("Open"), folder);
    QFile file(name);
    if (name.isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    setPlainText(stream.readAll());
    m_fileName = name;
    emit changeWindowTitle(m_fileName);
}

void CssDoc::slotSave()
{
    if (m_fileName.isEmpty()) {
        slotSaveAs();
    } else {
        saveTo(m_fileName);
    }
}

void CssDoc::slotSaveAs()
{
    const QString name = FileDialog::getSaveFileName(this, tr("Save As"), m_fileName);
    if (!name.isEmpty()) {
        saveTo(name);
    }
}

void CssDoc::saveTo(const QString& name)
{
    if (writeWholeFile(name, toPlainText().toUtf8())) {
        m_fileName = name;
        emit changeWindowTitle(m_fileName);
    }
}

} // namespace QMWidgets
