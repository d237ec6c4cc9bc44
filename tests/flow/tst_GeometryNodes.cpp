#include "flow/nodes/RTTNode.h"
#include "NodeTesting.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <limits>
#include <MGraphX/GraphX.h>
#include <QPushButton>

using MGraphX::GraphX;

class TestGeometryNodes : public QObject
{
    Q_OBJECT

private:
    static QString rotation(int angle)
    {
        return QStringLiteral("<P><Angle>%1</Angle></P>").arg(angle);
    }

    static void click(BaseNode& node, const char* objectName)
    {
        auto* button = node.findChild<QPushButton*>(QLatin1String(objectName));
        QVERIFY(button);
        QVERIFY(!button->accessibleName().isEmpty());
        button->click();
    }

private slots:
    void eachSideIsCroppedByItsOwnShare()
    {
        const QImage source = noise(QSize(200, 100), 2);
        const QString text = QStringLiteral("<P><Left>10</Left><Right>20</Right><Top>30</Top>"
                                            "<Bottom>50</Bottom></P>");
        const auto node = makeNode("Crop");
        load(*node, text);
        const QImage expected = source.copy(20, 30, 140, 20);
        COMPARE_IMAGES(processed(*node, source), expected);
        COMPARE_IMAGES(batched("Crop", source, text), expected);

        load(*node, QStringLiteral("<P><Left>50</Left><Right>50</Right></P>"));
        QVERIFY(processed(*node, source).isNull());
    }

    void buttonsTurnByQuarters()
    {
        const auto node = makeNode("Rotate");
        const auto angles = [&node](const char* button, int from, int steps) {
            load(*node, rotation(from));
            QStringList seen;
            for (int i = 0; i < steps; ++i) {
                click(*node, button);
                seen += written(*node).last().mid(6);
            }
            return seen.join(QLatin1Char(' '));
        };
        QCOMPARE(angles("RotateRightButton", 90, 4), QStringLiteral("180 270 0 90"));
        QCOMPARE(angles("RotateLeftButton", 90, 6), QStringLiteral("0 -90 -180 -270 0 -90"));
        QCOMPARE(angles("RotateRightButton", -270, 4), QStringLiteral("-180 -90 0 90"));
        QCOMPARE(angles("RotateRightButton", 45, 4), QStringLiteral("135 225 0 90"));
        QCOMPARE(angles("RotateLeftButton", -181, 1), QStringLiteral("0"));
        const int most = std::numeric_limits<int>::max();
        const int least = std::numeric_limits<int>::min();
        QCOMPARE(angles("RotateRightButton", most, 1), QStringLiteral("0"));
        QCOMPARE(angles("RotateLeftButton", least, 1), QStringLiteral("0"));
        QCOMPARE(angles("RotateLeftButton", most, 1), QString::number(most - 90));
        QCOMPARE(angles("RotateRightButton", least, 1), QString::number(least + 90));
    }

    void anglesTurn()
    {
        const QImage source = noise(QSize(30, 20), 2);
        for (const int angle : {-360, -270, -180, -90, 0, 45, 90, 180, 270, 360, 450}) {
            const QImage expected = angle == 90 || angle == -270    ? GraphX::rotate90(source)
                                    : angle == 180 || angle == -180 ? GraphX::rotate180(source)
                                    : angle == 270 || angle == -90  ? GraphX::rotate270(source)
                                                                    : source;
            COMPARE_IMAGES(RTTNode::applyAngle(source, angle), expected);
            const auto node = makeNode("Rotate");
            load(*node, rotation(angle));
            COMPARE_IMAGES(processed(*node, source), expected);
            COMPARE_IMAGES(batched("Rotate", source, rotation(angle)), expected);
        }
    }

    void thePictureOfTheAxisSetsTheFlipAcrossIt()
    {
        const QImage source = noise(QSize(31, 20), 2);
        const auto node = makeNode("Mirror");
        COMPARE_IMAGES(processed(*node, source), source.mirrored(true, false));
        click(*node, "MirrorHButton");
        QCOMPARE(written(*node).mid(1),
                 QStringList({QStringLiteral("Horizontal=yes"), QStringLiteral("Vertical=yes")}));
        COMPARE_IMAGES(processed(*node, source), source.mirrored(true, true));
        click(*node, "MirrorVButton");
        QCOMPARE(written(*node).mid(1),
                 QStringList({QStringLiteral("Horizontal=no"), QStringLiteral("Vertical=yes")}));
        COMPARE_IMAGES(processed(*node, source), source.mirrored(false, true));
        click(*node, "MirrorHButton");
        COMPARE_IMAGES(processed(*node, source), source);

        load(*node, QStringLiteral("<P><Horizontal>YES</Horizontal><Vertical>1</Vertical></P>"));
        COMPARE_IMAGES(processed(*node, source), source.mirrored(true, false));
    }

    void aColorThatNoControlOffersIsDrawnAsWritten()
    {
        const QImage source = noise(QSize(100, 20), 2);
        for (const char* color : {"#80ff0000", "transparent"}) {
            const auto node = makeNode("Frame");
            load(*node, QStringLiteral("<P><Width>3</Width><Color>%1</Color></P>")
                            .arg(QLatin1String(color)));
            COMPARE_IMAGES(processed(*node, source),
                           batched("Frame", source, node->parametersText()));
        }
    }

    void aFrameTakesTheSwatchsColor_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QRgb>("pixel");
        QTest::newRow("hash") << "#1a2b3c" << qRgb(0x1a, 0x2b, 0x3c);
        QTest::newRow("name") << "Red" << qRgb(255, 0, 0);
        QTest::newRow("invalid") << "no colour" << qRgb(0, 0, 0);
        QTest::newRow("empty") << "" << qRgb(0, 0, 0);
    }

    void aFrameTakesTheSwatchsColor()
    {
        QFETCH(QString, name);
        QFETCH(QRgb, pixel);
        const QImage source = noise(QSize(100, 20), 2);
        const QString text = QStringLiteral("<P><Width>3</Width><Color>%1</Color></P>").arg(name);
        const auto node = makeNode("Frame");
        load(*node, text);
        QCOMPARE(written(*node).last(), QStringLiteral("Color=") + QColor(pixel).name());
        const QImage live = processed(*node, source);
        QCOMPARE(live.size(), QSize(106, 26));
        QCOMPARE(live.pixel(0, 0), pixel);
        QCOMPARE(live.pixel(103, 22), pixel);
        COMPARE_IMAGES(live.copy(3, 3, 100, 20), source);
        COMPARE_IMAGES(batched("Frame", source, text), live);
        COMPARE_IMAGES(batched("Frame", source, node->parametersText()), live);
    }
};

TESSARIN_TEST(TestGeometryNodes);
#include "tst_GeometryNodes.moc"
