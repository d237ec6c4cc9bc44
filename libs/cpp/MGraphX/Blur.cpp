#include "Blur.h"

#include "kernels/BlurKernel.h"
#include "kernels/PremultiplyKernel.h"
#include "PixelRows.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace MGraphX
{
namespace
{

using kernels::kBlurRows;

constexpr QImage::Format kFormat = QImage::Format_ARGB32_Premultiplied;
constexpr int kNoBlur = 16;

/// How far a pixel follows the next one, in sixteenths.
int strengthOf(int radius)
{
    constexpr int kStrengths[] = {14, 10, 8, 6, 5, 5, 4, 3, 3, 3, 3, 2, 2, 2, 2, 2, 2};
    constexpr int kCount = int(sizeof(kStrengths) / sizeof(kStrengths[0]));
    if (radius < 1) {
        return kNoBlur;
    }
    return radius <= kCount ? kStrengths[radius - 1] : 1;
}

/// What QImage::convertToFormat gives, without its code that is another for each processor.
QImage premultiplied(QImage image)
{
    return image.format() == QImage::Format_ARGB32
               ? mapRows(std::move(image), kFormat, kernels::premultiplyRow)
               : image.convertToFormat(kFormat);
}

/// The rectangle of an image that is blurred, and the two sweeps over it. Each takes a band of rows
/// through a pass along the columns and then, while the band is still in the cache, through one
/// along the rows: neither pass looks at rows that the sweep has yet to reach. Meanwhile the rows
/// of the next band are on their way from memory.
class Sweeps
{
public:
    Sweeps(QImage& image, const QRect& rect, int strength)
        : m_image(image),
          m_rect(rect),
          m_strength(strength),
          m_columns(size_t(rect.width()) * 4),
          m_spareRow(size_t(rect.width()))
    {
    }

    /// From the top down, then along the rows to the right. `prepare` makes row y ready beforehand,
    /// from `source`.
    template <class Prepare> void down(const QImage& source, const Prepare& prepare)
    {
        for (int top = m_rect.top(); top <= m_rect.bottom(); top += kBlurRows) {
            const int bottom = std::min(top + kBlurRows - 1, m_rect.bottom());
            for (int y = top; y <= bottom; ++y) {
                prepare(y);
                columnStep(y, y == m_rect.top());
            }
            collect(top, bottom, source, bottom + 1);
            kernels::blurRowsForward(m_rows, m_ahead, m_rect.width(), m_strength);
        }
    }

    /// From the bottom up, then along the rows to the left.
    void up()
    {
        for (int bottom = m_rect.bottom(); bottom >= m_rect.top(); bottom -= kBlurRows) {
            const int top = std::max(bottom - kBlurRows + 1, m_rect.top());
            for (int y = bottom; y >= top; --y) {
                columnStep(y, y == m_rect.bottom());
            }
            collect(top, bottom, m_image, top - kBlurRows);
            kernels::blurRowsBackward(m_rows, m_ahead, m_rect.width(), m_strength);
        }
    }

private:
    uint32_t* row(int y) { return targetRow(m_image, y) + m_rect.left(); }

    void columnStep(int y, bool first)
    {
        if (first) {
            kernels::startColumns(row(y), m_columns.data(), m_rect.width());
        }
        kernels::blurColumns(row(y), m_columns.data(), m_rect.width(), m_strength);
    }

    /// Fills in a band's rows, and those of `next` from `nextTop` on. What the band lacks of a full
    /// one is a row that nobody looks at.
    void collect(int top, int bottom, const QImage& next, int nextTop)
    {
        for (int i = 0; i < kBlurRows; ++i) {
            m_rows[i] = top + i <= bottom ? row(top + i) : m_spareRow.data();
            const int y = std::clamp(nextTop + i, m_rect.top(), m_rect.bottom());
            m_ahead[i] = sourceRow(next, y) + m_rect.left();
        }
    }

    QImage& m_image;
    const QRect m_rect;
    const int m_strength;
    std::vector<uint16_t> m_columns;
    std::vector<uint32_t> m_spareRow;
    uint32_t* m_rows[kBlurRows] = {};
    const uint32_t* m_ahead[kBlurRows] = {};
};

/// Puts the alpha bytes of `blurred` into `plain`, and takes its colours as they are.
void takeAlpha(QImage& plain, const QImage& blurred)
{
    for (int y = 0; y < plain.height(); ++y) {
        const uint32_t* from = sourceRow(blurred, y);
        uint32_t* to = targetRow(plain, y);
        std::transform(from, from + plain.width(), to, to, [](uint32_t alpha, uint32_t colour) {
            return (alpha & 0xff000000u) | (colour & 0x00ffffffu);
        });
    }
}

/// Blurs `area` in the memory of `image` if nobody else holds it, else in a new one.
QImage blurred(QImage image, const QRect& area, int strength)
{
    const bool isPlain = image.format() == QImage::Format_ARGB32;
    const bool isWords = isPlain || image.format() == kFormat;
    QImage source = isWords ? std::move(image) : image.convertToFormat(kFormat);
    const bool inPlace = source.isDetached();
    QImage result =
        inPlace ? inFormat(std::move(source), kFormat) : imageLike(source, source.size(), kFormat);
    if (result.isNull()) {
        return result;
    }
    const QImage& from = inPlace ? result : source;
    const auto prepare = [&](int y) {
        uint32_t* target = targetRow(result, y);
        if (isPlain) {
            kernels::premultiplyRow(sourceRow(from, y), target, result.width());
        } else if (!inPlace) {
            std::memcpy(target, sourceRow(from, y), size_t(result.width()) * sizeof(uint32_t));
        }
    };
    for (int y = 0; y < result.height(); ++y) {
        if (y < area.top() || y > area.bottom()) {
            prepare(y);
        }
    }
    Sweeps sweeps(result, area, strength);
    sweeps.down(from, prepare);
    sweeps.up();
    return result;
}

} // namespace

QImage blurImage(QImage image, const QRect& rect, int radius, bool alphaOnly)
{
    const int strength = strengthOf(radius);
    const QRect area = rect.normalized() & image.rect();
    if (strength == kNoBlur || area.isEmpty()) {
        return premultiplied(std::move(image));
    }
    if (alphaOnly) {
        QImage plain = premultiplied(std::move(image));
        takeAlpha(plain, blurred(plain, area, strength));
        return plain;
    }
    return blurred(std::move(image), area, strength);
}

} // namespace MGraphX
