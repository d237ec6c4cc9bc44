#pragma once

#include <cstdint>

namespace MGraphX::kernels
{

/// Lays premultiplied words over premultiplied ones, rounded as the toolkit's painter rounds. Rows
/// are the same or do not overlap.
void sourceOverRow(const uint32_t* over, const uint32_t* under, uint32_t* target, int count);

/// Whether alpha is 255 in all words.
bool isOpaqueRow(const uint32_t* words, int count);

} // namespace MGraphX::kernels
