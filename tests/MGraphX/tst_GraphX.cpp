#include "reference/RandomImages.h"
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

class TestGraphX : public QObject
{
    Q_OBJECT

private slots:
    void newImageCarriesWhatItsSourceKnows()
    {
        QImage source = randomImage({4, 4}, QImage::Format_ARGB32, RandomAlpha::Any, 1);
        source.setDevicePixelRatio(2);
        source.setOffset({3, -4});
        const QImage image = MGraphX::imageLike(source, {3, 9}, QImage::Format_RGB32);
        QCOMPARE(image.size(), QSize(3, 9));
        QCOMPARE(image.format(), QImage::Format_RGB32);
        QCOMPARE(image.colorSpace(), source.colorSpace());
        QCOMPARE(image.dotsPerMeterX(), 5000);
        QCOMPARE(image.dotsPerMeterY(), 6000);
        QCOMPARE(image.devicePixelRatio(), 2.0);
        QCOMPARE(image.offset(), QPoint(3, -4));
        QCOMPARE(image.text(QStringLiteral("Title")), QStringLiteral("Noise"));
        for (const QSize& size : {QSize(0, 5), QSize(-1, 5), QSize(), QSize(1 << 30, 9)}) {
            QVERIFY(MGraphX::imageLike(source, size, QImage::Format_ARGB32).isNull());
        }
    }

    void fitIntoCentres()
    {
        const struct {
            QSize photo;
            QSize box;
            QRect drawn;
        } rows[] = {{{400, 200}, {48, 48}, {0, 12, 48, 24}},
                    {{200, 400}, {48, 48}, {12, 0, 24, 48}},
                    {{60, 25}, {48, 48}, {0, 14, 48, 20}},
                    {{90, 60}, {30, 20}, {0, 0, 30, 20}},
                    {{1, 2}, {40, 40}, {10, 0, 20, 40}}};
        const QColor background(Qt::red);
        for (const auto& each : rows) {
            QImage source = plain(each.photo, 0xff00ff00u);
            source.setDevicePixelRatio(each.photo.width() == 60 ? 2 : 1);
            for (const auto format : {QImage::Format_ARGB32, QImage::Format_Indexed8,
                                      QImage::Format_ARGB32_Premultiplied, QImage::Format_RGBA64}) {
                const QImage fitted =
                    GraphX::fitInto(source.convertToFormat(format), each.box, background);
                QCOMPARE(fitted.size(), each.box);
                QCOMPARE(fitted.pixel(each.box.width() / 2, each.box.height() / 2), 0xff00ff00u);
                QCOMPARE(drawnBox(fitted, background.rgba()), each.drawn);
            }
        }
        QVERIFY(GraphX::fitInto(QImage(), {48, 48}, background).isNull());
        QVERIFY(GraphX::fitInto(plain({5, 5}, 0), {0, 48}, background).isNull());
    }

    void dataUrlRoundTrip()
    {
        const QImage logo = randomImage({7, 5}, QImage::Format_ARGB32, RandomAlpha::Opaque, 3);
        for (const char* format : {"PNG", "bmp"}) {
            const QString url = GraphX::imageToDataUrl(logo, QLatin1String(format), -1);
            const QString start = QStringLiteral("data:image/%1;base64,")
                                      .arg(QString(QLatin1String(format)).toLower());
            QVERIFY2(url.startsWith(start), qPrintable(url.left(60)));
            QCOMPARE(GraphX::imageFromDataUrl(url).convertToFormat(QImage::Format_ARGB32), logo);
            // Only the marks count, not what stands before them.
            QCOMPARE(GraphX::imageFromDataUrl(QLatin1Char('x') + url.mid(4)).size(), logo.size());
        }
    }

    void otherTextsGiveNoImage()
    {
        const QString url =
            GraphX::imageToDataUrl(plain({3, 3}, 0xff112233u), QStringLiteral("PNG"), 9);
        QImage huge(16400, 16400, QImage::Format_Mono);
        huge.fill(0);
        const QString texts[] = {
            QString(),
            QString(url).replace(QLatin1String(":image/"), QLatin1String(":i/")),
            QString(url).remove(QLatin1String(";base64,")),
            QStringLiteral(";base64,:image/png"),
            QStringLiteral("data:image/png;base64,"),
            QString(url).replace(QLatin1String("png"), QLatin1String("bmp")),
            QStringLiteral("data:image/png;base64,\u2603!?\u00e4~"),
            QStringLiteral("data:image/png;base64,AAAABBBBCCCC"),
            url.left(60),
            GraphX::imageToDataUrl(huge, QStringLiteral("PNG"), -1),
            GraphX::imageToDataUrl(QImage(), QStringLiteral("PNG"), -1),
        };
        for (const QString& text : texts) {
            QVERIFY2(GraphX::imageFromDataUrl(text).isNull(), qPrintable(text.left(60)));
        }
    }
};

TESSARIN_TEST(TestGraphX);
#include "tst_GraphX.moc"
