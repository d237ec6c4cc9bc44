#include "flow/NodesOptionsPanel.h"
#include "intake/CommonData.h"
#include "intake/Creator.h"
#include "intake/CreatorDropArea.h"
#include "intake/ListView.h"
#include "support/DropEvents.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <functional>
#include <QBuffer>
#include <QFile>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollBar>
#include <QTimer>
#include <utility>

/// The source panel with its options panel and three photos of different sizes.
class SourcePanel
{
public:
    SourcePanel()
    {
        QObject::connect(&creator, &Creator::imageChanged, &creator,
                         [this](const QImage& image) { m_widths += image.width(); });
        creator.show();
        creator.setFiles({photos.add(QStringLiteral("a.png"), QSize(10, 10)),
                          photos.add(QStringLiteral("b.png"), QSize(20, 20)),
                          photos.add(QStringLiteral("c.png"), QSize(30, 30))});
        m_widths.clear();
    }

    ListView* view() { return creator.findChild<ListView*>(); }
    void showStrip() { creator.findChild<QPushButton*>(QStringLiteral("IconViewButton"))->click(); }
    /// Of the results since the last call.
    QList<int> widths() { return std::exchange(m_widths, {}); }

    Photos photos;
    NodesOptionsPanel options{nullptr};
    Creator creator{&options, nullptr};

private:
    QList<int> m_widths;
};

/// A JPEG file whose camera was held upright.
QByteArray turnedJpeg()
{
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    noise(QSize(50, 30), 1).save(&buffer, "JPEG");
    return jpeg.insert(2, QByteArray::fromHex("ffe10022457869660000" // APP1, Exif
                                              "4d4d002a000000080001" // one entry
                                              "0112000300000001000600000000"
                                              "0000"));
}

class TestCreator : public QObject
{
    Q_OBJECT

private slots:
    void photosAndStepsRunTheFlowOnceWithTheSquareShown()
    {
        SourcePanel panel;
        dropUrls(panel.creator.findChild<CreatorDropArea*>(),
                 {panel.photos.add(QStringLiteral("d.png"), QSize(40, 40)),
                  panel.photos.add(QStringLiteral("e.png"), QSize(50, 50))});
        QCOMPARE(panel.widths(), QList<int>({40}));
        panel.creator.slotNext();
        panel.creator.slotPrevious();
        panel.creator.slotPrevious();
        QCOMPARE(panel.widths(), QList<int>({50, 40, 50}));
        panel.showStrip();
        QCOMPARE(panel.widths(), QList<int>());
        QCOMPARE(panel.view()->currentIndex().row(), 1);
    }

    void squareAndFlowGetWhatIsInTheFile()
    {
        SourcePanel panel;
        Photos& photos = panel.photos;
        const QImage clear = noise(QSize(400, 300), 1);
        const QImage opaque = noise(QSize(1000, 300), 1, QImage::Format_ARGB32, true);
        const auto add = [&photos](const char* name, const QImage& image, QImage::Format format) {
            return photos.add(QLatin1String(name), image.convertToFormat(format));
        };
        QFile animated(QStringLiteral(":/arrow.gif"));
        QVERIFY(animated.open(QIODevice::ReadOnly));
        QList<QUrl> files = {add("clear.png", clear, QImage::Format_ARGB32),
                             add("twice@2x.png", clear, QImage::Format_ARGB32),
                             add("thrice@3x.jpg", opaque, QImage::Format_RGB32),
                             add("opaque.png", opaque, QImage::Format_ARGB32),
                             add("rgb.bmp", opaque, QImage::Format_RGB32),
                             add("fits.png", opaque.copy(0, 0, 720, 300), QImage::Format_RGB32),
                             add("palette.png", opaque, QImage::Format_Indexed8),
                             add("clear palette.png", clear, QImage::Format_Indexed8),
                             add("bits.png", opaque, QImage::Format_Mono),
                             add("grey.png", opaque, QImage::Format_Grayscale8),
                             add("grey.jpg", opaque, QImage::Format_Grayscale8),
                             add("deep grey.png", opaque, QImage::Format_Grayscale16),
                             add("deep.png", opaque, QImage::Format_RGBX64),
                             add("deep clear.png", clear, QImage::Format_RGBA64),
                             add("line.png", opaque.copy(0, 0, 1000, 1), QImage::Format_RGB32),
                             photos.addFile(QStringLiteral("turned.jpg"), turnedJpeg()),
                             photos.addFile(QStringLiteral("animated.gif"), animated.readAll()),
                             photos.addFile(QStringLiteral("cut.jpg"), turnedJpeg().left(900)),
                             photos.addFile(QStringLiteral("none.png"), "no picture"),
                             photos.addFolder(QStringLiteral("folder")),
                             QUrl::fromLocalFile(photos.path(QStringLiteral("missing.png")))};
        auto* const square = panel.creator.findChild<CreatorDropArea*>();
        QImage source;
        connect(&panel.options, &NodesOptionsPanel::imageChanged, square,
                [&source](const QImage& image) { source = image; });
        CommonData::instance()->setPreviewMode(false);
        const auto atEnd = qScopeGuard([] { CommonData::instance()->setPreviewMode(true); });
        panel.creator.setFiles(files);
        for (const QUrl& file : qAsConst(files)) {
            const QString path = file.toLocalFile();
            QImage image(path);
            image.setDevicePixelRatio(1.0);
            COMPARE_IMAGES(source, image.convertToFormat(QImage::Format_ARGB32));
            const QPixmap pixmap(path);
            const QPixmap reduced = pixmap.isNull() ? pixmap
                                                    : pixmap.scaled(720, 720, Qt::KeepAspectRatio,
                                                                    Qt::SmoothTransformation);
            COMPARE_IMAGES(square->pixmap().toImage(), reduced.toImage());
            QCOMPARE(square->pixmap().devicePixelRatio(), reduced.devicePixelRatio());
            panel.creator.slotNext();
        }
    }

    void stepsRunTheFlowOnceWithTheStripShown()
    {
        SourcePanel panel;
        panel.showStrip();
        panel.creator.slotNext();
        panel.creator.slotPrevious();
        QTest::keyClick(panel.view(), Qt::Key_Down);
        QCOMPARE(panel.widths(), QList<int>({20, 10, 20}));
        // Deliberate: the way back to the first runs once for itself and once for the strip's row.
        panel.creator.slotGotoFirst();
        QCOMPARE(panel.widths(), QList<int>({10, 10}));
    }

    void theCurrentPhotoIsTheSelectedRow()
    {
        SourcePanel panel;
        panel.showStrip();
        ListView* const view = panel.view();
        const std::function<void(int)> picks[] = {
            [view](int) { QTest::keyClick(view, Qt::Key_Down); },
            // Control would take the selection away.
            [view](int row) {
                QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ControlModifier,
                                  view->visualRect(view->model()->index(row, 0)).center());
            }};
        for (const auto& pick : picks) {
            panel.creator.slotGotoFirst();
            // The second comes in the run that the first starts.
            QTimer::singleShot(0, &panel.creator, [&pick] { pick(2); });
            pick(1);
            QCOMPARE(view->currentIndex().row(), 2);
            QCOMPARE(view->selectionModel()->selectedIndexes(), {view->currentIndex()});
        }
    }

    void aHeldKeyStepsOnceTheFormerStepIsShown()
    {
        SourcePanel panel;
        const auto send = [](QWidget* widget, QEvent::Type type, Qt::Key key, bool isRepeat) {
            QKeyEvent event(type, key, Qt::NoModifier, QString(), isRepeat);
            event.setTimestamp(7);
            QCoreApplication::sendEvent(widget, &event);
        };
        const auto hold = [&](QWidget* widget, Qt::Key key) {
            QTimer::singleShot(0, widget, [=] { send(widget, QEvent::KeyPress, key, true); });
            QTest::keyClick(widget, key);
            send(widget, QEvent::KeyPress, key, true);
            // At one and the same time: no finger does that.
            send(widget, QEvent::KeyRelease, key, false);
            send(widget, QEvent::KeyPress, key, false);
            QCOMPARE(CommonData::instance()->currentIndex(), 1);
            QVERIFY(QTest::qWaitFor([&] {
                send(widget, QEvent::KeyPress, key, true);
                return CommonData::instance()->currentIndex() == 2;
            }));
        };
        hold(panel.creator.findChild<CreatorDropArea*>(), Qt::Key_Right);
        panel.showStrip();
        panel.creator.slotGotoFirst();
        hold(panel.view(), Qt::Key_Down);
    }

    void newPhotosMayComeInTheRunOfTheStrip()
    {
        SourcePanel panel;
        const QUrl photo = panel.photos.add(QStringLiteral("d.png"), QSize(40, 40));
        QList<QUrl> many;
        for (int i = 0; i < 100; ++i) {
            many += photo;
        }
        panel.creator.setFiles(many);
        panel.showStrip();
        panel.creator.slotPrevious();
        QTRY_VERIFY_WITH_TIMEOUT(panel.view()->verticalScrollBar()->value() > 0, 60000);
        QTimer::singleShot(0, &panel.creator, [&] { panel.creator.setFiles({photo}); });
        panel.creator.slotPrevious();
        QCOMPARE(panel.view()->model()->rowCount(), 1);
        QVERIFY(!panel.view()->currentIndex().isValid());
    }
};

TESSARIN_TEST(TestCreator);
#include "tst_Creator.moc"
