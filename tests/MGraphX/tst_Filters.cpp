#include "reference/BlurReference.h"
#include "reference/GeometryReference.h"
#include "reference/RandomImages.h"
#include "reference/ToneReference.h"
#include "reference/VignetteReference.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <MGraphX/Blur.h>
#include <MGraphX/Geometry.h>
#include <MGraphX/ImageLike.h>
#include <MGraphX/kernels/FastBrightnessKernel.h>
#include <MGraphX/Tone.h>
#include <MGraphX/Vignette.h>
#include <numeric>
#include <utility>
#include <vector>

namespace geometry = MGraphX::geometry;
namespace tone = MGraphX::tone;

using Filter = std::function<QImage(QImage)>;
Q_DECLARE_METATYPE(Filter)

namespace
{

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

int s_warnings = 0;

/// Counts the toolkit's warnings for as long as it lives, instead of printing them.
class WarningCounter
{
public:
    WarningCounter()
        : m_former(qInstallMessageHandler(
              [](QtMsgType, const QMessageLogContext&, const QString&) { ++s_warnings; }))
    {
        s_warnings = 0;
    }
    ~WarningCounter() { qInstallMessageHandler(m_former); }
    Q_DISABLE_COPY(WarningCounter)

private:
    QtMessageHandler m_former;
};

QVector<QImage> images()
{
    QVector<QImage> all = randomImages();
    // Blocks in which few pixels, many or all come near a whole level, in rows with remainders.
    const QImage noise = randomImage({500, 3}, QImage::Format_ARGB32, RandomAlpha::Any, 8);
    all << noise << tone::grayscale(noise);
    // More rows than turns take in one go.
    all << randomImage({17, 530}, QImage::Format_ARGB32, RandomAlpha::Any, 6);
    // An image that asks for its own stride, as one around foreign memory does.
    static uint bits[40 * 9];
    std::iota(std::begin(bits), std::end(bits), 0xfefdfcu);
    all << QImage(reinterpret_cast<uchar*>(bits), 33, 9, 160, QImage::Format_ARGB32);
    return all;
}

/// A copy that nobody else holds, with the rest of wider rows between its own, as a crop leaves it.
QImage givenAway(const QImage& source)
{
    if (source.isNull()) {
        return QImage();
    }
    const QSize wider = source.size() + QSize(3, 2);
    QImage image = MGraphX::imageLike(source, wider, source.format());
    image.fill(0xff00ff00u);
    const QRect part(QPoint(2, 1), source.size());
    for (int y = 0; y < part.height(); ++y) {
        std::copy_n(source.constScanLine(y), 4 * part.width(), image.scanLine(1 + y) + 4 * 2);
    }
    return MGraphX::takenOver(std::move(image), part, source.format());
}

QImage blurWhole(QImage image, int radius, bool alphaOnly)
{
    const QRect whole = image.rect();
    return MGraphX::blurImage(std::move(image), whole, radius, alphaOnly);
}

QImage blurWholePlainly(const QImage& image, int radius, bool alphaOnly)
{
    return reference::blur(image, image.rect(), radius, alphaOnly);
}

QImage mirrorByTheToolkit(const QImage& image, bool horizontal, bool vertical)
{
    return image.mirrored(horizontal, vertical);
}

QImage vignettePlainly(const QImage& image, int radius, int opacity, const QColor& color)
{
    const bool isOfTheFlow = image.format() != QImage::Format_RGB32;
    return reference::vignette(isOfTheFlow ? image : image.convertToFormat(QImage::Format_ARGB32),
                               radius, opacity, color);
}

/// Adds a filter and its plain loop, with the same arguments behind the image.
template <class Fast, class Plain, class... Arguments>
void add(const char* name, Fast fast, Plain plain, Arguments... arguments)
{
    const QStringList tag{QLatin1String(name), QVariant(arguments).toString()...};
    QTest::newRow(qPrintable(tag.join(QLatin1Char(' '))))
        << Filter([=](QImage image) { return fast(std::move(image), arguments...); })
        << Filter([=](const QImage& image) { return plain(image, arguments...); });
}

void addTone(int brightness, int contrast, float saturation)
{
    add("tone", tone::brightnessContrastSaturation, reference::brightnessContrastSaturation,
        brightness, contrast, saturation);
}

void addTones()
{
    for (const float saturation : {0.0f, 0.02f, 0.96f, 1.0f, 1.46f, 2.0f, 1e5f, 1e30f}) {
        for (const int contrast : {-127, -50, 0, 1, 128}) {
            for (const int brightness : {-127, 0, 3, 128, 70000}) {
                addTone(brightness, contrast, saturation);
            }
        }
    }
    for (const int extreme : {kLeast, -1000, 1000, kMost}) {
        addTone(extreme, 10, 1.2f);
        addTone(10, extreme, 1.2f);
        addTone(10, 20, float(extreme));
        addTone(extreme, extreme, float(extreme));
    }
    const int shares[] = {kLeast, -5, 0, 1, 13, 50, 99, 100, 101, 199, 200, 1000, kMost};
    for (const int left : shares) {
        for (const int right : shares) {
            add("histogram", tone::optimizeHistogram, reference::optimizeHistogram, left, right);
        }
    }
}

void addChannels()
{
    add("swap red and blue", tone::swapRedBlue, reference::swapRedBlue);
    add("swap red and green", tone::swapRedGreen, reference::swapRedGreen);
    add("swap green and blue", tone::swapGreenBlue, reference::swapGreenBlue);
    add("grayscale", tone::grayscale, reference::grayscale);
    add("invert", tone::invert, reference::invert);
    for (const int threshold : {kLeast, -1, 0, 1, 127, 128, 255, 256, 257, kMost}) {
        add("binarize", tone::binarize, reference::binarize, threshold);
    }
}

void addGeometry()
{
    add("rotate 90", geometry::rotate90, reference::rotate90);
    add("rotate 180", geometry::rotate180, reference::rotate180);
    add("rotate 270", geometry::rotate270, reference::rotate270);
    for (const bool horizontal : {false, true}) {
        for (const bool vertical : {false, true}) {
            add("mirror", geometry::mirror, mirrorByTheToolkit, horizontal, vertical);
        }
    }
    const int shares[][4] = {{0, 0, 0, 0},   {10, 20, 30, 40},     {33, 33, 1, 99},
                             {50, 50, 0, 0}, {0, 0, 60, 60},       {100, 0, 0, 0},
                             {0, 0, 0, 100}, {-30, -20, 10, -150}, {150, -120, -110, 130}};
    for (const auto& share : shares) {
        add("crop", geometry::crop, reference::crop, share[0], share[1], share[2], share[3]);
    }
    for (const int percent : {0, 1, 2, 20, 100, -10, -30, -49, -60}) {
        for (const QColor& color : {QColor(200, 100, 50, 77), QColor(Qt::black), QColor()}) {
            add("frame", geometry::frame, reference::frame, percent, color);
        }
    }
}

void addDetail()
{
    for (const int radius : {-3, 0, 1, 2, 3, 4, 5, 6, 7, 8, 12, 17, 18, 500}) {
        add("blur", blurWhole, blurWholePlainly, radius, false);
    }
    add("blur", blurWhole, blurWholePlainly, 4, true);
    add("vignette", MGraphX::vignetteImage, vignettePlainly, 65, 80, QColor(20, 30, 220));
}

} // namespace

/// Each filter against its plain loop, which is what the filter means.
class TestFilters : public QObject
{
    Q_OBJECT

private slots:
    void tonesEqualPlainLoops_data() { addRows(addTones); }
    void tonesEqualPlainLoops() { compareRow(); }
    void channelsEqualPlainLoops_data() { addRows(addChannels); }
    void channelsEqualPlainLoops() { compareRow(); }
    void geometryEqualsPlainLoops_data() { addRows(addGeometry); }
    void geometryEqualsPlainLoops() { compareRow(); }
    void detailEqualsPlainLoops_data() { addRows(addDetail); }
    void detailEqualsPlainLoops() { compareRow(); }

    void theFastToneIsExactForAllColours()
    {
        using namespace MGraphX::kernels;
        constexpr int kRow = 1 << 16;
        std::vector<uint32_t> colours(kRow);
        std::vector<uint32_t> exact(kRow);
        std::vector<uint32_t> quick(kRow);
        for (const auto& settings :
             {BrightnessSettings{0, 1, 2}, BrightnessSettings{31, 1.5f, 0.34f},
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

private:
    void addRows(void (*add)())
    {
        QTest::addColumn<Filter>("fast");
        QTest::addColumn<Filter>("plain");
        add();
    }

    void compareRow()
    {
        QFETCH(Filter, fast);
        QFETCH(Filter, plain);
        static const QVector<QImage> all = images();
        for (const QImage& source : all) {
            const QImage kept = source.copy();
            const WarningCounter counter;
            const QImage result = fast(source);
            const QImage fromGiven = fast(givenAway(source));
            QCOMPARE(s_warnings, 0);
            const QImage expected = plain(source);
            COMPARE_IMAGES(result, expected);
            COMPARE_IMAGES(fromGiven, expected);
            COMPARE_IMAGES(source, kept);
        }
        QVERIFY(fast(QImage()).isNull());
        // A photo of another depth is a caller's fault, but no reason to read beyond its rows.
        const QImage bytes = all.last().convertToFormat(QImage::Format_Grayscale8);
        const QImage words = bytes.convertToFormat(QImage::Format_ARGB32);
        COMPARE_IMAGES(fast(bytes).convertToFormat(QImage::Format_ARGB32),
                       fast(words).convertToFormat(QImage::Format_ARGB32));
    }
};

TESSARIN_TEST(TestFilters);
#include "tst_Filters.moc"
