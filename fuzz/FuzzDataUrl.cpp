#include "FuzzSupport.h"

#include <MGraphX/GraphX.h>

using MGraphX::GraphX;

/// A text that may be a data URL of an image.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzApplication();
    const QImage image = GraphX::imageFromDataUrl(textOf(data, size));
    if (image.isNull() || image.width() > 64 || image.height() > 64) {
        return 0;
    }
    const QString told = GraphX::imageToDataUrl(image, QStringLiteral("PNG"), -1);
    require(GraphX::imageFromDataUrl(told).size() == image.size(),
            "what has been read is read again as it is written");
    return 0;
}
