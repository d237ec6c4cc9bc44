#include "StraightOver.h"

#include "kernels/StraightOverKernel.h"
#include "PixelRows.h"

#include <algorithm>
#include <QPainter>
#include <random>
#include <vector>

namespace MGraphX
{
namespace
{

constexpr uint32_t kAlpha = 0xff000000u;

/// Random words, every second row with groups that are opaque, clear or both in parts: the painter
/// takes short cuts there.
QImage sample(quint32 seed)
{
    constexpr int kSide = 256;
    std::mt19937 random(seed);
    QImage image(kSide, kSide, QImage::Format_ARGB32);
    for (int y = 0; y < kSide; ++y) {
        uint32_t* words = targetRow(image, y);
        std::generate_n(words, kSide, std::ref(random));
        for (int group = 0; y % 2 && group < kSide; group += kernels::kStraightGroup) {
            const auto kind = random();
            for (int x = group; x < group + kernels::kStraightGroup; ++x) {
                const bool opaque = kind & 1 ? random() & 1 : kind & 2;
                words[x] = opaque ? words[x] | kAlpha : words[x] & ~kAlpha;
            }
        }
    }
    return image;
}

/// Gives each `period`th row of words the alpha bits `alpha`: the kernel takes short cuts there.
void setAlpha(QImage& image, int period, uint32_t alpha)
{
    for (int y = 0; y < image.height(); y += period) {
        uint32_t* words = targetRow(image, y);
        std::transform(words, words + image.width(), words,
                       [alpha](uint32_t word) { return (word & ~kAlpha) | alpha; });
    }
}

/// Whether the kernel gives what the painter of this processor gives.
bool isPaintersKernel()
{
    QImage over = sample(1);
    QImage under = sample(2);
    setAlpha(over, 5, 0);
    setAlpha(under, 3, kAlpha);
    QImage painted = under;
    paintOver(over, painted, 0);
    for (int y = 0; y < painted.height(); ++y) {
        std::vector<uint32_t> words(size_t(painted.width()));
        kernels::straightOverRow(sourceRow(over, y), sourceRow(under, y), words.data(),
                                 painted.width());
        if (!std::equal(words.begin(), words.end(), sourceRow(painted, y))) {
            return false;
        }
    }
    return true;
}

} // namespace

int straightOverCount(int width)
{
    static const bool isExact = isPaintersKernel();
    if (!isExact) {
        return 0;
    }
    // A group is left with the odd words: the painter fills single pixels in a way of its own.
    constexpr int kGroup = kernels::kStraightGroup;
    const int odd = width % kGroup;
    return odd == 0 ? width : std::max(0, width - odd - kGroup);
}

void paintOver(const QImage& over, QImage& target, int left)
{
    if (over.isNull()) {
        return;
    }
    auto* first = reinterpret_cast<uchar*>(targetRow(target, 0) + left);
    QImage part(first, over.width(), over.height(), target.bytesPerLine(), target.format());
    QPainter painter(&part);
    painter.drawImage(0, 0, over);
}

} // namespace MGraphX
