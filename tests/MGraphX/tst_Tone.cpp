#include "reference/RandomImages.h"
#include "reference/ToneReference.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <limits>
#include <MGraphX/GraphX.h>
#include <MGraphX/kernels/FastBrightnessKernel.h>
#include <numeric>
#include <vector>

using MGraphX::GraphX;

namespace
{

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

QImage onePixel(QRgb word)
{
    QImage image(1, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, word);
    return image;
}

QImage row(const QVector<QRgb>& words)
{
    QImage image(words.size(), 1, QImage::Format_ARGB32);
    for (int x = 0; x < words.size(); ++x) {
        image.setPixel(x, 0, words.at(x));
    }
    return image;
}

} // namespace

/// Each filter against its plain loop, and what is odd about them on purpose in literal pixels.
class tst_Tone : public QObject
{
    Q_OBJECT

private slots:
    void channelFiltersEqualPlainLoops();
    void brightnessEqualsPlainLoop_data();
    void brightnessEqualsPlainLoop();
    void brightnessTakesEachWay();
    void fastBrightnessIsExactForAllColours();
    void brightnessInLiteralPixels();
    void histogramEqualsPlanarDefinition();
    void histogramArgumentsCross();
    void channelFiltersInLiteralPixels();
    void sourceStaysAndNullPasses();
};

void tst_Tone::channelFiltersEqualPlainLoops()
{
    const auto images = randomImages();
    for (const QImage& image : images) {
        COMPARE_IMAGES(GraphX::swapRedBlue(image), reference::swapRedBlue(image));
        COMPARE_IMAGES(GraphX::swapRedGreen(image), reference::swapRedGreen(image));
        COMPARE_IMAGES(GraphX::swapGreenBlue(image), reference::swapGreenBlue(image));
        COMPARE_IMAGES(GraphX::grayscale(image), reference::grayscale(image));
        COMPARE_IMAGES(GraphX::invert(image), reference::invert(image));
        for (const int threshold : {kLeast, -1, 0, 1, 127, 128, 255, 256, 257, kMost}) {
            COMPARE_IMAGES(GraphX::binarize(image, threshold),
                           reference::binarize(image, threshold));
        }
    }
}

void tst_Tone::brightnessEqualsPlainLoop_data()
{
    QTest::addColumn<int>("brightness");
    QTest::addColumn<int>("contrast");
    QTest::addColumn<int>("saturation");
    for (const int saturation : {0, 1, 50, 73, 100}) {
        for (const int contrast : {-127, -60, 0, 1, 128}) {
            for (const int brightness : {-127, 0, 31, 128}) {
                QTest::addRow("%d, %d, %d", brightness, contrast, saturation)
                    << brightness << contrast << saturation;
            }
        }
    }
    for (const int extreme : {kLeast, -1000, 1000, kMost}) {
        QTest::addRow("brightness %d", extreme) << extreme << 10 << 60;
        QTest::addRow("contrast %d", extreme) << 10 << extreme << 60;
        QTest::addRow("saturation %d", extreme) << 10 << 20 << extreme;
        QTest::addRow("all %d", extreme) << extreme << extreme << extreme;
    }
}

void tst_Tone::brightnessEqualsPlainLoop()
{
    QFETCH(int, brightness);
    QFETCH(int, contrast);
    QFETCH(int, saturation);
    const float factor = float(saturation / 50.0);
    static const auto images = randomImages();
    for (const QImage& image : images) {
        COMPARE_IMAGES(
            GraphX::brightnessContrastSaturation(image, brightness, contrast, factor),
            reference::brightnessContrastSaturation(image, brightness, contrast, factor));
    }
}

void tst_Tone::brightnessTakesEachWay()
{
    // Blocks in which few pixels, many or all come near a whole level, in rows with remainders.
    const QImage noise = randomImage({500, 3}, QImage::Format_ARGB32, RandomAlpha::Any, 8);
    const QImage gray = GraphX::grayscale(noise);
    for (const QImage& image : {noise, gray}) {
        for (const int contrast : {-50, 0, 77}) {
            for (const float saturation : {0.0f, 0.96f, 1.0f, 2.0f, 1e5f, 1e30f}) {
                for (const int brightness : {0, -40, 3, 70000}) {
                    COMPARE_IMAGES(GraphX::brightnessContrastSaturation(image, brightness, contrast,
                                                                        saturation),
                                   reference::brightnessContrastSaturation(image, brightness,
                                                                           contrast, saturation));
                }
            }
        }
    }
}

void tst_Tone::fastBrightnessIsExactForAllColours()
{
    using namespace MGraphX::kernels;
    constexpr int kRow = 1 << 16;
    std::vector<uint32_t> colours(kRow);
    std::vector<uint32_t> exact(kRow);
    std::vector<uint32_t> quick(kRow);
    for (const auto& settings : {BrightnessSettings{0, 1, 2}, BrightnessSettings{31, 1.5f, 0.34f},
                                 BrightnessSettings{-127, 255 / 127.0f, 1.98f}}) {
        const FastBrightness fast(settings);
        QVERIFY(fast.isUsable());
        for (uint32_t red = 0; red < 256; ++red) {
            std::iota(colours.begin(), colours.end(), 0xff000000u + (red << 16));
            brightnessRow(colours.data(), exact.data(), kRow, settings);
            fastBrightnessRow(colours.data(), quick.data(), kRow, settings, fast);
            QVERIFY2(exact == quick, qPrintable(QString::number(red)));
        }
    }
}

void tst_Tone::brightnessInLiteralPixels()
{
    const QImage photo = row({0x80ff0000, 0x0000ff00, 0xff0000ff, 0x7f102030, 0xffffffff});
    const auto adjusted = [&photo](int brightness, int contrast, float saturation) {
        return GraphX::brightnessContrastSaturation(photo, brightness, contrast, saturation);
    };
    COMPARE_IMAGES(adjusted(0, 0, 1.0f), photo);
    // Least contrast is black whatever else is set, and alpha stays.
    COMPARE_IMAGES(adjusted(128, -127, 2.0f),
                   row({0x80000000, 0x00000000, 0xff000000, 0x7f000000, 0xff000000}));
    // The gain works around 0 and not around mid-grey, and takes the brightness along.
    COMPARE_IMAGES(adjusted(0, 127, 1.0f),
                   row({0x80ff0000, 0x0000ff00, 0xff0000ff, 0x7f204060, 0xffffffff}));
    COMPARE_IMAGES(adjusted(10, 127, 1.0f),
                   row({0x80ff1414, 0x0014ff14, 0xff1414ff, 0x7f345474, 0xffffffff}));
    // Without saturation each channel is the perceived level.
    COMPARE_IMAGES(adjusted(0, 0, 0.0f),
                   row({0x808b8b8b, 0x00c3c3c3, 0xff565656, 0x7f1e1e1e, 0xffffffff}));
}

void tst_Tone::histogramEqualsPlanarDefinition()
{
    const auto images = randomImages();
    const int shares[] = {kLeast, -5, 0, 1, 13, 50, 99, 100, 101, 199, 200, 1000, kMost};
    for (const QImage& image : images) {
        for (const int left : shares) {
            for (const int right : shares) {
                COMPARE_IMAGES(GraphX::optimizeHistogram(image, left, right),
                               reference::optimizeHistogram(image, left, right));
            }
        }
    }
}

void tst_Tone::histogramArgumentsCross()
{
    // Red holds 50, 100, 150, 200: one pixel each, so a share of 50 half percents is one pixel.
    const QImage photo = row({0xff320000, 0xff64c80a, 0xff9600ff, 0x20c83264});
    COMPARE_IMAGES(GraphX::optimizeHistogram(photo, 0, 0),
                   row({0xff000000, 0xff55ff00, 0xffaa00ff, 0xffff0055}));
    COMPARE_IMAGES(GraphX::optimizeHistogram(photo, 0, 50),
                   row({0xff000000, 0xff00ff00, 0xff8000ff, 0xffff0000}));
    COMPARE_IMAGES(GraphX::optimizeHistogram(photo, 50, 0),
                   row({0xff000000, 0xff80ff00, 0xffff00ff, 0xffff0080}));
    // Both cuts at the middle cross: nothing is left but 0 and 255.
    COMPARE_IMAGES(GraphX::optimizeHistogram(photo, 100, 100),
                   row({0xff000000, 0xff00ff00, 0xffff00ff, 0xffff0000}));
    // One red value only: what reaches it is 255.
    COMPARE_IMAGES(GraphX::optimizeHistogram(row({0xff646363, 0xff64ff64}), 0, 0),
                   row({0xffff0000, 0xffffffff}));
}

void tst_Tone::channelFiltersInLiteralPixels()
{
    COMPARE_IMAGES(GraphX::grayscale(row({0x40ff0000, 0x00010100, 0xff00ff03})),
                   row({0x40555555, 0x00000000, 0xff565656}));
    COMPARE_IMAGES(GraphX::binarize(row({0x407f8000, 0x00ff7e7f}), 127),
                   row({0x40ffff00, 0x00ff00ff}));
    COMPARE_IMAGES(GraphX::swapRedBlue(onePixel(0x80010203)), onePixel(0x80030201));
    COMPARE_IMAGES(GraphX::swapRedGreen(onePixel(0x80010203)), onePixel(0x80020103));
    COMPARE_IMAGES(GraphX::swapGreenBlue(onePixel(0x80010203)), onePixel(0x80010302));
    COMPARE_IMAGES(GraphX::invert(onePixel(0x80010203)), onePixel(0x80fefdfc));
}

void tst_Tone::sourceStaysAndNullPasses()
{
    const QImage source = randomImage({9, 5}, QImage::Format_ARGB32, RandomAlpha::Any, 1);
    const QImage kept = source.copy();
    // A photo of another depth is a caller's fault, but no reason to read beyond its rows.
    const QImage bytes = source.convertToFormat(QImage::Format_Grayscale8);
    const QVector<QImage (*)(const QImage&)> filters{
        GraphX::swapRedBlue,
        GraphX::swapRedGreen,
        GraphX::swapGreenBlue,
        GraphX::grayscale,
        GraphX::invert,
        [](const QImage& image) { return GraphX::binarize(image, 100); },
        [](const QImage& image) { return GraphX::optimizeHistogram(image, 10, 20); },
        [](const QImage& image) {
            return GraphX::brightnessContrastSaturation(image, 10, 20, 0.5f);
        }};
    for (const auto& filter : filters) {
        QVERIFY(filter(source) != source);
        COMPARE_IMAGES(source, kept);
        QVERIFY(filter(QImage()).isNull());
        QCOMPARE(filter(bytes).size(), bytes.size());
    }
}

TESSARIN_TEST(tst_Tone);

#include "tst_Tone.moc"
