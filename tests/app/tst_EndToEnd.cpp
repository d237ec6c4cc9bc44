#include "flow/BaseNode.h"
#include "flow/ComboSlider.h"
#include "flow/NodesTabBar.h"
#include "intake/CreatorDropArea.h"
#include "preview/ImagePreview.h"
#include "Program.h"
#include "reference/ToneReference.h"
#include "support/DropEvents.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <QDir>
#include <QGroupBox>

namespace
{

void add(Program& program, const char* operation)
{
    for (QAction* action : program.addMenu()->actions()) {
        if (action->text() == QLatin1String(operation)) {
            action->trigger();
        }
    }
}

QImage shownResult(Program& program)
{
    QMWidgets::Label* const preview = program.page->findChild<ImagePreview*>();
    return preview->pixmap().toImage();
}

/// Presses "Save Results" and waits for the run; gives its folder.
QDir saveResults(Program& program)
{
    UrlCatcher opened;
    program.button("RunBatchButton")->click();
    const QList<QUrl> urls = opened.take();
    return urls.size() == 1 ? QDir(urls.first().toLocalFile()) : QDir(QStringLiteral("missing"));
}

QByteArray contentOf(const QUrl& url)
{
    QFile file(url.toLocalFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void set(const char* key, const QVariant& value)
{
    QMWidgets::App::app()->setSettingsValue(QLatin1String(key), value);
}

} // namespace

class TestEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void fromDroppedPhotosToAFolderOfResults()
    {
        Photos photos;
        const QList<QUrl> urls = {photos.add(QStringLiteral("wide.png"), QSize(900, 600), 1),
                                  photos.add(QStringLiteral("tall.bmp"), QSize(301, 901), 2),
                                  photos.addFile(QStringLiteral("broken.png"), "no picture"),
                                  photos.add(QStringLiteral("dot.png"), QSize(1, 1), 3)};
        QList<QByteArray> contents;
        for (const QUrl& url : urls) {
            contents += contentOf(url);
        }

        Program program;
        QVERIFY(QFile::exists(QDir::homePath() + QStringLiteral("/Tessarin/Flows/sample.flow")));
        QVERIFY(program.dropWindow->isVisible());
        QVERIFY(!program.page->isVisible());
        QVERIFY(dropUrls(program.dropWindow, urls));
        QVERIFY(!program.dropWindow->isVisible());
        QVERIFY(program.page->isVisible());

        add(program, "Grayscale");
        add(program, "Brightness, Contrast, Saturation");
        program.node()->findChildren<ComboSlider*>().at(0)->setValue(40);
        program.node()->findChildren<ComboSlider*>().at(2)->setValue(30);
        add(program, "Invert");
        QTest::keyClick(program.node()->findChild<QGroupBox*>(), Qt::Key_Space);
        add(program, "Binarization");
        program.page->findChild<NodesTabBar*>()->moveTab(1, 0);

        const auto expected = [](const QUrl& url) {
            const QImage photo = QImage(url.toLocalFile()).convertToFormat(QImage::Format_ARGB32);
            const QImage toned = reference::brightnessContrastSaturation(photo, 40, 0, 30 / 50.0f);
            return reference::binarize(reference::grayscale(toned), 127);
        };
        program.button("NextImageButton")->click();
        QCOMPARE(shownResult(program).height(), 360);
        program.page->findChild<ImagePreview*>()
            ->findChild<QPushButton*>(QStringLiteral("PreviousImageButton"))
            ->click();
        QCOMPARE(shownResult(program).width(), 360);

        set("KeyFormat", QStringLiteral("PNG"));
        set("KeyRename", false);
        const QDir results = saveResults(program);
        QCOMPARE(results.entryList(QDir::Files, QDir::Name),
                 QStringList({"dot.png", "tall.png", "wide.png"}));
        for (const int index : {0, 1, 3}) {
            const QString name = QFileInfo(urls.at(index).fileName()).completeBaseName();
            const QImage saved(results.filePath(name + QStringLiteral(".png")));
            QCOMPARE(saved.convertToFormat(QImage::Format_ARGB32), expected(urls.at(index)));
        }

        set("KeyFormat", QStringLiteral("BMP"));
        set("KeyRename", true);
        set("KeyNumbers", 1);
        const QDir renamed = saveResults(program);
        QCOMPARE(renamed.entryList({QStringLiteral("*.bmp")}, QDir::Files, QDir::Name),
                 QStringList({"NewName1.bmp", "NewName3.bmp", "NewName7.bmp"}));
        for (int i = 0; i < urls.size(); ++i) {
            QCOMPARE(contentOf(urls.at(i)), contents.at(i));
        }
    }
};

TESSARIN_TEST(TestEndToEnd);
#include "tst_EndToEnd.moc"
