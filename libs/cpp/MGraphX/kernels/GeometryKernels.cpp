#include "GeometryKernels.h"

#include "Multiversion.h"
#include "Prefetch.h"
#include "Transpose.h"

#include <algorithm>

namespace
{

using MGraphX::kernels::kLineWords;
using MGraphX::kernels::kTurnedRows;
using MGraphX::kernels::prefetch;
using MGraphX::kernels::turnTile;

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

constexpr int kTile = kTurnedRows;
static_assert(kTile == kLineWords);
constexpr int kBand = 512;

MGRAPHX_INLINE void transposePart(const uint32_t* source, ptrdiff_t sourceStride, uint32_t* target,
                                  ptrdiff_t targetStride, int width, int height)
{
    for (int column = 0; column < width; ++column) {
        for (int row = 0; row < height; ++row) {
            target[column * targetStride + row] = source[row * sourceStride + column];
        }
    }
}

// A tile takes a cache line of each of 16 source rows to one of each of 16 target rows, through
// registers. Tiles follow each other down the source, so that target rows grow by one line after
// the other: with power-of-two strides lines of several rows push each other out of the cache, and
// a line that is left half written would come back. A band's rows are few enough for the address
// translation to remember their pages; the next line of each is fetched for the next column of
// tiles.
MGRAPHX_MULTIVERSION
void transposeTiles(const uint32_t* source, ptrdiff_t sourceStride, uint32_t* target,
                    ptrdiff_t targetStride, int width, int height)
{
    for (int top = 0; top < height; top += kBand) {
        const int bottom = std::min(top + kBand, height);
        for (int left = 0; left < width; left += kTile) {
            for (int y = top; y < bottom; y += kTile) {
                const uint32_t* from = source + y * sourceStride + left;
                uint32_t* to = target + left * targetStride + y;
                const int tileWidth = std::min(kTile, width - left);
                const int tileHeight = std::min(kTile, bottom - y);
                if (tileWidth < kTile || tileHeight < kTile) {
                    transposePart(from, sourceStride, to, targetStride, tileWidth, tileHeight);
                    continue;
                }
                for (int i = 0; i < kTile; ++i) {
                    prefetch(from + i * sourceStride, kLineWords);
                }
                turnTile(from, sourceStride, to, targetStride);
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
    // The tiles begin with a cache line of the target, if its rows keep to that.
    const auto place = reinterpret_cast<uintptr_t>(target) / sizeof(uint32_t);
    const int before = std::min(int(-place % kLineWords), height);
    transposePart(source, sourceStride, target, targetStride, width, before);
    transposeTiles(source + before * sourceStride, sourceStride, target + before, targetStride,
                   width, height - before);
}

} // namespace MGraphX::kernels
