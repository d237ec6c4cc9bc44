#include "OpaqueScaling.h"

#include "ImageLike.h"
#include "kernels/SourceOverKernel.h"
#include "PixelRows.h"

namespace MGraphX
{

bool isOpaque(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        if (!kernels::isOpaqueRow(sourceRow(image, y), image.width())) {
            return false;
        }
    }
    return true;
}

QImage scaledOpaque(const QImage& image, const QSize& box)
{
    if (image.isNull() || image.size().scaled(box, Qt::KeepAspectRatio) == image.size()) {
        return image;
    }
    const QImage sameWords(image.constBits(), image.width(), image.height(), image.bytesPerLine(),
                           QImage::Format_RGB32);
    QImage result = sameWords.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    if (!result.isNull()) {
        result.reinterpretAsFormat(QImage::Format_ARGB32_Premultiplied);
        carryAlong(image, result);
    }
    return result;
}

} // namespace MGraphX
