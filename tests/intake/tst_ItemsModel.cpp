#include "intake/ItemsModel.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QFile>

class TestItemsModel : public QObject
{
    Q_OBJECT

private:
    static QImage thumbnail(const ItemsModel& model, int row)
    {
        return model.data(model.index(row, 0), Qt::DecorationRole).value<QImage>();
    }

private slots:
    void readableFilesHaveAThumbnail()
    {
        const QImage photo = noise(QSize(80, 40), 1);
        const struct {
            const char* name;
            QImage image;
            bool hasThumbnail;
        } rows[] = {{"small", noise(QSize(10, 10), 1), true},
                    {"narrow", noise(QSize(40, 2000), 1), true},
                    {"palette", photo.convertToFormat(QImage::Format_Indexed8), true},
                    {"grey", photo.convertToFormat(QImage::Format_Grayscale8), true},
                    {"a pixel", noise(QSize(1, 1), 1), false},
                    {"a line", noise(QSize(1, 20000), 1), false}};
        Photos photos;
        ItemsModel model;
        for (const auto& each : rows) {
            model.setItems({photos.add(QStringLiteral("photo.png"), each.image)});
            const QImage shown = thumbnail(model, 0);
            QVERIFY2(shown.isNull() != each.hasThumbnail, each.name);
            if (each.hasThumbnail) {
                QCOMPARE(shown.size(), QSize(48, 48));
                QVERIFY2(qAlpha(shown.pixel(23, 23)) != 0, each.name);
            }
        }
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
};

TESSARIN_TEST(TestItemsModel);
#include "tst_ItemsModel.moc"
