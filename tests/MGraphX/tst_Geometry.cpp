#include "reference/GeometryReference.h"
#include "reference/RandomImages.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <limits>
#include <MGraphX/GraphX.h>
#include <numeric>

using MGraphX::GraphX;

namespace
{

QStringList warnings;

void keepWarning(QtMsgType, const QMessageLogContext&, const QString& text)
{
    warnings.append(text);
}

/// Keeps the toolkit's warnings for as long as it lives, in an empty list at first.
class WarningKeeper
{
public:
    WarningKeeper()
        : m_former(qInstallMessageHandler(keepWarning))
    {
        warnings.clear();
    }
    ~WarningKeeper() { qInstallMessageHandler(m_former); }
    Q_DISABLE_COPY(WarningKeeper)

private:
    QtMessageHandler m_former;
};

QImage image(const QSize& size, const QVector<QRgb>& words)
{
    QImage made(size, QImage::Format_ARGB32);
    for (int i = 0; i < words.size(); ++i) {
        made.setPixel(i % size.width(), i / size.width(), words.at(i));
    }
    return made;
}

} // namespace

/// Each filter against its plain loop, and the turns' lost edges in literal pixels.
class tst_Geometry : public QObject
{
    Q_OBJECT

private slots:
    void turnsEqualPlainLoops();
    void turnsInLiteralPixels();
    void turnsDoNotWarn();
    void cropEqualsPlainLoop();
    void cropInLiteralPixels();
    void mirrorEqualsTheToolkit();
    void frameEqualsPlainLoop();
    void frameMeasuresTheWidth();
    void extremesGiveNoImage();
};

void tst_Geometry::turnsEqualPlainLoops()
{
    auto images = randomImages();
    // An image that asks for its own stride, as one around foreign memory does.
    static uint bits[40 * 9];
    std::iota(std::begin(bits), std::end(bits), 0xfefdfcu);
    images.append(QImage(reinterpret_cast<uchar*>(bits), 33, 9, 160, QImage::Format_ARGB32));
    for (const QImage& photo : qAsConst(images)) {
        const WarningKeeper keeper;
        COMPARE_IMAGES(GraphX::rotate90(photo), reference::rotate90(photo));
        COMPARE_IMAGES(GraphX::rotate180(photo), reference::rotate180(photo));
        COMPARE_IMAGES(GraphX::rotate270(photo), reference::rotate270(photo));
    }
}

void tst_Geometry::turnsInLiteralPixels()
{
    const QRgb out = 12345; // what this toolkit answers outside an image
    const QImage photo = image({3, 2}, {1, 2, 3, 4, 5, 6});
    COMPARE_IMAGES(GraphX::rotate90(photo), image({2, 3}, {out, 4, out, 5, out, 6}));
    COMPARE_IMAGES(GraphX::rotate180(photo), image({3, 2}, {out, out, out, out, 6, 5}));
    COMPARE_IMAGES(GraphX::rotate270(photo), image({2, 3}, {out, out, 3, 6, 2, 5}));
    QVERIFY(GraphX::rotate180(GraphX::rotate180(photo)) != photo);
}

void tst_Geometry::turnsDoNotWarn()
{
    const WarningKeeper keeper;
    const QImage photo = image({3, 2}, {1, 2, 3, 4, 5, 6});
    GraphX::rotate90(photo);
    GraphX::rotate180(photo);
    GraphX::rotate270(photo);
    GraphX::crop(photo, -100, 0, 0, 0);
    QCOMPARE(warnings, QStringList());
    qWarning("still heard");
    QCOMPARE(warnings.size(), 1);
}

void tst_Geometry::cropEqualsPlainLoop()
{
    const int shares[][4] = {{0, 0, 0, 0},   {10, 20, 30, 40},     {33, 33, 1, 99},
                             {50, 50, 0, 0}, {0, 0, 60, 60},       {100, 0, 0, 0},
                             {0, 0, 0, 100}, {-30, -20, 10, -150}, {150, -120, -110, 130}};
    const auto images = randomImages();
    for (const QImage& photo : images) {
        for (const auto& share : shares) {
            const WarningKeeper keeper;
            COMPARE_IMAGES(GraphX::crop(photo, share[0], share[1], share[2], share[3]),
                           reference::crop(photo, share[0], share[1], share[2], share[3]));
        }
    }
}

void tst_Geometry::cropInLiteralPixels()
{
    const QImage photo = image({3, 3}, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    COMPARE_IMAGES(GraphX::crop(photo, 0, 0, 0, 0), photo);
    COMPARE_IMAGES(GraphX::crop(photo, 34, 0, 0, 67), image({2, 1}, {2, 3}));
    COMPARE_IMAGES(GraphX::crop(photo, 33, 66, 67, 0), image({2, 1}, {7, 8}));
    QVERIFY(GraphX::crop(photo, 50, 50, 0, 0).width() == 1); // 3 / 2 pixels go on each side
    QVERIFY(GraphX::crop(image({2, 2}, {1, 2, 3, 4}), 50, 50, 0, 0).isNull());
    QVERIFY(GraphX::crop(photo, 0, 0, 60, 80).isNull());
}

void tst_Geometry::mirrorEqualsTheToolkit()
{
    auto images = randomImages();
    images.append(images.last().convertToFormat(QImage::Format_Indexed8));
    for (QImage& photo : images) {
        photo.setDevicePixelRatio(2);
        photo.setOffset({1, 2});
        for (const bool horizontal : {false, true}) {
            for (const bool vertical : {false, true}) {
                const QImage mirrored = GraphX::mirror(photo, horizontal, vertical);
                const QImage expected = photo.mirrored(horizontal, vertical);
                COMPARE_IMAGES(mirrored, expected);
                QCOMPARE(mirrored.devicePixelRatio(), expected.devicePixelRatio());
                QCOMPARE(mirrored.offset(), expected.offset());
            }
        }
    }
}

void tst_Geometry::frameEqualsPlainLoop()
{
    const auto images = randomImages();
    for (const QImage& photo : images) {
        for (const int percent : {0, 1, 2, 20, 100, -10, -30, -49, -60}) {
            for (const QColor& color : {QColor(200, 100, 50, 77), QColor(Qt::black), QColor()}) {
                COMPARE_IMAGES(GraphX::frame(photo, percent, color),
                               reference::frame(photo, percent, color));
            }
        }
    }
}

void tst_Geometry::frameMeasuresTheWidth()
{
    const QImage photo(100, 10, QImage::Format_ARGB32_Premultiplied);
    const QImage framed = GraphX::frame(photo, 2, QColor(255, 0, 0, 128));
    QCOMPARE(framed.size(), QSize(104, 14));
    QCOMPARE(framed.format(), photo.format());
    QCOMPARE(framed.pixelColor(0, 13).alpha(), 128);
    QCOMPARE(GraphX::frame(photo.copy(0, 0, 99, 10), 1, Qt::red).size(), QSize(99, 10));
}

void tst_Geometry::extremesGiveNoImage()
{
    constexpr int kLeast = std::numeric_limits<int>::min();
    constexpr int kMost = std::numeric_limits<int>::max();
    const QImage photo = randomImage({1000, 500}, QImage::Format_ARGB32, RandomAlpha::Any, 1);
    for (const int extreme : {kLeast, kMost}) {
        QVERIFY(GraphX::crop(photo, extreme, 0, 0, 0).isNull());
        QVERIFY(GraphX::crop(photo, 0, extreme, 0, 0).isNull());
        QVERIFY(GraphX::crop(photo, 0, 0, extreme, 0).isNull());
        QVERIFY(GraphX::crop(photo, 0, 0, extreme, extreme).isNull());
        QVERIFY(GraphX::frame(photo, extreme, Qt::red).isNull());
    }
    for (const QImage& none :
         {GraphX::crop(QImage(), -5, 0, 0, 0), GraphX::rotate90(QImage()),
          GraphX::rotate180(QImage()), GraphX::rotate270(QImage()),
          GraphX::mirror(QImage(), true, false), GraphX::frame(QImage(), 5, Qt::red)}) {
        QVERIFY(none.isNull());
    }
}

TESSARIN_TEST(tst_Geometry);

#include "tst_Geometry.moc"
