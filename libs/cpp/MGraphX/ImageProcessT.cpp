#include "ImageProcessT.h"

#include "PixelRows.h"

#include <algorithm>
#include <new>

namespace MGraphX
{

ImageProcessT<unsigned char>::ImageProcessT(int width, int height, int depth)
{
    allocate(width, height, depth);
}

ImageProcessT<unsigned char>::~ImageProcessT() = default;

void ImageProcessT<unsigned char>::allocate(int width, int height, int depth)
{
    m_width = std::max(width, 0);
    m_height = std::max(height, 0);
    m_depth = static_cast<unsigned char>(depth);
    bool complete = true;
    for (int i = 0; i < 4; ++i) {
        m_planes[i].reset();
        m_palette[i].reset();
        if (depth == 24 || i == 0) {
            m_planes[i].reset(new (std::nothrow) unsigned char[count()]());
            complete = complete && m_planes[i];
        }
        if (depth == 8) {
            m_palette[i].reset(new unsigned char[256]);
            for (int k = 0; k < 256; ++k) {
                m_palette[i][size_t(k)] = static_cast<unsigned char>(k);
            }
        }
    }
    if (!complete) {
        m_width = 0;
        m_height = 0;
    }
    m_byteSize = uint32_t(uint64_t(m_depth) * count() / 8);
    planesChanged();
}

void ImageProcessT<unsigned char>::setPixel(int x, int y, unsigned int value)
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height) {
        return;
    }
    const size_t i = size_t(y) * size_t(m_width) + size_t(x);
    switch (m_depth) {
    case 24:
        m_planes[0][i] = static_cast<unsigned char>(value >> 16);
        m_planes[1][i] = static_cast<unsigned char>(value >> 8);
        m_planes[2][i] = static_cast<unsigned char>(value);
        break;
    case 8:
        m_planes[0][i] = static_cast<unsigned char>(value);
        break;
    default:
        m_planes[0][i] = static_cast<unsigned char>(value != 0 ? m_onValue : m_offValue);
        break;
    }
    planesChanged();
}

unsigned int ImageProcessT<unsigned char>::pixel(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height) {
        return 0;
    }
    const size_t i = size_t(y) * size_t(m_width) + size_t(x);
    switch (m_depth) {
    case 24:
        return (unsigned(m_planes[1][i]) << 8) + (unsigned(m_planes[0][i]) << 16) + m_planes[2][i];
    case 8:
        return m_planes[0][i];
    default:
        return m_planes[0][i] == m_onValue ? 1 : 0;
    }
}

void ImageProcessT<unsigned char>::loadPlanes(const QImage& image)
{
    const QImage source = withWords(image);
    allocate(source.width(), source.height(), 24);
    size_t i = 0;
    for (int y = 0; y < m_height; ++y) {
        const uint32_t* row = sourceRow(source, y);
        for (int x = 0; x < m_width; ++x, ++i) {
            m_planes[3][i] = static_cast<unsigned char>(row[x] >> 24);
            m_planes[0][i] = static_cast<unsigned char>(row[x] >> 16);
            m_planes[1][i] = static_cast<unsigned char>(row[x] >> 8);
            m_planes[2][i] = static_cast<unsigned char>(row[x]);
        }
    }
}

void ImageProcessT<unsigned char>::histogram(unsigned int* bins, const unsigned char* plane) const
{
    std::fill_n(bins, 256, 0u);
    const unsigned char* bytes = plane ? plane : m_planes[0].get();
    for (size_t i = 0; i < count(); ++i) {
        ++bins[bytes[i]];
    }
}

void ImageProcessT<unsigned char>::applyTable(const unsigned char* table)
{
    if (!table) {
        return;
    }
    for (int k = 0; k < 3 && m_planes[k]; ++k) {
        std::transform(m_planes[k].get(), m_planes[k].get() + count(), m_planes[k].get(),
                       [table](unsigned char byte) { return table[byte]; });
    }
    if (m_depth == 1 && m_planes[0]) {
        std::transform(m_planes[0].get(), m_planes[0].get() + count(), m_planes[0].get(),
                       [this](unsigned char byte) {
                           return static_cast<unsigned char>(byte > 127 ? m_onValue : m_offValue);
                       });
    }
    planesChanged();
}

} // namespace MGraphX
