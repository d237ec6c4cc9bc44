#include "intake/CommonData.h"
#include "intake/CreatorDropArea.h"
#include "support/DropEvents.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QFile>
#include <QSignalSpy>

class TestCreatorDropArea : public QObject
{
    Q_OBJECT

private slots:
    void takesAListOfUrlsAndNothingElse()
    {
        Photos photos;
        CreatorDropArea area(nullptr, nullptr);
        QSignalSpy dropped(&area, &CreatorDropArea::dropped);
        QMimeData text;
        text.setText(QStringLiteral("/x/a.png"));
        QVERIFY(!dropOn(&area, text));

        QMimeData empty;
        empty.setData(QStringLiteral("text/uri-list"), QByteArray());
        QVERIFY(!dropOn(&area, empty));
        QCOMPARE(dropped.count(), 0);

        const QList<QUrl> urls = {photos.add(QStringLiteral("b.png")),
                                  photos.add(QStringLiteral("a.png"))};
        const auto* const veil = area.findChild<QFrame*>(QStringLiteral("DropVeil"));
        QVERIFY(veil->isHidden());
        QVERIFY(dragOnto(&area, empty));
        QVERIFY(!veil->isHidden());
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&area, &leave);
        QVERIFY2(veil->isHidden(), "the drag has left or ended");

        connect(&area, &CreatorDropArea::dropped, veil,
                [veil] { QVERIFY2(veil->isHidden(), "the flow runs"); });
        QCOMPARE(dropUrls(&area, urls), Qt::CopyAction);
        QCOMPARE(dropped.count(), 1);
        QCOMPARE(area.currentFile(), urls.first().toLocalFile());
        QCOMPARE(CommonData::instance()->count(), 2);
        QMimeData photo;
        photo.setUrls({urls.first()});
        QVERIFY2(dropOn(&area, photo, Qt::MoveAction) != Qt::MoveAction, "it would be deleted");
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
    }

    void aPhotoIsReadOnceForSquareAndFlow()
    {
        Photos photos;
        const QString name = QStringLiteral("a.png");
        CreatorDropArea area(nullptr, nullptr);
        area.show();
        area.setFiles({photos.add(name)});
        QVERIFY(QFile::remove(photos.path(name)));
        QVERIFY(!area.takePhoto().isNull());
        QVERIFY(area.takePhoto().isNull());

        const auto change = [&photos, &name](QRgb color) {
            QImage image(60, 40, QImage::Format_RGB32);
            image.fill(color);
            photos.add(name, image);
        };
        const auto shown = [&area] {
            return area.pixmap().toImage().pixel(0, 0);
        };
        const QRgb colors[] = {qRgb(1, 2, 3), qRgb(4, 5, 6), qRgb(7, 8, 9)};
        // Files of one size and of nearly one time.
        for (const QRgb color : {colors[0], colors[1]}) {
            change(color);
            area.slotNext();
            QCOMPARE(area.takePhoto().pixel(0, 0), color);
            QCOMPARE(shown(), color);
        }
        area.hide();
        change(colors[2]);
        area.slotNext();
        QVERIFY2(shown() == colors[1], "nobody sees it");
        area.show();
        QCOMPARE(shown(), colors[2]);
    }
};

TESSARIN_TEST(TestCreatorDropArea);
#include "tst_CreatorDropArea.moc"
