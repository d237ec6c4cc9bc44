#include "app/MainPage.h"
#include "app/Startup.h"
#include "flow/BaseNode.h"
#include "flow/FlowPanel.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QMap>
#include <QMenu>
#include <QMouseEvent>
#include <QMWidgets/App.h>
#include <QPainter>
#include <QSlider>

namespace
{

const QColor kDesk(71, 71, 71);

QImage imageOf(QWidget* widget)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(kDesk);
    QPainter painter(&image);
    widget->render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

int countPixels(const QImage& image, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) == color.rgb() ? 1 : 0;
        }
    }
    return count;
}

} // namespace

/// The sheet and the style under it, as they come to the screen.
class TestDeskStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpApplication(*QMWidgets::App::app()); }
    void cleanupTestCase() { qApp->setStyleSheet(QString()); }

    void slidersKeepTheirTicks()
    {
        QSlider slider(Qt::Horizontal);
        slider.setRange(-100, 100);
        slider.setTickInterval(20);
        slider.resize(220, 26);
        slider.ensurePolished();
        const QColor fill = slider.palette().color(QPalette::Highlight);
        const QColor ticks = slider.palette().color(QPalette::WindowText);

        slider.setValue(0);
        const int rimOnly = countPixels(imageOf(&slider), ticks);
        QCOMPARE(countPixels(imageOf(&slider), fill), 0);
        slider.setTickPosition(QSlider::TicksAbove);
        const int oneSide = countPixels(imageOf(&slider), ticks) - rimOnly;
        slider.setTickPosition(QSlider::TicksBothSides);
        // Eleven ticks above; the handle stands over the one in the middle.
        QVERIFY2(oneSide >= 30 && oneSide <= 33, qPrintable(QString::number(oneSide)));
        QCOMPARE(countPixels(imageOf(&slider), ticks) - rimOnly, 2 * oneSide);

        // Filled from zero to the handle on either side; nothing beyond a handle at an end.
        slider.setValue(100);
        const QImage full = imageOf(&slider);
        QVERIFY(countPixels(full, fill) > 0);
        QCOMPARE(countPixels(full.copy(0, 0, 108, 26), fill), 0);
        slider.setRange(1, 100);
        slider.setValue(1);
        QCOMPARE(countPixels(imageOf(&slider), fill), 0);
    }

    void ticksAreEvenBetweenWholeRatios()
    {
        QSlider slider(Qt::Horizontal);
        slider.setRange(-100, 100);
        slider.setTickInterval(20);
        slider.setTickPosition(QSlider::TicksAbove);
        slider.resize(221, 26);
        slider.ensurePolished();
        const QRgb color = slider.palette().color(QPalette::WindowText).rgb();
        for (const double ratio : {1.25, 1.5, 1.75}) {
            QImage image(slider.size() * ratio, QImage::Format_RGB32);
            image.setDevicePixelRatio(ratio);
            image.fill(kDesk);
            slider.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
            // Through the middle of the ticks, which lie six units above the groove's upper edge.
            const int y = int(6.5 * ratio);
            QMap<int, int> countOfWidth;
            int width = 0;
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) == color) {
                    ++width;
                } else if (width > 0) {
                    ++countOfWidth[width];
                    width = 0;
                }
            }
            QCOMPARE(countOfWidth.size(), 1);
            QCOMPARE(countOfWidth.firstKey(), qRound(ratio));
            QVERIFY(countOfWidth.first() >= 10); // the handle may hide one
        }
    }

    void slidersTakeTheHandleToTheMouse()
    {
        QSlider slider(Qt::Horizontal);
        slider.setRange(0, 200);
        slider.resize(220, 26);
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        for (const int value : {0, 50, 200}) {
            const QPoint handle(10 + slider.value(), 13);
            QTest::mousePress(&slider, Qt::LeftButton, {}, handle);
            QMouseEvent move(QEvent::MouseMove, QPoint(10 + value, 13), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&slider, &move);
            QTest::mouseRelease(&slider, Qt::LeftButton, {}, QPoint(10 + value, 13));
            QCOMPARE(slider.value(), value);
        }
    }

    void theWatermarkPageStaysPutWhenItsKindChanges()
    {
        MainPage page(nullptr);
        auto* const node = page.findChild<FlowPanel*>()->addNode(QStringLiteral("Watermark"));
        page.show();
        auto* const kind = node->findChild<QComboBox*>();
        auto* const box = node->findChild<QGroupBox*>();
        const auto placeOf = [&page](QWidget* widget) {
            return QRect(widget->mapTo(&page, QPoint(0, 0)), widget->size());
        };
        const QRect boxInText = placeOf(box);
        const QRect kindInText = placeOf(kind);
        kind->setCurrentIndex(1);
        QTRY_VERIFY(placeOf(kind).top() != kindInText.top()); // fewer rows, in the middle again
        QCOMPARE(placeOf(box), boxInText);
        QCOMPARE(placeOf(kind).left(), kindInText.left());
        QVERIFY(page.rect().contains(boxInText));
    }

    void menusLetTheirCornersThrough()
    {
        QMenu menu;
        menu.addAction(QStringLiteral("Entry"));
        menu.resize(menu.sizeHint());
        QCOMPARE(menu.grab().toImage().pixelColor(0, 0).alpha(), 0);
        QCOMPARE(menu.grab().toImage().pixelColor(menu.rect().center()).alpha(), 255);
    }
};

TESSARIN_TEST(TestDeskStyle);
#include "tst_DeskStyle.moc"
