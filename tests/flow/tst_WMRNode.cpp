#include "app/MainPage.h"
#include "app/StyleSheet.h"
#include "flow/ComboSlider.h"
#include "flow/DirectionsWidget.h"
#include "flow/FlowPanel.h"
#include "flow/NodesOptionsPanel.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "WatermarkTesting.h"
#include <QMWidgets/ColorWidget.h>

#include <QCheckBox>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QFontInfo>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <random>

using QMWidgets::ColorWidget;

namespace
{

QStringList visibleCaptions(const QWidget& node)
{
    QStringList captions;
    for (const QLabel* label : node.findChildren<QLabel*>()) {
        if (label->isVisibleTo(&node) && label->text().endsWith(QLatin1Char(':'))) {
            captions += label->text();
        }
    }
    captions.sort();
    return captions;
}

/// Some families that are no other name for one of the others, which a font box would tell instead.
QStringList ownFamilies()
{
    QStringList families;
    for (const QString& family : QFontDatabase().families()) {
        if (families.size() < 6 && QFontInfo(QFont(family)).family() == family) {
            families += family;
        }
    }
    return families;
}

/// Moves most controls, at random but alike in each run.
void shuffle(BaseNode& node, std::mt19937& random)
{
    const auto upTo = [&random](int count) {
        return int(random() % quint32(count));
    };
    kind(node)->setCurrentIndex(upTo(2));
    const QStringList families = ownFamilies();
    node.findChild<QFontComboBox*>()->setCurrentFont(QFont(families[upTo(families.size())]));
    for (QSpinBox* box : node.findChildren<QSpinBox*>()) {
        box->setValue(box->minimum() + upTo(box->maximum() - box->minimum() + 1));
    }
    for (ColorWidget* swatch : node.findChildren<ColorWidget*>()) {
        swatch->slotColorChanged(QColor(upTo(256), upTo(256), upTo(256)));
    }
    for (const char* name : {"BoldButton", "ItalicButton", "UnderlinedButton", "WMRShrinkButton"}) {
        button(node, name)->setChecked(upTo(2) == 1);
    }
    node.findChild<QCheckBox*>()->setChecked(upTo(4) > 0);
    node.findChild<DirectionsWidget*>()->setDirection(Direction(upTo(9)));
    const QString texts[] = {QStringLiteral("Mark"), QStringLiteral("  a < b & \"c\" "),
                             QString::fromUtf8("© שלום"), QStringLiteral("   "), QString()};
    beside<QLineEdit>(node, "Text:")->setText(texts[upTo(5)]);
}

} // namespace

class TestWMRNode : public QObject
{
    Q_OBJECT

private slots:
    void startsWithADefaultMark()
    {
        WMRNode node(QStringLiteral("Watermark"), nullptr);
        const QString family = node.findChild<QFontComboBox*>()->currentFont().family();
        QVERIFY(!family.isEmpty());
        QCOMPARE(
            written(node),
            QStringList({QStringLiteral("Active=yes"), QStringLiteral("Mode=0"),
                         QStringLiteral("Size=60"), QStringLiteral("Text=Watermark"),
                         QStringLiteral("Position=BottomRight"), QStringLiteral("Expand=no"),
                         QStringLiteral("Bold=no"), QStringLiteral("Italic=no"),
                         QStringLiteral("Underlined=no"), QStringLiteral("XOffset=0"),
                         QStringLiteral("YOffset=0"), QStringLiteral("Transparency=25"),
                         QStringLiteral("Color=#ffffff"), QStringLiteral("Background=#000000"),
                         QStringLiteral("BackgroundEnabled=yes"), QStringLiteral("Font=") + family,
                         QStringLiteral("ImageData="), QStringLiteral("ImageName=corvane.png")}));
    }

    void eachKindShowsItsControls()
    {
        WMRNode node(QStringLiteral("Watermark"), nullptr);
        const QStringList always = {QStringLiteral("Kind:"), QStringLiteral("Position:"),
                                    QStringLiteral("Size:"), QStringLiteral("Transparency:"),
                                    QStringLiteral("x:"),    QStringLiteral("y:")};
        QStringList ofText =
            always + QStringList({QStringLiteral("Text:"), QStringLiteral("Font:"),
                                  QStringLiteral("Text color:"), QStringLiteral("Background:")});
        QStringList ofImage =
            always + QStringList({QStringLiteral("Logo:"), QStringLiteral("Expand:")});
        ofText.sort();
        ofImage.sort();
        for (const bool image : {false, true, false}) {
            kind(node)->setCurrentIndex(image ? 1 : 0);
            QCOMPARE(visibleCaptions(node), image ? ofImage : ofText);
            for (const char* name : {"BoldButton", "ItalicButton", "UnderlinedButton"}) {
                QCOMPARE(button(node, name)->isVisibleTo(&node), !image);
            }
            for (const char* name : {"WMRBrowseButton", "WMRShrinkButton"}) {
                QCOMPARE(button(node, name)->isVisibleTo(&node), image);
            }
            QCOMPARE(node.findChild<QCheckBox*>()->isVisibleTo(&node), !image);
            QCOMPARE(node.findChild<QFontComboBox*>()->isVisibleTo(&node), !image);
        }
    }

    void anExpandedLogoHasNoPlace()
    {
        WMRNode node(QStringLiteral("Watermark"), nullptr);
        const auto placed = [&node] {
            const bool enabled = beside<QWidget>(node, "Size:")->isEnabledTo(&node);
            const QWidget* const others[] = {node.findChild<DirectionsWidget*>(),
                                             beside<QWidget>(node, "x:"),
                                             beside<QWidget>(node, "y:")};
            for (const QWidget* other : others) {
                if (other->isEnabledTo(&node) != enabled) {
                    qFatal("Size and place are not enabled alike");
                }
            }
            return enabled;
        };
        QVERIFY(placed());
        kind(node)->setCurrentIndex(1);
        QVERIFY(placed());
        button(node, "WMRShrinkButton")->click();
        QVERIFY(!placed());
        QVERIFY(beside<QWidget>(node, "Transparency:")->isEnabledTo(&node));
        kind(node)->setCurrentIndex(0);
        QVERIFY(button(node, "WMRShrinkButton")->isChecked());
        QVERIFY(placed());
        kind(node)->setCurrentIndex(1);
        QVERIFY(!placed());
        button(node, "WMRShrinkButton")->click();
        QVERIFY(placed());
        loadOne(node, "Expand", QStringLiteral("YES"));
        QVERIFY(!placed());
    }

    void controlsTellTheirChanges()
    {
        WMRNode node(QStringLiteral("Watermark"), nullptr);
        QSignalSpy changed(&node, &BaseNode::parametersChanged);
        int count = 0;
        for (ComboSlider* slider : node.findChildren<ComboSlider*>()) {
            slider->setValue(33);
            QCOMPARE(changed.count(), ++count);
        }
        for (const char* caption : {"x:", "y:"}) {
            beside<QSpinBox>(node, caption)->setValue(-7);
            QCOMPARE(changed.count(), ++count);
        }
        for (const char* name :
             {"BoldButton", "ItalicButton", "UnderlinedButton", "WMRShrinkButton"}) {
            button(node, name)->click();
            QCOMPARE(changed.count(), ++count);
        }
        node.findChild<DirectionsWidget*>()->setDirection(Middle);
        QCOMPARE(changed.count(), ++count);
        node.findChild<QCheckBox*>()->click();
        QCOMPARE(changed.count(), ++count);
        QTest::keyClicks(beside<QLineEdit>(node, "Text:"), QStringLiteral("ab"));
        QCOMPARE(changed.count(), count += 2);
        for (ColorWidget* swatch : node.findChildren<ColorWidget*>()) {
            swatch->slotColorChanged(Qt::red);
            QCOMPARE(changed.count(), ++count);
        }
        auto* fonts = node.findChild<QFontComboBox*>();
        QVERIFY(fonts->count() > 1);
        fonts->setCurrentIndex(fonts->currentIndex() == 0 ? 1 : 0);
        QCOMPARE(changed.count(), ++count);
        kind(node)->setCurrentIndex(1);
        QCOMPARE(changed.count(), ++count);
    }

    void positionsAreWords()
    {
        WMRNode node(QStringLiteral("Watermark"), nullptr);
        auto* directions = node.findChild<DirectionsWidget*>();
        const char* const words[] = {"TopLeft",    "TopMiddle",    "TopRight",
                                     "MiddleLeft", "Middle",       "MiddleRight",
                                     "BottomLeft", "BottomMiddle", "BottomRight"};
        for (int i = 0; i < 9; ++i) {
            directions->setDirection(BottomRight);
            loadOne(node, "Position", QLatin1String(words[i]));
            QCOMPARE(int(directions->direction()), i);
            QCOMPARE(told(node, "Position"), QString::fromLatin1(words[i]));
        }
        for (const char* word : {"topleft", "Center", "0", " Middle", ""}) {
            loadOne(node, "Position", QLatin1String(word));
            QCOMPARE(directions->direction(), BottomRight);
        }
    }

    void readingIsBoundedByTheControls()
    {
        WMRNode node(QStringLiteral("Watermark"), nullptr);
        load(node, QStringLiteral("<P><XOffset>100</XOffset><YOffset>-34</YOffset><Size>0</Size>"
                                  "<Transparency>101</Transparency><Color>no colour</Color></P>"));
        QCOMPARE(told(node, "XOffset"), QStringLiteral("33"));
        QCOMPARE(told(node, "YOffset"), QStringLiteral("-33"));
        QCOMPARE(told(node, "Size"), QStringLiteral("1"));
        QCOMPARE(told(node, "Transparency"), QStringLiteral("100"));
        QCOMPARE(told(node, "Color"), QStringLiteral("#000000"));
    }

    void bothRoutesGiveTheSamePixels()
    {
        const QImage source = noise(QSize(90, 70), 5, QImage::Format_ARGB32, true);
        Photos files;
        files.add(QStringLiteral("logo.png"), QSize(20, 15), 4);
        WMRNode node(QStringLiteral("Watermark"), nullptr);
        std::mt19937 random(7);
        for (int round = 0; round < 60; ++round) {
            if (round == 30) {
                browse(node, files.path(QStringLiteral("logo.png")));
            }
            shuffle(node, random);
            const QString text = node.parametersText();
            const QImage live = processed(node, source);
            const QString difference = imageDifference(live, WMRNode::processFromXml(source, text));
            QVERIFY2(difference.isEmpty(), qPrintable(text + difference));
            WMRNode loaded(QStringLiteral("Watermark"), nullptr);
            load(loaded, text);
            QCOMPARE(loaded.parametersText(), text);
            COMPARE_IMAGES(processed(loaded, source), live);
        }
    }

    void aColorThatNoControlOffersIsDrawnAsWritten()
    {
        const QImage source = noise(QSize(90, 70), 5, QImage::Format_ARGB32, true);
        WMRNode node(QStringLiteral("Watermark"), nullptr);
        for (const char* color : {"#40ff0000", "transparent", "no colour"}) {
            loadOne(node, "Background", QLatin1String(color));
            COMPARE_IMAGES(processed(node, source),
                           WMRNode::processFromXml(source, node.parametersText()));
        }
    }

    void aTextThatXmlCannotHoldIsDrawnWithoutIt()
    {
        const QImage source = noise(QSize(90, 70), 5, QImage::Format_ARGB32, true);
        WMRNode node(QStringLiteral("Watermark"), nullptr);
        beside<QLineEdit>(node, "Text:")->setText(QStringLiteral("a\uFFFEb\uFFFFc"));
        const QImage live = processed(node, source);
        QVERIFY(live != source);
        COMPARE_IMAGES(WMRNode::processFromXml(source, node.parametersText()), live);
    }

    void aTextThatTellsLittleMarksLittle()
    {
        const QImage photo = noise(QSize(90, 70), 5, QImage::Format_ARGB32, true);
        const auto batch = [&photo](const char* parameters) {
            return WMRNode::processFromXml(
                photo, QStringLiteral("<P>%1</P>").arg(QLatin1String(parameters)));
        };
        COMPARE_IMAGES(WMRNode::processFromXml(photo, QString()), photo);
        COMPARE_IMAGES(batch("<Text>Mark</Text>"), photo);
        COMPARE_IMAGES(batch("<Transparency>0</Transparency>"), photo);
        COMPARE_IMAGES(batch("<Mode>1</Mode><Size>50</Size>"), photo);
        // The rest that stands where nothing is told, told.
        const QImage mark = batch("<Text>Mark</Text><Transparency>0</Transparency>");
        QVERIFY(mark != photo);
        COMPARE_IMAGES(batch("<Text>Mark</Text><Transparency>0</Transparency><Mode>0</Mode>"
                             "<Size>0</Size><Position>BottomRight</Position><Expand>no</Expand>"
                             "<Bold>no</Bold><Italic>no</Italic><Underlined>no</Underlined>"
                             "<XOffset>0</XOffset><YOffset>0</YOffset><Color>#ffffff</Color>"
                             "<Background>#000000</Background>"
                             "<BackgroundEnabled>Yes</BackgroundEnabled><ImageData/>"),
                       mark);
        QVERIFY(batch("<Text>Mark</Text><Transparency>0</Transparency>"
                      "<BackgroundEnabled>1</BackgroundEnabled>") != mark);
        // Without data the batch, too, draws the default mark.
        const QImage logo = batch("<Mode>1</Mode><Transparency>0</Transparency><Size>90</Size>");
        QVERIFY(logo != photo);
        COMPARE_IMAGES(batch("<Mode>1</Mode><Transparency>0</Transparency><Size>90</Size>"
                             "<ImageData></ImageData><ImageName>mine.png</ImageName>"),
                       logo);
    }

    void thePageFitsIntoItsPanel()
    {
        qApp->setStyleSheet(applicationStyleSheet());
        MainPage page(nullptr);
        page.slotFilesDropped({});
        page.findChild<FlowPanel*>()->slotAddWaterMarkNode();
        const auto* panel = page.findChild<NodesOptionsPanel*>();
        auto* node = page.findChild<WMRNode*>();
        auto* fonts = node->findChild<QFontComboBox*>();
        fonts->setCurrentFont(QFont(QString(80, QLatin1Char('W'))));
        fonts->lineEdit()->setText(QString(80, QLatin1Char('W')));
        for (const int mode : {0, 1}) {
            kind(*node)->setCurrentIndex(mode);
            QTest::qWait(0);
            QVERIFY(panel->minimumSizeHint().height() <= panel->height());
            for (const QWidget* widget : node->findChildren<QWidget*>()) {
                // Those that a layout places: the parts of a box are its own matter.
                if (widget->isVisible() && widget->parentWidget()->layout()) {
                    const QRect place(widget->mapTo(node, QPoint(0, 0)), widget->size());
                    QVERIFY2(node->rect().contains(place), qPrintable(widget->objectName()));
                    QVERIFY2(widget->height() >=
                                 qMin(widget->minimumSizeHint().height(), widget->maximumHeight()),
                             widget->metaObject()->className());
                }
            }
        }
        QVERIFY(page.rect().contains(QRect(panel->mapTo(&page, QPoint(0, 0)), panel->size())));
        qApp->setStyleSheet(QString());
    }
};

TESSARIN_TEST(TestWMRNode);
#include "tst_WMRNode.moc"
