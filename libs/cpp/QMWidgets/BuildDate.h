#pragma once

#include <QDate>
#include <QString>

namespace QMWidgets
{

/// Reads a date in the compiler's form, as in "Oct 18 2014" or "Oct  8 2014".
/// Errors: an invalid date if the text is of another form.
QDate parseBuildDate(const QString& text);

} // namespace QMWidgets
