#pragma once

#include <QString>

namespace QMWidgets
{

/// "Win " and the name of a Windows version, told by the number the toolkit has for it, as in
/// "Win 7" for 144; a number without a name is given in parentheses, as in "Win (192)".
QString windowsVersionName(int version);

} // namespace QMWidgets
