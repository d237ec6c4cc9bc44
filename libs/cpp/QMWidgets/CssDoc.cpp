#include "CssDoc.h"

#include "CssSyntaxHighlighter.h"
#include "FileDialog.h"

#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QSaveFile>
#include <QTextStream>

namespace QMWidgets
{

namespace
{
const char* const kCodec = "UTF-8";
} // namespace

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
    const QString name =
        FileDialog::getOpenFileName(this, tr("Open"), QFileInfo(m_fileName).path());
    QFile file(name);
    if (name.isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return;
    }
    QTextStream stream(&file);
    stream.setCodec(kCodec);
    setPlainText(stream.readAll());
    m_fileName = name;
    emit changeWindowTitle(m_fileName);
}

void CssDoc::slotSave()
{
    if (m_fileName.isEmpty()) {
        slotSaveAs();
        return;
    }
    // Written beside the file and renamed at the end: a full disk spoils no style sheet.
    QSaveFile file(m_fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return;
    }
    QTextStream stream(&file);
    stream.setCodec(kCodec);
    stream << toPlainText();
    stream.flush();
    if (file.commit()) {
        emit changeWindowTitle(m_fileName);
    }
}

void CssDoc::slotSaveAs()
{
    const QString name = FileDialog::getSaveFileName(this, tr("Save As"), m_fileName);
    if (!name.isEmpty()) {
        m_fileName = name;
        slotSave();
    }
}

} // namespace QMWidgets
