#include "app/StyleSheet.h"
#include "flow/TabLabel.h"
#include "preview/BubblePreview.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "support/WindowEvents.h"

#include <QMWidgets/App.h>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

namespace
{

/// A window with a tab's label in it, and the bubble of that label.
class Tab
{
public:
    Tab()
        : label(new TabLabel(&window)),
          bubble(label->findChild<BubblePreview*>())
    {
        window.resize(400, 100);
        window.move(280, 490);
        label->setGeometry(20, 10, 70, 70);
        window.show();
    }

    /// Units: logical pixels.
    void setPicture(const QSize& size)
    {
        const double ratio = QMWidgets::App::devicePixelRatio();
        label->setPixmap(QPixmap::fromImage(noise((QSizeF(size) * ratio).toSize(), 1)));
    }

    void open(const QSize& picture = QSize(100, 100))
    {
        setPicture(picture);
        label->slotShowPreview();
    }

    QWidget window;
    TabLabel* label;
    QPointer<BubblePreview> bubble;
};

/// Takes a running animation to its end, where it stops by itself.
void finish(QAbstractAnimation* animation)
{
    QCOMPARE(animation->state(), QAbstractAnimation::Running);
    animation->setCurrentTime(animation->duration());
}

QRect redPartOf(const QImage& image)
{
    QRect seen;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::red)) {
                seen |= QRect(x, y, 1, 1);
            }
        }
    }
    return seen;
}

} // namespace

class TestBubble : public QObject
{
    Q_OBJECT

private slots:
    void fitsThePictureAndPointsAtTheTab_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("x"); // from the tab's left edge
        QTest::newRow("small") << QSize(100, 100) << QSize(100, 120) << -15;
        QTest::newRow("largest whole") << QSize(350, 350) << QSize(350, 370) << -140;
        QTest::newRow("wide") << QSize(360, 240) << QSize(350, 253) << -140;
        QTest::newRow("high") << QSize(200, 800) << QSize(87, 370) << -8;
        QTest::newRow("both, wide") << QSize(1000, 900) << QSize(350, 335) << -140;
        QTest::newRow("both, high") << QSize(900, 1000) << QSize(315, 370) << -122;
        QTest::newRow("narrower than the tab") << QSize(41, 99) << QSize(41, 119) << 14;
        QTest::newRow("smaller than its margins") << QSize(9, 7) << QSize(9, 27) << 30;
    }

    void fitsThePictureAndPointsAtTheTab()
    {
        QFETCH(QSize, picture);
        QFETCH(QSize, size);
        QFETCH(int, x);
        Tab tab;
        const QRect home(tab.label->mapToGlobal(QPoint(0, 0)), tab.label->size());
        const QRect out(home.topLeft() + QPoint(x, -size.height()), size);
        tab.open(picture);
        QCOMPARE(tab.bubble->geometry(), home);
        finish(tab.bubble->showAnimation());
        QCOMPARE(tab.bubble->geometry(), out);
        QVERIFY(tab.bubble->isVisible());

        tab.bubble->hide();
        QCOMPARE(tab.bubble->geometry(), out);
        finish(tab.bubble->hideAnimation());
        QCOMPARE(tab.bubble->geometry(), home);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!tab.bubble->showAnimation() && !tab.bubble->hideAnimation());
    }

    void aPressAnywhereCloses_data()
    {
        QTest::addColumn<QEvent::Type>("type");
        QTest::addColumn<bool>("inBubble");
        QTest::addColumn<bool>("closes");
        QTest::newRow("elsewhere") << QEvent::MouseButtonPress << false << true;
        QTest::newRow("in the bubble") << QEvent::MouseButtonPress << true << true;
        QTest::newRow("release") << QEvent::MouseButtonRelease << false << false;
    }

    void aPressAnywhereCloses()
    {
        QFETCH(QEvent::Type, type);
        QFETCH(bool, inBubble);
        QFETCH(bool, closes);
        Tab tab;
        QWidget elsewhere;
        tab.open();
        QMouseEvent event(type, QPointF(1, 1), Qt::RightButton, Qt::RightButton, Qt::NoModifier);
        QCoreApplication::sendEvent(inBubble ? tab.bubble.data() : &elsewhere, &event);
        QCOMPARE(tab.bubble->isVisible(), !closes);
        const auto flight = tab.bubble->hideAnimation()->state();
        QCOMPARE(flight == QAbstractAnimation::Running, closes);
    }

    void aChangeOfFocusClosesOnlyByItsSlot()
    {
        Tab tab;
        tab.open();
        QApplication::setActiveWindow(tab.bubble);
        sendEvent(tab.bubble, QEvent::WindowDeactivate);
        tab.bubble->slotFocusChanged(nullptr, nullptr);
        QVERIFY(tab.bubble->isVisible());
        QApplication::setActiveWindow(&tab.window);
        QVERIFY(tab.bubble->isVisible());
        tab.bubble->slotFocusChanged(nullptr, nullptr);
        QVERIFY(!tab.bubble->isVisible());
    }

    void opensByButtonAndDoubleClick()
    {
        Tab tab;
        tab.label->slotShowPreview();
        QVERIFY2(!tab.bubble->isVisible(), "no picture, no bubble");
        tab.setPicture(QSize(100, 100));
        auto* const button =
            tab.label->findChild<QPushButton*>(QStringLiteral("ThumbnailPreviewButton"));
        QVERIFY(!button->isVisible());
        sendEvent(tab.label, QEvent::Enter);
        QVERIFY(button->isVisible());
        button->click();
        sendEvent(tab.label, QEvent::Leave);
        QVERIFY(!button->isVisible());
        QVERIFY(tab.bubble->isVisible());

        // A bubble that is still open flies out anew with the new picture, and what carried it
        // before carries it no more.
        const QPointer<QAbstractAnimation> before = tab.bubble->showAnimation();
        tab.setPicture(QSize(200, 300));
        QTest::mouseDClick(tab.label, Qt::LeftButton);
        QVERIFY(!before);
        finish(tab.bubble->showAnimation());
        QCOMPARE(tab.bubble->size(), QSize(200, 320));
    }

    void goesWithItsTabAmidFlight()
    {
        Tab tab;
        tab.open();
        const QPointer<QAbstractAnimation> out = tab.bubble->showAnimation();
        const QPointer<QAbstractAnimation> home = tab.bubble->hideAnimation();
        QCOMPARE(out->state(), QAbstractAnimation::Running);
        delete tab.label;
        QVERIFY(!tab.bubble && !out && !home);
    }

    void anOpenBubbleDoesNotKeepTheProgram()
    {
        Tab tab;
        tab.open();
        QSignalSpy last(qApp, &QGuiApplication::lastWindowClosed);
        // Told only from within the application's event loop.
        QTimer::singleShot(0, &tab.window, [&tab] {
            tab.window.close();
            qApp->quit();
        });
        qApp->exec();
        QCOMPARE(last.count(), 1);
        QVERIFY(tab.bubble->isVisible());
    }

    void isDrawnAsASpeechBubbleAroundItsPicture()
    {
        const int veil = 80;
        BubblePreview bubble(nullptr);
        bubble.setStyleSheet(applicationStyleSheet());
        bubble.resize(100, 120);
        const QImage image = bubble.grab().toImage().convertToFormat(QImage::Format_ARGB32);
        const int ratio = int(image.devicePixelRatioF());
        const auto alphaAt = [&](int x, int y) {
            return qAlpha(image.pixel(x * ratio, y * ratio));
        };
        for (const QPoint& inside :
             {QPoint(50, 50), QPoint(2, 97), QPoint(50, 115), QPoint(35, 102), QPoint(65, 102)}) {
            QCOMPARE(alphaAt(inside.x(), inside.y()), veil);
        }
        for (const QPoint& outside :
             {QPoint(25, 102), QPoint(75, 102), QPoint(40, 115), QPoint(60, 115)}) {
            QCOMPARE(alphaAt(outside.x(), outside.y()), 0);
        }
        // The outline is one pixel wide, and half of it lies on the veil.
        QVERIFY(alphaAt(50, 0) > veil && alphaAt(0, 50) > veil && alphaAt(10, 100) > veil);

        QPixmap red(500, 500);
        red.fill(Qt::red);
        bubble.setPixmap(red);
        QCOMPARE(redPartOf(bubble.grab().toImage()),
                 QRect(15 * ratio, 15 * ratio, 70 * ratio, 70 * ratio));
    }
};

TESSARIN_TEST(TestBubble);
#include "tst_Bubble.moc"
