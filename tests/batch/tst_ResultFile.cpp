#include "batch/ResultFile.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>

class TestResultFile : public QObject
{
    Q_OBJECT

private slots:
    void staysInTheFolder_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("inside");
        QTest::newRow("plain") << "a.png" << true;
        QTest::newRow("dots in the name") << "..a..png" << true;
        QTest::newRow("up") << "../a.png" << false;
        QTest::newRow("up in the middle") << "b/../../a.png" << false;
        QTest::newRow("down") << "b/a.png" << false;
        QTest::newRow("down and back") << "b/../a.png" << true;
        QTest::newRow("root") << "/../../../../../../../../a.png" << false;
    }

    void staysInTheFolder()
    {
        QFETCH(QString, name);
        const QString folder = QStringLiteral("/runs/2026-11-21_10-00-00/");
        QTEST(liesIn(folder, folder + name), "inside");
    }

    void writesWholeFilesOrNone()
    {
        Photos photos;
        const QImage image = noise(QSize(40, 30), 1);
        const QString file = photos.path(QStringLiteral("a.png"));
        QVERIFY(saveResult(image, file, "PNG", -1));
        COMPARE_IMAGES(QImage(file), image);
        QVERIFY(!saveResult(QImage(), file, "PNG", -1));
        QVERIFY2(QFile::exists(file), "a null image doesn't touch the file");
        QVERIFY(!saveResult(image, photos.path(QStringLiteral("b.what")), "WHAT", -1));
        QVERIFY(!QFile::exists(photos.path(QStringLiteral("b.what"))));
        QVERIFY(!saveResult(image, photos.path(QStringLiteral("no/c.png")), "PNG", -1));
        photos.addFolder(QStringLiteral("d.png"));
        QVERIFY(!saveResult(image, photos.path(QStringLiteral("d.png")), "PNG", -1));
    }

    void aFullDiskLeavesNoFile_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("fits the buffers") << QSize(2, 2);
        QTest::newRow("overflows them") << QSize(400, 300);
    }

    void aFullDiskLeavesNoFile()
    {
        const QString full = QStringLiteral("/dev/full");
        if (!QFile::exists(full)) {
            QSKIP("needs a device that is always full");
        }
        QFETCH(QSize, size);
        Photos photos;
        // The toolkit's writers of other formats lose a row's memory when they fail.
        const QString file = photos.path(QStringLiteral("a.jpeg"));
        QVERIFY(QFile::link(full, file));
        QVERIFY(!saveResult(noise(size, 1), file, "JPEG", -1));
        QVERIFY(!QFile::exists(file));
        QVERIFY(QFile::exists(full));
    }
};

TESSARIN_TEST(TestResultFile);
#include "tst_ResultFile.moc"
