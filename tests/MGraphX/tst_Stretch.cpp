#include "support/TestMain.h"

#include <MGraphX/StretchTable.h>

class TestStretch : public QObject
{
    Q_OBJECT

private slots:
    void everyTableIsALine()
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
        // A few steps, 256.0 / 98 among them, are rounded down: it shows in the truncated multiple.
        QCOMPARE(int(MGraphX::stretchTable({0, 98})[49]), 127);
        QCOMPARE(int(MGraphX::stretchTable({10, 138})[12]), 4);
    }

    void otherTablesAreNone()
    {
        auto table = MGraphX::stretchTable({10, 200});
        QVERIFY(MGraphX::lineThrough(table, 10));
        QVERIFY(!MGraphX::lineThrough(table, 12));
        QVERIFY(!MGraphX::lineThrough(table, -1000000));
        ++table[100];
        QVERIFY(!MGraphX::lineThrough(table, 10));
    }
};

TESSARIN_TEST(TestStretch);
#include "tst_Stretch.moc"
