#include "support/TestMain.h"

#include <QMWidgets/MovieLabel.h>
#include <QSignalSpy>
#include <QTemporaryDir>

using QMWidgets::MovieLabel;

namespace
{

/// Two frames of one pixel, 10 milliseconds each, over and over.
const char kMovie[] = "GIF89a\x01\x00\x01\x00\x80\x00\x00\x00\x00\x00\xff\xff\xff"
                      "!\xff\x0bNETSCAPE2.0\x03\x01\x00\x00\x00"
                      "!\xf9\x04\x00\x01\x00\x00\x00,\x00\x00\x00\x00\x01\x00\x01\x00\x00"
                      "\x02\x02\x44\x01\x00"
                      "!\xf9\x04\x00\x01\x00\x00\x00,\x00\x00\x00\x00\x01\x00\x01\x00\x00"
                      "\x02\x02\x4c\x01\x00;";

} // namespace

class tst_MovieLabel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_file = m_dir.filePath(QStringLiteral("movie.gif"));
        QFile file(m_file);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(kMovie, sizeof kMovie - 1);
    }

    void playsWhileShown()
    {
        for (const int duration : {-1, 0}) {
            MovieLabel label(m_file);
            label.setDuration(duration);
            QSignalSpy frames(label.movie(), &QMovie::frameChanged);
            QCOMPARE(label.movie()->state(), QMovie::NotRunning);
            label.show();
            QTRY_VERIFY(frames.count() > 6);
            QCOMPARE(label.movie()->state(), QMovie::Running);
            label.hide();
            QCOMPARE(label.movie()->state(), QMovie::NotRunning);
        }
    }

    void stopsAfterItsDuration()
    {
        MovieLabel label(m_file);
        label.setDuration(1);
        for (int i = 0; i < 2; ++i) {
            label.show();
            QCOMPARE(label.movie()->state(), QMovie::Running);
            QTRY_COMPARE(label.movie()->state(), QMovie::NotRunning);
            QVERIFY(label.isVisible());
            label.hide();
        }
    }

private:
    QTemporaryDir m_dir;
    QString m_file;
};

TESSARIN_TEST(tst_MovieLabel);
#include "tst_MovieLabel.moc"
