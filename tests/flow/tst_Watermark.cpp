#include "flow/nodes/MarkFontSize.h"
#include "flow/nodes/MarkScaling.h"
#include "flow/nodes/WMRNode.h"
#include "reference/WatermarkReference.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <limits>
#include <QFontMetrics>

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
    void fontSizeIsThatOfTheLiteralSearch()
    {
        const QString texts[] = {"Watermark",
                                 "i",
                                 QString::fromUtf8("© 2024 مثال"),
                                 QString::fromUtf8("📷👍🏽 e\u0301n\u0303"),
                                 " a  b ",
                                 "one\ntwo\tthree",
                                 QStringLiteral("All rights reserved. ").repeated(20)};
        for (const QString& text : texts) {
            for (const bool bold : {false, true}) {
                QFont font;
                font.setBold(bold);
                font.setItalic(bold);
                // The last ones take sizes at which not all are measured.
                for (const int target : {-50, 0, 1, 7, 20, 63, 130, 255, 256, 333, 601, 1150}) {
                    QCOMPARE(markFontSize(font, text, target),
                             reference::markFontSize(font, text, target));
                }
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

    void aPlaceOutsideTheGridIsTheFirst()
    {
        // A mark of 100 by 50 with two pixels more on each side.
        WMRParams params = redMark(WMRParams::kImageMode);
        for (const int position : {0, 9, -1}) {
            params.position = position;
            QCOMPARE(drawnBox(QSize(201, 101), params), QRect(0, 0, 102, 52));
        }
        // Both offsets are percents of the height, cut to whole pixels.
        params.xOffset = 10;
        params.yOffset = -16;
        QCOMPARE(drawnBox(QSize(201, 101), params), QRect(8, 14, 104, 54));
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
        for (const int mode : {WMRParams::kTextMode, WMRParams::kImageMode, 2, -1, kHighest}) {
            WMRParams params = redMark(mode);
            QVERIFY(WMRNode::drawWatermark(QImage(), params).isNull());
            params.image = QImage();
            for (const QString& text : {QString(), QString(QChar(0x200b))}) {
                params.text = text;
                params.expand = text.isEmpty();
                COMPARE_IMAGES(WMRNode::drawWatermark(photo, params), photo);
            }
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
                        COMPARE_IMAGES(MarkScaler(mark, size, part).rows(0, part.height()),
                                       whole.copy(part).convertToFormat(
                                           mark.hasAlphaChannel()
                                               ? QImage::Format_ARGB32_Premultiplied
                                               : QImage::Format_RGB32));
                    }
                }
            }
        }
        const QImage mark = noise(QSize(9, 9), 1);
        QVERIFY(!MarkScaler::canScale(mark, QSize(8, 900)));
        QVERIFY(!MarkScaler::canScale(mark, QSize(900, 8)));
        QVERIFY(!MarkScaler::canScale(mark.convertToFormat(QImage::Format_RGBA64), QSize(99, 99)));
    }

    void aMarkIsThatOfThePlainSteps()
    {
        const QString texts[] = {"Mark", QString::fromUtf8("© שלום"), "  a < b "};
        for (const auto format :
             {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
            QImage photo =
                noise(QSize(400, 90), 6, QImage::Format_ARGB32, true).convertToFormat(format);
            photo.setDotsPerMeterX(5000);
            photo.setText(QStringLiteral("Author"), QStringLiteral("A"));
            WMRParams params = redMark(WMRParams::kTextMode);
            params.transparency = 25;
            params.background = Qt::black;
            for (int position = 0; position < 9; ++position) {
                params.position = position;
                params.xOffset = 11 * (position - 4);
                params.yOffset = -params.xOffset / 2;
                params.text = texts[position % 3];
                params.bold = position % 2 == 0;
                params.italic = position % 3 == 0;
                params.underlined = position % 4 == 0;
                params.backgroundEnabled = position % 5 > 0;
                params.mode = WMRParams::kTextMode;
                COMPARE_IMAGES(WMRNode::drawWatermark(photo, params),
                               reference::watermark(photo, params));
                params.mode = WMRParams::kImageMode;
                // Wide, high beyond the photo, scaled down, and of its own size.
                for (const QSize& size :
                     {QSize(20, 5), QSize(6, 150), QSize(500, 900), QSize(204, 204)}) {
                    params.image = noise(size, 5);
                    params.expand = position == 8;
                    COMPARE_IMAGES(WMRNode::drawWatermark(photo, params),
                                   reference::watermark(photo, params));
                }
            }
        }
    }

    void oneVisiblePixelOfAMarkIsAsInTheWhole()
    {
        // The mark's box reaches beyond the photo all round, at the left, and at the right.
        const struct {
            int side;
            int offset;
        } cases[] = {{1, 0}, {20, -105}, {20, 105}};
        for (const auto format :
             {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
            for (const auto& each : cases) {
                const QImage photo = noise({each.side, each.side}, 3).convertToFormat(format);
                WMRParams params = redMark(WMRParams::kImageMode);
                params.size = 100;
                params.position = 0;
                params.xOffset = each.offset;
                params.yOffset = -each.offset;
                for (params.transparency = 0; params.transparency < 100; params.transparency += 7) {
                    params.image = noise({3, 3}, quint32(params.transparency));
                    COMPARE_IMAGES(WMRNode::drawWatermark(photo, params),
                                   reference::watermark(photo, params));
                }
            }
        }
    }

    void pixelsArePixelsAlsoInAPhotoForDenseScreens()
    {
        for (const int mode : {WMRParams::kTextMode, WMRParams::kImageMode}) {
            QImage photo = whitePhoto(QSize(80, 60));
            const QImage plain = WMRNode::drawWatermark(photo, redMark(mode));
            QVERIFY(redBox(plain).isValid());
            COMPARE_IMAGES(photo, whitePhoto(QSize(80, 60)));
            photo.setDevicePixelRatio(2);
            const QImage dense = WMRNode::drawWatermark(photo, redMark(mode));
            COMPARE_IMAGES(dense, plain);
            QCOMPARE(dense.devicePixelRatio(), 2.0);
        }
    }
};

TESSARIN_TEST(TestWatermark);
#include "tst_Watermark.moc"
