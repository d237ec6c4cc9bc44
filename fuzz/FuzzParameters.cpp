#include "FuzzSupport.h"

#include "flow/Operations.h"

#include <QImage>

namespace
{

constexpr QImage::Format kFormats[] = {QImage::Format_ARGB32, QImage::Format_RGB32,
                                       QImage::Format_ARGB32_Premultiplied,
                                       QImage::Format_Indexed8};

/// Small, of odd sides, and with colours that differ all over.
QImage makePhoto(QImage::Format format)
{
    QImage photo(7, 5, QImage::Format_ARGB32);
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < photo.width(); ++x) {
            photo.setPixel(x, y, qRgba(x * 40, y * 60, x * y * 10, 255 - (x + y) % 3 * 100));
        }
    }
    return photo.convertToFormat(format);
}

} // namespace

/// A letter that names the operation and the photo's format, from 'A' on, and a parameter text.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzApplication();
    if (size == 0) {
        return 0;
    }
    const unsigned choice = uint8_t(data[0] - 'A');
    const auto count = unsigned(operations().size());
    const Operation& operation = operations().at(int(choice % count));
    const QImage photo = makePhoto(kFormats[choice / count % std::size(kFormats)]);
    const QImage before = photo.copy();
    const QImage result = operation.processFromXml(photo, textOf(data + 1, size - 1));
    require(photo == before, "the photo stays as it was");
    require(result.isNull() || result.depth() >= 8, "a result has pixels");
    return 0;
}
