#include "support/ImageCompare.h"

#include <cstring>
#include <QColorSpace>

namespace
{

/// What images have to have in common before their pixels can be compared.
QString factsOf(const QImage& image)
{
    return image.isNull() ? QStringLiteral("null image")
                          : QStringLiteral("%1x%2 of format %3 with %4x%5 dots per meter, texts %6")
                                .arg(image.width())
                                .arg(image.height())
                                .arg(int(image.format()))
                                .arg(image.dotsPerMeterX())
                                .arg(image.dotsPerMeterY())
                                .arg(image.textKeys().join(QLatin1Char(' ')));
}

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
    const QString facts = factsOf(actual);
    const QString expectedFacts = factsOf(expected);
    if (facts != expectedFacts) {
        return facts + QStringLiteral(", expected ") + expectedFacts;
    }
    return actual.colorSpace() == expected.colorSpace() ? pixelDifference(actual, expected)
                                                        : QStringLiteral("another colour space");
}
