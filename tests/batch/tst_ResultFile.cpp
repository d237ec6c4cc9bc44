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

    void writesWholeFilesOrNone_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("format");
        QTest::addColumn<bool>("written");
        QTest::newRow("new") << "b.png"
                             << "PNG" << true;
        QTest::newRow("another file's place") << "old.png"
                                              << "PNG" << true;
        QTest::newRow("the format is told by its name alone") << "b.part"
                                                              << "BMP" << true;
        QTest::newRow("as long as names can be") << QString(251, 'x') + ".png"
                                                 << "PNG" << true;
        QTest::newRow("longer") << QString(252, 'x') + ".png"
                                << "PNG" << false;
        QTest::newRow("no such writer") << "b.what"
                                        << "WHAT" << false;
        QTest::newRow("nor for a file that is there") << "old.png"
                                                      << "WHAT" << false;
        QTest::newRow("no such folder") << "no/b.png"
                                        << "PNG" << false;
        QTest::newRow("a folder's place") << "folder.png"
                                          << "PNG" << false;
    }

    void writesWholeFilesOrNone()
    {
        QFETCH(QString, name);
        QFETCH(QString, format);
        QFETCH(bool, written);
        Photos photos;
        photos.addFolder(QStringLiteral("folder.png"));
        photos.add(QStringLiteral("old.png"), QSize(9, 9), 1);
        const QImage old(photos.path(QStringLiteral("old.png")));
        const QImage image = noise(QSize(40, 30), 2, QImage::Format_RGB32);
        QVERIFY(!saveResult(QImage(), photos.path(name), "PNG", -1));
        QCOMPARE(saveResult(image, photos.path(name), format.toLatin1(), -1), written);
        QStringList files = {QStringLiteral("old.png")};
        if (written) {
            QCOMPARE(QImage(photos.path(name), qPrintable(format)).convertToFormat(image.format()),
                     image);
            files += name;
            files.removeDuplicates();
        } else {
            QCOMPARE(QImage(photos.path(QStringLiteral("old.png"))), old);
        }
        files.sort();
        QCOMPARE(QDir(photos.folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name), files);
    }

    void whatASuddenEndHasLeftIsWrittenOver()
    {
        Photos photos;
        const QString left =
            QStringLiteral("unfinished-%1.part").arg(QCoreApplication::applicationPid());
        photos.addFile(left, QByteArray(100000, 'x'));
        const QString file = photos.path(QStringLiteral("a.bmp"));
        QVERIFY(saveResult(noise(QSize(2, 2), 1), file, "BMP", -1));
        QVERIFY(QFile(file).size() < 1000);
        QVERIFY(!QFile::exists(photos.path(left)));
    }

    void theRightsAreThoseOfAnyNewFile()
    {
        Photos photos;
        photos.addFile(QStringLiteral("any"), QByteArray());
        const QString file = photos.path(QStringLiteral("a.png"));
        QVERIFY(saveResult(noise(QSize(2, 2), 1), file, "PNG", -1));
        QCOMPARE(QFile::permissions(file), QFile::permissions(photos.path(QStringLiteral("any"))));
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
        // The toolkit's writers of other formats lose a row's memory when they fail. The link is
        // written through: put in its place, the result would find room.
        const QString file = photos.path(QStringLiteral("a.jpeg"));
        QVERIFY(QFile::link(full, file));
        QVERIFY(!saveResult(noise(size, 1), file, "JPEG", -1));
        QVERIFY(!QFile::exists(file));
        QVERIFY(QFile::exists(full));
    }
};

TESSARIN_TEST(TestResultFile);
#include "tst_ResultFile.moc"
