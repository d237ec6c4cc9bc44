#include "reference/RandomImages.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <functional>
#include <MGraphX/GraphX.h>
#include <MGraphX/Vignette.h>
#include <QCryptographicHash>

using MGraphX::GraphX;

namespace
{

QImage image(const QSize& size, const QVector<QRgb>& words)
{
    QImage made(size, QImage::Format_ARGB32);
    for (int i = 0; i < words.size(); ++i) {
        made.setPixel(i % size.width(), i / size.width(), words.at(i));
    }
    return made;
}

QImage row(const QVector<QRgb>& words)
{
    return image({words.size(), 1}, words);
}

using Filter = std::function<QImage(const QImage&)>;

/// Of all that the filter makes of the random images.
QByteArray digest(const Filter& filter)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    static const QVector<QImage> sources = randomImages();
    for (const QImage& source : sources) {
        const QImage result = filter(source);
        for (int y = 0; y < result.height(); ++y) {
            hash.addData(reinterpret_cast<const char*>(result.constScanLine(y)),
                         4 * result.width());
        }
    }
    return hash.result().toHex();
}

Filter tone(int brightness, int contrast, float saturation)
{
    return [=](const QImage& image) {
        return GraphX::brightnessContrastSaturation(image, brightness, contrast, saturation);
    };
}

} // namespace

/// What the filters give, and what is odd about them on purpose, in words written down once.
class TestLiteralPixels : public QObject
{
    Q_OBJECT

private slots:
    /// Every compiler, optimization and instruction set has to arrive at the same digests. Those
    /// operations stand here that leave nothing to Qt's own code for each processor.
    void everyBuildGivesTheSamePixels()
    {
        const struct {
            const char* name;
            Filter filter;
            const char* digest;
        } rows[] = {
            {"tone, doubled colour", tone(0, 0, 2.0f), "9ebbfc66932976c6344cde400167dbe1"},
            {"tone, all three", tone(-27, 58, 82 / 50.0f), "f33d9db4075e8b97a4266d092d158ea7"},
            {"tone, soft", tone(31, -64, 0.3f), "e52c4647e9835ad6c5a1115109af1589"},
            {"histogram",
             [](const QImage& image) { return GraphX::optimizeHistogram(image, 7, 12); },
             "2d4fcf227a8f87983271180539d2aee0"},
            {"grayscale", GraphX::grayscale, "9fa8e5da979b4df3cda8b8ffdcade37f"},
            {"binarize", [](const QImage& image) { return GraphX::binarize(image, 99); },
             "ade68109cef2274803b626b355b437c8"},
            {"swap", GraphX::swapRedGreen, "5ce59a65305c2e5e0a9f119872e32f21"},
            {"blur",
             [](const QImage& image) { return GraphX::blur(image, image.rect(), 4, false); },
             "570299920be817cb83c87512e92f5df1"},
            {"no blur",
             [](const QImage& image) { return GraphX::blur(image, image.rect(), 0, false); },
             "2f4c27203d4582bd10d09d5e8cad43c9"},
            {"invert",
             [](const QImage& image) {
                 // Qt itself takes premultiplied colours apart, and with them this filter's.
                 const bool plain = image.format() != QImage::Format_ARGB32_Premultiplied;
                 return plain ? GraphX::invert(image) : QImage();
             },
             "760cf2ee82f2c123a1aa0647e3e2d7ec"},
            {"crop", [](const QImage& image) { return GraphX::crop(image, 9, -12, -7, 30); },
             "ff4a36f19b0bf478d60b289761272146"},
            {"frame",
             [](const QImage& image) { return GraphX::frame(image, 20, QColor(9, 99, 200, 70)); },
             "22c8371ea238b765c47b7b8bf4111cce"},
            {"rotate", GraphX::rotate90, "03d2455b76d5a4f7602256e73edd9dfc"},
            {"half turn", GraphX::rotate180, "fdf3d05eaae0e215b48b5268ece45b14"},
            {"rotate back", GraphX::rotate270, "169995f4c11115e3891035d25b9e0d1f"},
            {"mirror", [](const QImage& image) { return GraphX::mirror(image, true, false); },
             "3a3b7de53dabb377bbefc07df4b1326d"}};
        for (const auto& each : rows) {
            const QByteArray name(each.name);
            QCOMPARE(name + ' ' + digest(each.filter), name + ' ' + each.digest);
        }
    }

    void toneIsOdd()
    {
        const QImage photo = row({0x80ff0000, 0x0000ff00, 0xff0000ff, 0x7f102030, 0xffffffff});
        const auto adjusted = [&photo](int brightness, int contrast, float saturation) {
            return tone(brightness, contrast, saturation)(photo);
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

    void histogramArgumentsCross()
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

    void turnsLoseAnEdge()
    {
        const QRgb out = 12345; // what this toolkit answers outside an image
        // A scanner's photo, with more dots along one side than along the other.
        const auto scanned = [](const QSize& size, const QVector<QRgb>& words, int dotsX,
                                int dotsY) {
            QImage made = image(size, words);
            made.setDotsPerMeterX(dotsX);
            made.setDotsPerMeterY(dotsY);
            return made;
        };
        const QImage photo = scanned({3, 2}, {1, 2, 3, 4, 5, 6}, 7000, 9000);
        COMPARE_IMAGES(GraphX::rotate90(photo),
                       scanned({2, 3}, {out, 4, out, 5, out, 6}, 9000, 7000));
        COMPARE_IMAGES(GraphX::rotate180(photo),
                       scanned({3, 2}, {out, out, out, out, 6, 5}, 7000, 9000));
        COMPARE_IMAGES(GraphX::rotate270(photo),
                       scanned({2, 3}, {out, out, 3, 6, 2, 5}, 9000, 7000));
    }

    void frameMeasuresTheWidth()
    {
        const QImage photo(100, 10, QImage::Format_ARGB32_Premultiplied);
        const QImage framed = GraphX::frame(photo, 2, QColor(255, 0, 0, 128));
        QCOMPARE(framed.size(), QSize(104, 14));
        QCOMPARE(framed.pixelColor(0, 13).alpha(), 128);
        QCOMPARE(GraphX::frame(photo.copy(0, 0, 99, 10), 1, Qt::red).size(), QSize(99, 10));
    }

    void blur()
    {
        // Strength 8: half way from each pixel to the next, to the right and then back to the left.
        const QImage photo = row({0xff000000, 0xff800000, 0xff000000, 0xff000000});
        COMPARE_IMAGES(GraphX::blur(photo, photo.rect(), 3, false),
                       row({0xff160000, 0xff2c0000, 0xff180000, 0xff100000})
                           .convertToFormat(QImage::Format_ARGB32_Premultiplied));
        // Strengths repeat: 5 and 6, 8 to 11, 12 to 17, and 18 on.
        const QImage noise = randomImage({20, 20}, QImage::Format_ARGB32, RandomAlpha::Any, 2);
        const auto strong = [&noise](int radius) {
            return GraphX::blur(noise, noise.rect(), radius, false);
        };
        COMPARE_IMAGES(strong(5), strong(6));
        COMPARE_IMAGES(strong(8), strong(11));
        COMPARE_IMAGES(strong(12), strong(17));
        COMPARE_IMAGES(strong(18), strong(20));
        QVERIFY(strong(17) != strong(18));
        COMPARE_IMAGES(strong(0), noise.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }

    void vignetteIsClearInsideAndFullOutside()
    {
        QImage white(400, 200, QImage::Format_ARGB32);
        white.fill(Qt::white);
        const QImage toned = MGraphX::vignetteImage(white, 50, 100, Qt::blue);
        QCOMPARE(toned.pixel(200, 100), 0xffffffffu);
        QCOMPARE(toned.pixel(290, 100), 0xffffffffu); // 90 of 200 pixels from the centre
        QCOMPARE(toned.pixel(200, 55), 0xffffffffu);  // the same, squeezed
        QCOMPARE(toned.pixel(0, 0), 0xff0000ffu);
        QCOMPARE(toned.pixel(399, 199), 0xff0000ffu);
    }
};

TESSARIN_TEST(TestLiteralPixels);
#include "tst_LiteralPixels.moc"
