#include "reference/RandomImages.h"
#include "reference/VignetteReference.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <limits>
#include <MGraphX/Vignette.h>

/// What large photos get row by row, and small ones by paintings, against the paintings.
class TestVignette : public QObject
{
    Q_OBJECT

private slots:
    void equalsThePaintings_data()
    {
        constexpr int kLeast = std::numeric_limits<int>::min();
        constexpr int kMost = std::numeric_limits<int>::max();
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("radius");
        QTest::addColumn<int>("opacity");
        const auto add = [](const QSize& size, int radius, int opacity) {
            QTest::addRow("%d x %d, %d, %d", size.width(), size.height(), radius, opacity)
                << size << radius << opacity;
        };
        // Rows are painted in spans of 2048.
        const QSize larges[] = {{3000, 61}, {61, 3000},  {2501, 1667}, {801, 801},
                                {2000, 2},  {9, 2000},   {1, 1000},    {2, 1700},
                                {1000, 1},  {2049, 300}, {4096, 60},   {5, 4500}};
        for (const QSize& large : larges) {
            add(large, 70, 55);
        }
        for (const int radius : {kLeast, -20, 0, 1, 5, 50, 100, 1000, kMost}) {
            for (const int opacity : {kLeast, 0, 1, 33, 50, 99, 100, kMost}) {
                add({90, 47}, radius, opacity);
                add({730, 9}, radius, opacity);
            }
        }
    }

    void equalsThePaintings()
    {
        QFETCH(QSize, size);
        QFETCH(int, radius);
        QFETCH(int, opacity);
        for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
            for (const auto alpha : {RandomAlpha::Opaque, RandomAlpha::Any}) {
                const QImage image = randomImage(size, format, alpha, 5);
                const QColor color = alpha == RandomAlpha::Any ? QColor(250, 128, 0, 7) : QColor();
                COMPARE_IMAGES(MGraphX::vignetteImage(image, radius, opacity, color),
                               reference::vignette(image, radius, opacity, color));
            }
        }
    }

    void aPhotoForDenseScreensIsTonedAsAnyOther()
    {
        QImage photo = randomImage({50, 30}, QImage::Format_ARGB32, RandomAlpha::Any, 3);
        const QImage expected = MGraphX::vignetteImage(photo, 30, 100, Qt::black);
        photo.setDevicePixelRatio(2);
        const QImage toned = MGraphX::vignetteImage(photo, 30, 100, Qt::black);
        COMPARE_IMAGES(toned, expected);
        QCOMPARE(toned.devicePixelRatio(), 2.0);
    }
};

TESSARIN_TEST(TestVignette);
#include "tst_Vignette.moc"
