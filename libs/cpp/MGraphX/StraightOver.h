#pragma once

#include <QImage>

/// Laying Format_ARGB32 words over such words. The toolkit's painter has an arithmetic of its own
/// for that on each kind of processor; its result is what counts.
namespace MGraphX
{

/// How many of the first words of a row of `width` kernels::straightOverRow lays over with the
/// painter's result. The others need the painter: those behind the last whole group with a group
/// before them, and all where this processor's painter was seen to reckon otherwise.
int straightOverCount(int width);

/// Lets the painter lay `over` over as many columns and rows of `target` from column `left` on,
/// whatever the target's device pixel ratio. Errors: a null image changes nothing.
void paintOver(const QImage& over, QImage& target, int left);

} // namespace MGraphX
