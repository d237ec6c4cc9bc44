#include "DevicePixels.h"

#include "App.h"

namespace QMWidgets
{

int wholeDevicePixels(int length)
{
    // A ratio of 1.15 is less than that as a binary number, and 360 times it less than 414.
    constexpr double kRoundingError = 1e-6;
    return int(length * App::devicePixelRatio() + kRoundingError);
}

} // namespace QMWidgets
