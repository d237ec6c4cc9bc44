#include "flow/BaseNode.h"
#include "flow/NodesOptionsPanel.h"
#include "intake/CommonData.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <MGraphX/GraphX.h>
#include <QSignalSpy>
#include <QStackedWidget>

namespace
{

QImage lastImage(const QSignalSpy& changed)
{
    return changed.last().first().value<QImage>();
}

} // namespace

class TestNodesOptionsPanel : public QObject
{
    Q_OBJECT

private slots:
    void reducesByWidthAlone()
    {
        const struct {
            QSize photo;
            QSize preview;
        } rows[] = {{{360, 500}, {360, 500}},
                    {{361, 361}, {360, 360}},
                    {{300, 4000}, {300, 4000}},
                    {{1440, 720}, {360, 180}},
                    {{1, 20000}, {1, 20000}}};
        NodesOptionsPanel panel(nullptr);
        QSignalSpy changed(&panel, &NodesOptionsPanel::imageChanged);
        for (const auto& row : rows) {
            for (const bool opaque : {true, false}) {
                const QImage photo = noise(row.photo, 1, QImage::Format_ARGB32, opaque);
                panel.setImage(photo);
                QCOMPARE(lastImage(changed).size(), row.preview);
                QCOMPARE(lastImage(changed).pixelColor(0, 0).alpha() == 255, opaque);

                CommonData::instance()->setPreviewMode(false);
                panel.slotParametersChanged();
                CommonData::instance()->setPreviewMode(true);
                COMPARE_IMAGES(lastImage(changed), photo);
            }
        }
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

    void whatIsNoNodeIsLeftOut()
    {
        NodesOptionsPanel panel(nullptr);
        QVERIFY(!panel.createNode(QStringLiteral("Sharpen")));
        BaseNode* const gray = panel.createNode(QStringLiteral("Grayscale"));
        QSignalSpy changed(&panel, &NodesOptionsPanel::imageChanged);
        const QImage source = noise(QSize(30, 20), 3);
        panel.setImage(source);
        panel.slotFlowChanged({{0, nullptr}, {1, gray}});
        COMPARE_IMAGES(lastImage(changed), MGraphX::GraphX::grayscale(source));
        panel.slotShowOptions(nullptr);
        QCOMPARE(panel.findChild<QStackedWidget*>()->currentWidget(), gray);
    }
};

TESSARIN_TEST(TestNodesOptionsPanel);
#include "tst_NodesOptionsPanel.moc"
