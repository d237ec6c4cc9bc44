#include "CssSyntaxHighlighter.h"

namespace QMWidgets
{

namespace
{

enum BlockState : int { InText = 0, InComment = 1 };

bool splitsWords(QChar sign)
{
    return sign.isSpace() || QStringLiteral("&:;,.!=/*-+][}{)(<>").contains(sign);
}

/// Whether the two signs that begin or end a comment stand there.
bool standsAt(const QString& text, int place, QLatin1String signs)
{
    return text.midRef(place, signs.size()) == signs;
}

} // namespace

CssSyntaxHighlighter::CssSyntaxHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(document),
      m_keyWords({"signals",   "slots",   "SLOT",      "SIGNAL",  "connect", "emit",   "true",
                  "using",     "return",  "protected", "private", "public",  "case",   "switch",
                  "namespace", "false",   "else",      "throw",   "union",   "struct", "this",
                  "mutable",   "virtual", "const",     "class",   "delete",  "char",   "float",
                  "double",    "void",    "bool",      "foreach"})
{
    m_keyWordFormat.setForeground(QColor(0, 220, 255));
    m_keyWordFormat.setFontWeight(QFont::Bold);
    m_commentFormat.setForeground(QColor(150, 200, 150));
    m_commentFormat.setFontItalic(true);
}

void CssSyntaxHighlighter::markWord(const QString& text, int from, int to)
{
    if (m_keyWords.contains(text.mid(from, to - from))) {
        setFormat(from, to - from, m_keyWordFormat);
    }
}

void CssSyntaxHighlighter::highlightBlock(const QString& text)
{
    const QLatin1String opening("/*");
    const QLatin1String closing("*/");
    bool inComment = previousBlockState() == InComment;
    int start = 0; // of the word or the comment in hand
    int i = 0;
    while (i < text.size()) {
        if (inComment) {
            const bool ends = standsAt(text, i, closing);
            i += ends ? closing.size() : 1;
            setFormat(start, i - start, m_commentFormat);
            inComment = !ends;
            start = ends ? i : start;
        } else if (standsAt(text, i, opening)) {
            markWord(text, start, i);
            start = i;
            i += opening.size();
            setFormat(start, opening.size(), m_commentFormat);
            inComment = true;
        } else {
            if (splitsWords(text.at(i))) {
                markWord(text, start, i);
                start = i + 1;
            }
            ++i;
        }
    }
    if (!inComment) {
        markWord(text, start, text.size());
    }
    setCurrentBlockState(inComment ? InComment : InText);
}

} // namespace QMWidgets
