#include "flow/BaseNode.h"
#include "flow/ComboSlider.h"
#include "flow/NodesOptionsPanel.h"
#include "intake/CommonData.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <memory>
#include <MGraphX/GraphX.h>
#include <QPointer>
#include <QSignalSpy>
#include <QStackedWidget>
#include <utility>

using MGraphX::GraphX;

namespace
{
const QString kInvert = QStringLiteral("Invert");
const QString kGrayscale = QStringLiteral("Grayscale");
const QString kBinarization = QStringLiteral("Binarization");
} // namespace

class TestNodesOptionsPanel : public QObject
{
    Q_OBJECT

private:
    static QImage lastImage(const QSignalSpy& changed)
    {
        return changed.last().first().value<QImage>();
    }

    /// Lets a change arrive as an event while the flow is being run: it is posted when the first
    /// node has done its work.
    template <class Change> static void duringTheNextRun(BaseNode* firstNode, Change change)
    {
        auto done = std::make_shared<bool>(false);
        QObject::connect(firstNode, &BaseNode::previewChanged, firstNode, [done, change] {
            if (!std::exchange(*done, true)) {
                QMetaObject::invokeMethod(qApp, change, Qt::QueuedConnection);
            }
        });
    }

private slots:
    void reducesByWidthAlone_data()
    {
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<QSize>("preview");
        QTest::newRow("just wide enough") << QSize(360, 500) << QSize(360, 500);
        QTest::newRow("one more") << QSize(361, 361) << QSize(360, 360);
        QTest::newRow("narrow and tall") << QSize(300, 4000) << QSize(300, 4000);
        QTest::newRow("wide") << QSize(1440, 720) << QSize(360, 180);
        QTest::newRow("one column") << QSize(1, 20000) << QSize(1, 20000);
        QTest::newRow("one pixel") << QSize(1, 1) << QSize(1, 1);
    }

    void reducesByWidthAlone()
    {
        QFETCH(QSize, photo);
        QFETCH(QSize, preview);
        NodesOptionsPanel panel(nullptr);
        QSignalSpy changed(&panel, &NodesOptionsPanel::imageChanged);
        panel.setImage(noise(photo, 1));
        QCOMPARE(lastImage(changed).size(), preview);

        CommonData::instance()->setPreviewMode(false);
        panel.slotParametersChanged();
        CommonData::instance()->setPreviewMode(true);
        QCOMPARE(lastImage(changed).size(), photo);
    }

    void anyPhotoBecomesPlainWords()
    {
        NodesOptionsPanel panel(nullptr);
        QStringList signalsSeen;
        connect(&panel, &NodesOptionsPanel::imageChanged, [&] { signalsSeen += "changed"; });
        connect(&panel, &NodesOptionsPanel::realPreview, [&] { signalsSeen += "real"; });
        QSignalSpy changed(&panel, &NodesOptionsPanel::imageChanged);
        panel.setImage(noise(QSize(20, 10), 1).convertToFormat(QImage::Format_Grayscale8));
        QCOMPARE(lastImage(changed).format(), QImage::Format_ARGB32);
        QCOMPARE(signalsSeen, QStringList({"changed", "real"}));
        panel.setImage(QImage());
        QVERIFY(lastImage(changed).isNull());
    }

    void runsTheChainInOrder()
    {
        NodesOptionsPanel panel(nullptr);
        BaseNode* const gray = panel.createNode(kGrayscale);
        BaseNode* const binary = panel.createNode(kBinarization);
        QVERIFY(!panel.createNode(QStringLiteral("Sharpen")));
        QSignalSpy changed(&panel, &NodesOptionsPanel::imageChanged);
        QSignalSpy afterGray(gray, &BaseNode::previewChanged);
        const QImage source = noise(QSize(30, 20), 3);
        panel.setImage(source);
        panel.slotFlowChanged({{0, gray}, {1, binary}});
        const QImage grayed = GraphX::grayscale(source);
        COMPARE_IMAGES(afterGray.last().first().value<QImage>(), grayed);
        COMPARE_IMAGES(lastImage(changed), GraphX::binarize(grayed, 127));
        panel.slotFlowChanged({{0, binary}, {1, gray}});
        COMPARE_IMAGES(lastImage(changed), GraphX::grayscale(GraphX::binarize(source, 127)));
        panel.slotFlowChanged({{0, nullptr}, {1, gray}});
        COMPARE_IMAGES(lastImage(changed), grayed);
    }

    void showsThePageInHand()
    {
        NodesOptionsPanel panel(nullptr);
        auto* const stack = panel.findChild<QStackedWidget*>();
        QWidget* const initPage = stack->currentWidget();
        QPointer<BaseNode> first = panel.createNode(kInvert);
        QPointer<BaseNode> second = panel.createNode(kInvert);
        QCOMPARE(stack->currentWidget(), second.data());
        panel.slotShowOptions(first);
        panel.slotShowOptions(nullptr);
        QCOMPARE(stack->currentWidget(), first.data());
        panel.slotNodeRemoved({{0, second.data()}}, first, second);
        QCOMPARE(stack->currentWidget(), second.data());
        panel.slotNodeRemoved({}, second, nullptr);
        QCOMPARE(stack->currentWidget(), initPage);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!first && !second);
    }

    void aSliderStepOvertakesTheRun()
    {
        NodesOptionsPanel panel(nullptr);
        BaseNode* const invert = panel.createNode(kInvert);
        BaseNode* const binary = panel.createNode(kBinarization);
        const QImage source = noise(QSize(30, 20), 3);
        panel.setImage(source);
        panel.slotFlowChanged({{0, invert}, {1, binary}});
        auto* const slider = binary->findChild<ComboSlider*>();

        duringTheNextRun(invert, [slider] { slider->setValue(40); });
        QSignalSpy changed(&panel, &NodesOptionsPanel::imageChanged);
        QSignalSpy afterBinary(binary, &BaseNode::previewChanged);
        panel.slotParametersChanged();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(afterBinary.count(), 1);
        COMPARE_IMAGES(lastImage(changed), GraphX::binarize(GraphX::invert(source), 40));
    }

    void aRemovalOvertakesTheRun()
    {
        NodesOptionsPanel panel(nullptr);
        BaseNode* const invert = panel.createNode(kInvert);
        QPointer<BaseNode> binary = panel.createNode(kBinarization);
        BaseNode* const gray = panel.createNode(kGrayscale);
        const QImage source = noise(QSize(30, 20), 3);
        panel.setImage(source);
        panel.slotFlowChanged({{0, invert}, {1, binary.data()}, {2, gray}});

        duringTheNextRun(invert, [&panel, invert, binary, gray] {
            panel.slotNodeRemoved({{0, invert}, {1, gray}}, binary, gray);
        });
        QSignalSpy changed(&panel, &NodesOptionsPanel::imageChanged);
        panel.slotParametersChanged();
        QCOMPARE(changed.count(), 1);
        COMPARE_IMAGES(lastImage(changed), GraphX::grayscale(GraphX::invert(source)));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!binary);
    }

    void aMoveOvertakesTheRun()
    {
        NodesOptionsPanel panel(nullptr);
        BaseNode* const binary = panel.createNode(kBinarization);
        BaseNode* const gray = panel.createNode(kGrayscale);
        const QImage source = noise(QSize(30, 20), 3);
        panel.setImage(source);
        panel.slotFlowChanged({{0, binary}, {1, gray}});

        duringTheNextRun(binary, [&panel, binary, gray] {
            panel.slotFlowChanged({{0, gray}, {1, binary}});
        });
        QSignalSpy changed(&panel, &NodesOptionsPanel::imageChanged);
        panel.slotParametersChanged();
        QCOMPARE(changed.count(), 1);
        COMPARE_IMAGES(lastImage(changed), GraphX::binarize(GraphX::grayscale(source), 127));
    }
};

TESSARIN_TEST(TestNodesOptionsPanel);
#include "tst_NodesOptionsPanel.moc"
