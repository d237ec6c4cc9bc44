#include "reference/RandomImages.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <MGraphX/OpaqueScaling.h>

class TestOpaqueScaling : public QObject
{
    Q_OBJECT

private slots:
    void givesTheToolkitsWords_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("box");
        QTest::newRow("half") << QSize(200, 120) << QSize(100, 100);
        QTest::newRow("odd") << QSize(731, 487) << QSize(360, 360);
        QTest::newRow("tall") << QSize(37, 900) << QSize(36, 36);
        QTest::newRow("much smaller") << QSize(900, 31) << QSize(7, 7);
        QTest::newRow("larger") << QSize(11, 7) << QSize(50, 50);
        QTest::newRow("the same") << QSize(60, 40) << QSize(60, 60);
        QTest::newRow("no box") << QSize(60, 40) << QSize(0, 10);
    }

    void givesTheToolkitsWords()
    {
        QFETCH(QSize, size);
        QFETCH(QSize, box);
        const QImage image =
            randomImage(size, QImage::Format_ARGB32, RandomAlpha::Opaque, quint32(size.width()));
        COMPARE_IMAGES(MGraphX::scaledOpaque(image, box),
                       image.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        QVERIFY(MGraphX::scaledOpaque(QImage(), box).isNull());
    }

    void opaqueMeansEveryPixel()
    {
        QImage image = randomImage(QSize(67, 5), QImage::Format_ARGB32, RandomAlpha::Opaque, 3);
        QVERIFY(MGraphX::isOpaque(image));
        image.setPixel(66, 4, 0xfe000000u);
        QVERIFY(!MGraphX::isOpaque(image));
    }
};

TESSARIN_TEST(TestOpaqueScaling);
#include "tst_OpaqueScaling.moc"
