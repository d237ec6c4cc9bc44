#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <QFile>
#include <QLabel>
#include <QMWidgets/App.h>
#include <QMWidgets/ImageArea.h>
#include <QMWidgets/ImageViewer.h>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>

using QMWidgets::ImageArea;
using QMWidgets::ImageViewer;

namespace
{

const QSize kPhoto(1000, 600);

QPixmap pixmapOf(const QSize& size)
{
    return QPixmap::fromImage(noise(size, 1, QImage::Format_ARGB32, true));
}

/// A viewer on the screen, with its parts.
struct Viewer {
    explicit Viewer(const QSize& photo = kPhoto)
    {
        viewer.resize(500, 500);
        viewer.show();
        viewer.slotLoad(noise(photo, 1, QImage::Format_ARGB32, true));
    }

    QPushButton* button(const char* name)
    {
        return viewer.findChild<QPushButton*>(QLatin1String(name));
    }
    QLabel* label(const char* name) { return viewer.findChild<QLabel*>(QLatin1String(name)); }
    QSize shown() { return label("PreviewLabel")->pixmap(Qt::ReturnByValue).size(); }
    QSize fitted() { return kPhoto.scaled(area->size(), Qt::KeepAspectRatio); }
    QLabel* info() { return area->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly); }
    /// The text over the picture, or none if it is hidden.
    QString infoShown() { return info()->isVisible() ? info()->text() : QString(); }
    /// What is checked: the fit button, the one of actual pixels.
    QString checks()
    {
        return QLatin1String(button("FitToScreenButton")->isChecked() ? "fit " : "") +
               QLatin1String(button("ActualPixelsButton")->isChecked() ? "actual" : "");
    }

    ImageViewer viewer;
    ImageArea* area = viewer.findChild<ImageArea*>();
    QSlider* slider = viewer.findChild<QSlider*>(QStringLiteral("ImageViewSlider"));
};

void send(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

class tst_ImageViewer : public QObject
{
    Q_OBJECT

private slots:
    void laysOutEachView_data()
    {
        const Qt::ScrollBarPolicy off = Qt::ScrollBarAlwaysOff;
        const Qt::ScrollBarPolicy on = Qt::ScrollBarAsNeeded;
        const QSize area(300, 200);
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<int>("zoom"); // 0 is the fitted view
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("label");
        QTest::addColumn<Qt::ScrollBarPolicy>("across");
        QTest::addColumn<Qt::ScrollBarPolicy>("down");
        const auto row = [](const char* name, const QSize& photo, int zoom, const QSize& picture,
                            const QSize& label, Qt::ScrollBarPolicy across,
                            Qt::ScrollBarPolicy down) {
            QTest::newRow(name) << photo << zoom << picture << label << across << down;
        };
        row("small", {30, 20}, 100, {30, 20}, area, off, off);
        row("just smaller", {299, 199}, 100, {299, 199}, area, off, off);
        row("as wide", {300, 199}, 100, {300, 199}, area, on, off);
        row("as high", {299, 200}, 100, {299, 200}, area, off, on);
        row("as large", area, 100, area, area, on, on);
        row("wider", {400, 20}, 100, {400, 20}, {400, 200}, on, off);
        row("higher", {20, 400}, 100, {20, 400}, {300, 400}, off, on);
        row("reduced", {1000, 700}, 40, {400, 280}, {400, 280}, on, on);
        row("rounded", {101, 99}, 50, {51, 50}, area, off, off); // 50.5 by 49.5
        row("reduced to nothing", {20, 20}, 1, {}, area, off, off);
        row("fitted", {1000, 700}, 0, {285, 200}, area, off, off);
        row("fitted and enlarged", {30, 10}, 0, {300, 100}, area, off, off);
        row("nothing", {}, 50, {}, area, off, off);
        row("nothing fitted", {}, 0, {}, area, off, off);
    }

    void laysOutEachView()
    {
        QFETCH(QSize, photo);
        QFETCH(int, zoom);
        QFETCH(QSize, picture);
        ImageArea area;
        area.resize(300, 200);
        area.show();
        const QPixmap full = photo.isEmpty() ? QPixmap() : pixmapOf(photo);
        area.setPixmap(full);
        if (zoom > 0) {
            area.slotZoom(zoom);
        }
        auto* const scroll = area.findChild<QScrollArea*>();
        auto* const label = area.findChild<QLabel*>(QStringLiteral("PreviewLabel"));
        QTEST(label->size(), "label");
        QTEST(scroll->horizontalScrollBarPolicy(), "across");
        QTEST(scroll->verticalScrollBarPolicy(), "down");
        QCOMPARE(scroll->geometry(), area.rect());
        QCOMPARE(scroll->viewport()->width() + (scroll->verticalScrollBar()->isVisible()
                                                    ? scroll->verticalScrollBar()->width()
                                                    : 0),
                 area.width());
        const QImage shown = label->pixmap(Qt::ReturnByValue).toImage();
        if (picture.isEmpty()) {
            QVERIFY(shown.isNull());
        } else {
            COMPARE_IMAGES(
                shown,
                full.scaled(picture, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).toImage());
        }
    }

    void keepsTheViewForTheNextPictureAndSize()
    {
        Viewer v;
        QCOMPARE(v.shown(), v.fitted());
        v.viewer.resize(700, 600);
        QCOMPARE(v.shown(), v.fitted());
        v.slider->setValue(30);
        v.viewer.resize(450, 450);
        QCOMPARE(v.shown(), kPhoto * 30 / 100);
        v.viewer.slotLoad(QStringLiteral("missing.png"));
        QVERIFY(v.shown().isEmpty());
        v.viewer.slotLoad(noise(QSize(200, 400), 2));
        QCOMPARE(v.shown(), QSize(60, 120));
    }

    /// Each row is what the user does, one after the other, and what is seen then.
    void followsTheControls_data()
    {
        using Acts = QStringList;
        QTest::addColumn<QStringList>("acts");
        QTest::addColumn<int>("zoom"); // 0 is the fitted view
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("checks");
        QTest::addColumn<QString>("info");
        const auto row = [](const char* name, const Acts& acts, int zoom, int value,
                            const char* checks, const char* info) {
            QTest::newRow(name) << acts << zoom << value << QString::fromLatin1(checks)
                                << QString::fromLatin1(info);
        };
        row("start", {}, 0, 100, "fit ", "");
        row("slide", {"37"}, 37, 37, "", "<H1>37%</H1>");
        row("slide to the end", {"37", "100"}, 100, 100, "actual", "<H1>100%</H1>");
        row("actual from fitted", {"ActualPixelsButton"}, 100, 100, "actual", "<H1>100%</H1>");
        row("actual from elsewhere", {"37", "ActualPixelsButton"}, 100, 100, "actual",
            "<H1>100%</H1>");
        row("actual off", {"ActualPixelsButton", "ActualPixelsButton"}, 100, 100, "",
            "<H1>100%</H1>");
        row("fit", {"37", "FitToScreenButton"}, 0, 37, "fit ", "");
        row("fit from actual", {"ActualPixelsButton", "FitToScreenButton"}, 0, 100, "fit ", "");
        row("fit twice", {"37", "FitToScreenButton", "FitToScreenButton"}, 0, 37, "", "");
        row("press the handle", {"37", "FitToScreenButton", "press"}, 37, 37, "", "<H1>37%</H1>");
        row("and let go", {"37", "FitToScreenButton", "press", "release"}, 37, 37, "", "");
        row("minus", {"37", "FitToScreenButton", "ZoomInButton"}, 36, 36, "", "<H1>36%</H1>");
        row("plus", {"37", "ZoomOutButton", "ZoomOutButton"}, 39, 39, "", "<H1>39%</H1>");
        row("plus to the end", {"99", "ZoomOutButton"}, 100, 100, "actual", "<H1>100%</H1>");
        row("plus at the end", {"ZoomOutButton"}, 0, 100, "fit ", "");
        row("minus at the end", {"1", "FitToScreenButton", "ZoomInButton"}, 0, 1, "fit ", "");
    }

    void followsTheControls()
    {
        QFETCH(QStringList, acts);
        QFETCH(int, zoom);
        Viewer v;
        v.area->slotHideInfo();
        for (const QString& act : acts) {
            if (act == QLatin1String("press") || act == QLatin1String("release")) {
                v.slider->setSliderDown(act == QLatin1String("press"));
            } else if (act.toInt() > 0) {
                v.slider->setValue(act.toInt());
            } else {
                v.button(qPrintable(act))->click();
            }
        }
        QCOMPARE(v.shown(), zoom > 0 ? kPhoto * zoom / 100 : v.fitted());
        QTEST(v.slider->value(), "value");
        QTEST(v.checks(), "checks");
        QTEST(v.infoShown(), "info");
    }

    void overlayFollowsTheMouse()
    {
        Viewer v;
        auto* const next = v.button("NextImageButton");
        auto* const previous = v.button("PreviousImageButton");
        const auto overlay = [&] {
            return QLatin1String(next->isVisible() ? "next " : "") +
                   QLatin1String(previous->isVisible() ? "previous " : "") + v.infoShown();
        };
        v.viewer.setInfo(QStringLiteral("text"));
        QCOMPARE(overlay(), QStringLiteral("next previous text"));
        send(v.area, QEvent::Leave);
        QCOMPARE(overlay(), QString());
        v.viewer.setSingleImage(false);
        QCOMPARE(overlay(), QString());
        send(v.area, QEvent::Enter);
        QCOMPARE(overlay(), QStringLiteral("next previous text"));
        v.viewer.setSingleImage(true);
        QCOMPARE(overlay(), QString());
        v.button("FitToScreenButton")->click();
        send(v.area, QEvent::Enter);
        QCOMPARE(overlay(), QStringLiteral("<H1>Fit to Window</H1>"));
    }

    void showsLoadingUntilThePictureComes()
    {
        Viewer v;
        auto* const loading = v.label("ImageLoadingLabel");
        QVERIFY(!loading->isVisible());
        QStringList told;
        connect(&v.viewer, &ImageViewer::next, this, [&] {
            told += QStringLiteral("next");
            QVERIFY(loading->isVisible());
            v.viewer.slotLoad(QImage());
        });
        connect(&v.viewer, &ImageViewer::previous, this,
                [&] { told += QStringLiteral("previous"); });
        connect(&v.viewer, &ImageViewer::infoChanged, this,
                [&] { told += QStringLiteral("info"); });
        v.button("NextImageButton")->click();
        QVERIFY(!loading->isVisible());
        v.button("PreviousImageButton")->click();
        QVERIFY(loading->isVisible());
        QCOMPARE(told, QStringList({"next", "info", "previous", "info"}));
    }

    void handsTheWholePictureToTheDesktop()
    {
        const QString path = QMWidgets::App::appHomeFolder(false) + QStringLiteral("preview.png");
        Viewer v;
        v.slider->setValue(10);
        QSignalSpy opened(&v.viewer, &ImageViewer::systemPreviewOpened);
        {
            UrlCatcher desktop;
            v.button("SysPreviewButton")->click();
            v.viewer.slotLoad(noise(kPhoto, 2, QImage::Format_ARGB32, true));
            v.button("SysPreviewButton")->click();
            const QUrl url = QUrl::fromLocalFile(path);
            QCOMPARE(desktop.take(), QList<QUrl>({url, url}));
        }
        QCOMPARE(opened.count(), 2);
        QCOMPARE(QImage(path).convertToFormat(QImage::Format_ARGB32),
                 noise(kPhoto, 2, QImage::Format_ARGB32, true));
    }

    void theKeyboardGoesThroughTheRowAsTheEye()
    {
        Viewer v;
        QStringList order;
        QWidget* widget = v.button("ZoomInButton");
        for (int i = 0; i < 5; ++i) {
            order += widget->objectName();
            widget = widget->nextInFocusChain();
        }
        QCOMPARE(order, QStringList({"ZoomInButton", "ImageViewSlider", "ZoomOutButton",
                                     "ActualPixelsButton", "FitToScreenButton"}));
    }
};

TESSARIN_TEST(tst_ImageViewer);
#include "tst_ImageViewer.moc"
