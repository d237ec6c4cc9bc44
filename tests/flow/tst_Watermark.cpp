#include "flow/nodes/MarkFontSize.h"
#include "flow/nodes/MarkScaling.h"
#include "flow/nodes/WMRNode.h"
#include "reference/WatermarkReference.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <array>
#include <limits>
#include <QFontDatabase>
#include <QFontMetrics>
#include <thread>
#include <vector>

using WMRParams = WMRNode::WMRParams;

namespace
{

constexpr int kHighest = std::numeric_limits<int>::max();
constexpr int kLowest = std::numeric_limits<int>::min();

QImage whitePhoto(const QSize& size)
{
    QImage photo(size, QImage::Format_ARGB32);
    photo.fill(Qt::white);
    return photo;
}

/// A mark that fills its box with plain red, text and all.
WMRParams redMark(int mode)
{
    WMRParams params;
    params.mode = mode;
    params.text = QStringLiteral("Mark");
    params.color = Qt::red;
    params.background = Qt::red;
    params.transparency = 0;
    params.image = QImage(20, 10, QImage::Format_ARGB32);
    params.image.fill(Qt::red);
    params.size = 50;
    return params;
}

/// The red pixels' rectangle; a null one if there are others than red and white ones, or if the red
/// ones are no rectangle.
QRect redBox(const QImage& image)
{
    QRect box;
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (pixel == qRgb(255, 0, 0)) {
                box |= QRect(x, y, 1, 1);
                ++count;
            } else if (pixel != qRgb(255, 255, 255)) {
                return QRect();
            }
        }
    }
    return count == box.width() * box.height() ? box : QRect();
}

QRect drawnBox(const QSize& photo, const WMRParams& params)
{
    return redBox(WMRNode::drawWatermark(whitePhoto(photo), params));
}

} // namespace

class TestWatermark : public QObject
{
    Q_OBJECT

private slots:
    void fontSizeIsThatOfTheLiteralSearch_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("latin") << "Watermark";
        QTest::newRow("narrow") << "i";
        QTest::newRow("kerned") << "AVAToWa.";
        QTest::newRow("right to left") << QString::fromUtf8("שלום עולם");
        QTest::newRow("mixed") << QString::fromUtf8("© 2024 مثال");
        QTest::newRow("emoji") << QString::fromUtf8("📷👍🏽");
        QTest::newRow("combining") << QString::fromUtf8("e\u0301n\u0303");
        QTest::newRow("spaces") << " a  b ";
        QTest::newRow("lines") << "one\ntwo\tthree";
        QTest::newRow("long") << QStringLiteral("All rights reserved. ").repeated(200);
    }

    void fontSizeIsThatOfTheLiteralSearch()
    {
        QFETCH(QString, text);
        QStringList families = QFontDatabase().families().mid(0, 2);
        families += {QFont().family(), QStringLiteral("no such font")};
        for (int i = 0; i < families.size(); ++i) {
            QFont font(families[i]);
            font.setBold(families[i].size() % 2 == 0);
            font.setItalic(families[i].size() % 3 == 0);
            font.setHintingPreference(QFont::HintingPreference(i));
            // The last ones take sizes at which not all are measured.
            for (const int target : {-50, 0, 1, 7, 20, 63, 130, 255, 256, 333, 601, 1150}) {
                QCOMPARE(markFontSize(font, text, target),
                         reference::markFontSize(font, text, target));
            }
        }
    }

    void aFontSizeThatCannotBeIsZero()
    {
        QCOMPARE(markFontSize(QFont(), QString(QChar(0x200b)), 0), 0);
        QCOMPARE(markFontSize(QFont(), QString(3, QChar(0x2060)), 100), 0);
        QCOMPARE(markFontSize(QFont(), QStringLiteral("Mark"), std::numeric_limits<qint64>::max()),
                 0);
    }

    void imageBoxes_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QRect>("box");
        // A mark of 100 by 50 in a photo of 201 by 101, with two pixels more on each side.
        QTest::newRow("TopLeft") << 0 << QRect(-2, -2, 104, 54);
        QTest::newRow("TopMiddle") << 1 << QRect(48, -2, 104, 54);
        QTest::newRow("TopRight") << 2 << QRect(99, -2, 104, 54);
        QTest::newRow("MiddleLeft") << 3 << QRect(-2, 23, 104, 54);
        QTest::newRow("Middle") << 4 << QRect(48, 23, 104, 54);
        QTest::newRow("MiddleRight") << 5 << QRect(99, 23, 104, 54);
        QTest::newRow("BottomLeft") << 6 << QRect(-2, 49, 104, 54);
        QTest::newRow("BottomMiddle") << 7 << QRect(48, 49, 104, 54);
        QTest::newRow("BottomRight") << 8 << QRect(99, 49, 104, 54);
        QTest::newRow("behind the last") << 9 << QRect(-2, -2, 104, 54);
        QTest::newRow("before the first") << -1 << QRect(-2, -2, 104, 54);
    }

    void imageBoxes()
    {
        QFETCH(int, position);
        QFETCH(QRect, box);
        const QSize size(201, 101);
        const QRect photo(QPoint(0, 0), size);
        WMRParams params = redMark(WMRParams::kImageMode);
        params.position = position;
        QCOMPARE(drawnBox(size, params), box & photo);
        // Both offsets are percents of the height, cut to whole pixels.
        params.xOffset = 10;
        params.yOffset = -16;
        QCOMPARE(drawnBox(size, params), box.translated(10, 16) & photo);
        params.xOffset = -33;
        params.yOffset = 33;
        QCOMPARE(drawnBox(size, params), box.translated(-33, -33) & photo);
    }

    void offsetsAreOfTheHeight()
    {
        for (const int mode : {WMRParams::kTextMode, WMRParams::kImageMode}) {
            WMRParams params = redMark(mode);
            params.size = 20;
            params.position = 4;
            const QRect before = drawnBox(QSize(1000, 100), params);
            QVERIFY(before.isValid());
            params.xOffset = 10;
            QCOMPARE(drawnBox(QSize(1000, 100), params), before.translated(10, 0));
        }
    }

    void heightIsReckonedInSinglePrecision()
    {
        WMRParams params = redMark(WMRParams::kImageMode);
        params.image = QImage(1, 5, QImage::Format_ARGB32);
        params.image.fill(Qt::red);
        params.size = 7;
        params.position = 4;
        // 1.4 by 7, but 1.4 is a little less in single precision: 1 by 6.
        QCOMPARE(drawnBox(QSize(20, 30), params).size(), QSize(5, 10));
        params.size = 0;
        QCOMPARE(drawnBox(QSize(20, 30), params).size(), QSize(4, 4));
    }

    void textBoxes_data() { fontSizeIsThatOfTheLiteralSearch_data(); }

    void textBoxes()
    {
        QFETCH(QString, text);
        const QSize size(600, 300);
        WMRParams params = redMark(WMRParams::kTextMode);
        params.text = text;
        params.expand = true;
        params.bold = true;
        params.underlined = true;
        QFont font = params.font;
        font.setBold(true);
        font.setPixelSize(reference::markFontSize(font, text, size.width() * params.size / 100));
        const QFontMetrics metrics(font);
        const QSize box(metrics.horizontalAdvance(text) + 4, metrics.height() + 4);
        QVERIFY(box.width() > 304);
        // The margin of the far ends hangs over the photo's edges.
        params.position = 8;
        const QRect photo(QPoint(0, 0), size);
        const QPoint corner(size.width() + 2 - box.width(), size.height() + 2 - box.height());
        QCOMPARE(drawnBox(size, params), QRect(corner, box) & photo);
        params.position = 0;
        params.yOffset = -10;
        QCOMPARE(drawnBox(size, params), QRect(QPoint(-2, 28), box) & photo);
        params.backgroundEnabled = false;
        const QImage letters = WMRNode::drawWatermark(whitePhoto(size), params);
        QVERIFY(letters != whitePhoto(size));
        params.background = Qt::blue;
        COMPARE_IMAGES(WMRNode::drawWatermark(whitePhoto(size), params), letters);
    }

    void anExpandedImageCoversThePhoto()
    {
        WMRParams params = redMark(WMRParams::kImageMode);
        params.image = QImage(2, 1, QImage::Format_ARGB32);
        params.image.setPixel(0, 0, qRgb(255, 0, 0));
        params.image.setPixel(1, 0, qRgb(0, 0, 255));
        params.expand = true;
        params.xOffset = 20;
        params.size = 5;
        const QImage result = WMRNode::drawWatermark(whitePhoto(QSize(60, 40)), params);
        for (const int y : {0, 39}) {
            QCOMPARE(result.pixel(0, y), qRgb(255, 0, 0));
            QCOMPARE(result.pixel(29, y), qRgb(255, 0, 0));
            QCOMPARE(result.pixel(30, y), qRgb(0, 0, 255));
            QCOMPARE(result.pixel(59, y), qRgb(0, 0, 255));
        }
    }

    void transparencyIsHeldWithinItsRange()
    {
        const QImage photo = noise(QSize(120, 80), 3, QImage::Format_ARGB32, true);
        for (const int mode : {WMRParams::kTextMode, WMRParams::kImageMode}) {
            WMRParams params = redMark(mode);
            const QImage opaque = WMRNode::drawWatermark(photo, params);
            for (const int transparency : {100, 101, 127, kHighest}) {
                params.transparency = transparency;
                COMPARE_IMAGES(WMRNode::drawWatermark(photo, params), photo);
            }
            params.transparency = kLowest;
            COMPARE_IMAGES(WMRNode::drawWatermark(photo, params), opaque);
            params.transparency = 60;
            const QRgb mixed =
                WMRNode::drawWatermark(whitePhoto(QSize(120, 80)), params).pixel(118, 78);
            QCOMPARE(qRed(mixed), 255);
            QVERIFY(qAbs(qGreen(mixed) - 153) <= 1);
        }
    }

    void nothingToDrawGivesThePhotoBack()
    {
        const QImage photo = noise(QSize(50, 40), 3);
        WMRParams params = redMark(WMRParams::kTextMode);
        QVERIFY(WMRNode::drawWatermark(QImage(), params).isNull());
        params.text.clear();
        COMPARE_IMAGES(WMRNode::drawWatermark(photo, params), photo);
        params.text = QString(QChar(0x200b));
        COMPARE_IMAGES(WMRNode::drawWatermark(photo, params), photo);

        params = redMark(WMRParams::kImageMode);
        QVERIFY(WMRNode::drawWatermark(QImage(), params).isNull());
        params.image = QImage();
        COMPARE_IMAGES(WMRNode::drawWatermark(photo, params), photo);
        params.expand = true;
        COMPARE_IMAGES(WMRNode::drawWatermark(photo, params), photo);
        for (const int mode : {2, -1, kHighest}) {
            COMPARE_IMAGES(WMRNode::drawWatermark(photo, redMark(mode)), photo);
        }
    }

    void numbersOutOfAllRangeDoNoHarm()
    {
        const QSize size(90, 60);
        const QImage photo = whitePhoto(size);
        const auto drawn = [&photo](int mode, int WMRParams::*field, int number) {
            WMRParams params = redMark(mode);
            params.*field = number;
            return WMRNode::drawWatermark(photo, params);
        };
        for (const int mode : {WMRParams::kTextMode, WMRParams::kImageMode}) {
            for (const int number : {kHighest, kLowest, kHighest / 2, 2000000}) {
                COMPARE_IMAGES(drawn(mode, &WMRParams::xOffset, number), photo);
                COMPARE_IMAGES(drawn(mode, &WMRParams::yOffset, number), photo);
            }
            COMPARE_IMAGES(drawn(mode, &WMRParams::size, kHighest), photo);
        }
        COMPARE_IMAGES(drawn(WMRParams::kTextMode, &WMRParams::size, 10000000), photo);
        QCOMPARE(redBox(drawn(WMRParams::kImageMode, &WMRParams::size, 10000000)),
                 QRect(QPoint(0, 0), size));
        COMPARE_IMAGES(drawn(WMRParams::kImageMode, &WMRParams::size, kLowest), photo);
        COMPARE_IMAGES(drawn(WMRParams::kTextMode, &WMRParams::size, kLowest),
                       drawn(WMRParams::kTextMode, &WMRParams::size, 0));
        // A mark larger than the photo is cut off by it.
        QCOMPARE(redBox(drawn(WMRParams::kImageMode, &WMRParams::size, 900)),
                 QRect(QPoint(0, 0), size));
        // Of a mark of 300 by 9000000 pixels, only what lies on the photo is made.
        WMRParams tall = redMark(WMRParams::kImageMode);
        tall.image = QImage(1, 30000, QImage::Format_ARGB32);
        tall.image.fill(Qt::red);
        tall.size = 100;
        const QImage wide = whitePhoto(QSize(300, 20));
        QCOMPARE(redBox(WMRNode::drawWatermark(wide, tall)), wide.rect());
        // One of 16 bits a channel is made whole, and this one can't be.
        tall.image = tall.image.convertToFormat(QImage::Format_RGBA64);
        COMPARE_IMAGES(WMRNode::drawWatermark(wide, tall), wide);
    }

    void aPartOfAScaledMarkIsAsInTheWhole()
    {
        const QSize marks[] = {{1, 1}, {1, 9}, {7, 1}, {5, 40}, {33, 21}};
        const QSize sizes[] = {{33, 40}, {34, 41}, {70, 900}, {611, 57}, {40, 3000}};
        for (const auto format :
             {QImage::Format_ARGB32, QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied,
              QImage::Format_Indexed8, QImage::Format_Mono, QImage::Format_RGB888}) {
            for (const QSize& markSize : marks) {
                const QImage mark =
                    noise(markSize, quint32(markSize.width())).convertToFormat(format);
                for (const QSize& size : sizes) {
                    const QImage whole =
                        mark.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
                    const QRect rect(QPoint(0, 0), size);
                    for (const QRect& part : {rect, rect.adjusted(13, 17, -11, -9)}) {
                        COMPARE_IMAGES(scaledPart(mark, size, part),
                                       whole.copy(part).convertToFormat(
                                           mark.hasAlphaChannel()
                                               ? QImage::Format_ARGB32_Premultiplied
                                               : QImage::Format_RGB32));
                    }
                }
            }
        }
        const QImage mark = noise(QSize(9, 9), 1);
        QVERIFY(!canScalePart(mark, QSize(8, 900)));
        QVERIFY(!canScalePart(mark, QSize(900, 8)));
        QVERIFY(!canScalePart(mark.convertToFormat(QImage::Format_RGBA64), QSize(99, 99)));
    }

    void aMarkIsThatOfThePlainSteps()
    {
        for (const auto format :
             {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
            const QImage photo =
                noise(QSize(400, 90), 6, QImage::Format_ARGB32, true).convertToFormat(format);
            WMRParams params = redMark(WMRParams::kTextMode);
            params.transparency = 25;
            params.background = Qt::black;
            for (int position = 0; position < 9; ++position) {
                params.position = position;
                params.xOffset = 11 * (position - 4);
                params.yOffset = -params.xOffset / 2;
                params.mode = WMRParams::kTextMode;
                COMPARE_IMAGES(WMRNode::drawWatermark(photo, params),
                               reference::watermark(photo, params));
                params.mode = WMRParams::kImageMode;
                // Wide, high beyond the photo, and scaled down.
                for (const QSize& size : {QSize(20, 5), QSize(6, 150), QSize(500, 900)}) {
                    params.image = noise(size, 5);
                    COMPARE_IMAGES(WMRNode::drawWatermark(photo, params),
                                   reference::watermark(photo, params));
                }
            }
        }
    }

    void keepsWhatThePhotoIs()
    {
        for (const int mode : {WMRParams::kTextMode, WMRParams::kImageMode}) {
            const WMRParams params = redMark(mode);
            for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32,
                                      QImage::Format_ARGB32_Premultiplied}) {
                QImage photo = whitePhoto(QSize(80, 60)).convertToFormat(format);
                photo.setDotsPerMeterX(5000);
                photo.setText(QStringLiteral("Author"), QStringLiteral("A"));
                const QImage before = photo.copy();
                const QImage plain = WMRNode::drawWatermark(photo, params);
                COMPARE_IMAGES(photo, before);
                QCOMPARE(plain.format(), format);
                QCOMPARE(plain.dotsPerMeterX(), 5000);
                QCOMPARE(plain.text(QStringLiteral("Author")), QStringLiteral("A"));
                QVERIFY(redBox(plain).isValid());

                // Pixels are pixels, also in a photo for dense screens.
                photo.setDevicePixelRatio(2);
                const QImage dense = WMRNode::drawWatermark(photo, params);
                COMPARE_IMAGES(dense, plain);
                QCOMPARE(dense.devicePixelRatio(), 2.0);
            }
        }
    }

    void allThreadsDrawTheSame()
    {
        const QImage photo = noise(QSize(200, 150), 8, QImage::Format_ARGB32, true);
        WMRParams text = redMark(WMRParams::kTextMode);
        text.background = Qt::black;
        text.transparency = 25;
        WMRParams image = redMark(WMRParams::kImageMode);
        image.image = noise(QSize(40, 30), 9);
        for (const WMRParams& params : {text, image}) {
            const QImage expected = WMRNode::drawWatermark(photo, params);
            std::array<QImage, 6> results;
            std::vector<std::thread> threads;
            for (QImage& result : results) {
                threads.emplace_back([&result, photo, params = params] {
                    result = WMRNode::drawWatermark(photo, params);
                });
            }
            for (std::thread& thread : threads) {
                thread.join();
            }
            for (const QImage& result : results) {
                COMPARE_IMAGES(result, expected);
            }
        }
    }
};

TESSARIN_TEST(TestWatermark);
#include "tst_Watermark.moc"
