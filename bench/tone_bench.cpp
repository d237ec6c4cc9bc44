#include "BenchSupport.h"

#include "reference/ToneReference.h"

#include <MGraphX/GraphX.h>

using MGraphX::GraphX;

namespace
{

void benchBrightness(const std::string& name, int brightness, int contrast, float saturation)
{
    benchFilter(
        name,
        [=](const QImage& image) {
            return GraphX::brightnessContrastSaturation(image, brightness, contrast, saturation);
        },
        [=](const QImage& image) {
            return reference::brightnessContrastSaturation(image, brightness, contrast, saturation);
        });
}

} // namespace

int main(int argc, char** argv)
{
    benchFilter("invert", GraphX::invert, reference::invert);
    benchFilter("grayscale", GraphX::grayscale, reference::grayscale);
    benchFilter("swapRedBlue", GraphX::swapRedBlue, reference::swapRedBlue);
    benchFilter("swapRedGreen", GraphX::swapRedGreen, reference::swapRedGreen);
    benchFilter("swapGreenBlue", GraphX::swapGreenBlue, reference::swapGreenBlue);
    benchFilter(
        "binarize", [](const QImage& image) { return GraphX::binarize(image, 127); },
        [](const QImage& image) { return reference::binarize(image, 127); });
    benchFilter(
        "histogram", [](const QImage& image) { return GraphX::optimizeHistogram(image, 2, 2); },
        [](const QImage& image) { return reference::optimizeHistogram(image, 2, 2); });
    benchBrightness("brightness", 20, 30, 1.5f);
    benchBrightness("brightness_default", 0, 0, 2.0f);
    benchBrightness("brightness_gray", 0, 0, 0.0f);
    benchBrightness("brightness_bright", 20, 30, 1.0f);
    return runBenchmarks(argc, argv);
}
