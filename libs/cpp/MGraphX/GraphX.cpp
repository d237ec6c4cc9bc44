#include "GraphX.h"

#include "ImageLike.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>

namespace MGraphX
{
namespace
{

const QLatin1String kBase64Mark(";base64,");

/// A few bytes of a file can claim any size, and the toolkit reserves memory for all of it, up to
/// eight bytes a pixel, before it finds out that there is no more. Some formats tell no size; those
/// can't claim so much.
bool claimsTooMuch(const QSize& size)
{
    constexpr qint64 kMostPixels = (qint64(2) << 30) / 8;
    return size.isValid() && qint64(size.width()) * size.height() > kMostPixels;
}

QPoint centred(const QSize& inner, const QSize& outer)
{
    if (inner.width() < outer.width()) {
        return {(outer.width() - inner.width()) / 2, 0};
    }
    if (inner.height() < outer.height()) {
        return {0, (outer.height() - inner.height()) / 2};
    }
    return {0, 0};
}

} // namespace

QImage GraphX::fitInto(const QImage& image, const QSize& size, const QColor& background)
{
    if (image.isNull() || size.isEmpty()) {
        return QImage();
    }
    QImage scaled = image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    // A painter can't paint on palette indexes: the picture would stay blank.
    const bool indexed = image.format() == QImage::Format_Indexed8;
    QImage result = imageLike(image, size, indexed ? QImage::Format_ARGB32 : image.format());
    if (scaled.isNull() || result.isNull()) {
        return QImage();
    }
    // Places and sizes here are pixels, also for a photo that is marked as one for dense screens.
    scaled.setDevicePixelRatio(1);
    result.setDevicePixelRatio(1);
    result.fill(background);
    QPainter painter(&result);
    painter.drawImage(centred(scaled.size(), size), scaled);
    painter.end();
    return result;
}

QImage GraphX::imageFromDataUrl(const QString& text)
{
    const QLatin1String typeMark(":image/");
    const int typeAt = text.indexOf(typeMark);
    if (typeAt < 0) {
        return QImage();
    }
    const int formatAt = typeAt + typeMark.size();
    const int markAt = text.indexOf(kBase64Mark, formatAt);
    if (markAt < 0) {
        return QImage();
    }
    const QByteArray format = text.mid(formatAt, markAt - formatAt).toLocal8Bit();
    QByteArray bytes = QByteArray::fromBase64(text.midRef(markAt + kBase64Mark.size()).toLatin1());
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    return claimsTooMuch(reader.size()) ? QImage() : reader.read();
}

QString GraphX::imageToDataUrl(const QImage& image, const QString& format, int quality)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format.toLocal8Bit().constData(), quality);
    return QLatin1String("data:image/") + format.toLower() + kBase64Mark +
           QString::fromLatin1(buffer.data().toBase64());
}

} // namespace MGraphX
