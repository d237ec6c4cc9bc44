#include "flow/Operations.h"
#include "FlowTesting.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QWheelEvent>

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
    void initTestCase()
    {
        qRegisterMetaType<BaseNode*>();
        qRegisterMetaType<QMap<int, BaseNode*>>("QMap<int,BaseNode*>");
    }

    void entriesAreKnownWhateverLetterTheDesktopMarks()
    {
        Flow flow;
        for (QAction* entry :
             flow.panel.findChild<QMenu*>(QStringLiteral("FlowPanelMenu"))->actions()) {
            const QString name = entry->text();
            entry->setText(QLatin1Char('&') + name);
            entry->trigger();
            QCOMPARE(flow.names().last(), name);
        }
        QCOMPARE(flow.names().size(), operations().size());
        QVERIFY(!flow.panel.addNode(QStringLiteral("Sharpen")));
        QCOMPARE(flow.names().size(), operations().size());
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

    void onlyTheLeftButtonDragsTabs()
    {
        Flow flow;
        flow.addAll({kInvert, kGray, kBinary});
        const QPoint from = flow.bar->tabRect(2).center();
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
            QTest::mouseClick(flow.bar, Qt::LeftButton, Qt::NoModifier, from);
            QTest::mousePress(flow.bar, button, Qt::NoModifier, from);
            for (int x = 10; x <= 100; x += 10) {
                QMouseEvent move(QEvent::MouseMove, from - QPoint(x, 0), Qt::NoButton, button,
                                 Qt::NoModifier);
                QCoreApplication::sendEvent(flow.bar, &move);
            }
            QTest::mouseRelease(flow.bar, button, Qt::NoModifier, from - QPoint(100, 0));
            QCOMPARE(flow.names(), QStringList({kInvert, kGray, kBinary}));
            QTest::keyClick(flow.bar, Qt::Key_Left);
            QCOMPARE(flow.bar->currentIndex(), 1);
            QWheelEvent wheel(from, flow.bar->mapToGlobal(from), QPoint(), QPoint(0, 120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(flow.bar, &wheel);
            QCOMPARE(flow.bar->currentIndex(), 0);
        }
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
};

TESSARIN_TEST(TestFlowPanel);
#include "tst_FlowPanel.moc"
