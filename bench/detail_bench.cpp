#include "BenchSupport.h"

#include "reference/BlurReference.h"
#include "reference/VignetteReference.h"

#include <MGraphX/GraphX.h>
#include <MGraphX/Vignette.h>

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

void benchVignette(const std::string& name, QImage::Format format, Alpha alpha)
{
    benchFilter(
        name, [](const QImage& image) { return MGraphX::vignetteImage(image, 65, 80, Qt::black); },
        [](const QImage& image) { return reference::vignette(image, 65, 80, Qt::black); }, format,
        alpha);
}

} // namespace

int main(int argc, char** argv)
{
    benchBlur("blur", QImage::Format_ARGB32);
    benchBlur("blur_premultiplied", QImage::Format_ARGB32_Premultiplied);
    benchVignette("vignette", QImage::Format_ARGB32, Alpha::Opaque);
    benchVignette("vignette_translucent", QImage::Format_ARGB32, Alpha::Soft);
    benchVignette("vignette_premultiplied", QImage::Format_ARGB32_Premultiplied, Alpha::Opaque);
    return runBenchmarks(argc, argv);
}
