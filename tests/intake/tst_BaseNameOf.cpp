#include "intake/BaseNameOf.h"
#include "support/TestMain.h"

#include <QFileInfo>

class TestBaseNameOf : public QObject
{
    Q_OBJECT

private slots:
    void endsAtTheLastDot_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("name");
        QTest::newRow("one dot") << "/a/beach.jpeg"
                                 << "beach";
        QTest::newRow("two dots") << "/a/beach.2014.jpeg"
                                  << "beach.2014";
        QTest::newRow("no dot") << "/a.b/beach"
                                << "beach";
        QTest::newRow("leading dot only") << "/a/.jpeg"
                                          << "";
        QTest::newRow("spaces and other letters")
            << QString::fromUtf8("/a/Żółć 写真 1.png") << QString::fromUtf8("Żółć 写真 1");
    }

    void endsAtTheLastDot()
    {
        QFETCH(QString, file);
        QTEST(baseNameOf(QFileInfo(file)), "name");
    }
};

TESSARIN_TEST(TestBaseNameOf);
#include "tst_BaseNameOf.moc"
