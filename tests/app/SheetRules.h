#pragma once

#include <QColor>
#include <QHash>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

/// The rules of a style sheet as text, one for each single selector, in the sheet's order.
class SheetRules
{
public:
    struct Rule {
        QString selector;
        QHash<QString, QString> declarations;
    };

    explicit SheetRules(const QString& sheet);

    const QVector<Rule>& rules() const { return m_rules; }
    /// What the rules with exactly this selector declare last, or an empty text.
    QString value(const QString& selector, const QString& property) const;
    QStringList objectNames() const;
    /// Base names of the pictures that a value names, as in "dart.png".
    static QStringList pictures(const QString& value);
    /// All colours in a value, a gradient's stops in their order.
    static QVector<QColor> colors(const QString& value);

private:
    QVector<Rule> m_rules;
};
