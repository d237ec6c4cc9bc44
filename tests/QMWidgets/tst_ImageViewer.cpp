#include "support/Photos.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QMWidgets/ImageArea.h>
#include <QMWidgets/ImageViewer.h>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>

using QMWidgets::ImageArea;
using QMWidgets::ImageViewer;

namespace
{

const QSize kPhoto(1000, 600);

QImage picture(const QSize& size)
{
    return noise(size, 1, QImage::Format_RGB32, true);
}

/// A viewer on the screen, with its parts.
struct Viewer {
    Viewer()
    {
        viewer.resize(500, 500);
        viewer.show();
        viewer.slotLoad(picture(kPhoto));
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

} // namespace

class tst_ImageViewer : public QObject
{
    Q_OBJECT

private slots:
    void laysOutEachView()
    {
        const QSize size(300, 200);
        const struct {
            const char* name;
            QSize photo;
            int zoom; // 0 is the fitted view
            QSize picture;
            QSize label;
            const char* bars;
        } rows[] = {{"small", {30, 20}, 100, {30, 20}, size, ""},
                    {"as wide", {300, 199}, 100, {300, 199}, size, "across "},
                    {"as high", {299, 200}, 100, {299, 200}, size, "down"},
                    {"as large", size, 100, size, size, "across down"},
                    {"wider", {400, 20}, 100, {400, 20}, {400, 200}, "across "},
                    {"higher", {20, 400}, 100, {20, 400}, {300, 400}, "down"},
                    {"reduced", {1000, 700}, 40, {400, 280}, {400, 280}, "across down"},
                    {"rounded", {101, 99}, 50, {51, 50}, size, ""}, // 50.5 by 49.5
                    {"reduced to nothing", {20, 20}, 1, {}, size, ""},
                    {"fitted", {1000, 700}, 0, {285, 200}, size, ""},
                    {"fitted and enlarged", {30, 10}, 0, {300, 100}, size, ""},
                    {"nothing", {}, 50, {}, size, ""},
                    {"nothing fitted", {}, 0, {}, size, ""}};
        for (const auto& row : rows) {
            ImageArea area;
            area.resize(size);
            area.show();
            const QImage photo = row.photo.isEmpty() ? QImage() : picture(row.photo);
            area.setPixmap(QPixmap::fromImage(photo));
            if (row.zoom > 0) {
                area.slotZoom(row.zoom);
            }
            const auto* const scroll = area.findChild<QScrollArea*>();
            const auto* const label = area.findChild<QLabel*>(QStringLiteral("PreviewLabel"));
            const bool isAcross = scroll->horizontalScrollBarPolicy() == Qt::ScrollBarAsNeeded;
            const bool isDown = scroll->verticalScrollBarPolicy() == Qt::ScrollBarAsNeeded;
            const QString bars =
                QLatin1String(isAcross ? "across " : "") + QLatin1String(isDown ? "down" : "");
            QVERIFY2(bars == QLatin1String(row.bars), row.name);
            QVERIFY2(label->size() == row.label, row.name);
            QVERIFY2(scroll->geometry() == area.rect(), row.name);
            const QImage expected =
                row.picture.isEmpty()
                    ? QImage()
                    : photo.scaled(row.picture, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            const QImage shown = label->pixmap(Qt::ReturnByValue).toImage();
            QVERIFY2(shown.convertToFormat(expected.format()) == expected, row.name);
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
        v.viewer.slotLoad(picture(QSize(200, 400)));
        QCOMPARE(v.shown(), QSize(60, 120));
    }

    void followsTheControls()
    {
        const struct {
            const char* acts; // of the user, one after the other
            int zoom;         // 0 is the fitted view
            int value;
            const char* checks;
            const char* info;
        } rows[] = {
            {"", 0, 100, "fit ", ""},
            {"37", 37, 37, "", "<H1>37%</H1>"},
            {"37 ActualPixelsButton", 100, 100, "actual", "<H1>100%</H1>"},
            {"ActualPixelsButton ActualPixelsButton", 100, 100, "", "<H1>100%</H1>"},
            {"37 FitToScreenButton", 0, 37, "fit ", ""},
            {"37 FitToScreenButton FitToScreenButton", 0, 37, "", ""},
            {"37 FitToScreenButton press", 37, 37, "", "<H1>37%</H1>"},
            {"37 FitToScreenButton press release", 37, 37, "", ""},
            {"37 FitToScreenButton ZoomInButton", 36, 36, "", "<H1>36%</H1>"},
            {"37 ZoomOutButton ZoomOutButton", 39, 39, "", "<H1>39%</H1>"},
            {"99 ZoomOutButton", 100, 100, "actual", "<H1>100%</H1>"},
            {"ZoomOutButton", 0, 100, "fit ", ""},
            {"1 FitToScreenButton ZoomInButton", 0, 1, "fit ", ""},
        };
        for (const auto& row : rows) {
            Viewer v;
            v.area->slotHideInfo();
            const QByteArrayList acts = QByteArray(row.acts).split(' ');
            for (const QByteArray& act : acts) {
                if (act == "press" || act == "release") {
                    v.slider->setSliderDown(act == "press");
                } else if (act.toInt() > 0) {
                    v.slider->setValue(act.toInt());
                } else if (!act.isEmpty()) {
                    v.button(act)->click();
                }
            }
            const QSize expected = row.zoom > 0 ? kPhoto * row.zoom / 100 : v.fitted();
            QVERIFY2(v.shown() == expected, row.acts);
            QVERIFY2(v.slider->value() == row.value, row.acts);
            QVERIFY2(v.checks() == QLatin1String(row.checks), row.acts);
            QVERIFY2(v.infoShown() == QLatin1String(row.info), row.acts);
        }
    }
};

TESSARIN_TEST(tst_ImageViewer);
#include "tst_ImageViewer.moc"
