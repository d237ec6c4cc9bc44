#include "reference/RandomImages.h"
#include "support/TestMain.h"

#include <MGraphX/ImageProcessT.h>

using Planar = MGraphX::ImageProcessT<unsigned char>;

class tst_ImageProcess : public QObject
{
    Q_OBJECT

private slots:
    void photoIsSplitIntoPlanes();
    void histogramCountsOnePlane();
    void tableLeavesAlpha();
    void smallerDepths();
};

void tst_ImageProcess::photoIsSplitIntoPlanes()
{
    const QImage photo = randomImage({13, 7}, QImage::Format_ARGB32, RandomAlpha::Any, 5);
    Planar planar;
    planar.loadPlanes(photo);
    QCOMPARE(planar.depth(), 24);
    QCOMPARE(planar.byteSize(), 3u * 13u * 7u);
    for (int y = 0; y < 7; ++y) {
        for (int x = 0; x < 13; ++x) {
            QCOMPARE(planar.pixel(x, y), photo.pixel(x, y) & 0xffffffu);
            QCOMPARE(int(planar.plane(3)[y * 13 + x]), qAlpha(photo.pixel(x, y)));
        }
    }
    QCOMPARE(planar.pixel(-1, 0), 0u);
    QCOMPARE(planar.pixel(0, -1), 0u);
    QCOMPARE(planar.pixel(13, 0), 0u);
    QCOMPARE(planar.pixel(0, 7), 0u);
    planar.setPixel(13, 6, 0xffffffu);
    planar.setPixel(12, 6, 0xff123456u);
    QCOMPARE(planar.pixel(12, 6), 0x123456u);
    planar.loadPlanes(QImage());
    QCOMPARE(planar.width(), 0);
    QCOMPARE(planar.pixel(0, 0), 0u);
}

void tst_ImageProcess::histogramCountsOnePlane()
{
    QImage photo(3, 1, QImage::Format_ARGB32);
    photo.setPixel(0, 0, 0x11640200);
    photo.setPixel(1, 0, 0x11640200);
    photo.setPixel(2, 0, 0x22650203);
    Planar planar;
    unsigned int bins[256];
    std::fill_n(bins, 256, 77u);
    planar.histogram(bins);
    QCOMPARE(std::count(bins, bins + 256, 0u), std::ptrdiff_t(256));
    planar.loadPlanes(photo);
    planar.histogram(bins);
    QCOMPARE(bins[0x64], 2u);
    QCOMPARE(bins[0x65], 1u);
    QCOMPARE(std::count(bins, bins + 256, 0u), std::ptrdiff_t(254));
    planar.histogram(bins, planar.plane(3));
    QCOMPARE(bins[0x11], 2u);
    QCOMPARE(bins[0x22], 1u);
}

void tst_ImageProcess::tableLeavesAlpha()
{
    QImage photo(1, 1, QImage::Format_ARGB32);
    photo.setPixel(0, 0, 0x40102030);
    Planar planar;
    planar.loadPlanes(photo);
    unsigned char table[256] = {};
    table[0x10] = 1;
    table[0x20] = 2;
    table[0x30] = 3;
    table[0x40] = 4;
    planar.applyTable(table);
    QCOMPARE(planar.pixel(0, 0), 0x010203u);
    QCOMPARE(int(planar.plane(3)[0]), 0x40);
    planar.applyTable(nullptr);
    QCOMPARE(planar.pixel(0, 0), 0x010203u);
}

void tst_ImageProcess::smallerDepths()
{
    unsigned char table[256];
    std::generate_n(table, 256,
                    [next = 0]() mutable { return static_cast<unsigned char>(255 - next++); });
    Planar bytes(2, 2, 8);
    bytes.setPixel(1, 1, 0x1234u);
    QCOMPARE(bytes.pixel(1, 1), 0x34u);
    QCOMPARE(bytes.byteSize(), 4u);
    QVERIFY(!bytes.plane(1));
    bytes.applyTable(table);
    QCOMPARE(bytes.pixel(1, 1), 0xcbu);

    Planar bits(16, 1, 1);
    bits.setPixel(3, 0, 7u);
    QCOMPARE(bits.byteSize(), 2u);
    QCOMPARE(bits.pixel(3, 0), 1u);
    QCOMPARE(bits.pixel(4, 0), 0u);
    std::fill_n(table, 256, static_cast<unsigned char>(127));
    table[255] = 128;
    bits.applyTable(table);
    QCOMPARE(int(bits.plane(0)[3]), 255);
    QCOMPARE(int(bits.plane(0)[4]), 0);
}

TESSARIN_TEST(tst_ImageProcess);

#include "tst_ImageProcess.moc"
