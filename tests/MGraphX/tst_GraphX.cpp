#include "reference/RandomImages.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <MGraphX/GraphX.h>
#include <MGraphX/ImageLike.h>

using MGraphX::GraphX;

namespace
{

QImage plain(const QSize& size, QRgb word)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(word);
    return image;
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
        QImage expected = source.copy().scaled(3, 9).convertToFormat(QImage::Format_RGB32);
        QImage image = MGraphX::imageLike(source, {3, 9}, QImage::Format_RGB32);
        image.fill(0);
        expected.fill(0);
        COMPARE_IMAGES(image, expected);
        QCOMPARE(image.devicePixelRatio(), 2.0);
        for (const QSize& size : {QSize(0, 5), QSize(-1, 5), QSize(), QSize(1 << 30, 9)}) {
            QVERIFY(MGraphX::imageLike(source, size, QImage::Format_ARGB32).isNull());
        }
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
