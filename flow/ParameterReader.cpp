#include "flow/ParameterReader.h"

#include <QColor>
#include <QDomDocument>

namespace
{

template <class Use> void forEachText(const QString& xml, const char* tag, const Use& use)
{
    ParameterReader::forEachElement(xml, [&](const QString& name, const QString& text) {
        if (name == QLatin1String(tag)) {
            use(text);
        }
    });
}

} // namespace

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

int intValue(const QString& xml, const char* tag, int fallback)
{
    int value = fallback;
    forEachText(xml, tag, [&value](const QString& text) { readInt(text, value); });
    return value;
}

bool yesNoValue(const QString& xml, const char* tag, bool fallback)
{
    bool value = fallback;
    forEachText(xml, tag, [&value](const QString& text) { value = readYesNo(text); });
    return value;
}

QColor colorValue(const QString& xml, const char* tag, const QColor& fallback)
{
    QColor value = fallback;
    forEachText(xml, tag, [&value](const QString& text) { value = readColor(text); });
    return value;
}

QString yesNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

} // namespace ParameterReader
