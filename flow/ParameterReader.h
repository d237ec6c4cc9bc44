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

/// "yes" or "no".
QString yesNo(bool value);

} // namespace ParameterReader
