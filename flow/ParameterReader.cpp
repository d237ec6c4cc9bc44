#include "flow/ParameterReader.h"

#include <QColor>
#include <QDomDocument>

namespace ParameterReader
{

void forEachElement(const QDomNode& parameters, const ElementVisitor& visit)
{
    for (QDomNode child = parameters.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomElement element = child.toElement();
        if (!element.isNull()) {
            visit(element.tagName(), element.text());
        }
    }
}

void forEachElement(const QString& xml, const ElementVisitor& visit)
{
    QDomDocument document;
    if (document.setContent(xml)) {
        forEachElement(document.documentElement(), visit);
    }
}

bool readInt(const QString& text, int& value)
{
    bool ok = false;
    const int number = text.toInt(&ok, 10);
    if (ok) {
        value = number;
    }
    return ok;
}

bool readYesNo(const QString& text)
{
    return text.toLower() == QLatin1String("yes");
}

QColor readColor(const QString& text)
{
    QColor color;
    color.setNamedColor(text);
    return color;
}

QString yesNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

} // namespace ParameterReader
