#include "flow/ComboSlider.h"
#include "flow/nodes/RSZNode.h"
#include "NodeTesting.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <limits>
#include <QColorSpace>
#include <QComboBox>

namespace
{

QString told(BaseNode& node)
{
    return written(node).mid(1).join(QLatin1Char(' '));
}

} // namespace

class TestResizeNode : public QObject
{
    Q_OBJECT

private slots:
    void theOrderOfTheTextCounts()
    {
        const struct {
            const char* text;
            const char* expected;
        } rows[] = {
            {"<Mode>1</Mode><Width>1200</Width><Height>800</Height>",
             "Mode=1 Width=1200 Height=800"},
            {"<Width>70</Width><Mode>1</Mode>", "Mode=1 Width=300 Height=300"},
            {"<Width>70</Width><Mode>2</Mode><Height>70</Height>", "Mode=2 Width=300 Height=70"},
            {"<Width>70</Width><Mode>0</Mode>", "Mode=0 Width=70 Height=50"},
            {"<Width>2000</Width><Mode>0</Mode><Height>0</Height>", "Mode=0 Width=100 Height=1"},
            {"<Mode>2</Mode><Width>5001</Width><Height>7</Height>", "Mode=2 Width=5000 Height=8"},
            {"<Mode>3</Mode><Width>70</Width><Height>300</Height>", "Mode=-1 Width=70 Height=100"}};
        for (const auto& row : rows) {
            const auto node = makeNode("Resize");
            load(*node, QStringLiteral("<P>%1</P>").arg(QLatin1String(row.text)));
            QCOMPARE(told(*node), QString::fromLatin1(row.expected));
        }
    }

    void aChangeOfModeSetsBothSlidersAndTellsOnce()
    {
        const auto node = makeNode("Resize");
        const auto sliders = node->findChildren<ComboSlider*>();
        const char* const rows[] = {"Mode=0 Width=50 Height=50", "Mode=1 Width=300 Height=300",
                                    "Mode=2 Width=300 Height=300"};
        for (const int mode : {2, 1, 0}) {
            // A run on 5000 percent would take the memory of the machine, so none may see it.
            sliders[1]->setValue(5000);
            QStringList seen;
            const QMetaObject::Connection watching =
                connect(node.get(), &BaseNode::parametersChanged, [&] { seen += told(*node); });
            node->findChild<QComboBox*>()->setCurrentIndex(mode);
            disconnect(watching);
            QCOMPARE(seen, QStringList(rows[mode]));
        }
    }

    void modes()
    {
        constexpr int kMost = std::numeric_limits<int>::max();
        const QSize size(60, 40);
        const QSize null(0, 0);
        const struct {
            const char* name;
            int mode;
            QSize asked;
            QSize photo;
            QSize preview;
        } rows[] = {
            {"half the width", 0, {50, 100}, {30, 40}, {30, 40}},
            {"rounded down", 0, {29, 99}, {17, 39}, {17, 39}},
            {"percent of nothing", 0, {1, 100}, null, null},
            {"more percent", 0, {200, 100}, {120, 40}, {120, 40}},
            {"fit by width", 1, {30, 500}, {30, 20}, size},
            {"fit by height", 1, {500, 10}, {15, 10}, size},
            {"fit into more", 1, {90, 100}, {90, 60}, size},
            {"fit into a line", 1, {60, 1}, {1, 1}, size},
            {"pixels", 2, {10, 90}, {10, 90}, {10, 90}},
            {"pixels, the most of a preview", 2, {700, 700}, {700, 700}, {700, 700}},
            {"pixels, a wide preview", 2, {701, 100}, {701, 100}, {700, 99}},
            {"pixels, a high preview", 2, {100, 1400}, {100, 1400}, {50, 700}},
            {"pixels, the other side is longer", 2, {800, 1000}, {800, 1000}, {700, 875}},
            {"no such mode", 3, {10, 10}, size, size},
            {"negative mode", -1, {10, 10}, size, size},
            {"nothing", 2, {0, 10}, null, null},
            {"less than nothing", 0, {100, -100}, null, null},
            {"a box of nothing", 1, {-5, 100}, null, size},
            {"percent beyond counting", 0, {kMost, kMost}, null, null},
            {"pixels beyond memory", 2, {100000, 100000}, null, {700, 700}},
            {"a line beyond memory", 2, {1, kMost}, null, null},
            {"a box beyond memory", 1, {kMost, kMost}, null, size},
        };
        const QImage source = noise(size, 3);
        for (const auto& row : rows) {
            const auto scaled = [&](bool preview) {
                return RSZNode::scaleImage(source, row.asked.width(), row.asked.height(), row.mode,
                                           preview)
                    .size();
            };
            QVERIFY2(scaled(false) == row.photo, row.name);
            QVERIFY2(scaled(true) == row.preview, row.name);
        }
        // The longer sides of both count.
        const QImage line = noise(QSize(20000, 1), 3);
        QVERIFY(RSZNode::scaleImage(line, 1, 60000000, 2, false).isNull());
        QCOMPARE(RSZNode::scaleImage(line, 1, 5000, 2, false).size(), QSize(1, 5000));
        QCOMPARE(RSZNode::scaleImage(line, 5000, 5000, 2, false).size(), QSize(5000, 5000));
    }

    void pixelsAreTheToolkitsAndWhatThePhotoKnowsIsKept()
    {
        for (const QImage::Format format :
             {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
            QImage source = noise(QSize(60, 40), 3).convertToFormat(format);
            source.setDotsPerMeterX(11811);
            source.setText(QStringLiteral("Author"), QStringLiteral("me"));
            source.setColorSpace(QColorSpace::AdobeRgb);
            const QImage scaled = RSZNode::scaleImage(source, 33, 90, 2, false);
            COMPARE_IMAGES(scaled,
                           source.scaled(33, 90, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
            QCOMPARE(scaled.text(QStringLiteral("Author")), QStringLiteral("me"));
            COMPARE_IMAGES(RSZNode::scaleImage(source, 33, 400, 1, false),
                           source.scaled(33, 400, Qt::KeepAspectRatio, Qt::SmoothTransformation));
            COMPARE_IMAGES(RSZNode::scaleImage(source, 100, 100, 0, false), source);
        }
    }
};

TESSARIN_TEST(TestResizeNode);
#include "tst_ResizeNode.moc"
