#pragma once

#include <QStringList>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>

namespace QMWidgets
{

/// Marks the key words of a source text, and its comments, which may run over lines.
class CssSyntaxHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit CssSyntaxHighlighter(QTextDocument* document);

protected:
    void highlightBlock(const QString& text) override;

private:
    void markWord(const QString& text, int from, int to);

    QStringList m_keyWords;
    QTextCharFormat m_keyWordFormat;
    QTextCharFormat m_commentFormat;
};

} // namespace QMWidgets
