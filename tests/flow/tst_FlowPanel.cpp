#include "flow/BaseNode.h"
#include "flow/ComboSlider.h"
#include "flow/Operations.h"
#include "FlowTesting.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QSignalSpy>

namespace
{

const QString kInvert = QStringLiteral("Invert");
const QString kGray = QStringLiteral("Grayscale");
const QString kBinary = QStringLiteral("Binarization");

} // namespace

class TestFlowPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<BaseNode*>(); }

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
    }

    void anUnknownOperationAddsNothing()
    {
        Flow flow;
        QSignalSpy changed(&flow.panel, &FlowPanel::flowChanged);
        QVERIFY(!flow.panel.addNode(QStringLiteral("Sharpen")));
        QCOMPARE(flow.bar->count(), 0);
        QCOMPARE(changed.count(), 0);
    }

    void removingShowsTheNeighbour()
    {
        Flow flow;
        QVERIFY(!flow.button("PushButtonRemove")->isEnabled());
        flow.add(kInvert);
        flow.add(kGray);
        flow.add(kBinary);
        BaseNode* shown = nullptr;
        int removals = 0;
        connect(&flow.panel, &FlowPanel::nodeRemoved, &flow.panel,
                [&](const QMap<int, BaseNode*>&, BaseNode*, BaseNode* next) {
                    shown = next;
                    ++removals;
                });
        flow.button("PushButtonRemove")->click();
        QCOMPARE(flow.names(), QStringList({kInvert, kGray}));
        QCOMPARE(flow.bar->currentIndex(), 1);
        QCOMPARE(shown, flow.options.flow().value(1));

        flow.add(kBinary);
        flow.bar->setCurrentIndex(0);
        flow.button("PushButtonRemove")->click();
        QCOMPARE(flow.names(), QStringList({kGray, kBinary}));
        QCOMPARE(flow.bar->currentIndex(), 0);

        flow.button("PushButtonRemove")->click();
        flow.button("PushButtonRemove")->click();
        QCOMPARE(flow.names(), QStringList());
        QVERIFY(!shown);
        QVERIFY(!flow.button("PushButtonRemove")->isEnabled());
        flow.panel.slotRemoveNode();
        QCOMPARE(removals, 4);
    }

    void clearRemovesEveryNode()
    {
        Flow flow;
        for (int i = 0; i < 30; ++i) {
            flow.add(kInvert);
        }
        QCOMPARE(flow.bar->count(), 30);
        flow.favorites()->actions().first()->trigger();
        QCOMPARE(flow.names(), QStringList());
    }

    void draggingATabReordersTheChain()
    {
        Flow flow;
        flow.add(kInvert);
        flow.add(kGray);
        flow.add(kBinary);
        QSignalSpy shown(&flow.panel, &FlowPanel::showOptions);
        const QPoint from = flow.bar->tabRect(2).center();
        const QPoint to =
            flow.bar->tabRect(0).center() - QPoint(flow.bar->tabRect(0).width() / 4, 0);
        QTest::mousePress(flow.bar, Qt::LeftButton, Qt::NoModifier, from);
        for (int step = 1; step <= 20; ++step) {
            const QPoint point = from + (to - from) * step / 20;
            QMouseEvent move(QEvent::MouseMove, point, Qt::NoButton, Qt::LeftButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(flow.bar, &move);
        }
        QTest::mouseRelease(flow.bar, Qt::LeftButton, Qt::NoModifier, to);
        QCOMPARE(flow.names(), QStringList({kBinary, kInvert, kGray}));
        QCOMPARE(shown.count(), 1);
        QCOMPARE(shown.last().first().value<BaseNode*>(), flow.options.flow().value(0));
    }

    void twoOfAKindKeepTheirParametersWhenMoved()
    {
        Flow flow;
        flow.add(kBinary);
        flow.add(kBinary);
        BaseNode* const second = flow.options.flow().value(1);
        second->findChild<ComboSlider*>()->setValue(3);
        flow.bar->moveTab(1, 0);
        QCOMPARE(flow.options.flow().value(0), second);
        QCOMPARE(second->findChild<ComboSlider*>()->value(), 3);
        QCOMPARE(flow.options.flow().value(1)->findChild<ComboSlider*>()->value(), 127);
    }

    void aClickOnTheCurrentTabShowsItsPage()
    {
        Flow flow;
        flow.add(kInvert);
        QSignalSpy shown(&flow.panel, &FlowPanel::showOptions);
        QTest::mouseClick(flow.bar, Qt::LeftButton, Qt::NoModifier, flow.bar->tabRect(0).center());
        QCOMPARE(shown.count(), 1);
    }

    void tabsShowThePictureAfterTheirNode()
    {
        Flow flow;
        const QImage source = noise(QSize(30, 20), 3, QImage::Format_ARGB32, true);
        flow.options.setImage(source);
        flow.add(kInvert);
        flow.add(kBinary);
        QImage image = source;
        for (int i = 0; i < 2; ++i) {
            flow.options.flow().value(i)->process(image);
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
