#include "reference/BlurReference.h"
#include "reference/RandomImages.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <limits>
#include <MGraphX/GraphX.h>

using MGraphX::GraphX;

class tst_Blur : public QObject
{
    Q_OBJECT

private slots:
    void equalsPlainPasses();
    void stripsOfAllSizes();
    void rectangles_data();
    void rectangles();
    void premultipliesAsTheToolkit();
    void inLiteralPixels();
    void keepsItsSource();
};

void tst_Blur::equalsPlainPasses()
{
    const auto images = randomImages();
    for (const QImage& image : images) {
        for (const int radius : {-3, 0, 1, 2, 3, 4, 5, 6, 7, 8, 12, 17, 18, 500}) {
            COMPARE_IMAGES(GraphX::blur(image, image.rect(), radius, false),
                           reference::blur(image, image.rect(), radius, false));
        }
        COMPARE_IMAGES(GraphX::blur(image, image.rect(), 4, true),
                       reference::blur(image, image.rect(), 4, true));
    }
}

void tst_Blur::stripsOfAllSizes()
{
    // Rows go through in bands of 16, words in chunks of 16: every remainder of both.
    for (int height = 1; height <= 35; ++height) {
        const QImage image = randomImage({height + 30, height}, QImage::Format_ARGB32,
                                         RandomAlpha::Any, quint32(height));
        COMPARE_IMAGES(GraphX::blur(image, image.rect(), 9, false),
                       reference::blur(image, image.rect(), 9, false));
    }
    // Flat areas and steps from 0 to 255 reach the ends of the accumulators.
    QImage steps(50, 40, QImage::Format_ARGB32_Premultiplied);
    for (int i = 0; i < 50 * 40; ++i) {
        steps.setPixel(i % 50, i / 50, (i / 7 + i / 350) % 2 ? 0xffffffffu : 0u);
    }
    for (int radius = 1; radius <= 18; ++radius) {
        COMPARE_IMAGES(GraphX::blur(steps, steps.rect(), radius, false),
                       reference::blur(steps, steps.rect(), radius, false));
    }
}

void tst_Blur::rectangles_data()
{
    constexpr int kLeast = std::numeric_limits<int>::min() / 2;
    constexpr int kMost = std::numeric_limits<int>::max() / 2;
    QTest::addColumn<QRect>("rect");
    QTest::newRow("inside") << QRect(3, 4, 20, 17);
    QTest::newRow("beyond two sides") << QRect(-5, 10, 20, 400);
    QTest::newRow("beyond all sides") << QRect(QPoint(kLeast, kLeast), QPoint(kMost, kMost));
    QTest::newRow("turned round") << QRect(QPoint(30, 25), QPoint(10, 5));
    QTest::newRow("one pixel") << QRect(7, 7, 1, 1);
    QTest::newRow("no extent") << QRect(7, 7, 0, 0);
    QTest::newRow("null") << QRect();
    QTest::newRow("outside right") << QRect(60, 0, 5, 5);
    QTest::newRow("outside above") << QRect(0, -20, 40, 10);
}

void tst_Blur::rectangles()
{
    QFETCH(QRect, rect);
    for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
        const QImage image = randomImage({41, 33}, format, RandomAlpha::Any, 9);
        for (const bool alphaOnly : {false, true}) {
            COMPARE_IMAGES(GraphX::blur(image, rect, 7, alphaOnly),
                           reference::blur(image, rect, 7, alphaOnly));
        }
    }
}

void tst_Blur::premultipliesAsTheToolkit()
{
    // Every colour byte with every alpha, in each channel. The rectangle of one pixel blurs
    // nothing.
    QImage all(256, 256, QImage::Format_ARGB32);
    for (int alpha = 0; alpha < 256; ++alpha) {
        for (int value = 0; value < 256; ++value) {
            all.setPixel(value, alpha, qRgba(value, 255 - value, value ^ 0x55, alpha));
        }
    }
    COMPARE_IMAGES(GraphX::blur(all, QRect(0, 0, 1, 1), 5, false),
                   all.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

void tst_Blur::inLiteralPixels()
{
    // Strength 8: half way from each pixel to the next, to the right and then back to the left.
    QImage row(4, 1, QImage::Format_ARGB32);
    row.fill(0xff000000u);
    row.setPixel(1, 0, 0xff800000u);
    const QImage blurred = GraphX::blur(row, row.rect(), 3, false);
    QCOMPARE(blurred.format(), QImage::Format_ARGB32_Premultiplied);
    QCOMPARE(blurred.pixel(0, 0), 0xff160000u);
    QCOMPARE(blurred.pixel(1, 0), 0xff2c0000u);
    QCOMPARE(blurred.pixel(2, 0), 0xff180000u);
    QCOMPARE(blurred.pixel(3, 0), 0xff100000u);
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

void tst_Blur::keepsItsSource()
{
    const QImage source =
        randomImage({20, 20}, QImage::Format_ARGB32_Premultiplied, RandomAlpha::Any, 4);
    const QImage kept = source.copy();
    for (const bool alphaOnly : {false, true}) {
        QVERIFY(GraphX::blur(source, source.rect(), 10, alphaOnly) != source);
        COMPARE_IMAGES(source, kept);
    }
    QVERIFY(GraphX::blur(QImage(), QRect(0, 0, 5, 5), 10, false).isNull());
    const QImage bytes = source.convertToFormat(QImage::Format_Grayscale8);
    COMPARE_IMAGES(GraphX::blur(bytes, bytes.rect(), 10, false),
                   reference::blur(bytes, bytes.rect(), 10, false));
}

TESSARIN_TEST(tst_Blur);

#include "tst_Blur.moc"
