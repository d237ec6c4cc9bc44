#include "reference/BlurReference.h"
#include "reference/RandomImages.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <limits>
#include <MGraphX/GraphX.h>

using MGraphX::GraphX;

class TestBlur : public QObject
{
    Q_OBJECT

private slots:
    void stripsOfAllSizes()
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

    void rectangles_data()
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

    void rectangles()
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

    void premultipliesAsTheToolkit()
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
};

TESSARIN_TEST(TestBlur);
#include "tst_Blur.moc"
