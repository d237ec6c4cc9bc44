#include "flow/NodesOptionsPanel.h"
#include "intake/Creator.h"
#include "intake/CreatorDropArea.h"
#include "intake/IconWidget.h"
#include "intake/ListView.h"
#include "support/DropEvents.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>

/// The source panel with its options panel and three photos of different sizes.
class SourcePanel
{
public:
    SourcePanel()
        : creator(&options, nullptr),
          changed(&creator, &Creator::imageChanged)
    {
        creator.show();
        creator.setFiles({photos.add(QStringLiteral("a.png"), QSize(10, 10)),
                          photos.add(QStringLiteral("b.png"), QSize(20, 20)),
                          photos.add(QStringLiteral("c.png"), QSize(30, 30))});
        changed.clear();
    }

    ListView* view() { return creator.findChild<ListView*>(); }
    void showStrip() { creator.findChild<QPushButton*>(QStringLiteral("IconViewButton"))->click(); }
    int lastWidth() { return changed.last().first().value<QImage>().width(); }

    Photos photos;
    NodesOptionsPanel options{nullptr};
    Creator creator;
    QSignalSpy changed;
};

class TestCreator : public QObject
{
    Q_OBJECT

private slots:
    void newPhotosRunTheFlowOnce()
    {
        SourcePanel panel;
        QSignalSpy realPreview(&panel.creator, &Creator::realPreview);
        panel.creator.setFiles({panel.photos.add(QStringLiteral("d.png"), QSize(40, 40))});
        QCOMPARE(panel.changed.count(), 1);
        QCOMPARE(panel.lastWidth(), 40);
        QVERIFY(realPreview.count() > 0);
        QVERIFY2(!panel.view()->currentIndex().isValid(), "a new list selects no row");
    }

    void eachStepRunsTheFlowOnceWithTheSquareShown()
    {
        SourcePanel panel;
        panel.creator.slotNext();
        QCOMPARE(panel.changed.count(), 1);
        QCOMPARE(panel.lastWidth(), 20);
        auto* square = panel.creator.findChild<CreatorDropArea*>();
        square->findChild<QPushButton*>(QStringLiteral("NextImageButton"))->click();
        QCOMPARE(panel.changed.count(), 2);
        QCOMPARE(panel.lastWidth(), 30);
        QCOMPARE(panel.view()->currentIndex().row(), 2);
        panel.showStrip();
        QVERIFY(panel.view()->isVisible());
        QVERIFY(!square->isVisible());
        QCOMPARE(panel.changed.count(), 2);
        QCOMPARE(panel.view()->currentIndex().row(), 2);
    }

    void newPhotosMayComeInTheRunOfTheStrip()
    {
        SourcePanel panel;
        const QUrl photo = panel.photos.add(QStringLiteral("d.png"), QSize(40, 40));
        QList<QUrl> many;
        for (int i = 0; i < 100; ++i) {
            many += photo;
        }
        panel.creator.setFiles(many);
        panel.showStrip();
        panel.creator.slotPrevious();
        QTRY_VERIFY(panel.view()->verticalScrollBar()->value() > 0);
        QTimer::singleShot(0, &panel.creator, [&] { panel.creator.setFiles({photo}); });
        panel.creator.slotPrevious();
        QCOMPARE(panel.view()->model()->rowCount(), 1);
        QVERIFY(!panel.view()->currentIndex().isValid());
    }

    void eachStepRunsTheFlowOnceWithTheStripShown()
    {
        SourcePanel panel;
        panel.showStrip();
        panel.creator.slotNext();
        QCOMPARE(panel.changed.count(), 1);
        QCOMPARE(panel.lastWidth(), 20);
        panel.creator.slotPrevious();
        QCOMPARE(panel.changed.count(), 2);
        QCOMPARE(panel.lastWidth(), 10);
        QTest::keyClick(panel.view(), Qt::Key_Down);
        QCOMPARE(panel.changed.count(), 3);
        QCOMPARE(panel.lastWidth(), 20);
        // Deliberate: the way back to the first runs once for itself and once for the strip's row.
        panel.creator.slotGotoFirst();
        QCOMPARE(panel.changed.count(), 5);
        QCOMPARE(panel.lastWidth(), 10);
    }

    void onlyTheSquareTakesPhotos()
    {
        SourcePanel panel;
        const QList<QUrl> urls = {panel.photos.add(QStringLiteral("d.png"), QSize(40, 40))};
        QVERIFY(!dropUrls(&panel.creator, urls));
        QVERIFY(!dropUrls(panel.creator.findChild<IconWidget*>(), urls));
        QCOMPARE(panel.changed.count(), 0);
        QVERIFY(dropUrls(panel.creator.findChild<CreatorDropArea*>(), urls));
        QCOMPARE(panel.changed.count(), 1);
    }
};

TESSARIN_TEST(TestCreator);
#include "tst_Creator.moc"
