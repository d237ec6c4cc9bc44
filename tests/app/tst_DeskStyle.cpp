#include "app/Startup.h"
#include "flow/InitLabel.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QMap>
#include <QMouseEvent>
#include <QMWidgets/App.h>
#include <QMWidgets/ColorWidgetPopup.h>
#include <QMWidgets/ImageArea.h>
#include <QMWidgets/MovieLabel.h>
#include <QMWidgets/StepButtons.h>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>

using QMWidgets::ImageArea;

namespace
{

const QColor kDesk(71, 71, 71);

/// Lets the application and the widgets hear of it.
void readFromRight(bool fromRight)
{
    QGuiApplication::setLayoutDirection(fromRight ? Qt::RightToLeft : Qt::LeftToRight);
    QCoreApplication::processEvents();
}

} // namespace

/// The sheet and the style under it, as they come to the screen.
class TestDeskStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpApplication(*QMWidgets::App::app()); }
    void cleanup() { readFromRight(false); }
    void cleanupTestCase() { qApp->setStyleSheet(QString()); }

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

    void stepButtonsPointTheWayOfReading()
    {
        QWidget window;
        QPushButton* const next = QMWidgets::makeNextButton(&window);
        QPushButton* const previous = QMWidgets::makePreviousButton(&window);
        next->setFocusPolicy(Qt::NoFocus);
        previous->setFocusPolicy(Qt::NoFocus);
        window.show();
        const QImage right = next->grab().toImage();
        const QImage left = previous->grab().toImage();
        QVERIFY(left != right);
        readFromRight(true);
        QCOMPARE(next->grab().toImage(), left);
        QCOMPARE(previous->grab().toImage(), right);
    }

    void theLargeViewShowsAllOfAFittedPicture()
    {
        ImageArea area;
        area.setSingleImage(true); // nothing lies over the picture
        area.resize(300, 200);
        area.show();
        QVERIFY(QTest::qWaitForWindowActive(&area));
        const QImage picture = noise(area.size() * 2, 1, QImage::Format_RGB32, true);
        area.setPixmap(QPixmap::fromImage(picture));
        const QImage fitted =
            picture.scaled(area.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        const auto shown = [&area] {
            return area.grab().toImage().convertToFormat(QImage::Format_RGB32);
        };
        COMPARE_IMAGES(shown(), fitted);
        auto* const scroll = area.findChild<QScrollArea*>();
        scroll->setFocus(Qt::MouseFocusReason);
        QTest::keyClick(scroll, Qt::Key_Down);
        QTest::keyClick(scroll, Qt::Key_Right);
        COMPARE_IMAGES(shown(), fitted);
    }

    void thePaletteHasItsFrame()
    {
        QMWidgets::ColorWidgetPopup popup(nullptr);
        const QImage shown = popup.grab().toImage();
        QCOMPARE(shown.pixelColor(shown.width() - 1, shown.height() - 1), QColor(128, 128, 128));
        QCOMPARE(shown.pixelColor(3, 3), QColor(40, 40, 40));
    }

    void theArrowStandsAtTheAddButton()
    {
        InitLabel label(nullptr);
        label.resize(735, 175);
        label.show();
        const auto* const arrow = label.findChild<QMWidgets::MovieLabel*>();
        readFromRight(true);
        QTRY_VERIFY_WITH_TIMEOUT(arrow->x() > 600, 60000);
        QCOMPARE(arrow->movie()->state(), QMovie::Running);
        readFromRight(false);
        QTRY_VERIFY_WITH_TIMEOUT(arrow->x() < 10, 60000);
        QCOMPARE(arrow->movie()->state(), QMovie::Running);
    }
};

TESSARIN_TEST(TestDeskStyle);
#include "tst_DeskStyle.moc"
