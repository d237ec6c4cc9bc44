#include "reference/BlurReference.h"

namespace
{

/// Walks `count` pixels of one line, `step` bytes apart, the first of which keeps its value.
void blurLine(uchar* first, qptrdiff step, int count, int strength, bool alphaOnly)
{
    for (int channel = alphaOnly ? 3 : 0; channel < 4; ++channel) {
        uchar* byte = first + channel;
        int accumulator = *byte << 4;
        for (int i = 1; i < count; ++i) {
            byte += step;
            accumulator += (((*byte << 4) - accumulator) * strength) / 16;
            *byte = uchar(accumulator >> 4);
        }
    }
}

} // namespace

namespace reference
{

QImage blur(const QImage& image, const QRect& rect, int radius, bool alphaOnly)
{
    const int strengths[] = {14, 10, 8, 6, 5, 5, 4, 3, 3, 3, 3, 2, 2, 2, 2, 2, 2};
    const int strength = radius < 1 ? 16 : radius > 17 ? 1 : strengths[radius - 1];
    const QRect area = rect.normalized();
    const int left = qMax(area.left(), 0);
    const int top = qMax(area.top(), 0);
    const int right = area.right() >= image.width() ? image.width() - 1 : area.right();
    const int bottom = area.bottom() >= image.height() ? image.height() - 1 : area.bottom();
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (left > right || top > bottom) {
        return result;
    }
    const auto pixel = [&result](int x, int y) {
        return result.scanLine(y) + 4 * x;
    };
    const qptrdiff down = result.bytesPerLine();
    const int width = right - left + 1;
    const int height = bottom - top + 1;
    for (int x = left; x <= right; ++x) {
        blurLine(pixel(x, top), down, height, strength, alphaOnly);
    }
    for (int y = top; y <= bottom; ++y) {
        blurLine(pixel(left, y), 4, width, strength, alphaOnly);
    }
    for (int x = left; x <= right; ++x) {
        blurLine(pixel(x, bottom), -down, height, strength, alphaOnly);
    }
    for (int y = top; y <= bottom; ++y) {
        blurLine(pixel(right, y), -4, width, strength, alphaOnly);
    }
    return result;
}

} // namespace reference
