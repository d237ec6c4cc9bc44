#pragma once

#include <cstdint>
#include <QImage>
#include <vector>

/// The part `part` of what mark.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
/// gives, bit for bit, some rows at a time: they are drawn while they are in the cache, and a
/// narrow mark that is scaled to a photo's width can be many times as high as the photo.
class MarkScaler
{
public:
    /// For marks and sizes that canScale() admits.
    MarkScaler(const QImage& mark, const QSize& size, const QRect& part);

    /// Whether this is for a mark: of 8 bits a channel, scaled up in one direction or both and not
    /// down.
    static bool canScale(const QImage& mark, const QSize& size);

    /// `count` rows of the part, from its row `first` on. Shape: RGB32 or, with an alpha channel,
    /// premultiplied. Errors: a null image if the memory isn't to be had.
    QImage rows(int first, int count);

private:
    const QImage m_source;
    const QSize m_size;
    const QRect m_part;
    std::vector<int> m_places; ///< for each column of the part the left one of its two neighbours
    std::vector<uint32_t> m_weights;
    std::vector<uint32_t> m_between;
};
