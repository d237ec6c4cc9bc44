#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QMWidgets/App.h>
#include <QMWidgets/Label.h>
#include <QPainter>
#include <QProcess>

using QMWidgets::App;
using QMWidgets::Label;

namespace
{

QImage grabbed(Label& label)
{
    label.setStyleSheet(QStringLiteral("background-color: white"));
    return label.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// What is not white, the ground.
QRect boundsOf(const QImage& image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != qRgb(255, 255, 255)) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

} // namespace

class tst_Label : public QObject
{
    Q_OBJECT

private slots:
    /// The left half of each picture is red, the right one blue.
    void placesThePicture()
    {
        const struct {
            const char* name;
            bool isExpanding;
            QSize label;
            QSize picture;
            QRect place;
            QPoint middle;
        } rows[] = {{"wide", false, {40, 40}, {20, 10}, {0, 10, 40, 20}, {20, 20}},
                    {"high", false, {40, 40}, {10, 20}, {10, 0, 20, 40}, {20, 20}},
                    {"larger", false, {40, 20}, {400, 400}, {10, 0, 20, 20}, {20, 10}},
                    {"equal", false, {30, 20}, {300, 200}, {0, 0, 30, 20}, {15, 10}},
                    // (21 - 14) / 2 is truncated to 3.
                    {"odd rest", false, {42, 21}, {6, 2}, {0, 3, 42, 14}, {21, 10}},
                    // From the corner: the picture becomes 60 wide, its end is cut off.
                    {"expanding", true, {40, 30}, {20, 10}, {0, 0, 40, 30}, {30, 15}}};
        const int ratio = int(App::devicePixelRatio());
        for (const auto& row : rows) {
            QPixmap picture(row.picture);
            picture.fill(Qt::red);
            const int half = row.picture.width() / 2;
            QPainter(&picture).fillRect(half, 0, half, row.picture.height(), Qt::blue);
            Label label;
            label.resize(row.label);
            label.setExpanding(row.isExpanding);
            label.setPixmap(picture);
            const QImage shown = grabbed(label);
            const QRect place(row.place.topLeft() * ratio, row.place.size() * ratio);
            QVERIFY2(boundsOf(shown) == place, row.name);
            const QPoint step(5, 0);
            QVERIFY2(shown.pixelColor((row.middle - step) * ratio) == Qt::red, row.name);
            QVERIFY2(shown.pixelColor((row.middle + step) * ratio) == Qt::blue, row.name);
        }
    }

    /// Each pixel of the picture is one of the screen, wherever the label begins between two.
    void isSharpOnThisScreen()
    {
        const double ratio = App::devicePixelRatio();
        for (const QSize& size : {QSize(90, 90), QSize(41, 99), QSize(100, 180)}) {
            // 100 times 1.15 is less than 115 as a binary number.
            const QSize box(int(size.width() * ratio + 0.001), int(size.height() * ratio + 0.001));
            const QSize fitted = QSize(300, 200).scaled(box, Qt::KeepAspectRatio);
            const QImage picture = noise(fitted, 1, QImage::Format_RGB32, true);
            for (int place = 0; place < 8; ++place) {
                QWidget window;
                window.setStyleSheet(QStringLiteral("background-color: white"));
                Label label(&window);
                label.setGeometry(QRect(QPoint(place, place), size));
                label.setPixmap(QPixmap::fromImage(picture));
                const QImage all = window.grab().toImage().convertToFormat(picture.format());
                QImage shown = all.copy(boundsOf(all));
                shown.setDevicePixelRatio(1);
                COMPARE_IMAGES(shown, picture);
            }
        }
    }

    void isSharpAtEachRatio()
    {
        for (const char* ratio :
             {"1.04", "1.1", "1.15", "1.25", "1.3", "1.5", "1.67", "1.75", "2.5"}) {
            QProcess self;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QLatin1String(ratio));
            self.setProcessEnvironment(environment);
            self.start(QCoreApplication::applicationFilePath(),
                       {QStringLiteral("isSharpOnThisScreen")});
            const bool isSharp = self.waitForFinished(-1) && self.exitCode() == 0;
            QVERIFY2(isSharp, ratio + QByteArray(": ") + self.readAllStandardOutput());
        }
    }
};

TESSARIN_TEST(tst_Label);
#include "tst_Label.moc"
