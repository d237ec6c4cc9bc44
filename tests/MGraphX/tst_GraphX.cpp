#include "reference/RandomImages.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <MGraphX/GraphX.h>
#include <MGraphX/ImageLike.h>
#include <QColorSpace>

using MGraphX::GraphX;

namespace
{

QImage plain(const QSize& size, QRgb word)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(word);
    return image;
}

/// The rectangle of pixels that are not `background`.
QRect drawnBox(const QImage& image, QRgb background)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != background) {
                box |= QRect(x, y, 1, 1);
            }
        }
    }
    return box;
}

} // namespace

class tst_GraphX : public QObject
{
    Q_OBJECT

private slots:
    void newImageCarriesWhatItsSourceKnows();
    void fitIntoCentres_data();
    void fitIntoCentres();
    void fitIntoKinds();
    void dataUrlRoundTrip_data();
    void dataUrlRoundTrip();
    void otherTextsGiveNoImage_data();
    void otherTextsGiveNoImage();
};

void tst_GraphX::newImageCarriesWhatItsSourceKnows()
{
    QImage source = randomImage({4, 4}, QImage::Format_ARGB32, RandomAlpha::Any, 1);
    source.setDevicePixelRatio(2);
    source.setOffset({3, -4});
    source.setText(QStringLiteral("Author"), QStringLiteral("Nobody"));
    const QImage image = MGraphX::imageLike(source, {3, 9}, QImage::Format_RGB32);
    QCOMPARE(image.size(), QSize(3, 9));
    QCOMPARE(image.format(), QImage::Format_RGB32);
    QCOMPARE(image.colorSpace(), source.colorSpace());
    QCOMPARE(image.dotsPerMeterX(), 5000);
    QCOMPARE(image.dotsPerMeterY(), 6000);
    QCOMPARE(image.devicePixelRatio(), 2.0);
    QCOMPARE(image.offset(), QPoint(3, -4));
    QCOMPARE(image.text(QStringLiteral("Title")), QStringLiteral("Noise"));
    QCOMPARE(image.text(QStringLiteral("Author")), QStringLiteral("Nobody"));
    for (const QSize& size : {QSize(0, 5), QSize(5, 0), QSize(-1, 5), QSize(), QSize(1 << 30, 9)}) {
        QVERIFY(MGraphX::imageLike(source, size, QImage::Format_ARGB32).isNull());
    }
}

void tst_GraphX::fitIntoCentres_data()
{
    QTest::addColumn<QSize>("photo");
    QTest::addColumn<QSize>("box");
    QTest::addColumn<QRect>("drawn");
    QTest::newRow("landscape") << QSize(400, 200) << QSize(48, 48) << QRect(0, 12, 48, 24);
    QTest::newRow("portrait") << QSize(200, 400) << QSize(48, 48) << QRect(12, 0, 24, 48);
    QTest::newRow("odd rest") << QSize(60, 25) << QSize(48, 48) << QRect(0, 14, 48, 20);
    QTest::newRow("the box's proportions") << QSize(90, 60) << QSize(30, 20) << QRect(0, 0, 30, 20);
    QTest::newRow("scaled up") << QSize(1, 2) << QSize(40, 40) << QRect(10, 0, 20, 40);
}

void tst_GraphX::fitIntoCentres()
{
    QFETCH(QSize, photo);
    QFETCH(QSize, box);
    const QColor background(100, 100, 100, 0);
    for (const qreal ratio : {1.0, 2.0}) {
        QImage source = plain(photo, 0xff00ff00u);
        source.setDevicePixelRatio(ratio);
        const QImage fitted = GraphX::fitInto(source, box, background);
        QCOMPARE(fitted.size(), box);
        QCOMPARE(fitted.format(), source.format());
        QTEST(drawnBox(fitted, background.rgba()), "drawn");
    }
}

void tst_GraphX::fitIntoKinds()
{
    const QColor background(Qt::red);
    QVERIFY(GraphX::fitInto(QImage(), {48, 48}, background).isNull());
    QVERIFY(GraphX::fitInto(plain({5, 5}, 0), {0, 48}, background).isNull());
    const QImage green = plain({20, 10}, 0xff00ff00u);
    for (const auto format : {QImage::Format_Indexed8, QImage::Format_RGB888,
                              QImage::Format_ARGB32_Premultiplied, QImage::Format_RGBA64}) {
        const QImage fitted = GraphX::fitInto(green.convertToFormat(format), {10, 10}, background);
        QCOMPARE(fitted.pixel(5, 5), 0xff00ff00u);
        QCOMPARE(fitted.pixel(5, 1), 0xffff0000u);
    }
}

void tst_GraphX::dataUrlRoundTrip_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("start");
    QTest::newRow("upper case") << QStringLiteral("PNG")
                                << QStringLiteral("data:image/png;base64,iVBORw0KGgo");
    QTest::newRow("lower case") << QStringLiteral("bmp")
                                << QStringLiteral("data:image/bmp;base64,Qk");
}

void tst_GraphX::dataUrlRoundTrip()
{
    QFETCH(QString, format);
    QFETCH(QString, start);
    const QImage logo = randomImage({7, 5}, QImage::Format_ARGB32, RandomAlpha::Opaque, 3);
    const QString url = GraphX::imageToDataUrl(logo, format, -1);
    QVERIFY2(url.startsWith(start), qPrintable(url.left(60)));
    QCOMPARE(GraphX::imageFromDataUrl(url).convertToFormat(QImage::Format_ARGB32), logo);
    // Only the marks count, not what stands before them.
    QCOMPARE(GraphX::imageFromDataUrl(QStringLiteral("x") + url.mid(4)).size(), logo.size());
}

void tst_GraphX::otherTextsGiveNoImage_data()
{
    QTest::addColumn<QString>("text");
    const QString url =
        GraphX::imageToDataUrl(plain({3, 3}, 0xff112233u), QStringLiteral("PNG"), 9);
    QTest::newRow("empty") << QString();
    QTest::newRow("no type") << QString(url).replace(QLatin1String(":image/"),
                                                     QLatin1String(":i/"));
    QTest::newRow("no base64") << QString(url).remove(QLatin1String(";base64,"));
    QTest::newRow("base64 before type") << QStringLiteral(";base64,:image/png");
    QTest::newRow("nothing behind") << QStringLiteral("data:image/png;base64,");
    QTest::newRow("another format")
        << QString(url).replace(QLatin1String("png"), QLatin1String("bmp"));
    QTest::newRow("not Base64") << QStringLiteral("data:image/png;base64,\u2603!?\u00e4~");
    QTest::newRow("other bytes") << QStringLiteral("data:image/png;base64,AAAABBBBCCCC");
    QTest::newRow("cut off") << url.left(60);
    QImage huge(16400, 16400, QImage::Format_Mono);
    huge.fill(0);
    QTest::newRow("too large") << GraphX::imageToDataUrl(huge, QStringLiteral("PNG"), -1);
    QTest::newRow("null image") << GraphX::imageToDataUrl(QImage(), QStringLiteral("PNG"), -1);
}

void tst_GraphX::otherTextsGiveNoImage()
{
    QFETCH(QString, text);
    QVERIFY(GraphX::imageFromDataUrl(text).isNull());
}

TESSARIN_TEST(tst_GraphX);

#include "tst_GraphX.moc"
