#pragma once

namespace QMWidgets
{

/// How many whole device pixels of the primary screen a length holds, which is given in logical
/// pixels.
int wholeDevicePixels(int length);

} // namespace QMWidgets
