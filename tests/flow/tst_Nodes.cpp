#include "flow/DirectionsWidget.h"
#include "intake/CommonData.h"
#include "NodeTesting.h"
#include "reference/BlurReference.h"
#include "reference/GeometryReference.h"
#include "reference/ToneReference.h"
#include "reference/VignetteReference.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QMWidgets/ColorWidget.h>

#include <functional>
#include <limits>
#include <QAbstractButton>
#include <QComboBox>
#include <QFontComboBox>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

using QMWidgets::ColorWidget;

namespace
{

/// One change for each control of a node, which gives it another value. Left out are buttons that
/// ask for a file, and fonts, some of which have several names.
QVector<std::function<void()>> changes(const BaseNode& node)
{
    QVector<std::function<void()>> all;
    for (QSpinBox* box : node.findChildren<QSpinBox*>()) {
        all += [box] {
            const int count = box->maximum() - box->minimum() + 1;
            box->setValue(box->minimum() + (box->value() - box->minimum() + 43) % count);
        };
    }
    for (QComboBox* box : node.findChildren<QComboBox*>()) {
        if (!qobject_cast<QFontComboBox*>(box)) {
            all += [box] {
                box->setCurrentIndex((box->currentIndex() + 1) % box->count());
            };
        }
    }
    for (DirectionsWidget* grid : node.findChildren<DirectionsWidget*>()) {
        all += [grid] {
            grid->setDirection(Direction((grid->direction() + 2) % 9));
        };
    }
    const QStringList others = {"WMRBrowseButton", "DirectionButton"};
    for (QAbstractButton* button : node.findChildren<QAbstractButton*>()) {
        const bool isInPopup = button->window() != node.window();
        if (!isInPopup && !others.contains(button->objectName())) {
            all += [button] {
                button->click();
            };
        }
    }
    for (ColorWidget* swatch : node.findChildren<ColorWidget*>()) {
        all += [swatch] {
            swatch->slotColorChanged(QColor::fromHsv((swatch->color().hue() + 50) % 360, 255, 200));
        };
    }
    return all;
}

QImage batchedOne(const Operation& operation, const QImage& source, const QString& tag,
                  const QString& text)
{
    return operation.processFromXml(source, QStringLiteral("<P><%1>%2</%1></P>").arg(tag, text));
}

/// The tags of what an operation writes, in order.
QStringList tags(const Operation& operation)
{
    QStringList tags;
    for (const QString& parameter : written(*makeNode(operation.name))) {
        tags += parameter.section(QLatin1Char('='), 0, 0);
    }
    return tags;
}

} // namespace

class TestNodes : public QObject
{
    Q_OBJECT

private slots:
    void bothRoutesGiveTheSamePixels()
    {
        // The batch has no preview, where a size in pixels means another thing.
        CommonData::instance()->setPreviewMode(false);
        const QImage source = noise(QSize(37, 23), 5, QImage::Format_ARGB32, true);
        for (const Operation& operation : operations()) {
            const auto node = makeNode(operation.name);
            QSignalSpy changed(node.get(), &BaseNode::parametersChanged);
            for (QSpinBox* const box : node->findChildren<QSpinBox*>()) {
                QTest::keyClick(box, Qt::Key_Return); // changes nothing
            }
            QVERIFY2(changed.isEmpty(), qPrintable(operation.name));
            for (const auto& change : changes(*node)) {
                const QString text = node->parametersText();
                const QString difference = imageDifference(processed(*node, source),
                                                           operation.processFromXml(source, text));
                QVERIFY2(difference.isEmpty(), qPrintable(operation.name + text + difference));
                changed.clear();
                change();
                QVERIFY2(changed.count() == 1, qPrintable(operation.name + text));
            }
            QVERIFY(processed(*node, QImage()).isNull());
            QVERIFY(operation.processFromXml(QImage(), QString()).isNull());
        }
        CommonData::instance()->setPreviewMode(true);
    }

    /// The batch gives each photo away to the operation, which then writes over it, unless it makes
    /// another size of it: a huge photo isn't to be in memory twice.
    void givenPhotosComeOutAsHeldOnesDo()
    {
        const QStringList resizing{QStringLiteral("Resize"), QStringLiteral("Frame")};
        // Something for each operation to do.
        const QString parameters =
            QStringLiteral("<P><Brightness>9</Brightness><Saturation>70</Saturation><Mode>1</Mode>"
                           "<Left>20</Left><Right>10</Right><Radius>4</Radius><Angle>180</Angle>"
                           "<Width>30</Width><Size>50</Size><Transparency>9</Transparency></P>");
        for (const Operation& operation : operations()) {
            for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
                QImage given = noise(QSize(1401, 999), 7, format);
                const QImage before = given.copy();
                const QImage held = given.copy();
                QImage expected = operation.processFromXml(held, parameters);
                COMPARE_IMAGES(operation.filterFromXml(parameters)(held), expected);
                COMPARE_IMAGES(held, before);
                // A painter comes back to an image as it knew it.
                QPainter(&given).drawPoint(-1, -1);
                const quintptr memory = quintptr(given.constBits());
                QImage result = operation.processFromXml(std::move(given), parameters);
                COMPARE_IMAGES(result, expected);
                const quintptr offset = quintptr(result.constBits()) - memory;
                QVERIFY2((offset < quintptr(before.sizeInBytes())) !=
                             resizing.contains(operation.name),
                         qPrintable(operation.name));
                for (QImage* image : {&result, &expected}) {
                    QPainter(image).fillRect(image->rect(), QColor(255, 0, 0, 99));
                }
                COMPARE_IMAGES(result, expected);
            }
        }
    }

    void eachParameterTakesItsPlace()
    {
        using Filter = QImage (*)(const QImage&);
        const struct {
            const char* operation;
            const char* parameters;
            Filter expected;
        } rows[] = {
            {"Brightness, Contrast, Saturation",
             "<Brightness>9</Brightness><Contrast>-7</Contrast><Saturation>40</Saturation>",
             [](const QImage& image) {
                 return reference::brightnessContrastSaturation(image, 9, -7, 0.8f);
             }},
            {"Crop", "<Left>10</Left><Right>20</Right><Top>30</Top><Bottom>50</Bottom>",
             [](const QImage& image) {
                 return image.copy(20, 30, 140, 20);
             }},
            {"Crop", "<Left>50</Left><Right>50</Right>",
             [](const QImage&) {
                 return QImage();
             }},
            {"Rotate", "<Angle>90</Angle>", reference::rotate90},
            {"Rotate", "<Angle>-270</Angle>", reference::rotate90},
            {"Rotate", "<Angle>180</Angle>", reference::rotate180},
            {"Rotate", "<Angle>-180</Angle>", reference::rotate180},
            {"Rotate", "<Angle>270</Angle>", reference::rotate270},
            {"Rotate", "<Angle>-90</Angle>", reference::rotate270},
            {"Rotate", "<Angle>450</Angle>",
             [](const QImage& image) {
                 return image;
             }},
            {"Mirror", "<Horizontal>YES</Horizontal><Vertical>1</Vertical>",
             [](const QImage& image) {
                 return image.mirrored(true, false);
             }},
            {"Mirror", "<Horizontal>no</Horizontal><Vertical>yes</Vertical>",
             [](const QImage& image) {
                 return image.mirrored(false, true);
             }},
            {"Histogram optimizer", "<Left>30</Left><Right>70</Right>",
             [](const QImage& image) {
                 return reference::optimizeHistogram(image, 30, 70);
             }},
            {"Vignetting", "<Radius>40</Radius><Opacity>70</Opacity><Color>#102030</Color>",
             [](const QImage& image) {
                 return reference::vignette(image, 40, 70, QColor(16, 32, 48));
             }},
            {"Frame", "<Width>3</Width><Color>Red</Color>",
             [](const QImage& image) {
                 return reference::frame(image, 3, Qt::red);
             }},
            {"Frame", "<Width>3</Width><Color>no colour</Color>",
             [](const QImage& image) {
                 return reference::frame(image, 3, Qt::black);
             }},
            {"RGB-Order", "<Mode>0</Mode>", reference::swapRedBlue},
            {"RGB-Order", "<Mode>1</Mode>", reference::swapRedGreen},
            {"RGB-Order", "<Mode>2</Mode>", reference::swapGreenBlue},
            {"Blur", "<Radius>10</Radius>",
             [](const QImage& image) {
                 return reference::blur(image, image.rect(), 10, false);
             }},
            {"Invert", "", reference::invert},
            {"Binarization", "<Threshold>99</Threshold>",
             [](const QImage& image) {
                 return reference::binarize(image, 99);
             }},
            {"Grayscale", "", reference::grayscale},
        };
        const QImage source = noise(QSize(200, 100), 2);
        for (const auto& row : rows) {
            const QString text = QStringLiteral("<P>%1</P>").arg(QLatin1String(row.parameters));
            const auto node = makeNode(row.operation);
            load(*node, text);
            for (const QImage& result :
                 {processed(*node, source), batched(row.operation, source, text)}) {
                const QString difference = imageDifference(result, row.expected(source));
                QVERIFY2(difference.isEmpty(), qPrintable(row.operation + text + difference));
            }
        }
    }

    void aTextThatTellsNothingFallsBack()
    {
        const struct {
            const char* operation;
            const char* sameAs; ///< empty if the photo stays as it is
        } rows[] = {
            {"Brightness, Contrast, Saturation",
             "<Brightness>0</Brightness><Contrast>0</Contrast><Saturation>0</Saturation>"},
            {"Mirror", "<Horizontal>yes</Horizontal><Vertical>no</Vertical>"},
            {"Vignetting", "<Radius>2</Radius><Opacity>127</Opacity><Color>#000000</Color>"},
            {"Blur", "<Radius>2</Radius>"},
            {"Histogram optimizer", "<Left>0</Left><Right>0</Right>"},
            {"RGB-Order", "<Mode>0</Mode>"},
            {"Binarization", "<Threshold>127</Threshold>"},
            {"Crop", ""},
            {"Resize", ""},
            {"Rotate", ""},
            {"Frame", ""},
            {"Watermark", ""},
        };
        const QImage source = noise(QSize(19, 11), 9);
        for (const auto& row : rows) {
            const QString parameters = QLatin1String(row.sameAs);
            const QImage expected =
                batched(row.operation, source, QStringLiteral("<P>%1</P>").arg(parameters));
            QCOMPARE(expected == source, parameters.isEmpty());
            for (const char* text :
                 {"", "<P><Saturation>4</P>", "<P><Mode>x</Mode><Left/><Angle/><Top>x</Top></P>"}) {
                COMPARE_IMAGES(batched(row.operation, source, QLatin1String(text)), expected);
            }
        }
        const QString width = QStringLiteral("<P><Width>200</Width></P>");
        QCOMPARE(batched("Frame", source, width).pixel(0, 0), qRgb(0, 0, 0));
        QCOMPARE(batched("Resize", source, width).size(), QSize(38, 11));
        COMPARE_IMAGES(batched("RGB-Order", source, "<P><Mode>3</Mode></P>"), source);
    }

    void numbersOutOfAllRangeDoNoHarm()
    {
        const QImage source = noise(QSize(120, 110), 9);
        for (const Operation& operation : operations()) {
            for (const QString& tag : tags(operation)) {
                for (const char* number : {"-2147483648", "2147483647", "2147483648"}) {
                    const QSize size = batchedOne(operation, source, tag, number).size();
                    QVERIFY2(size.isEmpty() || size == source.size(),
                             qPrintable(operation.name + tag + number));
                }
            }
        }
    }

    void aColorThatNoControlOffersIsDrawnAsWritten()
    {
        const QImage source = noise(QSize(100, 20), 2, QImage::Format_ARGB32, true);
        for (const char* name : {"Frame", "Vignetting", "Watermark"}) {
            for (const char* color : {"#80ff0000", "transparent", "no colour"}) {
                const auto node = makeNode(name);
                load(*node, QStringLiteral("<P><Color>%1</Color><Background>%1</Background></P>")
                                .arg(QLatin1String(color)));
                COMPARE_IMAGES(processed(*node, source),
                               batched(name, source, node->parametersText()));
            }
        }
    }

    void buttonsTurnByQuarters()
    {
        constexpr int kMost = std::numeric_limits<int>::max();
        constexpr int kLeast = std::numeric_limits<int>::min();
        const struct {
            const char* button;
            int from;
            QList<int> angles;
        } rows[] = {{"RotateRightButton", 90, {180, 270, 0, 90}},
                    {"RotateLeftButton", 90, {0, -90, -180, -270, 0, -90}},
                    {"RotateRightButton", -270, {-180, -90, 0, 90}},
                    {"RotateRightButton", 45, {135, 225, 0, 90}},
                    {"RotateLeftButton", -181, {0}},
                    {"RotateRightButton", kMost, {0}},
                    {"RotateLeftButton", kLeast, {0}},
                    {"RotateLeftButton", kMost, {kMost - 90}},
                    {"RotateRightButton", kLeast, {kLeast + 90}}};
        for (const auto& row : rows) {
            const auto node = makeNode("Rotate");
            load(*node, QStringLiteral("<P><Angle>%1</Angle></P>").arg(row.from));
            for (const int angle : row.angles) {
                node->findChild<QPushButton*>(QLatin1String(row.button))->click();
                QCOMPARE(written(*node).last(), QStringLiteral("Angle=%1").arg(angle));
            }
        }
    }

    void thePictureOfTheAxisSetsTheFlipAcrossIt()
    {
        const auto node = makeNode("Mirror");
        const auto click = [&node](const char* name) {
            node->findChild<QPushButton*>(QLatin1String(name))->click();
            return written(*node).mid(1).join(QLatin1Char(' '));
        };
        QCOMPARE(click("MirrorHButton"), QStringLiteral("Horizontal=yes Vertical=yes"));
        QCOMPARE(click("MirrorVButton"), QStringLiteral("Horizontal=no Vertical=yes"));
        QCOMPARE(click("MirrorHButton"), QStringLiteral("Horizontal=no Vertical=no"));
    }
};

TESSARIN_TEST(TestNodes);
#include "tst_Nodes.moc"
