#include "flow/TabLabel.h"
#include "preview/BubblePreview.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QMWidgets/App.h>
#include <QPropertyAnimation>
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

} // namespace

class TestBubble : public QObject
{
    Q_OBJECT

private slots:
    void fitsThePictureAndPointsAtTheTab()
    {
        const struct {
            QSize picture;
            QSize size;
            int x; ///< from the tab's left edge
        } rows[] = {{{100, 100}, {100, 120}, -15}, {{360, 240}, {350, 253}, -140},
                    {{200, 800}, {87, 370}, -8},   {{900, 1000}, {315, 370}, -122},
                    {{41, 99}, {41, 119}, 14},     {{9, 7}, {9, 27}, 30}};
        for (const auto& row : rows) {
            Tab tab;
            const QRect home(tab.label->mapToGlobal(QPoint(0, 0)), tab.label->size());
            const QRect out(home.topLeft() + QPoint(row.x, -row.size.height()), row.size);
            tab.open(row.picture);
            QCOMPARE(tab.bubble->geometry(), home);
            finish(tab.bubble->showAnimation());
            QCOMPARE(tab.bubble->geometry(), out);
            // A press anywhere closes it.
            QTest::mouseClick(&tab.window, Qt::RightButton);
            QVERIFY(!tab.bubble->isVisible());
            finish(tab.bubble->hideAnimation());
            QCOMPARE(tab.bubble->geometry(), home);
        }
    }

    void aSecondOpeningFliesAnew()
    {
        Tab tab;
        tab.label->slotShowPreview();
        QVERIFY2(!tab.bubble->isVisible(), "no picture, no bubble");
        tab.open();
        const QPointer<QAbstractAnimation> before = tab.bubble->showAnimation();
        tab.setPicture(QSize(200, 300));
        QTest::mouseDClick(tab.label, Qt::LeftButton);
        QVERIFY(!before);
        finish(tab.bubble->showAnimation());
        QCOMPARE(tab.bubble->size(), QSize(200, 320));
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
};

TESSARIN_TEST(TestBubble);
#include "tst_Bubble.moc"
