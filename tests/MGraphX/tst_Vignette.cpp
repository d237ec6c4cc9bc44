#include "reference/RandomImages.h"
#include "reference/VignetteReference.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <limits>
#include <MGraphX/Vignette.h>

using MGraphX::vignetteImage;

class tst_Vignette : public QObject
{
    Q_OBJECT

private slots:
    void equalsThePaintings();
    void equalsThePaintingsOnLargePhotos_data();
    void equalsThePaintingsOnLargePhotos();
    void parameters_data();
    void parameters();
    void clearInsideFullOutside();
    void keepsItsSource();
};

void tst_Vignette::equalsThePaintings()
{
    const auto images = randomImages();
    for (const QImage& image : images) {
        if (image.format() != QImage::Format_RGB32) {
            COMPARE_IMAGES(vignetteImage(image, 65, 80, QColor(20, 30, 220)),
                           reference::vignette(image, 65, 80, QColor(20, 30, 220)));
        }
    }
}

void tst_Vignette::equalsThePaintingsOnLargePhotos_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("landscape") << QSize(3000, 61);
    QTest::newRow("portrait") << QSize(61, 3000);
    QTest::newRow("odd") << QSize(2501, 1667);
    QTest::newRow("square") << QSize(801, 801);
    QTest::newRow("low") << QSize(2000, 2);
    QTest::newRow("narrow") << QSize(9, 2000);
    QTest::newRow("a column") << QSize(1, 1000);
    QTest::newRow("two columns") << QSize(2, 1700);
    QTest::newRow("a row") << QSize(1000, 1);
    QTest::newRow("odd span") << QSize(2049, 300);
    QTest::newRow("even span") << QSize(4096, 60);
    QTest::newRow("narrow beyond a span") << QSize(5, 4500);
}

void tst_Vignette::equalsThePaintingsOnLargePhotos()
{
    QFETCH(QSize, size);
    for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
        for (const auto alpha : {RandomAlpha::Opaque, RandomAlpha::Any}) {
            const QImage image = randomImage(size, format, alpha, 5);
            COMPARE_IMAGES(vignetteImage(image, 70, 55, Qt::darkRed),
                           reference::vignette(image, 70, 55, Qt::darkRed));
        }
    }
}

void tst_Vignette::parameters_data()
{
    constexpr int kLeast = std::numeric_limits<int>::min();
    constexpr int kMost = std::numeric_limits<int>::max();
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("opacity");
    for (const int radius : {kLeast, -20, 0, 1, 5, 50, 100, 1000, kMost}) {
        for (const int opacity : {kLeast, 0, 1, 33, 50, 99, 100, kMost}) {
            QTest::addRow("%d, %d", radius, opacity) << radius << opacity;
        }
    }
}

void tst_Vignette::parameters()
{
    QFETCH(int, radius);
    QFETCH(int, opacity);
    for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
        // The second one is large enough to be painted row by row.
        for (const QSize& size : {QSize(90, 47), QSize(730, 9)}) {
            const QImage image = randomImage(size, format, RandomAlpha::Any, 6);
            for (const QColor& color : {QColor(250, 128, 0, 7), QColor()}) {
                COMPARE_IMAGES(vignetteImage(image, radius, opacity, color),
                               reference::vignette(image, radius, opacity, color));
            }
        }
    }
}

void tst_Vignette::clearInsideFullOutside()
{
    QImage white(400, 200, QImage::Format_ARGB32);
    white.fill(Qt::white);
    const QImage toned = vignetteImage(white, 50, 100, Qt::blue);
    QCOMPARE(toned.pixel(200, 100), 0xffffffffu);
    QCOMPARE(toned.pixel(290, 100), 0xffffffffu); // 90 of 200 pixels from the centre
    QCOMPARE(toned.pixel(200, 55), 0xffffffffu);  // the same, squeezed
    QCOMPARE(toned.pixel(0, 0), 0xff0000ffu);
    QCOMPARE(toned.pixel(399, 199), 0xff0000ffu);
    QCOMPARE(vignetteImage(white, 50, 0, Qt::blue), white);
}

void tst_Vignette::keepsItsSource()
{
    QImage source = randomImage({50, 30}, QImage::Format_ARGB32, RandomAlpha::Any, 3);
    source.setDevicePixelRatio(2);
    const QImage kept = source.copy();
    const QImage toned = vignetteImage(source, 30, 100, Qt::black);
    COMPARE_IMAGES(source, kept);
    // A photo marked as one for dense screens is toned as any other.
    QCOMPARE(toned.devicePixelRatio(), 2.0);
    source.setDevicePixelRatio(1);
    COMPARE_IMAGES(toned, vignetteImage(source, 30, 100, Qt::black));
    QVERIFY(vignetteImage(QImage(), 30, 100, Qt::black).isNull());
}

TESSARIN_TEST(tst_Vignette);

#include "tst_Vignette.moc"
