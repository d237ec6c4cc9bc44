#include "flow/FlowsFolder.h"
#include "Hands.h"
#include "intake/CommonData.h"
#include "intake/ItemsModel.h"
#include "Program.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <QDir>

class TestRandomHands : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QDir(flowsFolder()).removeRecursively();
        QMWidgets::App::app()->setSettingsValue(QStringLiteral("KeyFormat"), QStringLiteral("PNG"));
        CommonData::instance()->model()->setItems({});
        CommonData::instance()->setCount(0);
        CommonData::instance()->setCurrentIndex(0);
    }

    void theFlowStaysWholeWhateverIsDone_data()
    {
        QTest::addColumn<quint32>("seed");
        const quint32 other = qEnvironmentVariableIntValue("HANDS_SEED");
        for (quint32 seed = other ? other : 1; seed <= (other ? other : 5); ++seed) {
            QTest::addRow("%u", seed) << seed;
        }
    }

    void theFlowStaysWholeWhateverIsDone()
    {
        constexpr int kActions = 400;
        QFETCH(quint32, seed);
        qInfo("seed %u", seed); // for a crash

        Photos photos;
        const QList<QUrl> urls = {photos.add(QStringLiteral("a.png"), QSize(40, 30)),
                                  photos.add(QStringLiteral("wide.bmp"), QSize(500, 60)),
                                  photos.add(QStringLiteral("tall.png"), QSize(20, 300)),
                                  photos.add(QStringLiteral("dot.png"), QSize(1, 1)),
                                  photos.addFile(QStringLiteral("broken.png"), "no picture"),
                                  QUrl::fromLocalFile(photos.path(QStringLiteral("gone.png"))),
                                  QUrl(QStringLiteral("http://photos.example/remote.png"))};
        UrlCatcher desktop;
        Program program;
        program.page->slotFilesDropped(urls.mid(0, 3));
        program.dropWindow->hide();
        Hands hands(program, urls, seed, kActions);
        QCoreApplication::exec();
        QCOMPARE(hands.trouble(), QString());
        QVERIFY2(hands.nestedActions() > kActions / 10, "few actions met another one under way");
    }
};

TESSARIN_TEST(TestRandomHands);
#include "tst_RandomHands.moc"
