#include "flow/NodesOptionsPanel.h"
#include "intake/CommonData.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

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
        QImage shown;
        connect(&panel, &NodesOptionsPanel::imageChanged, &panel,
                [&shown](const QImage& image) { shown = image; });
        for (const auto& row : rows) {
            for (const bool opaque : {true, false}) {
                const QImage photo = noise(row.photo, 1, QImage::Format_ARGB32, opaque);
                panel.setImage(photo);
                QCOMPARE(shown.size(), row.preview);
                QCOMPARE(shown.pixelColor(0, 0).alpha() == 255, opaque);

                CommonData::instance()->setPreviewMode(false);
                panel.slotParametersChanged();
                CommonData::instance()->setPreviewMode(true);
                COMPARE_IMAGES(shown, photo);
            }
        }
        panel.setImage(QImage());
        QVERIFY(shown.isNull());
    }
};

TESSARIN_TEST(TestNodesOptionsPanel);
#include "tst_NodesOptionsPanel.moc"
