#include "PremultiplyKernel.h"

#include "Multiversion.h"

namespace
{

// Two channels share a word with 16 bits for each. x / 255 is taken as (x + x / 256 + 128) / 256,
// which rounds to the nearest whole number for each product of two bytes.
MGRAPHX_MULTIVERSION
void premultiply(const uint32_t* source, uint32_t* target, int count)
{
    constexpr uint32_t kOuter = 0x00ff00ffu;
    for (int i = 0; i < count; ++i) {
        const uint32_t p = source[i];
        const uint32_t alpha = p >> 24;
        uint32_t redBlue = (p & kOuter) * alpha;
        redBlue = ((redBlue + ((redBlue >> 8) & kOuter) + 0x800080u) >> 8) & kOuter;
        uint32_t green = ((p >> 8) & 0xffu) * alpha;
        green = (green + (green >> 8) + 0x80u) & 0xff00u;
        target[i] = (alpha << 24) | redBlue | green;
    }
}

} // namespace

namespace MGraphX::kernels
{

void premultiplyRow(const uint32_t* source, uint32_t* target, int count)
{
    premultiply(source, target, count);
}

} // namespace MGraphX::kernels
