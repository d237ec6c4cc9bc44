#include "intake/ItemsModel.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QFile>
#include <QSignalSpy>

class TestItemsModel : public QObject
{
    Q_OBJECT

private:
    static QImage thumbnail(const ItemsModel& model, int row)
    {
        return model.data(model.index(row, 0), Qt::DecorationRole).value<QImage>();
    }

private slots:
    void holdsWhatItWasGiven()
    {
        const QList<QUrl> urls = {QUrl::fromLocalFile(QStringLiteral("/x/a.b.png")),
                                  QUrl::fromLocalFile(QStringLiteral("/x/a.b.png")),
                                  QUrl(QStringLiteral("http://photos.example/c.png"))};
        ItemsModel model;
        model.setItems(urls);
        QCOMPARE(model.items(), urls);
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.data(model.index(0, 0), Qt::DisplayRole).toString(), QStringLiteral("a.b"));
        QCOMPARE(model.data(model.index(2, 0), Qt::DisplayRole).toString(), QString());
        QCOMPARE(model.data(model.index(0, 0), Qt::SizeHintRole).toSize(), QSize(48, 48));
        QVERIFY(!model.data(model.index(0, 0), Qt::ToolTipRole).isValid());
        QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
        QCOMPARE(model.itemName(7), QString());
        model.setItems({});
        QCOMPARE(model.rowCount(), 0);
    }

    void thumbnailOfAnyReadableFile_data()
    {
        QTest::addColumn<QImage>("picture");
        QTest::newRow("small") << noise(QSize(10, 10), 1);
        QTest::newRow("narrow") << noise(QSize(40, 2000), 1);
        QTest::newRow("palette")
            << noise(QSize(80, 40), 1).convertToFormat(QImage::Format_Indexed8);
        QTest::newRow("grey") << noise(QSize(80, 40), 1).convertToFormat(QImage::Format_Grayscale8);
    }

    void thumbnailOfAnyReadableFile()
    {
        QFETCH(QImage, picture);
        Photos photos;
        const QString file = photos.path(QStringLiteral("picture.png"));
        QVERIFY(picture.save(file));
        ItemsModel model;
        model.setItems({QUrl::fromLocalFile(file)});
        QCOMPARE(thumbnail(model, 0).size(), QSize(48, 48));
        QVERIFY(qAlpha(thumbnail(model, 0).pixel(23, 23)) != 0);
    }

    void aPictureOfAFewPixelsHasNone()
    {
        Photos photos;
        ItemsModel model;
        model.setItems({photos.add(QStringLiteral("dot.png"), QSize(1, 1)),
                        photos.add(QStringLiteral("line.png"), QSize(1, 20000))});
        QVERIFY(thumbnail(model, 0).isNull());
        QVERIFY(thumbnail(model, 1).isNull());
    }

    void thumbnailsAreKeptUntilTheNextList()
    {
        Photos photos;
        const QUrl good = photos.add(QStringLiteral("good.png"));
        const QUrl late = photos.addFile(QStringLiteral("late.png"), QByteArray());
        ItemsModel model;
        model.setItems({good, late});
        const QImage first = thumbnail(model, 0);
        QVERIFY(!first.isNull());
        QVERIFY(thumbnail(model, 1).isNull());

        QVERIFY(QFile::remove(good.toLocalFile()));
        QCOMPARE(thumbnail(model, 0), first);
        photos.add(QStringLiteral("late.png"));
        QVERIFY2(!thumbnail(model, 1).isNull(), "a file that gave none is tried again");

        model.setItems({good, late});
        QVERIFY(thumbnail(model, 0).isNull());
    }

    void setDataReplacesTheAddressOnly()
    {
        Photos photos;
        ItemsModel model;
        model.setItems({photos.add(QStringLiteral("a.png"))});
        const QImage before = thumbnail(model, 0);
        QSignalSpy changed(&model, &ItemsModel::dataChanged);
        QVERIFY(model.setData(model.index(0, 0), QStringLiteral("file:///x/b.png"), Qt::EditRole));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(model.itemName(0), QStringLiteral("b"));
        QCOMPARE(thumbnail(model, 0), before);
        QVERIFY(model.setData(model.index(0, 0), QVariant::fromValue(QSize()), Qt::EditRole));
        QCOMPARE(model.items().first(), QUrl());
        QVERIFY(!model.setData(QModelIndex(), QUrl(), Qt::EditRole));
    }
};

TESSARIN_TEST(TestItemsModel);
#include "tst_ItemsModel.moc"
