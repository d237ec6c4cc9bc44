#include "BenchSupport.h"
#include "flow/nodes/WatermarkRenderer.h"
#include "reference/WatermarkReference.h"

#include <QGuiApplication>

namespace
{

void benchMark(const std::string& name, const WMRParams& params, QImage::Format format)
{
    benchFilter(
        name, [params](const QImage& image) { return drawWatermark(image, params); },
        [params](const QImage& image) { return reference::watermark(image, params); }, format);
}

WMRParams markOf(int mode, int size)
{
    WMRParams params;
    params.mode = mode;
    params.text = QStringLiteral("Watermark");
    params.size = size;
    params.transparency = 25;
    params.image = QImage(300, 200, QImage::Format_ARGB32);
    params.image.fill(qRgba(200, 120, 40, 160));
    return params;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    const WMRParams text = markOf(WMRParams::kTextMode, 60);
    benchMark("text", text, QImage::Format_RGB32);
    benchMark("text_argb", text, QImage::Format_ARGB32);
    benchMark("text_20", markOf(WMRParams::kTextMode, 20), QImage::Format_RGB32);
    benchMark("text_100", markOf(WMRParams::kTextMode, 100), QImage::Format_RGB32);
    benchMark("logo", markOf(WMRParams::kImageMode, 60), QImage::Format_RGB32);
    benchMark("logo_argb", markOf(WMRParams::kImageMode, 60), QImage::Format_ARGB32);
    WMRParams high = markOf(WMRParams::kImageMode, 100);
    high.image = QImage(60, 240, QImage::Format_ARGB32);
    high.image.fill(qRgba(200, 120, 40, 160));
    benchMark("high_logo", high, QImage::Format_RGB32);
    return runBenchmarks(argc, argv);
}
