#include "app/StyleSheet.h"
#include "flow/TabLabel.h"
#include "preview/BubblePreview.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QMWidgets/App.h>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

namespace
{

constexpr QSize kTab(70, 70);

/// A window with a tab's label in it, and the bubble of that label.
class Tab
{
public:
    Tab()
        : label(new TabLabel(&window)),
          button(label->findChild<QPushButton*>(QStringLiteral("ThumbnailPreviewButton"))),
          bubble(label->findChild<BubblePreview*>())
    {
        window.resize(400, 100);
        window.move(280, 490);
        label->setGeometry(QRect(QPoint(20, 10), kTab));
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

    QRect onScreen() const { return QRect(label->mapToGlobal(QPoint(0, 0)), label->size()); }

    QPropertyAnimation* flightOut() const
    {
        return qobject_cast<QPropertyAnimation*>(bubble->showAnimation());
    }
    QPropertyAnimation* flightHome() const
    {
        return qobject_cast<QPropertyAnimation*>(bubble->hideAnimation());
    }

    QWidget window;
    TabLabel* label;
    QPushButton* button;
    QPointer<BubblePreview> bubble;
};

/// Takes a running animation to its end, where it stops by itself.
void finish(QAbstractAnimation* animation)
{
    QCOMPARE(animation->state(), QAbstractAnimation::Running);
    animation->setCurrentTime(animation->duration());
}

void send(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

int alphaAt(const QImage& image, const QPoint& place)
{
    return qAlpha(image.pixel(place * int(image.devicePixelRatioF())));
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
        QTest::newRow("square") << QSize(700, 700) << QSize(350, 370) << -140;
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
        const QRect home = tab.onScreen();
        const QRect out(home.topLeft() + QPoint(x, -size.height()), size);
        tab.open(picture);
        QVERIFY(tab.bubble->isVisible());
        QCOMPARE(tab.bubble->geometry(), home);
        finish(tab.flightOut());
        QCOMPARE(tab.bubble->geometry(), out);
        QVERIFY(tab.bubble->isVisible());

        tab.bubble->hide();
        QCOMPARE(tab.bubble->geometry(), out);
        finish(tab.flightHome());
        QCOMPARE(tab.bubble->geometry(), home);
        for (const QPropertyAnimation* flight : {tab.flightOut(), tab.flightHome()}) {
            QCOMPARE(flight->duration(), 500);
            QCOMPARE(flight->easingCurve(), QEasingCurve(QEasingCurve::InOutExpo));
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!tab.flightOut() && !tab.flightHome());
    }

    void aPressAnywhereCloses_data()
    {
        QTest::addColumn<QEvent::Type>("type");
        QTest::addColumn<bool>("inBubble");
        QTest::addColumn<bool>("closes");
        QTest::newRow("elsewhere") << QEvent::MouseButtonPress << false << true;
        QTest::newRow("in the bubble") << QEvent::MouseButtonPress << true << true;
        QTest::newRow("release") << QEvent::MouseButtonRelease << false << false;
        QTest::newRow("change of focus") << QEvent::WindowDeactivate << true << false;
    }

    void aPressAnywhereCloses()
    {
        QFETCH(QEvent::Type, type);
        QFETCH(bool, inBubble);
        QFETCH(bool, closes);
        Tab tab;
        QWidget elsewhere;
        tab.open();
        QWidget* const target = inBubble ? tab.bubble.data() : &elsewhere;
        if (type == QEvent::WindowDeactivate) {
            send(target, type);
        } else {
            QMouseEvent event(type, QPointF(1, 1), Qt::RightButton, Qt::RightButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(target, &event);
        }
        QCOMPARE(tab.bubble->isVisible(), !closes);
        QCOMPARE(tab.flightHome()->state() == QAbstractAnimation::Running, closes);
    }

    void theFocusSlotHidesAnInactiveBubble()
    {
        Tab tab;
        tab.open();
        QApplication::setActiveWindow(tab.bubble);
        tab.bubble->slotFocusChanged(nullptr, nullptr);
        QVERIFY(tab.bubble->isVisible());
        QApplication::setActiveWindow(&tab.window);
        tab.bubble->slotFocusChanged(nullptr, nullptr);
        QVERIFY(!tab.bubble->isVisible());
    }

    void opensByButtonAndDoubleClick()
    {
        Tab tab;
        tab.setPicture(QSize(100, 100));
        QVERIFY(!tab.button->isVisible());
        send(tab.label, QEvent::Enter);
        QVERIFY(tab.button->isVisible());
        tab.button->click();
        QVERIFY(tab.bubble->isVisible());
        send(tab.label, QEvent::Leave);
        QVERIFY(!tab.button->isVisible());
        QVERIFY(tab.bubble->isVisible());

        // A bubble that is still open flies out anew with the new picture, and what carried it
        // before carries it no more.
        const QPointer<QPropertyAnimation> before = tab.flightOut();
        tab.setPicture(QSize(200, 300));
        QTest::mouseDClick(tab.label, Qt::LeftButton);
        QVERIFY(!before);
        finish(tab.flightOut());
        QCOMPARE(tab.bubble->size(), QSize(200, 320));
    }

    void noPictureNoBubble()
    {
        Tab tab;
        tab.label->slotShowPreview();
        QVERIFY(!tab.bubble->isVisible());
        QVERIFY(!tab.flightOut());
    }

    void goesWithItsTabAmidFlight()
    {
        Tab tab;
        tab.open();
        const QPointer<QPropertyAnimation> out = tab.flightOut();
        const QPointer<QPropertyAnimation> home = tab.flightHome();
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

    void isDrawnAsASpeechBubble()
    {
        const int blackVeil = 80;
        BubblePreview bubble(nullptr);
        bubble.resize(100, 120);
        const QImage image = bubble.grab().toImage().convertToFormat(QImage::Format_ARGB32);
        const struct {
            QPoint place;
            int alpha;
        } places[] = {{{50, 50}, blackVeil},  {{2, 97}, blackVeil},   {{97, 2}, blackVeil},
                      {{50, 115}, blackVeil}, {{35, 102}, blackVeil}, {{65, 102}, blackVeil},
                      {{25, 102}, 0},         {{75, 102}, 0},         {{40, 115}, 0},
                      {{60, 115}, 0}};
        for (const auto& each : places) {
            QCOMPARE(alphaAt(image, each.place), each.alpha);
        }
        // The outline is one pixel wide, and half of it lies on the veil.
        QVERIFY(alphaAt(image, QPoint(50, 0)) > blackVeil);
        QVERIFY(alphaAt(image, QPoint(0, 50)) > blackVeil);
        QVERIFY(alphaAt(image, QPoint(10, 100)) > blackVeil);
    }

    void showsThePictureWithinItsMargins()
    {
        BubblePreview bubble(nullptr);
        bubble.setStyleSheet(applicationStyleSheet());
        bubble.resize(100, 120);
        QPixmap red(500, 500);
        red.fill(Qt::red);
        bubble.setPixmap(red);
        const QImage image = bubble.grab().toImage();
        const int ratio = int(image.devicePixelRatioF());
        QRect seen;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == QColor(Qt::red)) {
                    seen |= QRect(x, y, 1, 1);
                }
            }
        }
        QCOMPARE(seen, QRect(15 * ratio, 15 * ratio, 70 * ratio, 70 * ratio));
    }
};

TESSARIN_TEST(TestBubble);
#include "tst_Bubble.moc"
