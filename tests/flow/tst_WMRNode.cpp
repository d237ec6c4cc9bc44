#include "app/MainPage.h"
#include "app/StyleSheet.h"
#include "flow/DirectionsWidget.h"
#include "flow/FlowPanel.h"
#include "flow/NodesOptionsPanel.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "WatermarkTesting.h"
#include <MGraphX/GraphX.h>

#include <algorithm>
#include <QCheckBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTextDocument>
#include <QTextDocumentFragment>

using MGraphX::GraphX;

namespace
{

const QString kName = QStringLiteral("Watermark");

/// The captions that show, and the object names of what shows without one, in order.
QStringList visibleControls(const QWidget& node)
{
    QStringList controls;
    for (const QWidget* widget : node.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool isCaption = label && label->text().endsWith(QLatin1Char(':'));
        const QString name = widget->objectName();
        if (widget->isVisibleTo(&node) && (isCaption || name.endsWith(QLatin1String("Button")))) {
            controls += isCaption ? label->text() : name;
        }
    }
    controls.sort();
    controls.removeDuplicates();
    return controls;
}

/// What a label shows of a text that may be markup.
QString shownText(const QLabel& label)
{
    return Qt::mightBeRichText(label.text())
               ? QTextDocumentFragment::fromHtml(label.text()).toPlainText()
               : label.text();
}

/// Size, grid and offsets of a mark; all or none of them can be used.
int usablePlaces(const BaseNode& node)
{
    const QWidget* const controls[] = {beside<QWidget>(node, "Size:"),
                                       node.findChild<DirectionsWidget*>(),
                                       beside<QWidget>(node, "x:"), beside<QWidget>(node, "y:")};
    return int(std::count_if(std::begin(controls), std::end(controls),
                             [&](const QWidget* control) { return control->isEnabledTo(&node); }));
}

QImage opaquePhoto()
{
    return noise(QSize(90, 70), 5, QImage::Format_ARGB32, true);
}

} // namespace

class TestWMRNode : public QObject
{
    Q_OBJECT

private slots:
    void startsWithADefaultMark()
    {
        WMRNode node(kName, nullptr);
        const QString family = node.findChild<QFontComboBox*>()->currentFont().family();
        QVERIFY(!family.isEmpty());
        QCOMPARE(written(node).join(QLatin1Char(' ')),
                 QStringLiteral("Active=yes Mode=0 Size=60 Text=Watermark Position=BottomRight "
                                "Expand=no Bold=no Italic=no Underlined=no XOffset=0 YOffset=0 "
                                "Transparency=25 Color=#ffffff Background=#000000 "
                                "BackgroundEnabled=yes Font=%1 ImageData= ImageName=corvane.png")
                     .arg(family));
        QSignalSpy changed(&node, &BaseNode::parametersChanged);
        QTest::keyClicks(beside<QLineEdit>(node, "Text:"), QStringLiteral("ab"));
        QCOMPARE(changed.count(), 2);
    }

    void eachKindShowsItsControls()
    {
        WMRNode node(kName, nullptr);
        const QStringList ofText = {
            "Background:",  "BoldButton", "DirectionButton", "Font:",
            "ItalicButton", "Kind:",      "Position:",       "Size:",
            "Text color:",  "Text:",      "Transparency:",   "UnderlinedButton",
            "x:",           "y:"};
        const QStringList ofImage = {
            "DirectionButton", "Expand:",         "Kind:",           "Logo:", "Position:", "Size:",
            "Transparency:",   "WMRBrowseButton", "WMRShrinkButton", "x:",    "y:"};
        for (const int kindOfMark : {0, 1, 0}) {
            kind(node)->setCurrentIndex(kindOfMark);
            QCOMPARE(visibleControls(node), kindOfMark == 0 ? ofText : ofImage);
            QCOMPARE(node.findChild<QCheckBox*>()->isVisibleTo(&node), kindOfMark == 0);
            QCOMPARE(node.findChild<QFontComboBox*>()->isVisibleTo(&node), kindOfMark == 0);
        }
    }

    void anExpandedLogoHasNoPlace()
    {
        WMRNode node(kName, nullptr);
        QPushButton* const expand = button(node, "WMRShrinkButton");
        QCOMPARE(usablePlaces(node), 4);
        kind(node)->setCurrentIndex(1);
        QCOMPARE(usablePlaces(node), 4);
        expand->click();
        QCOMPARE(usablePlaces(node), 0);
        QVERIFY(beside<QWidget>(node, "Transparency:")->isEnabledTo(&node));
        kind(node)->setCurrentIndex(0);
        QVERIFY(expand->isChecked());
        QCOMPARE(usablePlaces(node), 4);
        kind(node)->setCurrentIndex(1);
        QCOMPARE(usablePlaces(node), 0);
        expand->click();
        QCOMPARE(usablePlaces(node), 4);
        loadOne(node, "Expand", QStringLiteral("YES"));
        QCOMPARE(usablePlaces(node), 0);
    }

    void readingIsBoundedByTheControls()
    {
        const struct {
            const char* tag;
            const char* text;
            const char* told;
        } rows[] = {{"XOffset", "100", "33"},
                    {"YOffset", "-34", "-33"},
                    {"Size", "0", "1"},
                    {"Transparency", "101", "100"},
                    {"Color", "no colour", "#000000"},
                    {"Position", "topleft", "BottomRight"},
                    {"Position", "Center", "BottomRight"},
                    {"Position", "0", "BottomRight"},
                    {"Position", " Middle", "BottomRight"}};
        for (const auto& row : rows) {
            WMRNode node(kName, nullptr);
            loadOne(node, row.tag, QLatin1String(row.text));
            QCOMPARE(told(node, row.tag), QString::fromLatin1(row.told));
        }
        WMRNode node(kName, nullptr);
        const char* const inReadingOrder[] = {"TopLeft",    "TopMiddle",    "TopRight",
                                              "MiddleLeft", "Middle",       "MiddleRight",
                                              "BottomLeft", "BottomMiddle", "BottomRight"};
        for (int i = 0; i < 9; ++i) {
            loadOne(node, "Position", QLatin1String(inReadingOrder[i]));
            QCOMPARE(int(node.findChild<DirectionsWidget*>()->direction()), i);
            QCOMPARE(told(node, "Position"), QString::fromLatin1(inReadingOrder[i]));
        }
    }

    void aTextThatTellsLittleMarksLittle()
    {
        const QImage photo = opaquePhoto();
        const auto batch = [&photo](const QString& parameters) {
            return WMRNode::processFromXml(photo, QStringLiteral("<P>%1</P>").arg(parameters));
        };
        for (const char* little : {"<Text>Mark</Text>", "<Transparency>0</Transparency>",
                                   "<Mode>1</Mode><Size>50</Size>"}) {
            COMPARE_IMAGES(batch(little), photo);
        }
        // The rest that stands where nothing is told, told.
        const QString text = QStringLiteral("<Text>Mark</Text><Transparency>0</Transparency>");
        const QImage mark = batch(text);
        QVERIFY(mark != photo);
        COMPARE_IMAGES(batch(text + "<Mode>0</Mode><Size>0</Size><Position>BottomRight</Position>"
                                    "<Expand>no</Expand><Bold>no</Bold><Italic>no</Italic>"
                                    "<Underlined>no</Underlined><XOffset>0</XOffset>"
                                    "<YOffset>0</YOffset><Color>#ffffff</Color>"
                                    "<Background>#000000</Background>"
                                    "<BackgroundEnabled>Yes</BackgroundEnabled><ImageData/>"),
                       mark);
        QVERIFY(batch(text + "<BackgroundEnabled>1</BackgroundEnabled>") != mark);
        // Without data the batch, too, draws the default mark.
        const QString image =
            QStringLiteral("<Mode>1</Mode><Transparency>0</Transparency><Size>90</Size>");
        const QImage logo = batch(image);
        QVERIFY(logo != photo);
        COMPARE_IMAGES(batch(image + "<ImageData/><ImageName>mine.png</ImageName>"), logo);
    }

    void aUsersLogoTravelsInTheParameters()
    {
        const QImage photo = opaquePhoto();
        QString text;
        QImage marked;
        {
            Photos files;
            const QImage logo = noise(QSize(20, 15), 4, QImage::Format_ARGB32);
            // Its name says that it is for dense screens, which a parameter text does not tell.
            const QString file = files.path(QStringLiteral("logo@2x.png"));
            QVERIFY(logo.save(file));
            WMRNode node(kName, nullptr);
            kind(node)->setCurrentIndex(1);
            QSignalSpy changed(&node, &BaseNode::parametersChanged);
            browse(node, file);
            QCOMPARE(changed.count(), 1);
            QCOMPARE(told(node, "ImageName"), QStringLiteral("logo@2x.png"));
            COMPARE_IMAGES(GraphX::imageFromDataUrl(told(node, "ImageData"))
                               .convertToFormat(QImage::Format_ARGB32),
                           logo);
            marked = processed(node, photo);
            text = node.parametersText();
        }
        QVERIFY(marked != photo);
        WMRNode loaded(kName, nullptr);
        load(loaded, text);
        COMPARE_IMAGES(processed(loaded, photo), marked);
        COMPARE_IMAGES(WMRNode::processFromXml(photo, text), marked);
        // A new flow's mark stays where no data are told.
        loadOne(loaded, "ImageData", QString());
        COMPARE_IMAGES(processed(loaded, photo), marked);
        loadOne(loaded, "ImageData", QStringLiteral("data:image/png;base64,nonsense"));
        COMPARE_IMAGES(processed(loaded, photo), photo);
        COMPARE_IMAGES(WMRNode::processFromXml(photo, loaded.parametersText()), photo);
        // The default mark is known by its exact name alone, whatever the file was.
        load(loaded, text);
        loadOne(loaded, "ImageName", QStringLiteral("Corvane.png"));
        QVERIFY(told(loaded, "ImageData").startsWith(QLatin1String("data:image/png;base64,")));
        loadOne(loaded, "ImageName", QStringLiteral("corvane.png"));
        QCOMPARE(told(loaded, "ImageData"), QString());
    }

    void aFileThatIsNoImageGivesAWarning()
    {
        const QImage photo = opaquePhoto();
        for (const char* name : {"notes.txt", "<b>x.png", "a & b.png", "&lt;.png", "1 < 2.png"}) {
            Photos files;
            files.addFile(name, "no image");
            WMRNode node(kName, nullptr);
            kind(node)->setCurrentIndex(1);
            QSignalSpy changed(&node, &BaseNode::parametersChanged);
            QStringList texts;
            const auto chooseFile = [&](QDialog* dialog) {
                QCOMPARE(dialog->windowTitle(), QStringLiteral("Open the watermark file"));
                qobject_cast<QFileDialog*>(dialog)->selectFile(files.path(name));
                dialog->accept();
            };
            const auto readWarning = [&texts](QDialog* dialog) {
                texts += dialog->windowTitle();
                for (const QLabel* label : dialog->findChildren<QLabel*>()) {
                    texts += shownText(*label);
                }
                buttonOf(dialog, QStringLiteral("Ok"))->click();
            };
            const auto click = [&node] {
                button(node, "WMRBrowseButton")->click();
            };
            withModalDialogs(click, {chooseFile, readWarning});
            QVERIFY(texts.contains(QStringLiteral("Warning")));
            QVERIFY(texts.contains(QStringLiteral("Can not open the image file:") + name));
            withModalDialog(click, [](QDialog* dialog) { dialog->reject(); });
            QCOMPARE(changed.count(), 0);
            QCOMPARE(told(node, "ImageName"), QStringLiteral("corvane.png"));
            COMPARE_IMAGES(processed(node, photo), photo);
            COMPARE_IMAGES(WMRNode::processFromXml(photo, node.parametersText()), photo);
        }
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
                    const int needed =
                        qMin(widget->minimumSizeHint().height(), widget->maximumHeight());
                    QVERIFY2(node->rect().contains(place) && widget->height() >= needed,
                             widget->metaObject()->className());
                }
            }
        }
        qApp->setStyleSheet(QString());
    }
};

TESSARIN_TEST(TestWMRNode);
#include "tst_WMRNode.moc"
