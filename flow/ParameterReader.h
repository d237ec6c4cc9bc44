#pragma once

#include <functional>
#include <QString>

class QColor;
class QDomNode;

/// The one tolerant reader of node parameters: whatever can't be understood is skipped in silence
/// and leaves the value as it was.
namespace ParameterReader
{

using ElementVisitor = std::function<void(const QString& tag, const QString& text)>;

/// Visits the element children of a parameters element in document order.
void forEachElement(const QDomNode& parameters, const ElementVisitor& visit);

/// The same for a parameters element that stands as a text of its own. A text that is no
/// well-formed XML has no elements.
void forEachElement(const QString& xml, const ElementVisitor& visit);

/// A decimal whole number. Errors: false, and the value as it was.
bool readInt(const QString& text, int& value);

/// "yes" in any case is true, everything else is false.
bool readYesNo(const QString& text);

/// A colour's name, as in "#00ff00". Errors: an invalid colour.
QColor readColor(const QString& text);

/// What a parameter text tells for one tag, the last time if it tells it several times; `fallback`
/// where it tells nothing. A colour that can't be read is told as an invalid one.
int intValue(const QString& xml, const char* tag, int fallback);
bool yesNoValue(const QString& xml, const char* tag, bool fallback);
QColor colorValue(const QString& xml, const char* tag, const QColor& fallback);

/// "yes" or "no".
QString yesNo(bool value);

} // namespace ParameterReader
