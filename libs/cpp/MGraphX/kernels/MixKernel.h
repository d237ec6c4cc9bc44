#pragma once

#include <cstdint>

namespace MGraphX::kernels
{

/// Mixes words channel by channel: `weight` 256ths of the way from `from` to `to`, cut to a whole
/// number. Weights are below 256.
void mixRow(const uint32_t* from, const uint32_t* to, uint32_t weight, uint32_t* target, int count);

/// Mixes each word with the one behind it: word i of the target is made of source[places[i]] and
/// its neighbour, by weights[i].
void mixNeighbours(const uint32_t* source, const int* places, const uint32_t* weights,
                   uint32_t* target, int count);

} // namespace MGraphX::kernels
