#include "reference/RandomImages.h"

#include <QColorSpace>
#include <random>

QImage randomImage(const QSize& size, QImage::Format format, RandomAlpha alpha, quint32 seed)
{
    std::mt19937 words(seed);
    QImage image(size, format);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            row[x] = QRgb(words());
            if (alpha == RandomAlpha::Opaque || format == QImage::Format_RGB32) {
                row[x] |= 0xff000000u;
            } else if (alpha == RandomAlpha::Transparent) {
                row[x] &= 0x00ffffffu;
            }
        }
    }
    if (!image.isNull()) {
        image.setDotsPerMeterX(5000);
        image.setDotsPerMeterY(6000);
        image.setColorSpace(QColorSpace(QColorSpace::SRgbLinear));
        image.setText(QStringLiteral("Title"), QStringLiteral("Noise"));
    }
    return image;
}

QVector<QImage> randomImages()
{
    const QImage::Format formats[] = {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied,
                                      QImage::Format_RGB32};
    const RandomAlpha alphas[] = {RandomAlpha::Any, RandomAlpha::Opaque, RandomAlpha::Transparent};
    QVector<QSize> sizes{{1, 1}, {1, 7}, {7, 1}, {2, 2}, {3, 2}, {8, 8}, {13, 17}, {129, 31}};
    QVector<QImage> images;
    quint32 seed = 1;
    for (const QSize& size : qAsConst(sizes)) {
        for (const QImage::Format format : formats) {
            for (const RandomAlpha alpha : alphas) {
                images.append(randomImage(size, format, alpha, seed++));
            }
        }
    }
    for (int width = 0; width <= 70; ++width) {
        images.append(randomImage({width, 3}, formats[width % 2], RandomAlpha::Any, seed++));
    }
    // A premultiplied image whose words are what they should be, and a photo of soft colours.
    images.append(randomImage({40, 30}, QImage::Format_ARGB32, RandomAlpha::Any, seed)
                      .convertToFormat(QImage::Format_ARGB32_Premultiplied));
    images.append(randomImage({5, 4}, QImage::Format_ARGB32, RandomAlpha::Opaque, seed)
                      .scaled(60, 45, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                      .convertToFormat(QImage::Format_ARGB32));
    return images;
}
