#include "SourceOverKernel.h"

#include "Multiversion.h"

namespace
{

// Two channels share a word with 16 bits for each; a product x is divided by 255 as
// (x + x / 256 + 128) / 256, which rounds to the nearest.
MGRAPHX_INLINE uint32_t scaled(uint32_t word, uint32_t factor)
{
    constexpr uint32_t kOuter = 0x00ff00ffu;
    uint32_t low = (word & kOuter) * factor;
    low = ((low + ((low >> 8) & kOuter) + 0x800080u) >> 8) & kOuter;
    uint32_t high = ((word >> 8) & kOuter) * factor;
    high = (high + ((high >> 8) & kOuter) + 0x800080u) & ~kOuter;
    return high | low;
}

MGRAPHX_MULTIVERSION
void sourceOver(const uint32_t* over, const uint32_t* under, uint32_t* target, int count)
{
    for (int i = 0; i < count; ++i) {
        target[i] = over[i] + scaled(under[i], 255 - (over[i] >> 24));
    }
}

MGRAPHX_MULTIVERSION
uint32_t commonBits(const uint32_t* words, int count)
{
    uint32_t common = 0xffffffffu;
    for (int i = 0; i < count; ++i) {
        common &= words[i];
    }
    return common;
}

} // namespace

namespace MGraphX::kernels
{

void sourceOverRow(const uint32_t* over, const uint32_t* under, uint32_t* target, int count)
{
    sourceOver(over, under, target, count);
}

bool isOpaqueRow(const uint32_t* words, int count)
{
    return commonBits(words, count) >> 24 == 0xff;
}

} // namespace MGraphX::kernels
