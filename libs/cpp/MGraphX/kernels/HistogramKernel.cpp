#include "HistogramKernel.h"

#include "Prefetch.h"

namespace
{

inline int redOf(uint32_t word)
{
    return int((word >> 16) & 0xff);
}

} // namespace

namespace MGraphX::kernels
{

void ByteCounts::addRed(const uint32_t* source, int count)
{
    constexpr int kAhead = 512;
    int i = 0;
    for (; i + kLineWords <= count; i += kLineWords) {
        prefetch(source + i, kAhead);
        for (int k = i; k < i + kLineWords; k += 4) {
            ++m_tables[0][redOf(source[k])];
            ++m_tables[1][redOf(source[k + 1])];
            ++m_tables[2][redOf(source[k + 2])];
            ++m_tables[3][redOf(source[k + 3])];
        }
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

} // namespace MGraphX::kernels
