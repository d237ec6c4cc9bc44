#pragma once

#include "GraphX.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace MGraphX
{

template <class T> class ImageProcessT;

/// An image split into byte planes of width times height bytes each. A photo has depth 24: red,
/// green, blue and alpha. At depth 8 (bytes) and 1 (bytes of two values) only the first plane is
/// used.
/// Errors: planes that can't be allocated leave an image of no size.
template <> class ImageProcessT<unsigned char> : public GraphX
{
public:
    ImageProcessT() = default;

    /// An image of zeroes at depth 1, 8 or 24.
    ImageProcessT(int width, int height, int depth);
    virtual ~ImageProcessT();

    /// Writes a pixel as `pixel` tells it; a place outside the image is left out. At depth 1 any
    /// value but 0 sets the pixel.
    virtual void setPixel(int x, int y, unsigned int value);

    /// Depth 24: red, green and blue from bit 16 down, without alpha. Depth 8: the byte. Depth 1: 1
    /// or 0. A place outside the image gives 0.
    virtual unsigned int pixel(int x, int y) const;

    /// Splits `image` into red, green, blue and alpha at depth 24.
    void loadPlanes(const QImage& image);

    /// Counts the bytes of `plane`, or of the red one if none is given, into 256 `bins`.
    void histogram(unsigned int* bins, const unsigned char* plane = nullptr) const;

    /// Maps every byte of the first three planes through the 256 bytes of `table`, but not alpha;
    /// at depth 1 what comes out is then cut to the two values. Without a table nothing happens.
    void applyTable(const unsigned char* table);

    int width() const { return m_width; }
    int height() const { return m_height; }
    int depth() const { return m_depth; }
    uint32_t byteSize() const { return m_byteSize; }
    int minValue() const { return m_minValue; }
    float maxValue() const { return m_maxValue; }

    /// Plane 0 to 3; null where the depth has none.
    const unsigned char* plane(int index) const { return m_planes[index].get(); }

private:
    size_t count() const { return size_t(m_width) * size_t(m_height); }
    void allocate(int width, int height, int depth);
    void planesChanged() { m_flags &= static_cast<unsigned char>(~1u); }

    std::unique_ptr<unsigned char[]> m_planes[4];
    std::unique_ptr<unsigned char[]> m_palette[4]; // 256 entries each at depth 8, else null
    int m_width = 0;
    int m_height = 0;
    uint32_t m_byteSize = 0;
    unsigned char m_depth = 24;
    float m_maxValue = 255.0f;
    int m_minValue = 0;
    unsigned char m_flags = 0; // bit 0 is cleared by every write to the planes
    int m_onValue = 255;       // stands for a set pixel at depth 1
    int m_offValue = 0;        // stands for a clear pixel at depth 1
};

class ImageProcess : public ImageProcessT<unsigned char>
{
public:
    using ImageProcessT::ImageProcessT;
};

} // namespace MGraphX
