#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "WatermarkTesting.h"
#include <MGraphX/GraphX.h>

#include <QColorSpace>
#include <QSignalSpy>

using MGraphX::GraphX;

namespace
{

const QString kName = QStringLiteral("Watermark");

QImage opaquePhoto()
{
    return noise(QSize(90, 70), 5, QImage::Format_ARGB32, true);
}

/// What a new node makes of the photo in image mode.
QImage withDefaultMark(const QImage& photo)
{
    WMRNode node(kName, nullptr);
    kind(node)->setCurrentIndex(1);
    return processed(node, photo);
}

} // namespace

class TestWMRNode : public QObject
{
    Q_OBJECT

private slots:
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
                    {"Position", "MiddleRight", "MiddleRight"}};
        for (const auto& row : rows) {
            WMRNode node(kName, nullptr);
            loadOne(node, row.tag, QLatin1String(row.text));
            QCOMPARE(told(node, row.tag), QString::fromLatin1(row.told));
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
        COMPARE_IMAGES(processed(loaded, photo), withDefaultMark(photo));
    }

    /// So the preview draws what the batch reads, and a text is the same each time it is written.
    void aLogoIsHeldAsItsTextTellsIt()
    {
        const QSize size(40, 23); // whole bytes in a row of bits
        QVector<QImage> logos = {noise(size, 3)};
        QVERIFY(logos[0].reinterpretAsFormat(QImage::Format_RGB32)); // the unused byte isn't 255
        for (int format = QImage::Format_Mono; format < QImage::NImageFormats; ++format) {
            logos += noise(size, 3).convertToFormat(QImage::Format(format));
        }
        const QString png = QStringLiteral("PNG");
        for (QImage logo : qAsConst(logos)) {
            logo.setDotsPerMeterX(1234);
            logo.setDevicePixelRatio(2);
            logo.setOffset(QPoint(3, 4));
            logo.setText(QString(), QStringLiteral("lost without a key"));
            logo.setText(QStringLiteral("Comment"), QStringLiteral("a"));
            logo.setColorSpace(QColorSpace::DisplayP3);
            const QImage held = WMRXml::imageAsTold(logo);
            const QImage read = GraphX::imageFromDataUrl(GraphX::imageToDataUrl(logo, png, -1));
            COMPARE_IMAGES(held, read);
            QCOMPARE(held.devicePixelRatio(), 1.0);
            QCOMPARE(held.colorTable(), read.colorTable());
            QCOMPARE(GraphX::imageToDataUrl(held, png, -1), GraphX::imageToDataUrl(read, png, -1));
        }
    }

    void aFileThatIsNoImageGivesAWarning()
    {
        const struct {
            const char* name;
            const char* shown; ///< the name in the warning's markup
        } rows[] = {{"notes.txt", "notes.txt"}, {"<b>x.png", "&lt;b&gt;x.png"}};
        const QImage photo = opaquePhoto();
        for (const auto& row : rows) {
            Photos files;
            files.addFile(row.name, "no image");
            WMRNode node(kName, nullptr);
            kind(node)->setCurrentIndex(1);
            QString warning;
            const auto chooseFile = [&](QDialog* dialog) {
                qobject_cast<QFileDialog*>(dialog)->selectFile(files.path(row.name));
                dialog->accept();
            };
            const auto readWarning = [&warning](QDialog* dialog) {
                for (const QLabel* label : dialog->findChildren<QLabel*>()) {
                    warning += label->text();
                }
                dialog->reject();
            };
            withModalDialogs([&node] { button(node, "WMRBrowseButton")->click(); },
                             {chooseFile, readWarning});
            QVERIFY2(warning.contains(row.shown), qPrintable(warning));
            QCOMPARE(told(node, "ImageName"), QStringLiteral("corvane.png"));
            // Whatever the logo is, that name stands for the default mark.
            QCOMPARE(told(node, "ImageData"), QString());
            COMPARE_IMAGES(processed(node, photo), withDefaultMark(photo));
            COMPARE_IMAGES(WMRNode::processFromXml(photo, node.parametersText()),
                           withDefaultMark(photo));
        }
    }
};

TESSARIN_TEST(TestWMRNode);
#include "tst_WMRNode.moc"
