#include "flow/ComboSlider.h"
#include "flow/nodes/RSZNode.h"
#include "intake/CommonData.h"
#include "NodeTesting.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QColorSpace>
#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>

class TestResizeNode : public QObject
{
    Q_OBJECT

private:
    static QStringList sizes(BaseNode& node) { return written(node).mid(1); }

    static QStringList parameters(int mode, int width, int height)
    {
        return {QStringLiteral("Mode=%1").arg(mode), QStringLiteral("Width=%1").arg(width),
                QStringLiteral("Height=%1").arg(height)};
    }

private slots:
    void cleanup() { CommonData::instance()->setPreviewMode(true); }

    void theOrderOfTheTextCounts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("mode first")
            << "<Mode>1</Mode><Width>1200</Width><Height>800</Height>" << parameters(1, 1200, 800);
        QTest::newRow("mode last") << "<Width>70</Width><Mode>1</Mode>" << parameters(1, 300, 300);
        QTest::newRow("mode between")
            << "<Width>70</Width><Mode>2</Mode><Height>70</Height>" << parameters(2, 300, 70);
        QTest::newRow("the same mode")
            << "<Width>70</Width><Mode>0</Mode>" << parameters(0, 70, 50);
        QTest::newRow("percent at most")
            << "<Width>2000</Width><Mode>0</Mode><Height>0</Height>" << parameters(0, 100, 1);
        QTest::newRow("pixels at most")
            << "<Mode>2</Mode><Width>5001</Width><Height>7</Height>" << parameters(2, 5000, 8);
        QTest::newRow("no such mode")
            << "<Mode>3</Mode><Width>70</Width><Height>300</Height>" << parameters(-1, 70, 100);
    }

    void theOrderOfTheTextCounts()
    {
        QFETCH(QString, text);
        const auto node = makeNode("Resize");
        load(*node, QStringLiteral("<P>%1</P>").arg(text));
        QTEST(sizes(*node), "expected");
    }

    void aChangeOfModeSetsBothSlidersAndTellsOnce()
    {
        const auto node = makeNode("Resize");
        auto* mode = node->findChild<QComboBox*>();
        const auto sliders = node->findChildren<ComboSlider*>();
        QSignalSpy changed(node.get(), &BaseNode::parametersChanged);
        const auto unitsShown = [&sliders](const char* unit) {
            bool shown = true;
            for (const ComboSlider* slider : sliders) {
                const QLabel* label = slider->findChildren<QLabel*>().last();
                shown = shown && label->text() == QLatin1String(unit) && !label->isHidden();
            }
            return shown;
        };
        QCOMPARE(mode->itemText(1), QStringLiteral("Maximum Pixels"));
        QVERIFY(unitsShown("%"));

        mode->setCurrentIndex(2);
        QCOMPARE(sizes(*node), parameters(2, 300, 300));
        QVERIFY(unitsShown("px"));
        QCOMPARE(changed.count(), 1);

        sliders[0]->setValue(5000);
        mode->setCurrentIndex(1);
        QCOMPARE(sizes(*node), parameters(1, 300, 300));
        QCOMPARE(changed.count(), 3);

        // A run on 5000 percent would take the memory of the machine, so none may see it.
        sliders[1]->setValue(5000);
        QStringList seen;
        connect(node.get(), &BaseNode::parametersChanged, [&] { seen += sizes(*node); });
        mode->setCurrentIndex(0);
        QCOMPARE(seen, parameters(0, 50, 50));
        QVERIFY(unitsShown("%"));

        static_cast<RSZNode*>(node.get())->slotComboItemChanged(7);
        QCOMPARE(sizes(*node), parameters(0, 50, 50));
        QCOMPARE(seen.size(), 6);
    }

    void modes_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QSize>("asked");
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<QSize>("preview");
        const auto row = [](const char* name, int mode, QSize asked, QSize photo, QSize preview) {
            QTest::newRow(name) << mode << asked << photo << preview;
        };
        const QSize source(60, 40);
        const QSize null(0, 0);
        row("half the width", 0, {50, 100}, {30, 40}, {30, 40});
        row("rounded down", 0, {29, 99}, {17, 39}, {17, 39});
        row("percent of nothing", 0, {1, 100}, null, null);
        row("more percent", 0, {200, 100}, {120, 40}, {120, 40});
        row("fit by width", 1, {30, 500}, {30, 20}, source);
        row("fit by height", 1, {500, 10}, {15, 10}, source);
        row("fit into more", 1, {90, 100}, {90, 60}, source);
        row("fit into a line", 1, {60, 1}, {1, 1}, source);
        row("pixels", 2, {10, 90}, {10, 90}, {10, 90});
        row("pixels, the most of a preview", 2, {700, 700}, {700, 700}, {700, 700});
        row("pixels, a wide preview", 2, {701, 100}, {701, 100}, {700, 99});
        row("pixels, a high preview", 2, {100, 1400}, {100, 1400}, {50, 700});
        row("pixels, the other side is longer", 2, {800, 1000}, {800, 1000}, {700, 875});
        row("no such mode", 3, {10, 10}, source, source);
        row("negative mode", -1, {10, 10}, source, source);
        row("nothing", 2, {0, 10}, null, null);
        row("less than nothing", 0, {100, -100}, null, null);
        row("a box of nothing", 1, {-5, 100}, null, source);
        const int most = std::numeric_limits<int>::max();
        row("percent beyond counting", 0, {most, most}, null, null);
        row("pixels beyond memory", 2, {100000, 100000}, null, {700, 700});
        row("a line beyond memory", 2, {1, most}, null, null);
        row("a box beyond memory", 1, {most, most}, null, source);
    }

    void modes()
    {
        QFETCH(int, mode);
        QFETCH(QSize, asked);
        const QImage source = noise(QSize(60, 40), 3);
        const auto size = [&](bool preview) {
            return RSZNode::scaleImage(source, asked.width(), asked.height(), mode, preview).size();
        };
        QTEST(size(false), "photo");
        QTEST(size(true), "preview");
    }

    void growthIsBoundedByTheLongerSides()
    {
        const QImage line = noise(QSize(20000, 1), 3);
        QVERIFY(RSZNode::scaleImage(line, 1, 60000000, 2, false).isNull());
        QCOMPARE(RSZNode::scaleImage(line, 1, 5000, 2, false).size(), QSize(1, 5000));
        QCOMPARE(RSZNode::scaleImage(line, 5000, 5000, 2, false).size(), QSize(5000, 5000));
    }

    void pixelsAreTheToolkits()
    {
        for (const QImage::Format format :
             {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
            const QImage source = noise(QSize(60, 40), 3).convertToFormat(format);
            COMPARE_IMAGES(RSZNode::scaleImage(source, 33, 400, 1, false),
                           source.scaled(33, 400, Qt::KeepAspectRatio, Qt::SmoothTransformation));
            COMPARE_IMAGES(RSZNode::scaleImage(source, 33, 90, 2, false),
                           source.scaled(33, 90, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
            COMPARE_IMAGES(RSZNode::scaleImage(source, 100, 100, 0, false), source);
        }
    }

    void whatThePhotoKnowsIsKept()
    {
        QImage source = noise(QSize(60, 40), 3);
        source.setDotsPerMeterX(11811);
        source.setText(QStringLiteral("Author"), QStringLiteral("me"));
        source.setColorSpace(QColorSpace::AdobeRgb);
        const QImage scaled = RSZNode::scaleImage(source, 50, 50, 0, false);
        QCOMPARE(scaled.dotsPerMeterX(), 11811);
        QCOMPARE(scaled.text(QStringLiteral("Author")), QStringLiteral("me"));
        QCOMPARE(scaled.colorSpace(), source.colorSpace());
    }

    void theScreenAloneKnowsPreviews()
    {
        const QImage source = noise(QSize(60, 40), 3);
        const auto node = makeNode("Resize");
        load(*node, QStringLiteral("<P><Mode>1</Mode><Width>30</Width></P>"));
        CommonData::instance()->setPreviewMode(true);
        COMPARE_IMAGES(processed(*node, source), source);
        QCOMPARE(batched("Resize", source, node->parametersText()).size(), QSize(30, 20));
        CommonData::instance()->setPreviewMode(false);
        QCOMPARE(processed(*node, source).size(), QSize(30, 20));
    }
};

TESSARIN_TEST(TestResizeNode);
#include "tst_ResizeNode.moc"
