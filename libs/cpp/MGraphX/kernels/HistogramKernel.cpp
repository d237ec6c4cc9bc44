#include "HistogramKernel.h"

#include "Multiversion.h"

namespace
{

MGRAPHX_INLINE uint32_t onLine(uint32_t value, int32_t start, uint32_t step)
{
    const int32_t above = int32_t(value) - start;
    const uint32_t steps = above > 0 ? uint32_t(above) : 0;
    const uint32_t level = (steps * step) >> 16;
    return level < 255 ? level : 255;
}

// A line computes in vector lanes what a table of 256 bytes would have to fetch byte by byte.
MGRAPHX_MULTIVERSION
void stretch(const uint32_t* source, uint32_t* target, int count, int32_t start, uint32_t step)
{
    for (int i = 0; i < count; ++i) {
        const uint32_t p = source[i];
        const uint32_t r = onLine((p >> 16) & 0xff, start, step);
        const uint32_t g = onLine((p >> 8) & 0xff, start, step);
        const uint32_t b = onLine(p & 0xff, start, step);
        target[i] = 0xff000000u | (r << 16) | (g << 8) | b;
    }
}

MGRAPHX_INLINE int redOf(uint32_t word)
{
    return int((word >> 16) & 0xff);
}

} // namespace

namespace MGraphX::kernels
{

void ByteCounts::addRed(const uint32_t* source, int count)
{
    int i = 0;
    for (; i + 4 <= count; i += 4) {
        ++m_tables[0][redOf(source[i])];
        ++m_tables[1][redOf(source[i + 1])];
        ++m_tables[2][redOf(source[i + 2])];
        ++m_tables[3][redOf(source[i + 3])];
    }
    for (; i < count; ++i) {
        ++m_tables[0][redOf(source[i])];
    }
}

void ByteCounts::sum(uint32_t* bins) const
{
    for (int i = 0; i < 256; ++i) {
        bins[i] = m_tables[0][i] + m_tables[1][i] + m_tables[2][i] + m_tables[3][i];
    }
}

void stretchRow(const uint32_t* source, uint32_t* target, int count, const ByteLine& line)
{
    stretch(source, target, count, line.start, line.step);
}

} // namespace MGraphX::kernels
