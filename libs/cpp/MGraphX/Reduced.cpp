#include "Reduced.h"

#include "PixelRows.h"

#include <algorithm>
#include <cstring>

namespace MGraphX
{

QImage reduced(const QImage& image, int factor)
{
    constexpr int kBand = 64; // rows of the result
    constexpr QImage::Format kFormat = QImage::Format_ARGB32_Premultiplied;
    const QImage source = withWords(image);
    if (source.isNull() || factor < 1) {
        return QImage();
    }
    QImage result(QSize(source.width() / factor, source.height() / factor).expandedTo(QSize(1, 1)),
                  kFormat);
    for (int y = 0; y < result.height(); y += kBand) {
        const int rows = std::min(kBand, result.height() - y);
        const int read = std::min(rows * factor, source.height() - y * factor);
        const QImage band(source.constScanLine(y * factor), source.width(), read,
                          source.bytesPerLine(), source.format());
        const QImage scaled =
            band.scaled(result.width(), rows, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(kFormat);
        if (scaled.isNull()) {
            return QImage();
        }
        std::memcpy(result.scanLine(y), scaled.constBits(), size_t(scaled.sizeInBytes()));
    }
    return result;
}

} // namespace MGraphX
