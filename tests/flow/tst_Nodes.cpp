#include "flow/BaseNode.h"
#include "flow/ComboSlider.h"
#include "flow/Operations.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <memory>
#include <QComboBox>
#include <QDomDocument>
#include <QGroupBox>
#include <QSignalSpy>

namespace
{

std::unique_ptr<BaseNode> makeNode(const char* name)
{
    const Operation* const operation = findOperation(QLatin1String(name));
    return std::unique_ptr<BaseNode>(operation ? operation->create(operation->name) : nullptr);
}

void load(BaseNode& node, const QString& xml)
{
    QDomDocument document;
    QVERIFY(document.setContent(xml));
    node.loadParameters(document.documentElement());
}

/// The node's parameters as "tag=text" in the order of writing.
QStringList written(BaseNode& node)
{
    QDomDocument document;
    document.setContent(node.parametersText());
    QStringList parameters;
    for (QDomElement element = document.documentElement().firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        parameters += element.tagName() + QLatin1Char('=') + element.text();
    }
    return parameters;
}

QImage processed(BaseNode& node, const QImage& source)
{
    QImage image = source;
    node.process(image);
    return image;
}

/// Moves every control of a node to another value; each round gives other ones.
void moveControls(BaseNode& node, int round)
{
    for (ComboSlider* slider : node.findChildren<ComboSlider*>()) {
        slider->setValue(slider->value() + 17 * round - 40);
    }
    for (QComboBox* box : node.findChildren<QComboBox*>()) {
        box->setCurrentIndex(round % box->count());
    }
}

} // namespace

class TestNodes : public QObject
{
    Q_OBJECT

private slots:
    void defaults_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QStringList>("parameters");
        const auto row = [](const char* name, const QStringList& parameters) {
            QTest::newRow(name) << QString::fromLatin1(name)
                                << (QStringList(QStringLiteral("Active=yes")) + parameters);
        };
        row("Brightness, Contrast, Saturation",
            {QStringLiteral("Brightness=0"), QStringLiteral("Contrast=0"),
             QStringLiteral("Saturation=100")});
        row("Histogram optimizer", {QStringLiteral("Left=0"), QStringLiteral("Right=0")});
        row("RGB-Order", {QStringLiteral("Mode=0")});
        row("Invert", {});
        row("Binarization", {QStringLiteral("Threshold=127")});
        row("Grayscale", {});
    }

    void defaults()
    {
        QFETCH(QString, operation);
        const auto node = makeNode(qPrintable(operation));
        QTEST(written(*node), "parameters");
    }

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
        }
    }

    void bothRoutesGiveTheSamePixels()
    {
        const QImage source = noise(QSize(37, 23), 5);
        for (const Operation& operation : operations()) {
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
    }

    void aTextThatTellsNothingFallsBack_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("sameAs");
        QTest::newRow("no colour")
            << "Brightness, Contrast, Saturation"
            << "<P><Brightness>0</Brightness><Contrast>0</Contrast><Saturation>0</Saturation></P>";
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

    void aHandMadeModeOfTheBatchChangesNothing()
    {
        const QImage source = noise(QSize(9, 5), 1);
        COMPARE_IMAGES(findOperation(QStringLiteral("RGB-Order"))
                           ->processFromXml(source, QStringLiteral("<P><Mode>3</Mode></P>")),
                       source);
    }
};

TESSARIN_TEST(TestNodes);
#include "tst_Nodes.moc"
