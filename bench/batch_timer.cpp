#include "batch/BatchWorker.h"
#include "batch/ResultFile.h"
#include "BenchSupport.h"
#include "reference/ToneReference.h"
#include <MGraphX/HeapPolicy.h>

#include <cstdio>
#include <ctime>
#include <QFile>
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

QString parameters(const char* elements)
{
    return QStringLiteral("<Parameters>%1</Parameters>").arg(QLatin1String(elements));
}

QVector<TimedFlow> flows()
{
    return {{"convert only", {}, {}},
            {"tone, grayscale, invert",
             {{QStringLiteral("Brightness, Contrast, Saturation"),
               parameters("<Brightness>10</Brightness><Contrast>5</Contrast>"
                          "<Saturation>60</Saturation>")},
              {QStringLiteral("Grayscale"), QString()},
              {QStringLiteral("Invert"), QString()}},
             {[](const QImage& image) {
                  return reference::brightnessContrastSaturation(image, 10, 5, 60 / 50.0f);
              },
              reference::grayscale, reference::invert}}};
}

double cpuSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

/// Forgets the peak of memory so far; Linux only.
void resetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly)) {
        file.write("5");
    }
}

/// Peak of resident memory in megabytes, or -1 where the system doesn't tell.
double peakMegabytes()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith("VmHWM:")) {
                return line.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
            }
        }
    }
    return -1;
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

/// The same with plain loops.
double timePlain(const TimedFlow& flow, const QList<QUrl>& photos, const QString& folder)
{
    const double start = cpuSeconds();
    for (const QUrl& photo : photos) {
        QImage image = QImage(photo.toLocalFile()).convertToFormat(QImage::Format_ARGB32);
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
