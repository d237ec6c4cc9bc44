#include "NodeTesting.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

/// The batch gives each photo away to the operation, which may then write over it.
class TestGivenPhotos : public QObject
{
    Q_OBJECT

private slots:
    void comeOutAsOthersDo_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<bool>("writtenOver");
        const auto row = [](const char* operation, const char* parameters, bool writtenOver) {
            QTest::newRow(operation)
                << QStringLiteral("<P>%1</P>").arg(QLatin1String(parameters)) << writtenOver;
        };
        row("Brightness, Contrast, Saturation",
            "<Brightness>9</Brightness><Saturation>70</Saturation>", true);
        row("RGB-Order", "<Mode>1</Mode>", true);
        row("Invert", "", true);
        row("Binarization", "", true);
        row("Grayscale", "", true);
        row("Histogram optimizer", "<Left>20</Left><Right>10</Right>", true);
        row("Vignetting", "<Radius>70</Radius><Opacity>60</Opacity><Color>#204060</Color>", true);
        row("Watermark", "<Text>mark</Text><Size>50</Size>", true);
        row("Resize", "<Mode>0</Mode><Width>37</Width><Height>61</Height>", false);
        row("Rotate", "<Angle>180</Angle>", false);
        row("Blur", "<Radius>4</Radius>", false);
    }

    void comeOutAsOthersDo()
    {
        QFETCH(QString, xml);
        QFETCH(bool, writtenOver);
        const char* const name = QTest::currentDataTag();
        const auto operation = findOperation(QLatin1String(name))->processFromXml;
        for (const QSize size : {QSize(37, 23), QSize(2400, 1777)}) {
            for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
                QImage given = noise(size, 7, format);
                given.setDotsPerMeterX(4000);
                const QImage held = given.copy();
                const uchar* const pixels = given.constBits();
                const QImage expected = batched(name, held, xml);
                const QImage result = operation(std::move(given), xml);
                COMPARE_IMAGES(result, expected);
                if (size.width() > 1000 && format == QImage::Format_ARGB32) {
                    QCOMPARE(result.constBits() == pixels, writtenOver);
                }
            }
        }
    }

    void leaveOthersCopiesAlone()
    {
        const QImage before = noise(QSize(900, 700), 7);
        for (const Operation& operation : operations()) {
            const QImage held = before.copy();
            operation.processFromXml(held, QStringLiteral("<P><Text>mark</Text></P>"));
            COMPARE_IMAGES(held, before);
        }
    }
};

TESSARIN_TEST(TestGivenPhotos);
#include "tst_GivenPhotos.moc"
