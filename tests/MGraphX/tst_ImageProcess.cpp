#include "reference/RandomImages.h"
#include "support/TestMain.h"

#include <MGraphX/ImageProcessT.h>

using Planar = MGraphX::ImageProcessT<unsigned char>;

/// Images split into byte planes. Their histogram and tables are also what defines the stretch.
class TestImageProcess : public QObject
{
    Q_OBJECT

private slots:
    void photoIsSplitIntoPlanes()
    {
        const QImage photo = randomImage({13, 7}, QImage::Format_ARGB32, RandomAlpha::Any, 5);
        Planar planar;
        planar.loadPlanes(photo);
        QCOMPARE(planar.byteSize(), 3u * 13u * 7u);
        for (int y = 0; y < 7; ++y) {
            for (int x = 0; x < 13; ++x) {
                QCOMPARE(planar.pixel(x, y), photo.pixel(x, y) & 0xffffffu);
                QCOMPARE(int(planar.plane(3)[y * 13 + x]), qAlpha(photo.pixel(x, y)));
            }
        }
        for (const QPoint& outside : {QPoint(-1, 0), QPoint(0, -1), QPoint(13, 0), QPoint(0, 7)}) {
            planar.setPixel(outside.x(), outside.y(), 0xffffffu);
            QCOMPARE(planar.pixel(outside.x(), outside.y()), 0u);
        }
        unsigned char table[256] = {};
        table[0x12] = 1;
        planar.setPixel(12, 6, 0xff123456u);
        planar.applyTable(table);
        QCOMPARE(planar.pixel(12, 6), 0x010000u);
        QCOMPARE(int(planar.plane(3)[6 * 13 + 12]), qAlpha(photo.pixel(12, 6)));
        planar.loadPlanes(QImage());
        QCOMPARE(planar.pixel(0, 0), 0u);
    }

    void smallerDepths()
    {
        unsigned char table[256] = {};
        table[0x34] = 0xcb;
        table[255] = 128;
        Planar bytes(2, 2, 8);
        bytes.setPixel(1, 1, 0x1234u);
        QCOMPARE(bytes.pixel(1, 1), 0x34u);
        QVERIFY(bytes.byteSize() == 4 && !bytes.plane(1));
        bytes.applyTable(table);
        QCOMPARE(bytes.pixel(1, 1), 0xcbu);

        Planar bits(16, 1, 1);
        bits.setPixel(3, 0, 7u);
        QCOMPARE(bits.byteSize(), 2u);
        QVERIFY(bits.pixel(3, 0) == 1 && bits.pixel(4, 0) == 0);
        // What a table leaves of a bit is on above the middle.
        table[0] = 127;
        bits.applyTable(table);
        QVERIFY(bits.plane(0)[3] == 255 && bits.plane(0)[4] == 0);
    }
};

TESSARIN_TEST(TestImageProcess);
#include "tst_ImageProcess.moc"
