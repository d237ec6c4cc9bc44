#include "BenchSupport.h"

#include "reference/BlurReference.h"

#include <MGraphX/GraphX.h>

using MGraphX::GraphX;

namespace
{

void benchBlur(const std::string& name, QImage::Format format)
{
    benchFilter(
        name, [](const QImage& image) { return GraphX::blur(image, image.rect(), 10, false); },
        [](const QImage& image) { return reference::blur(image, image.rect(), 10, false); },
        format);
}

} // namespace

int main(int argc, char** argv)
{
    benchBlur("blur", QImage::Format_ARGB32);
    benchBlur("blur_premultiplied", QImage::Format_ARGB32_Premultiplied);
    return runBenchmarks(argc, argv);
}
