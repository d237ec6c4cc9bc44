#pragma once

#include <QString>

namespace QMWidgets
{

/// A text for a label that shows it letter by letter, whatever it holds. Labels take a text for
/// rich that looks like it, which a file name may well do; any other text is given back as it is.
QString literalText(const QString& text);

} // namespace QMWidgets
