#include "flow/ComboSlider.h"
#include "intake/CommonData.h"
#include "NodeTesting.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QMWidgets/ColorWidget.h>

#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QSignalSpy>

namespace
{

/// Moves every control of a node to another value; each round gives other ones.
void moveControls(BaseNode& node, int round)
{
    for (QComboBox* box : node.findChildren<QComboBox*>()) {
        box->setCurrentIndex(round % box->count());
    }
    for (ComboSlider* slider : node.findChildren<ComboSlider*>()) {
        slider->setValue(slider->value() + 17 * round - 40);
    }
    const auto buttons = node.findChildren<QPushButton*>();
    if (!buttons.isEmpty()) {
        buttons[round % buttons.size()]->click();
    }
    for (QMWidgets::ColorWidget* swatch : node.findChildren<QMWidgets::ColorWidget*>()) {
        swatch->setColor(QColor::fromHsv(50 * round, 255 - 30 * round, 200));
    }
}

/// A page that can't be moved by pressing all its buttons; it has tests of its own.
bool asksForAFile(const Operation& operation)
{
    return operation.name == QLatin1String("Watermark");
}

} // namespace

class TestNodes : public QObject
{
    Q_OBJECT

private slots:
    void readingIsTolerant()
    {
        const auto node = makeNode("Brightness, Contrast, Saturation");
        QSignalSpy clicked(node->findChild<QGroupBox*>(), &QGroupBox::clicked);
        load(*node,
             QStringLiteral("<Parameters><!-- hand-made --><Saturation>500</Saturation>loose text"
                            "<brightness>9</brightness><Contrast> 12</Contrast>"
                            "<Brightness>much</Brightness><Glow>3</Glow></Parameters>"));
        QCOMPARE(written(*node),
                 QStringList({QStringLiteral("Active=yes"), QStringLiteral("Brightness=0"),
                              QStringLiteral("Contrast=12"), QStringLiteral("Saturation=100")}));
        load(*node,
             QStringLiteral("<Parameters><Brightness>-200</Brightness><Contrast>0x10</Contrast>"
                            "</Parameters>"));
        QVERIFY(written(*node).contains(QStringLiteral("Brightness=-127")));
        QVERIFY(written(*node).contains(QStringLiteral("Contrast=12")));
        QCOMPARE(clicked.count(), 0);
    }

    void activeIsTheLoweredYes()
    {
        const auto node = makeNode("Grayscale");
        const auto loadActive = [&node](const char* text) {
            load(*node, QStringLiteral("<P><Active>%1</Active></P>").arg(QLatin1String(text)));
            return node->isActive();
        };
        QVERIFY(!loadActive("1"));
        QVERIFY(loadActive("YES"));
        QVERIFY(!loadActive("no"));
        load(*node, QStringLiteral("<P><active>yes</active></P>"));
        QVERIFY(!node->isActive());
    }

    void aModeOutsideTheBoxCountsAsTheFirst()
    {
        const auto node = makeNode("RGB-Order");
        load(*node, QStringLiteral("<P><Mode>7</Mode></P>"));
        QCOMPARE(node->findChild<QComboBox*>()->currentIndex(), -1);
        const QImage source = noise(QSize(9, 5), 1);
        const auto fresh = makeNode("RGB-Order");
        COMPARE_IMAGES(processed(*node, source), processed(*fresh, source));
    }

    void aNodeSwitchedOffPassesThePictureThrough()
    {
        const auto node = makeNode("Invert");
        const QImage source = noise(QSize(9, 5), 1);
        QSignalSpy changed(node.get(), &BaseNode::parametersChanged);
        QSignalSpy preview(node.get(), &BaseNode::previewChanged);
        QTest::keyClick(node->findChild<QGroupBox*>(), Qt::Key_Space);
        QCOMPARE(changed.count(), 1);
        QVERIFY(!node->isActive());
        COMPARE_IMAGES(processed(*node, source), source);
        COMPARE_IMAGES(preview.last().first().value<QImage>(),
                       QImage(QStringLiteral(":/DisabledNode.png")));

        QTest::keyClick(node->findChild<QGroupBox*>(), Qt::Key_Space);
        const QImage inverted = processed(*node, source);
        QVERIFY(inverted != source);
        COMPARE_IMAGES(preview.last().first().value<QImage>(), inverted);
    }

    void controlsTellTheirChanges()
    {
        for (const Operation& operation : operations()) {
            if (asksForAFile(operation)) {
                continue;
            }
            const auto node = makeNode(qPrintable(operation.name));
            QSignalSpy changed(node.get(), &BaseNode::parametersChanged);
            int expected = 0;
            for (ComboSlider* slider : node->findChildren<ComboSlider*>()) {
                slider->setValue(slider->value() > 0 ? slider->value() - 1 : 1);
                QCOMPARE(changed.count(), ++expected);
            }
            for (QComboBox* box : node->findChildren<QComboBox*>()) {
                box->setCurrentIndex(1);
                QVERIFY(changed.count() > expected);
                expected = changed.count();
            }
            for (QPushButton* button : node->findChildren<QPushButton*>()) {
                button->click();
                QCOMPARE(changed.count(), ++expected);
            }
            for (auto* swatch : node->findChildren<QMWidgets::ColorWidget*>()) {
                swatch->setColor(Qt::cyan);
                QCOMPARE(changed.count(), expected);
                swatch->slotColorChanged(Qt::red);
                QCOMPARE(changed.count(), ++expected);
            }
        }
    }

    void bothRoutesGiveTheSamePixels()
    {
        // The batch has no preview, where a size in pixels means another thing.
        CommonData::instance()->setPreviewMode(false);
        const QImage source = noise(QSize(37, 23), 5);
        for (const Operation& operation : operations()) {
            if (asksForAFile(operation)) {
                continue;
            }
            const auto node = makeNode(qPrintable(operation.name));
            for (int round = 0; round < 6; ++round) {
                const QString text = node->parametersText();
                const QImage live = processed(*node, source);
                const QImage batch = operation.processFromXml(source, text);
                const QString difference = imageDifference(live, batch);
                QVERIFY2(difference.isEmpty(),
                         qPrintable(operation.name + QLatin1Char('\n') + text + difference));

                const auto loaded = makeNode(qPrintable(operation.name));
                load(*loaded, text);
                QCOMPARE(loaded->parametersText(), text);
                moveControls(*node, round);
            }
            QVERIFY(processed(*node, QImage()).isNull());
            QVERIFY(operation.processFromXml(QImage(), QString()).isNull());
        }
        CommonData::instance()->setPreviewMode(true);
    }

    void aTextThatTellsNothingFallsBack_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("sameAs");
        QTest::newRow("no colour")
            << "Brightness, Contrast, Saturation"
            << "<P><Brightness>0</Brightness><Contrast>0</Contrast><Saturation>0</Saturation></P>";
        QTest::newRow("mirror") << "Mirror"
                                << "<P><Horizontal>yes</Horizontal><Vertical>no</Vertical></P>";
        QTest::newRow("vignette")
            << "Vignetting"
            << "<P><Radius>2</Radius><Opacity>127</Opacity><Color>#000000</Color></P>";
        QTest::newRow("blur") << "Blur"
                              << "<P><Radius>2</Radius></P>";
        QTest::newRow("histogram") << "Histogram optimizer"
                                   << "<P><Left>0</Left><Right>0</Right></P>";
        QTest::newRow("mode") << "RGB-Order"
                              << "<P><Mode>0</Mode></P>";
        QTest::newRow("threshold") << "Binarization"
                                   << "<P><Threshold>127</Threshold></P>";
    }

    void aTextThatTellsNothingFallsBack()
    {
        QFETCH(QString, operation);
        QFETCH(QString, sameAs);
        const auto filter = findOperation(operation)->processFromXml;
        const QImage source = noise(QSize(19, 11), 9);
        const QImage expected = filter(source, sameAs);
        QVERIFY(expected != source);
        COMPARE_IMAGES(filter(source, QString()), expected);
        COMPARE_IMAGES(filter(source, QStringLiteral("<P><Saturation>4</P>")), expected);
        COMPARE_IMAGES(filter(source, QStringLiteral("<P><Mode>x</Mode><Left/></P>")), expected);
    }

    void aTextThatTellsNothingChangesNothing()
    {
        const QImage source = noise(QSize(19, 11), 9);
        for (const char* name : {"Crop", "Resize", "Rotate", "Frame"}) {
            COMPARE_IMAGES(batched(name, source, QString()), source);
            COMPARE_IMAGES(batched(name, source, QStringLiteral("<P><Angle/><Top>x</Top></P>")),
                           source);
        }
        const QString width = QStringLiteral("<P><Width>200</Width></P>");
        QCOMPARE(batched("Frame", source, width).pixel(0, 0), qRgb(0, 0, 0));
        QCOMPARE(batched("Resize", source, width).size(), QSize(38, 11));
        COMPARE_IMAGES(batched("RGB-Order", source, QStringLiteral("<P><Mode>3</Mode></P>")),
                       source);
    }

    void numbersOutOfAllRangeDoNoHarm()
    {
        const QImage source = noise(QSize(120, 110), 9);
        for (const Operation& operation : operations()) {
            for (const QString& parameter : written(*makeNode(qPrintable(operation.name)))) {
                const QString tag = parameter.section(QLatin1Char('='), 0, 0);
                for (const char* number : {"-2147483648", "2147483647", "2147483648"}) {
                    const QString text =
                        QStringLiteral("<P><%1>%2</%1></P>").arg(tag, QLatin1String(number));
                    const QSize size = operation.processFromXml(source, text).size();
                    QVERIFY2(size.isEmpty() || size == source.size(),
                             qPrintable(operation.name + text));
                }
            }
        }
    }
};

TESSARIN_TEST(TestNodes);
#include "tst_Nodes.moc"
