#include "SheetRules.h"

#include <QRegularExpression>

namespace
{

QHash<QString, QString> declarationsOf(const QString& body)
{
    QHash<QString, QString> declarations;
    for (const QString& declaration : body.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        declarations[declaration.section(QLatin1Char(':'), 0, 0).trimmed()] =
            declaration.section(QLatin1Char(':'), 1).trimmed();
    }
    return declarations;
}

QColor colorOf(const QRegularExpressionMatch& match)
{
    if (match.captured(1).isEmpty()) {
        return QColor(match.captured());
    }
    const QStringList parts = match.captured(1).split(QLatin1Char(','));
    const int alpha = parts.size() > 3 ? parts.at(3).toInt() : 255;
    return QColor(parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt(), alpha);
}

QStringList allCaptures(const QString& pattern, const QString& text)
{
    QStringList found;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext()) {
        found.append(matches.next().captured(1));
    }
    return found;
}

} // namespace

SheetRules::SheetRules(const QString& sheet)
{
    QString text = sheet;
    text.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"),
                                   QRegularExpression::DotMatchesEverythingOption));
    auto blocks = QRegularExpression(QStringLiteral("([^{}]+)\\{([^{}]*)\\}")).globalMatch(text);
    while (blocks.hasNext()) {
        const QRegularExpressionMatch block = blocks.next();
        for (const QString& selector : block.captured(1).split(QLatin1Char(','))) {
            m_rules.append({selector.simplified(), declarationsOf(block.captured(2))});
        }
    }
}

QString SheetRules::value(const QString& selector, const QString& property) const
{
    QString found;
    for (const Rule& rule : m_rules) {
        if (rule.selector == selector && rule.declarations.contains(property)) {
            found = rule.declarations.value(property);
        }
    }
    return found;
}

QStringList SheetRules::objectNames() const
{
    QStringList names;
    for (const Rule& rule : m_rules) {
        names += allCaptures(QStringLiteral("#(\\w+)"), rule.selector);
    }
    names.removeDuplicates();
    return names;
}

QStringList SheetRules::pictures(const QString& value)
{
    return allCaptures(QStringLiteral("url\\(:/([^)]+)\\)"), value);
}

QVector<QColor> SheetRules::colors(const QString& value)
{
    static const QRegularExpression color(QStringLiteral(
        "rgba?\\(([^)]*)\\)|#[0-9A-Fa-f]{6}|\\b(?:white|black|gray|lightgray|green|red)\\b"));
    QVector<QColor> found;
    auto matches = color.globalMatch(value);
    while (matches.hasNext()) {
        found.append(colorOf(matches.next()));
    }
    return found;
}
