#pragma once

#include <cstdint>

namespace MGraphX::kernels
{

/// Multiplies red, green and blue of `count` words by their alpha, rounded as the toolkit rounds
/// when it converts plain words to premultiplied ones. `target` is the same row or doesn't overlap.
void premultiplyRow(const uint32_t* source, uint32_t* target, int count);

} // namespace MGraphX::kernels
