#include "FuzzSupport.h"

#include "support/Photos.h"

#include <cstdio>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageWriter>

// Writes the image files that the fuzzer starts from into the folder that the argument names: each
// format of each depth, whole, cut short, and with single bits turned.

namespace
{

/// The toolkit reads this format but doesn't write it.
const QByteArray kGif = QByteArray::fromBase64("R0lGODlhAgACAIAAAAAAAP///ywAAAAAAgACAAACA4QcBQA7");

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
            "the folder of seeds can be written");
}

void writeVariants(const QString& path, const QByteArray& whole)
{
    write(path, whole);
    for (int part = 1; part < 4; ++part) {
        write(path + QStringLiteral("-cut%1").arg(part), whole.left(whole.size() * part / 4));
    }
    for (int turned = 0; turned < 8; ++turned) {
        QByteArray other = whole;
        const int place = (turned * 7919 + 13) % other.size();
        other[place] = char(other.at(place) ^ (1 << turned));
        write(path + QStringLiteral("-turned%1").arg(turned), other);
    }
}

} // namespace

int main(int argc, char** argv)
{
    fuzzApplication();
    if (argc != 2) {
        std::fprintf(stderr, "image-seeds FOLDER\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    constexpr QImage::Format kFormats[] = {QImage::Format_ARGB32,   QImage::Format_RGB32,
                                           QImage::Format_Indexed8, QImage::Format_Grayscale8,
                                           QImage::Format_Mono,     QImage::Format_RGBA64};
    for (const char* const kind : {"jpeg", "png", "tiff", "webp", "bmp", "ppm"}) {
        for (const QImage::Format format : kFormats) {
            QBuffer buffer;
            if (noise(QSize(9, 7), 1).convertToFormat(format).save(&buffer, kind)) {
                writeVariants(folder.filePath(QStringLiteral("%1-%2").arg(kind).arg(int(format))),
                              buffer.data());
            }
        }
    }
    require(!QImage::fromData(kGif).isNull(), "the seed of this format is a picture");
    writeVariants(folder.filePath(QStringLiteral("gif")), kGif);
    return 0;
}
