#include "flow/nodes/UCSNode.h"
#include "NodeTesting.h"
#include "reference/BlurReference.h"
#include "reference/VignetteReference.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <limits>
#include <QColorSpace>

class TestDetailNodes : public QObject
{
    Q_OBJECT

private slots:
    void theWholePhotoIsBlurredInAllItsChannels()
    {
        const QImage source = noise(QSize(40, 30), 7);
        for (const int radius : {0, 2, 10, 20}) {
            const QString text = QStringLiteral("<P><Radius>%1</Radius></P>").arg(radius);
            const auto node = makeNode("Blur");
            load(*node, text);
            const QImage expected = reference::blur(source, source.rect(), radius, false);
            COMPARE_IMAGES(processed(*node, source), expected);
            COMPARE_IMAGES(batched("Blur", source, text), expected);
        }
    }

    void theVignetteIsThePainters_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize size : {QSize(1, 1), QSize(2, 1), QSize(3, 7), QSize(40, 20),
                                 QSize(33, 57), QSize(128, 128), QSize(301, 75)}) {
            QTest::addRow("%d by %d", size.width(), size.height()) << size;
        }
    }

    void theVignetteIsThePainters()
    {
        QFETCH(QSize, size);
        for (const QImage::Format format :
             {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
            for (const bool opaque : {false, true}) {
                const QImage source =
                    noise(size, 7, QImage::Format_ARGB32, opaque).convertToFormat(format);
                for (const int radius : {-30, 0, 1, 50, 65, 100, 1000}) {
                    for (const int opacity : {-5, 0, 1, 35, 80, 100, 127}) {
                        const QColor color = QColor::fromHsv(opacity + 1, 200, 150);
                        COMPARE_IMAGES(UCSNode::vignette(source, radius, opacity, color),
                                       reference::vignette(source, radius, opacity, color));
                    }
                }
            }
        }
    }

    void theVignetteTintsFromTheCentreOutward()
    {
        QImage source(200, 100, QImage::Format_ARGB32);
        source.fill(Qt::white);
        const QImage half = UCSNode::vignette(source, 50, 50, Qt::red);
        // Stretched over the photo the circle of 50 percent touches all four sides.
        QCOMPARE(half.pixelColor(100, 50), QColor(Qt::white));
        QCOMPARE(half.pixelColor(100, 74), QColor(Qt::white));
        QCOMPARE(half.pixelColor(149, 50), QColor(Qt::white));
        QVERIFY(half.pixelColor(100, 95).green() < 200);
        QVERIFY(qAbs(half.pixelColor(0, 0).green() - 127) <= 1);
        QCOMPARE(half.pixelColor(0, 0).red(), 255);
        QCOMPARE(half.pixel(199, 99), half.pixel(0, 0));

        const QImage black = UCSNode::vignette(source, 50, 100, QColor());
        QCOMPARE(black.pixelColor(0, 0), QColor(Qt::black));
        COMPARE_IMAGES(UCSNode::vignette(source, 50, 100, QColor(0, 0, 0, 10)), black);
    }

    void theVignetteTakesAnyNumber()
    {
        const QImage source = noise(QSize(60, 40), 7);
        const QImage opaque = noise(QSize(60, 40), 7, QImage::Format_ARGB32, true);
        const int most = std::numeric_limits<int>::max();
        const int least = std::numeric_limits<int>::min();
        // The centre of an endless circle is all that is seen, and it is clear.
        COMPARE_IMAGES(UCSNode::vignette(opaque, most, 100, Qt::red), opaque);
        COMPARE_IMAGES(UCSNode::vignette(opaque, 50, 0, Qt::red), opaque);
        COMPARE_IMAGES(UCSNode::vignette(source, 50, least, Qt::red),
                       UCSNode::vignette(source, 50, 0, Qt::red));
        COMPARE_IMAGES(UCSNode::vignette(source, 50, most, Qt::red),
                       UCSNode::vignette(source, 50, 100, Qt::red));
        QCOMPARE(UCSNode::vignette(source, least, most, Qt::red).size(), source.size());
        QVERIFY(UCSNode::vignette(QImage(), 50, 50, Qt::red).isNull());
    }

    void theVignetteCoversAPhotoOfAnyPixelRatio()
    {
        QImage source = noise(QSize(60, 40), 7);
        source.setDotsPerMeterX(11811);
        source.setText(QStringLiteral("Author"), QStringLiteral("me"));
        source.setColorSpace(QColorSpace::AdobeRgb);
        QImage expected = reference::vignette(source, 40, 80, Qt::blue);
        source.setDevicePixelRatio(2.0);
        expected.setDevicePixelRatio(2.0);
        const QImage result = UCSNode::vignette(source, 40, 80, Qt::blue);
        COMPARE_IMAGES(result, expected);
        QCOMPARE(result.devicePixelRatio(), 2.0);
    }
};

TESSARIN_TEST(TestDetailNodes);
#include "tst_DetailNodes.moc"
