#include "support/TestMain.h"

#include <algorithm>
#include <MGraphX/StretchTable.h>

using MGraphX::StretchRange;

class tst_Stretch : public QObject
{
    Q_OBJECT

private slots:
    void everyTableIsALine();
    void otherTablesAreNone();
    void ranges_data();
    void ranges();
};

void tst_Stretch::everyTableIsALine()
{
    uint32_t words[256];
    uint32_t stretched[256];
    for (uint32_t i = 0; i < 256; ++i) {
        words[i] = (i << 16) | ((255 - i) << 8) | (i ^ 0x55);
    }
    for (int low = 0; low <= 256; ++low) {
        for (int high = -1; high <= 255; ++high) {
            const auto table = MGraphX::stretchTable({low, high});
            const auto line = MGraphX::lineThrough(table, MGraphX::stretchStart({low, high}));
            QVERIFY2(line, qPrintable(QStringLiteral("from %1 to %2").arg(low).arg(high)));
            MGraphX::kernels::mapRow(words, stretched, 256, *line, 0);
            for (uint32_t i = 0; i < 256; ++i) {
                const uint32_t expected =
                    uint32_t(table[i] << 16) | uint32_t(table[255 - i] << 8) | table[i ^ 0x55];
                if (stretched[i] != expected) {
                    QFAIL(qPrintable(
                        QStringLiteral("value %1 from %2 to %3").arg(i).arg(low).arg(high)));
                }
            }
        }
    }
    // A few steps, 256.0 / 98 among them, are rounded down, and it shows in the truncated multiple.
    QCOMPARE(int(MGraphX::stretchTable({0, 98})[49]), 127);
    QCOMPARE(int(MGraphX::stretchTable({10, 138})[12]), 4);
}

void tst_Stretch::otherTablesAreNone()
{
    auto table = MGraphX::stretchTable({10, 200});
    QVERIFY(MGraphX::lineThrough(table, 10));
    QVERIFY(!MGraphX::lineThrough(table, 12));
    QVERIFY(!MGraphX::lineThrough(table, -1000000));
    ++table[100];
    QVERIFY(!MGraphX::lineThrough(table, 10));
}

void tst_Stretch::ranges_data()
{
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");
    // Ten pixels: one of value 3, eight of value 7, one of value 200.
    QTest::newRow("all") << 0 << 0 << 3 << 200;
    QTest::newRow("less than a pixel") << 19 << 19 << 3 << 200;
    QTest::newRow("a pixel of each end") << 20 << 20 << 7 << 7;
    QTest::newRow("right cuts the dark end") << 0 << 20 << 7 << 200;
    QTest::newRow("left cuts the bright end") << 20 << 0 << 3 << 7;
    QTest::newRow("crossed") << 180 << 180 << 200 << 3;
    QTest::newRow("everything") << 200 << 200 << 256 << -1;
    QTest::newRow("more than everything") << 5000 << 5000 << 256 << -1;
    QTest::newRow("below nothing") << -2 << -2 << 3 << 200;
    QTest::newRow("far below nothing") << -20 << -20 << 0 << 255;
}

void tst_Stretch::ranges()
{
    QFETCH(int, left);
    QFETCH(int, right);
    uint32_t bins[256] = {};
    bins[3] = 1;
    bins[7] = 8;
    bins[200] = 1;
    const StretchRange range = MGraphX::stretchRange(bins, 10, left, right);
    QTEST(range.low, "low");
    QTEST(range.high, "high");
}

TESSARIN_TEST(tst_Stretch);

#include "tst_Stretch.moc"
