#include "flow/ComboSlider.h"
#include "flow/Operations.h"
#include "FlowTesting.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QSignalSpy>

namespace
{

const QString kInvert = QStringLiteral("Invert");
const QString kGray = QStringLiteral("Grayscale");
const QString kBinary = QStringLiteral("Binarization");

void drag(QTabBar* bar, int from, int to)
{
    const QPoint start = bar->tabRect(from).center();
    const QPoint end = bar->tabRect(to).center() - QPoint(bar->tabRect(to).width() / 4, 0);
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, start);
    for (int step = 1; step <= 20; ++step) {
        const QPoint place = start + (end - start) * step / 20;
        QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(bar, &move);
    }
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, end);
}

} // namespace

class TestFlowPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qRegisterMetaType<BaseNode*>();
        qRegisterMetaType<QMap<int, BaseNode*>>("QMap<int,BaseNode*>");
    }

    void theAddMenuFollowsTheTable()
    {
        Flow flow;
        QStringList expected;
        for (const Operation& operation : operations()) {
            expected += operation.name;
            flow.add(operation.name);
        }
        QCOMPARE(flow.names(), expected);
        QCOMPARE(flow.bar->currentIndex(), expected.size() - 1);
        QCOMPARE(flow.bar->tabToolTip(0), expected.first());

        // Some desktops mark a letter of each entry.
        QAction* const entry =
            flow.panel.findChild<QMenu*>(QStringLiteral("FlowPanelMenu"))->actions().last();
        entry->setText(QLatin1Char('&') + entry->text());
        entry->trigger();
        QCOMPARE(flow.names(), expected << expected.last());
        flow.chooseFavorite(QStringLiteral("&Clear"));
        QCOMPARE(flow.names(), QStringList());

        QSignalSpy changed(&flow.panel, &FlowPanel::flowChanged);
        QVERIFY(!flow.panel.addNode(QStringLiteral("Sharpen")));
        QCOMPARE(flow.bar->count(), 0);
        QCOMPARE(changed.count(), 0);
    }

    void removingShowsTheNeighbour()
    {
        Flow flow;
        QPushButton* const button = flow.button("PushButtonRemove");
        QVERIFY(!button->isEnabled());
        flow.addAll({kInvert, kGray, kBinary, kInvert});
        const struct {
            int removed;
            QStringList names;
            int shown;
        } steps[] = {{3, {kInvert, kGray, kBinary}, 2},
                     {0, {kGray, kBinary}, 0},
                     {1, {kGray}, 0},
                     {0, {}, -1}};
        QSignalSpy removals(&flow.panel, &FlowPanel::nodeRemoved);
        for (const auto& step : steps) {
            flow.bar->setCurrentIndex(step.removed);
            button->click();
            QCOMPARE(flow.names(), step.names);
            QCOMPARE(flow.bar->currentIndex(), step.shown);
            QCOMPARE(removals.last().at(2).value<BaseNode*>(), flow.node(step.shown));
        }
        QVERIFY(!button->isEnabled());
        flow.panel.slotRemoveNode();
        QCOMPARE(removals.count(), 4);
    }

    void draggingATabReordersTheChain()
    {
        Flow flow;
        flow.addAll({kInvert, kBinary, kBinary});
        BaseNode* const last = flow.node(2);
        last->findChild<ComboSlider*>()->setValue(3);
        QSignalSpy shown(&flow.panel, &FlowPanel::showOptions);
        drag(flow.bar, 2, 0);
        QCOMPARE(flow.names(), QStringList({kBinary, kInvert, kBinary}));
        QCOMPARE(flow.node(0), last);
        QCOMPARE(last->findChild<ComboSlider*>()->value(), 3);
        QCOMPARE(shown.count(), 1);
        QCOMPARE(shown.last().first().value<BaseNode*>(), last);
    }

    void aClickOrAKeyShowsThePageOfItsTab()
    {
        Flow flow;
        flow.addAll({kInvert, kGray});
        QSignalSpy shown(&flow.panel, &FlowPanel::showOptions);
        QTest::mouseClick(flow.bar, Qt::LeftButton, Qt::NoModifier, flow.bar->tabRect(1).center());
        QCOMPARE(shown.last().first().value<BaseNode*>(), flow.node(1));
        QTest::keyClick(flow.bar, Qt::Key_Left);
        QCOMPARE(shown.last().first().value<BaseNode*>(), flow.node(0));
        QCOMPARE(shown.count(), 2);
    }

    void tabsShowThePictureAfterTheirNode()
    {
        Flow flow;
        const QImage source = noise(QSize(30, 20), 3, QImage::Format_ARGB32, true);
        flow.options.setImage(source);
        flow.addAll({kInvert, kBinary});
        QImage image = source;
        for (int i = 0; i < 2; ++i) {
            flow.node(i)->process(image);
            QCOMPARE(flow.thumbnail(i).toImage().convertToFormat(QImage::Format_RGB32),
                     image.convertToFormat(QImage::Format_RGB32));
        }
        flow.button("PushButtonRemove")->click();
        flow.add(kGray);
        QCOMPARE(flow.thumbnail(1).size(), source.size());
    }

    void buttonsAreReachedAndPressedByKeys()
    {
        Flow flow;
        QCOMPARE(flow.button("PushButtonAdd")->nextInFocusChain(), flow.button("PushButtonRemove"));
        QSignalSpy run(&flow.panel, &FlowPanel::runBatch);
        QTest::keyClick(flow.button("RunBatchButton"), Qt::Key_Space);
        QCOMPARE(run.count(), 1);
    }
};

TESSARIN_TEST(TestFlowPanel);
#include "tst_FlowPanel.moc"
