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

    void rectangles()
    {
        constexpr int kLeast = std::numeric_limits<int>::min() / 2;
        constexpr int kMost = std::numeric_limits<int>::max() / 2;
        const QRect rects[] = {{3, 4, 20, 17},
                               {-5, 10, 20, 400},
                               {QPoint(kLeast, kLeast), QPoint(kMost, kMost)},
                               {QPoint(30, 25), QPoint(10, 5)}, // turned round
                               {7, 7, 1, 1},
                               {7, 7, 0, 0},
                               {},
                               {60, 0, 5, 5},
                               {0, -20, 40, 10}};
        for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
            const QImage image = randomImage({41, 33}, format, RandomAlpha::Any, 9);
            for (const QRect& rect : rects) {
                COMPARE_IMAGES(GraphX::blur(image, rect, 7, false),
                               reference::blur(image, rect, 7, false));
                COMPARE_IMAGES(GraphX::blur(image, rect, 7, true),
                               reference::blur(image, rect, 7, true));
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
