#include "MixKernel.h"

#include "Multiversion.h"

#include <algorithm>

namespace
{

constexpr int kPiece = 256;

/// Two channels go in one word.
MGRAPHX_INLINE uint32_t mixed(uint32_t from, uint32_t to, uint32_t weight)
{
    constexpr uint32_t kPair = 0x00ff00ffu;
    const uint32_t low = (from & kPair) * (256 - weight) + (to & kPair) * weight;
    const uint32_t high = ((from >> 8) & kPair) * (256 - weight) + ((to >> 8) & kPair) * weight;
    return ((low >> 8) & kPair) | (high & ~kPair);
}

MGRAPHX_MULTIVERSION
void mixBy(const uint32_t* from, const uint32_t* to, uint32_t weight, uint32_t* target, int count)
{
    for (int i = 0; i < count; ++i) {
        target[i] = mixed(from[i], to[i], weight);
    }
}

MGRAPHX_MULTIVERSION
void mixEach(const uint32_t* from, const uint32_t* to, const uint32_t* weights, uint32_t* target,
             int count)
{
    for (int i = 0; i < count; ++i) {
        target[i] = mixed(from[i], to[i], weights[i]);
    }
}

} // namespace

namespace MGraphX::kernels
{

void mixRow(const uint32_t* from, const uint32_t* to, uint32_t weight, uint32_t* target, int count)
{
    mixBy(from, to, weight, target, count);
}

// The words are fetched one by one beforehand: as a part of the mixing they would be gathered into
// vectors, which takes three times as long.
void mixNeighbours(const uint32_t* source, const int* places, const uint32_t* weights,
                   uint32_t* target, int count)
{
    uint32_t from[kPiece];
    uint32_t to[kPiece];
    for (int first = 0; first < count; first += kPiece) {
        const int piece = std::min(kPiece, count - first);
        for (int i = 0; i < piece; ++i) {
            const uint32_t* pair = source + places[first + i];
            from[i] = pair[0];
            to[i] = pair[1];
        }
        mixEach(from, to, weights + first, target + first, piece);
    }
}

} // namespace MGraphX::kernels
