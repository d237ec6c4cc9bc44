#include "BenchSupport.h"

#include "reference/GeometryReference.h"

#include <MGraphX/GraphX.h>

using MGraphX::GraphX;

namespace
{

// The plain turns read one edge outside the image, pixel by pixel, and the toolkit warns each time.
void dropMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

void benchMirror(const std::string& name, bool horizontal, bool vertical)
{
    benchFilter(
        name, [=](const QImage& image) { return GraphX::mirror(image, horizontal, vertical); },
        [=](const QImage& image) { return image.mirrored(horizontal, vertical); });
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(dropMessage);
    benchFilter(
        "crop", [](const QImage& image) { return GraphX::crop(image, 1, 1, 1, 1); },
        [](const QImage& image) { return reference::crop(image, 1, 1, 1, 1); });
    benchFilter(
        "frame", [](const QImage& image) { return GraphX::frame(image, 2, Qt::red); },
        [](const QImage& image) { return reference::frame(image, 2, Qt::red); });
    benchFilter("rotate90", GraphX::rotate90, reference::rotate90);
    benchFilter("rotate180", GraphX::rotate180, reference::rotate180);
    benchFilter("rotate270", GraphX::rotate270, reference::rotate270);
    benchMirror("mirrorHorizontal", true, false);
    benchMirror("mirrorVertical", false, true);
    benchMirror("mirrorBoth", true, true);
    return runBenchmarks(argc, argv);
}
