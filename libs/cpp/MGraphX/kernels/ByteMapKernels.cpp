#include "ByteMapKernels.h"

#include "Multiversion.h"

namespace
{

constexpr uint32_t kAlpha = 0xff000000u;

MGRAPHX_INLINE uint32_t onLine(uint32_t value, int32_t start, uint32_t step)
{
    const int32_t above = int32_t(value) - start;
    const uint32_t steps = above > 0 ? uint32_t(above) : 0;
    const uint32_t level = (steps * step) >> 16;
    return level < 255 ? level : 255;
}

MGRAPHX_MULTIVERSION
void mapAlong(const uint32_t* source, uint32_t* target, int count, int32_t start, uint32_t step,
              uint32_t alpha)
{
    for (int i = 0; i < count; ++i) {
        const uint32_t p = source[i];
        const uint32_t r = onLine((p >> 16) & 0xff, start, step);
        const uint32_t g = onLine((p >> 8) & 0xff, start, step);
        const uint32_t b = onLine(p & 0xff, start, step);
        target[i] = (p & kAlpha) | alpha | (r << 16) | (g << 8) | b;
    }
}

} // namespace

namespace MGraphX::kernels
{

void mapRow(const uint32_t* source, uint32_t* target, int count, const ByteLine& line,
            uint32_t alpha)
{
    mapAlong(source, target, count, line.start, line.step, alpha);
}

void mapRow(const uint32_t* source, uint32_t* target, int count, const uint8_t* table,
            uint32_t alpha)
{
    for (int i = 0; i < count; ++i) {
        const uint32_t p = source[i];
        const uint32_t r = table[(p >> 16) & 0xff];
        const uint32_t g = table[(p >> 8) & 0xff];
        const uint32_t b = table[p & 0xff];
        target[i] = (p & kAlpha) | alpha | (r << 16) | (g << 8) | b;
    }
}

} // namespace MGraphX::kernels
