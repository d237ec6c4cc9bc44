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
    void equalsThePaintingsAtAllSizes()
    {
        // Rows are painted in spans of 2048. Columns of 1001 x 1502 aren't sampled as rows are.
        const QSize sizes[] = {{3000, 61}, {61, 3000}, {2501, 1667}, {801, 801}, {2000, 2},
                               {9, 2000},  {1, 1000},  {2, 1700},    {1000, 1},  {2049, 300},
                               {4096, 60}, {5, 4500},  {1001, 1502}};
        for (const QSize& size : sizes) {
            compare(size, 70, 55);
        }
    }

    void equalsThePaintingsForAllNumbers()
    {
        constexpr int kLeast = std::numeric_limits<int>::min();
        constexpr int kMost = std::numeric_limits<int>::max();
        for (const int radius : {kLeast, -20, 0, 1, 5, 50, 100, 1000, kMost}) {
            for (const int opacity : {kLeast, 0, 1, 33, 50, 99, 100, kMost}) {
                compare({90, 47}, radius, opacity);
                compare({730, 9}, radius, opacity);
            }
        }
    }

private:
    static void compare(const QSize& size, int radius, int opacity)
    {
        for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
            for (const auto alpha : {RandomAlpha::Opaque, RandomAlpha::Any}) {
                const QImage image = randomImage(size, format, alpha, 5);
                const QColor color = alpha == RandomAlpha::Any ? QColor(250, 128, 0, 7) : QColor();
                const QString difference =
                    imageDifference(MGraphX::vignetteImage(image, radius, opacity, color),
                                    reference::vignette(image, radius, opacity, color));
                const QString what = QStringLiteral("%1 x %2, %3, %4: ")
                                         .arg(size.width())
                                         .arg(size.height())
                                         .arg(radius)
                                         .arg(opacity);
                QVERIFY2(difference.isEmpty(), qPrintable(what + difference));
            }
        }
    }
};

TESSARIN_TEST(TestVignette);
#include "tst_Vignette.moc"
