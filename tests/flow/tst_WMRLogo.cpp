#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "WatermarkTesting.h"
#include <MGraphX/GraphX.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTextDocument>
#include <QTextDocumentFragment>

using MGraphX::GraphX;

namespace
{

/// What a label shows of a text that may be markup.
QString shownText(const QLabel& label)
{
    return Qt::mightBeRichText(label.text())
               ? QTextDocumentFragment::fromHtml(label.text()).toPlainText()
               : label.text();
}

} // namespace

class TestWMRLogo : public QObject
{
    Q_OBJECT

private slots:
    void aUsersLogoTravelsInTheParameters()
    {
        const QImage photo = noise(QSize(90, 70), 5, QImage::Format_ARGB32, true);
        QString text;
        QImage marked;
        {
            Photos files;
            const QImage logo = noise(QSize(20, 15), 4, QImage::Format_ARGB32);
            // Its name says that it is for dense screens, which a parameter text does not tell.
            const QString file = files.path(QStringLiteral("logo@2x.png"));
            QVERIFY(logo.save(file));
            WMRNode node(QStringLiteral("Watermark"), nullptr);
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
        WMRNode loaded(QStringLiteral("Watermark"), nullptr);
        load(loaded, text);
        COMPARE_IMAGES(processed(loaded, photo), marked);
        COMPARE_IMAGES(WMRNode::processFromXml(photo, text), marked);
        // A new flow's mark stays where no data are told.
        loadOne(loaded, "ImageData", QString());
        COMPARE_IMAGES(processed(loaded, photo), marked);
        loadOne(loaded, "ImageData", QStringLiteral("data:image/png;base64,nonsense"));
        COMPARE_IMAGES(processed(loaded, photo), photo);
        COMPARE_IMAGES(WMRNode::processFromXml(photo, loaded.parametersText()), photo);
    }

    void theDefaultMarkIsKnownByItsNameAlone()
    {
        Photos files;
        files.add(QStringLiteral("corvane.png"));
        WMRNode node(QStringLiteral("Watermark"), nullptr);
        browse(node, files.path(QStringLiteral("corvane.png")));
        QCOMPARE(told(node, "ImageName"), QStringLiteral("corvane.png"));
        QCOMPARE(told(node, "ImageData"), QString());
        beside<QLineEdit>(node, "Logo:")->setText(QStringLiteral("Corvane.png"));
        QVERIFY(told(node, "ImageData").startsWith(QLatin1String("data:image/png;base64,")));
    }

    void aFileThatIsNoImageGivesAWarning_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"notes.txt", "<b>x.png", "a & b.png", "&lt;.png", "1 < 2.png"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void aFileThatIsNoImageGivesAWarning()
    {
        QFETCH(QString, name);
        Photos files;
        files.addFile(name, "no image");
        const QString file = files.path(name);
        const QImage photo = noise(QSize(90, 70), 5);
        WMRNode node(QStringLiteral("Watermark"), nullptr);
        kind(node)->setCurrentIndex(1);
        QSignalSpy changed(&node, &BaseNode::parametersChanged);
        QStringList texts;
        const auto click = [&node] {
            button(node, "WMRBrowseButton")->click();
        };
        withModalDialogs(click, {[&file](QDialog* dialog) {
                                     QCOMPARE(dialog->windowTitle(),
                                              QStringLiteral("Open the watermark file"));
                                     qobject_cast<QFileDialog*>(dialog)->selectFile(file);
                                     dialog->accept();
                                 },
                                 [&texts](QDialog* dialog) {
                                     texts += dialog->windowTitle();
                                     for (const QLabel* label : dialog->findChildren<QLabel*>()) {
                                         texts += shownText(*label);
                                     }
                                     buttonOf(dialog, QStringLiteral("Ok"))->click();
                                 }});
        QVERIFY(texts.contains(QStringLiteral("Warning")));
        QVERIFY(texts.contains(QStringLiteral("Can not open the image file:") + name));
        QCOMPARE(changed.count(), 0);
        COMPARE_IMAGES(WMRNode::processFromXml(photo, node.parametersText()), photo);
        QCOMPARE(told(node, "ImageName"), QStringLiteral("corvane.png"));
        COMPARE_IMAGES(processed(node, photo), photo);
        withModalDialog(click, [](QDialog* dialog) { dialog->reject(); });
        QCOMPARE(changed.count(), 0);
    }
};

TESSARIN_TEST(TestWMRLogo);
#include "tst_WMRLogo.moc"
