#include "batch/BatchWorker.h"
#include "batch/ResultFile.h"
#include "BenchSupport.h"
#include "flow/Operations.h"
#include "reference/BlurReference.h"
#include "reference/GeometryReference.h"
#include "reference/ToneReference.h"
#include "reference/VignetteReference.h"
#include "support/PeakMemory.h"
#include <MGraphX/HeapPolicy.h>

#include <cstdio>
#include <ctime>
#include <QGuiApplication>
#include <QTemporaryDir>

// Times whole batches: decoding, filters and encoding, in seconds of the processor for each photo
// of 24 megapixels, beside the same flow made of plain per-pixel loops. Argument: how many photos a
// run takes, 3 if there is none.

namespace
{

constexpr int kQuality = 90;

struct TimedFlow {
    const char* name;
    BatchWorker::Operations operations;
    QVector<Filter> plain;
};

/// A step of the batch beside its plain twin.
struct Step {
    const char* name;
    const char* parameters;
    Filter plain;
};

TimedFlow timedFlow(const char* name, const QVector<Step>& steps)
{
    TimedFlow flow{name, {}, {}};
    for (const Step& step : steps) {
        flow.operations.append(
            qMakePair(QString(QLatin1String(step.name)),
                      QStringLiteral("<P>%1</P>").arg(QLatin1String(step.parameters))));
        flow.plain.append(step.plain);
    }
    return flow;
}

Step tone(const char* parameters, int brightness, int contrast, int saturation)
{
    return {"Brightness, Contrast, Saturation", parameters, [=](const QImage& image) {
                return reference::brightnessContrastSaturation(image, brightness, contrast,
                                                               float(saturation / 50.0));
            }};
}

const Step kGrayscale = {"Grayscale", "", reference::grayscale};
const Step kInvert = {"Invert", "", reference::invert};
const Step kRotate = {"Rotate", "<Angle>90</Angle>", reference::rotate90};
const Step kMirror = {"Mirror", "<Horizontal>yes</Horizontal><Vertical>no</Vertical>",
                      [](const QImage& image) {
                          return image.mirrored(true, false);
                      }};
const Step kHalfTurn = {"Rotate", "<Angle>180</Angle>", reference::rotate180};
const Step kCrop = {"Crop", "<Left>11</Left><Right>11</Right>", [](const QImage& image) {
                        return reference::crop(image, 11, 11, 0, 0);
                    }};
const Step kResize = {"Resize", "<Mode>0</Mode><Width>100</Width><Height>100</Height>",
                      [](const QImage& image) {
                          return image;
                      }};
const Step kBlur = {"Blur", "<Radius>10</Radius>", [](const QImage& image) {
                        return reference::blur(image, image.rect(), 10, false);
                    }};
const Step kVignette = {"Vignetting",
                        "<Radius>65</Radius><Opacity>80</Opacity><Color>#000000</Color>",
                        [](const QImage& image) {
                            return reference::vignette(image, 65, 80, Qt::black);
                        }};
/// The mark has no plain loop: it is text, which the toolkit draws on both sides.
const char* const kMarkParameters = "<Mode>0</Mode><Size>60</Size><Text>Watermark</Text>"
                                    "<Transparency>25</Transparency>";
const Step kMark = {"Watermark", kMarkParameters, [](const QImage& image) {
                        return findOperation(QStringLiteral("Watermark"))
                            ->processFromXml(
                                image,
                                QStringLiteral("<P>%1</P>").arg(QLatin1String(kMarkParameters)));
                    }};
const Step kHistogram = {"Histogram optimizer", "<Left>5</Left><Right>5</Right>",
                         [](const QImage& image) {
                             return reference::optimizeHistogram(image, 5, 5);
                         }};
const Step kFrame = {"Frame", "<Width>2</Width><Color>#00ff00</Color>", [](const QImage& image) {
                         return reference::frame(image, 2, Qt::green);
                     }};
const Step kBinarize = {"Binarization", "<Threshold>127</Threshold>", [](const QImage& image) {
                            return reference::binarize(image, 127);
                        }};

QVector<TimedFlow> flows()
{
    const Step soft = tone("<Brightness>10</Brightness><Contrast>5</Contrast>"
                           "<Saturation>60</Saturation>",
                           10, 5, 60);
    const Step strong = tone("<Brightness>-27</Brightness><Contrast>58</Contrast>"
                             "<Saturation>82</Saturation>",
                             -27, 58, 82);
    return {timedFlow("convert only", {}),
            timedFlow("tone, grayscale, invert", {soft, kGrayscale, kInvert}),
            timedFlow("rotate, mirror", {kRotate, kMirror}),
            timedFlow("crop, half turn, blur", {kCrop, kHalfTurn, kBlur}),
            timedFlow("sample flow", {strong, kCrop, kRotate, kResize}),
            timedFlow("blur, vignette, text", {kBlur, kVignette, kMark}),
            timedFlow("histogram, frame, binarize", {kHistogram, kFrame, kBinarize})};
}

double cpuSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

/// Seconds a photo of the program's own batch.
double timeBatch(const TimedFlow& flow, const QList<QUrl>& photos, const QString& folder)
{
    BatchWorker worker;
    worker.setJob(QStringLiteral("JPEG"), kQuality, false, QString(), 0, folder + QLatin1Char('/'),
                  photos, flow.operations);
    const double start = cpuSeconds();
    worker.slotDoWork();
    return (cpuSeconds() - start) / photos.size();
}

/// What the program's conversion gives, word by word.
QImage plainConversion(const QImage& image)
{
    QImage result(image.size(), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            result.setPixel(x, y, image.pixel(x, y));
        }
    }
    return result;
}

/// The same with plain loops.
double timePlain(const TimedFlow& flow, const QList<QUrl>& photos, const QString& folder)
{
    const double start = cpuSeconds();
    for (const QUrl& photo : photos) {
        QImage image = plainConversion(QImage(photo.toLocalFile()));
        for (const Filter& filter : flow.plain) {
            image = filter(image);
        }
        if (!saveResult(image, folder + QStringLiteral("/plain.jpeg"), "JPEG", kQuality)) {
            std::fprintf(stderr, "The results can't be written.\n");
        }
    }
    return (cpuSeconds() - start) / photos.size();
}

} // namespace

int main(int argc, char** argv)
{
    MGraphX::keepHeap();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    const int count = argc > 1 ? qMax(1, QByteArray(argv[1]).toInt()) : 3;
    const QTemporaryDir sources;
    const QTemporaryDir results;
    QList<QUrl> photos;
    for (int i = 0; i < count; ++i) {
        const QString file = sources.filePath(QStringLiteral("photo%1.jpeg").arg(i));
        if (!benchPhoto(QSize(6000, 4000)).save(file, "JPEG", kQuality)) {
            std::fprintf(stderr, "The photos can't be written.\n");
            return 1;
        }
        photos.append(QUrl::fromLocalFile(file));
    }
    MGraphX::releaseHeap();

    std::printf("%-28s %10s %10s %8s %10s\n", "flow", "CPU s", "plain s", "ratio", "peak MB");
    for (const TimedFlow& flow : flows()) {
        resetPeak();
        const double fast = timeBatch(flow, photos, results.path());
        const double peak = peakMegabytes();
        MGraphX::releaseHeap();
        const double plain = timePlain(flow, photos, results.path());
        MGraphX::releaseHeap();
        std::printf("%-28s %10.3f %10.3f %8.2f %10.0f\n", flow.name, fast, plain, fast / plain,
                    peak);
    }
    return 0;
}
