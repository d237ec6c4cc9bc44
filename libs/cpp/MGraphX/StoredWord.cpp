#include "StoredWord.h"

#include <QLoggingCategory>

namespace MGraphX
{
namespace
{

uint32_t firstWord(const QImage& image)
{
    return *reinterpret_cast<const uint32_t*>(image.constScanLine(0));
}

/// Asking costs a warning each time; once is enough, and that one is held back.
QRgb outsidePixel()
{
    static const QRgb pixel = [] {
        QLoggingCategory* category = QLoggingCategory::defaultCategory();
        const bool warns = category->isWarningEnabled();
        category->setEnabled(QtWarningMsg, false);
        const QRgb answer = QImage(1, 1, QImage::Format_ARGB32).pixel(-1, -1);
        category->setEnabled(QtWarningMsg, warns);
        return answer;
    }();
    return pixel;
}

} // namespace

uint32_t outsideWord(QImage::Format format)
{
    QImage image(1, 1, format);
    image.setPixel(0, 0, outsidePixel());
    return firstWord(image);
}

uint32_t filledWord(QImage::Format format, const QColor& color)
{
    QImage image(1, 1, format);
    image.fill(color);
    return firstWord(image);
}

} // namespace MGraphX
