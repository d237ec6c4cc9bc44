#include "intake/CommonData.h"
#include "intake/CreatorDropArea.h"
#include "support/DropEvents.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "support/WindowEvents.h"

#include <QPushButton>
#include <QSignalSpy>

class TestCreatorDropArea : public QObject
{
    Q_OBJECT

private:
    static QPushButton* button(const CreatorDropArea& area, const char* name)
    {
        return area.findChild<QPushButton*>(QLatin1String(name));
    }

    static QString shownTexts(const CreatorDropArea& area)
    {
        QString texts;
        for (const QLabel* label : area.findChildren<QLabel*>()) {
            texts += label->isVisible() ? label->text() : QString();
        }
        return texts;
    }

private slots:
    void takesAListOfUrlsAndNothingElse()
    {
        Photos photos;
        CreatorDropArea area(nullptr, nullptr);
        area.show();
        QSignalSpy dropped(&area, &CreatorDropArea::dropped);
        QMimeData text;
        text.setText(QStringLiteral("/x/a.png"));
        QVERIFY(!dropOn(&area, text));

        QMimeData empty;
        empty.setData(QStringLiteral("text/uri-list"), QByteArray());
        QVERIFY(dropOn(&area, empty));
        QCOMPARE(dropped.count(), 0);
        QVERIFY(button(area, "PushButton")->isVisible());
        QVERIFY(!area.text().isEmpty());

        const QList<QUrl> urls = {photos.add(QStringLiteral("b.png")),
                                  photos.add(QStringLiteral("a.png"))};
        QSignalSpy items(&area, &CreatorDropArea::updateItems);
        QVERIFY(dropUrls(&area, urls));
        QCOMPARE(dropped.count(), 1);
        QCOMPARE(items.at(0).at(0).value<QList<QUrl>>(), urls);
        QCOMPARE(area.currentFile(), urls.first().toLocalFile());
        QVERIFY(!button(area, "PushButton")->isVisible());
        QVERIFY(area.text().isEmpty());
        QCOMPARE(CommonData::instance()->count(), 2);
        QCOMPARE(CommonData::instance()->currentName(), QStringLiteral("b"));

        QVERIFY(dropUrls(&area, {urls.at(1)}));
        QCOMPARE(CommonData::instance()->count(), 1);
    }

    void stepsAndWraps()
    {
        Photos photos;
        CreatorDropArea area(nullptr, nullptr);
        const CommonData* const data = CommonData::instance();
        QSignalSpy index(&area, &CreatorDropArea::indexChanged);
        area.slotNext();
        area.slotPreviuos();
        area.slotGotoFirst();
        area.slotItemClicked(0);
        QVERIFY(index.isEmpty());

        area.setFiles({photos.add(QStringLiteral("a.png")), photos.add(QStringLiteral("b.png")),
                       photos.add(QStringLiteral("c.png"))});
        area.slotPreviuos();
        QCOMPARE(data->currentIndex(), 2);
        area.slotNext();
        QCOMPARE(data->currentIndex(), 0);
        area.slotNext();
        area.slotGotoFirst();
        QCOMPARE(index.count(), 4);
        QCOMPARE(index.last().first().toInt(), 0);
        for (const int row : {2, 3, -1}) {
            area.slotItemClicked(row);
            QCOMPARE(data->currentIndex(), 2);
        }
        QCOMPARE(data->currentName(), QStringLiteral("c"));
        QCOMPARE(index.count(), 4);
    }

    void arrowsAndCounterShowUnderTheMouseOnly()
    {
        Photos photos;
        CreatorDropArea area(nullptr, nullptr);
        area.show();
        area.setFiles({photos.add(QStringLiteral("a.png"))});
        sendEvent(&area, QEvent::Enter);
        QVERIFY(!button(area, "NextImageButton")->isVisible());

        area.setFiles({photos.add(QStringLiteral("a.png")), photos.add(QStringLiteral("b.png"))});
        sendEvent(&area, QEvent::Enter);
        QVERIFY(button(area, "NextImageButton")->isVisible());
        QVERIFY(button(area, "PreviousImageButton")->isVisible());
        button(area, "NextImageButton")->click();
        QCOMPARE(shownTexts(area), QStringLiteral("<CENTER><H1>2 of 2</H1></CENTER>"));
        sendEvent(&area, QEvent::Leave);
        QVERIFY(!button(area, "NextImageButton")->isVisible());
        QCOMPARE(shownTexts(area), QString());
    }

    void keepsWhatCannotBeRead()
    {
        Photos photos;
        CreatorDropArea area(nullptr, nullptr);
        const QList<QUrl> urls = {photos.addFolder(QStringLiteral("folder")),
                                  QUrl(QStringLiteral("http://photos.example/a.png")),
                                  photos.addFile(QStringLiteral("cut.png"), "\x89PNG\r\n"),
                                  photos.add(QStringLiteral("good.png"))};
        area.setFiles(urls);
        QCOMPARE(CommonData::instance()->count(), urls.size());
        for (const QUrl& url : urls) {
            QCOMPARE(area.currentFile(), url.toLocalFile());
            area.slotNext();
        }
    }
};

TESSARIN_TEST(TestCreatorDropArea);
#include "tst_CreatorDropArea.moc"
