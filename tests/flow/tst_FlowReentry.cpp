#include "flow/ComboSlider.h"
#include "FlowTesting.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "support/WindowEvents.h"

#include <memory>
#include <MGraphX/GraphX.h>
#include <QEventLoop>
#include <QPointer>
#include <QSignalSpy>
#include <QSpinBox>
#include <utility>

using MGraphX::GraphX;

namespace
{

const QString kInvert = QStringLiteral("Invert");
const QString kGray = QStringLiteral("Grayscale");
const QString kBinary = QStringLiteral("Binarization");

QImage photo()
{
    return noise(QSize(40, 30), 1);
}

/// Calls act when the first node of the next run has done its work.
template <class Act> void inTheNextRun(Flow& flow, Act act)
{
    auto done = std::make_shared<bool>(false);
    QObject::connect(flow.node(0), &BaseNode::previewChanged, &flow, [done, act] {
        if (!std::exchange(*done, true)) {
            act();
        }
    });
}

/// A flow of one operation after the other, as a file tells it.
QString told(const QStringList& names)
{
    QString xml;
    for (int i = 0; i < names.size(); ++i) {
        xml += QStringLiteral("<Operation name='%1' index='%2'/>").arg(names.at(i)).arg(i);
    }
    return QStringLiteral("<F>") + xml + QStringLiteral("</F>");
}

} // namespace

/// What a user does while a run lets events through, as the window system delivers it.
class TestFlowReentry : public QObject
{
    Q_OBJECT

private slots:
    void aNodeMayGoInTheRunThatItsOwnControlStarted()
    {
        Flow flow;
        flow.options.setImage(photo());
        flow.addAll({kInvert, kGray, kBinary});
        QPointer<BaseNode> binary = flow.node(2);
        QPointer<QSpinBox> spinBox = binary->findChild<QSpinBox*>();
        spinBox->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&flow));
        bool aliveAfterTheRun = false;
        bool stillInTheFlow = false;
        inTheNextRun(flow, [&] {
            postClick(flow.button("PushButtonRemove"));
            stillInTheFlow = flow.names().size() == 3; // the click waits for the run's next pause
        });
        connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), &flow,
                [&] { aliveAfterTheRun = !binary.isNull(); });
        postKey(spinBox, Qt::Key_Up);
        // Deferred deletion knows how deep it is only below an event loop.
        QEventLoop loop;
        connect(binary, &QObject::destroyed, &loop, &QEventLoop::quit);
        loop.exec();
        QVERIFY(stillInTheFlow);
        QVERIFY(aliveAfterTheRun);
        QCOMPARE(flow.names(), QStringList({kInvert, kGray}));
    }

    void aDraggedTabMayBeLetGoOutsideInTheRunOfTheDrag()
    {
        for (const int removals : {0, 1, 5}) {
            Flow flow;
            flow.options.setImage(photo());
            flow.addAll({kInvert, kGray, kInvert, kGray, kBinary});
            QVERIFY(QTest::qWaitForWindowActive(&flow));
            const QPoint from = flow.bar->tabRect(4).center();
            bool letGo = false;
            postMouse(flow.bar, from, QEvent::MouseButtonPress);
            QCoreApplication::processEvents();
            inTheNextRun(flow, [&] {
                postMouse(flow.bar, QPoint(from.x() / 2, -30), QEvent::MouseButtonRelease);
                for (int i = 0; i < removals; ++i) {
                    postClick(flow.button("PushButtonRemove"));
                }
                letGo = true;
            });
            for (int i = 1; i <= 10 && !letGo; ++i) {
                postMouse(flow.bar, from - QPoint(i * from.x() / 10, 0), QEvent::MouseMove);
                QCoreApplication::processEvents();
            }
            QVERIFY(letGo);
            QTRY_COMPARE_WITH_TIMEOUT(flow.names().size(), 5 - removals, 60000);
        }
    }

    void aFlowLoadedInTheRunOfAnotherStays()
    {
        const struct {
            void (*meanwhile)(FlowPanel&);
            QStringList expected;
        } rows[] = {{[](FlowPanel& panel) {
                         panel.loadFlow(told({"Blur", "Crop"}));
                     },
                     {"Blur", "Crop"}},
                    {[](FlowPanel& panel) { panel.slotNewFavorite(); }, {}},
                    {[](FlowPanel& panel) { panel.slotAddWaterMarkNode(); }, {"Mirror"}},
                    {[](FlowPanel& panel) { panel.slotRemoveNode(); }, {"Mirror"}}};
        for (const auto& row : rows) {
            Flow flow;
            flow.options.setImage(photo());
            flow.addAll({kInvert, kGray, kInvert, kGray, kBinary});
            inTheNextRun(flow, [&] { row.meanwhile(flow.panel); });
            flow.panel.loadFlow(told({"Mirror"}));
            QCOMPARE(flow.names(), row.expected);
        }
    }

    void aChangeOvertakesTheRun()
    {
        const QImage source = photo();
        const QImage inverted = GraphX::invert(source);
        const struct {
            void (*change)(Flow&);
            QImage expected;
        } rows[] = {{[](Flow& flow) { flow.node(1)->findChild<ComboSlider*>()->setValue(40); },
                     GraphX::grayscale(GraphX::binarize(inverted, 40))},
                    {[](Flow& flow) {
                         flow.bar->setCurrentIndex(1);
                         flow.panel.slotRemoveNode();
                     },
                     GraphX::grayscale(inverted)},
                    {[](Flow& flow) { flow.bar->moveTab(2, 1); },
                     GraphX::binarize(GraphX::grayscale(inverted), 127)}};
        for (const auto& row : rows) {
            Flow flow;
            flow.options.setImage(source);
            flow.addAll({kInvert, kBinary, kGray});
            inTheNextRun(flow, [&] {
                // From within the run that comes next, as an event.
                QMetaObject::invokeMethod(
                    &flow, [&] { row.change(flow); }, Qt::QueuedConnection);
            });
            QSignalSpy changed(&flow.options, &NodesOptionsPanel::imageChanged);
            QSignalSpy afterLast(flow.node(2), &BaseNode::previewChanged);
            flow.options.slotParametersChanged();
            QCOMPARE(changed.count(), 1);
            QCOMPARE(afterLast.count(), 1);
            COMPARE_IMAGES(changed.last().first().value<QImage>(), row.expected);
        }
    }
};

TESSARIN_TEST(TestFlowReentry);
#include "tst_FlowReentry.moc"
