#include "GeometryKernels.h"

#include "Multiversion.h"

#include <algorithm>

namespace
{

MGRAPHX_MULTIVERSION
void reverse(const uint32_t* source, uint32_t* target, int count)
{
    for (int i = 0; i < count; ++i) {
        target[i] = source[count - 1 - i];
    }
}

MGRAPHX_MULTIVERSION
void makeOpaque(uint32_t* pixels, int count)
{
    for (int i = 0; i < count; ++i) {
        pixels[i] |= 0xff000000u;
    }
}

constexpr int kBlock = 8;
constexpr int kBand = 16;

MGRAPHX_INLINE void transposeBlock(const uint32_t* source, ptrdiff_t sourceStride, uint32_t* target,
                                   ptrdiff_t targetStride, int width, int height)
{
    for (int column = 0; column < width; ++column) {
        for (int row = 0; row < height; ++row) {
            target[column * targetStride + row] = source[row * sourceStride + column];
        }
    }
}

// A band of 16 source rows fills a whole cache line of each target row. Inside it blocks of 8 by 8
// keep the lines they touch in the first-level cache; their fixed size lets the compiler unroll.
MGRAPHX_MULTIVERSION
void transposeBands(const uint32_t* source, ptrdiff_t sourceStride, uint32_t* target,
                    ptrdiff_t targetStride, int width, int height)
{
    for (int top = 0; top < height; top += kBand) {
        const int bottom = std::min(top + kBand, height);
        for (int left = 0; left < width; left += kBlock) {
            const int blockWidth = std::min(kBlock, width - left);
            for (int y = top; y < bottom; y += kBlock) {
                const int blockHeight = std::min(kBlock, bottom - y);
                const uint32_t* from = source + y * sourceStride + left;
                uint32_t* to = target + left * targetStride + y;
                if (blockWidth == kBlock && blockHeight == kBlock) {
                    transposeBlock(from, sourceStride, to, targetStride, kBlock, kBlock);
                } else {
                    transposeBlock(from, sourceStride, to, targetStride, blockWidth, blockHeight);
                }
            }
        }
    }
}

} // namespace

namespace MGraphX::kernels
{

void reverseRow(const uint32_t* source, uint32_t* target, int count)
{
    reverse(source, target, count);
}

void opaqueRow(uint32_t* pixels, int count)
{
    makeOpaque(pixels, count);
}

void transpose(const uint32_t* source, ptrdiff_t sourceStride, uint32_t* target,
               ptrdiff_t targetStride, int width, int height)
{
    transposeBands(source, sourceStride, target, targetStride, width, height);
}

} // namespace MGraphX::kernels
