#include "support/ImageCompare.h"

#include <cstring>
#include <QColorSpace>

namespace
{

QString hex(const uchar* bytes, int count)
{
    return QString::fromLatin1(QByteArray(reinterpret_cast<const char*>(bytes), count).toHex());
}

QString pixelDifference(const QImage& actual, const QImage& expected)
{
    const int rowBits = actual.width() * actual.depth();
    const int rowBytes = (rowBits + 7) / 8;
    const int pixelBytes = qMax(1, actual.depth() / 8);
    for (int y = 0; y < actual.height(); ++y) {
        const uchar* a = actual.constScanLine(y);
        const uchar* e = expected.constScanLine(y);
        if (std::memcmp(a, e, size_t(rowBytes)) == 0) {
            continue;
        }
        for (int i = 0; i < rowBytes; i += pixelBytes) {
            if (std::memcmp(a + i, e + i, size_t(pixelBytes)) != 0) {
                return QStringLiteral("pixel (%1, %2): %3, expected %4 (bytes in memory order)")
                    .arg(i / pixelBytes)
                    .arg(y)
                    .arg(hex(a + i, pixelBytes), hex(e + i, pixelBytes));
            }
        }
    }
    return QString();
}

} // namespace

QString imageDifference(const QImage& actual, const QImage& expected)
{
    if (actual.isNull() != expected.isNull()) {
        return actual.isNull() ? QStringLiteral("null image") : QStringLiteral("not a null image");
    }
    if (actual.isNull()) {
        return QString();
    }
    if (actual.size() != expected.size()) {
        return QStringLiteral("size %1x%2, expected %3x%4")
            .arg(actual.width())
            .arg(actual.height())
            .arg(expected.width())
            .arg(expected.height());
    }
    if (actual.format() != expected.format()) {
        return QStringLiteral("format %1, expected %2")
            .arg(int(actual.format()))
            .arg(int(expected.format()));
    }
    if (actual.dotsPerMeterX() != expected.dotsPerMeterX() ||
        actual.dotsPerMeterY() != expected.dotsPerMeterY()) {
        return QStringLiteral("another resolution");
    }
    if (actual.colorSpace() != expected.colorSpace()) {
        return QStringLiteral("another colour space");
    }
    if (actual.textKeys() != expected.textKeys()) {
        return QStringLiteral("other texts");
    }
    return pixelDifference(actual, expected);
}
