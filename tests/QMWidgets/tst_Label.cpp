#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <QMWidgets/App.h>
#include <QMWidgets/Label.h>
#include <QPainter>

using QMWidgets::App;
using QMWidgets::Label;

namespace
{

QImage grabbed(Label& label)
{
    label.setStyleSheet(QStringLiteral("background-color: white"));
    return label.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QRect boundsOf(const QImage& image, QRgb color)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

QPixmap filled(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

class tst_Label : public QObject
{
    Q_OBJECT

private slots:
    void centresThePicture_data()
    {
        QTest::addColumn<QSize>("label");
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QRect>("place");
        QTest::newRow("wide") << QSize(40, 40) << QSize(20, 10) << QRect(0, 10, 40, 20);
        QTest::newRow("high") << QSize(40, 40) << QSize(10, 20) << QRect(10, 0, 20, 40);
        QTest::newRow("larger") << QSize(40, 20) << QSize(400, 400) << QRect(10, 0, 20, 20);
        QTest::newRow("equal") << QSize(30, 20) << QSize(300, 200) << QRect(0, 0, 30, 20);
        // (21 - 14) / 2 is truncated to 3.
        QTest::newRow("odd rest") << QSize(42, 21) << QSize(3, 1) << QRect(0, 3, 42, 14);
    }

    void centresThePicture()
    {
        QFETCH(QSize, label);
        QFETCH(QSize, picture);
        QFETCH(QRect, place);
        Label widget;
        widget.resize(label);
        widget.setPixmap(filled(picture.width(), picture.height()));
        const int ratio = int(App::devicePixelRatio());
        QCOMPARE(boundsOf(grabbed(widget), qRgb(255, 0, 0)),
                 QRect(place.topLeft() * ratio, place.size() * ratio));
    }

    void isSharpOnThisScreen()
    {
        const int ratio = int(App::devicePixelRatio());
        QImage pattern(40 * ratio, 20 * ratio, QImage::Format_RGB32);
        for (int y = 0; y < pattern.height(); ++y) {
            for (int x = 0; x < pattern.width(); ++x) {
                pattern.setPixel(x, y, qRgb(x * 3, y * 5, (x + y) % 2 * 255));
            }
        }
        Label label;
        label.resize(40, 40);
        label.setPixmap(QPixmap::fromImage(pattern));
        QImage shown = grabbed(label).copy(0, 10 * ratio, pattern.width(), pattern.height());
        shown.setDotsPerMeterX(pattern.dotsPerMeterX());
        shown.setDotsPerMeterY(pattern.dotsPerMeterY());
        COMPARE_IMAGES(shown, pattern);
    }

    void expandsFromTheCorner()
    {
        QPixmap pixmap = filled(20, 10);
        QPainter(&pixmap).fillRect(10, 0, 10, 10, Qt::blue);
        Label label;
        label.resize(40, 30);
        label.setExpanding(true);
        label.setPixmap(pixmap);
        // The picture becomes 60 wide and 30 high: its blue half begins at 30, its end is cut off.
        const QImage image = grabbed(label);
        const int ratio = int(App::devicePixelRatio());
        QCOMPARE(QColor(image.pixel(0, 0)), QColor(Qt::red));
        QCOMPARE(QColor(image.pixel(25 * ratio, 15 * ratio)), QColor(Qt::red));
        QCOMPARE(QColor(image.pixel(35 * ratio, 15 * ratio)), QColor(Qt::blue));
        QCOMPARE(QColor(image.pixel(40 * ratio - 1, 30 * ratio - 1)), QColor(Qt::blue));
    }

    void nullPictureShowsOnlyTheText()
    {
        Label label;
        QLabel plain;
        for (QLabel* each : {static_cast<QLabel*>(&label), &plain}) {
            each->resize(60, 30);
            each->setText(QStringLiteral("text"));
        }
        label.setPixmap(filled(4, 4));
        label.setPixmap(QPixmap());
        plain.setStyleSheet(QStringLiteral("background-color: white"));
        COMPARE_IMAGES(grabbed(label),
                       plain.grab().toImage().convertToFormat(QImage::Format_RGB32));
        QVERIFY(boundsOf(grabbed(label), qRgb(255, 255, 255)).isValid());
    }
};

TESSARIN_TEST(tst_Label);
#include "tst_Label.moc"
