#include "reference/RandomImages.h"
#include "reference/VignetteReference.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <limits>
#include <MGraphX/GradientRings.h>
#include <MGraphX/GradientRows.h>
#include <MGraphX/kernels/StraightOverKernel.h>
#include <MGraphX/StraightOver.h>
#include <MGraphX/Vignette.h>

namespace
{

bool painterHasAvx2()
{
#if defined(__GNUC__) && defined(__x86_64__)
    return __builtin_cpu_supports("avx2") != 0;
#else
    return false;
#endif
}

} // namespace

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

    void nothingIsPaintedBeyondThePaintersReach()
    {
        constexpr int kReach = 32767;
        const QColor color(10, 120, 200);
        // One is too long itself; in the others the last row or column is sampled from too far.
        for (const QSize& size : {QSize(33800, 6), QSize(34000, 100), QSize(100, 34000)}) {
            for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
                const QImage photo = randomImage(size, format, RandomAlpha::Opaque, 5);
                const QImage result = MGraphX::vignetteImage(photo, 80, 90, color);
                const auto isAsBefore = [&](const QRect& part) {
                    return part.isEmpty() || result.copy(part) == photo.copy(part);
                };
                const QRect whole = photo.rect();
                QVERIFY(isAsBefore(whole & whole.translated(kReach, 0)));
                QVERIFY(isAsBefore(whole & whole.translated(0, kReach)));
                QVERIFY(size.height() != 100 || isAsBefore(QRect(0, 99, size.width(), 1)));
                QVERIFY(size.width() != 100 || isAsBefore(QRect(99, 0, 1, size.height())));
                QVERIFY(!isAsBefore(QRect(0, 0, 5, 5)));
            }
        }
    }

    void theLastColumnsAreConvertedOneByOne()
    {
        // Shows in words of the least alpha, on photos that are clear.
        compare({807, 640}, 95, 3, RandomAlpha::Transparent, QColor(128, 180, 10));
    }

    void ringsAreAsPainted()
    {
        const MGraphX::VignetteLook look{777, 100, QColor(10, 120, 200)};
        constexpr int kSide = 2304;
        const std::vector<int> columns{0, 1, 5, 300, 301, 900, 1151, 1152, 2047, 2048, 2100, 2303};
        MGraphX::GradientRings rings(kSide, look.radius,
                                     gradientSteps(QImage::Format_ARGB32, look));
        rings.setColumns(columns);
        std::vector<uint32_t> row(columns.size() + MGraphX::GradientRings::kSlack);
        for (int y = 0; y < kSide; y += 31) {
            const QImage painted =
                gradientPart(kSide, QRect(0, y, kSide, 1), QImage::Format_ARGB32, look);
            QVERIFY(rings.fill(y, row.data()));
            for (size_t i = 0; i < columns.size(); ++i) {
                QCOMPARE(row[i],
                         reinterpret_cast<const uint32_t*>(painted.constBits())[columns[i]]);
            }
        }
    }

    void opaqueWordsGetWhatThePainterLaysOverThem()
    {
        constexpr int kBytes = 256;
        if (!painterHasAvx2()) {
            QTest::qSkip("the painter computes otherwise here", __FILE__, __LINE__);
            return;
        }
        QImage over(kBytes, kBytes, QImage::Format_ARGB32);
        QImage under(kBytes, kBytes, QImage::Format_ARGB32);
        for (int alpha = 0; alpha < kBytes; ++alpha) {
            for (int y = 0; y < kBytes; ++y) {
                for (int x = 0; x < kBytes; ++x) {
                    over.setPixel(x, y, qRgba(y, 255 - y, y, alpha));
                    under.setPixel(x, y, qRgb(x, x, 255 - x));
                }
            }
            QImage painted = under;
            MGraphX::paintOver(over, painted, 0);
            QImage laid(under.size(), under.format());
            for (int y = 0; y < kBytes; ++y) {
                const auto words = [y](QImage& image) {
                    return reinterpret_cast<uint32_t*>(image.scanLine(y));
                };
                MGraphX::kernels::straightOverRow(words(over), words(under), words(laid), kBytes);
            }
            COMPARE_IMAGES(laid, painted);
        }
    }

private:
    static void compare(const QSize& size, int radius, int opacity)
    {
        compare(size, radius, opacity, RandomAlpha::Opaque, QColor());
        compare(size, radius, opacity, RandomAlpha::Any, QColor(250, 128, 0, 7));
    }

    static void compare(const QSize& size, int radius, int opacity, RandomAlpha alpha,
                        const QColor& color)
    {
        for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
            const QImage image = randomImage(size, format, alpha, 5);
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
};

TESSARIN_TEST(TestVignette);
#include "tst_Vignette.moc"
