#include "app/Startup.h"
#include "flow/InitLabel.h"
#include "support/TestMain.h"
#include <QMWidgets/App.h>
#include <QMWidgets/GroupBox.h>
#include <QMWidgets/MovieLabel.h>
#include <QMWidgets/StepButtons.h>

#include <functional>
#include <QFrame>
#include <QPushButton>
#include <QTest>

namespace
{

using Condition = std::function<bool(const QColor&)>;

const Condition kIsOrange = [](const QColor& color) {
    return color.red() > 180 && color.blue() < 80;
};
const Condition kIsWhite = [](const QColor& color) {
    return color.red() > 200 && color.blue() > 200;
};

/// The columns, from the first to the last, in which a pixel of the picture meets the condition.
QPair<int, int> columns(const QImage& image, const Condition& condition)
{
    int first = image.width();
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (condition(image.pixelColor(x, y))) {
                first = qMin(first, x);
                last = qMax(last, x);
            }
        }
    }
    return {first, last};
}

/// Lets the application and the widgets hear of it.
void readFromRight(bool fromRight)
{
    QGuiApplication::setLayoutDirection(fromRight ? Qt::RightToLeft : Qt::LeftToRight);
    QCoreApplication::processEvents();
}

} // namespace

/// What the toolkit doesn't mirror by itself, in windows that stand while the direction changes.
class TestReadFromRight : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpApplication(*QMWidgets::App::app()); }
    void cleanup() { readFromRight(false); }
    void cleanupTestCase() { qApp->setStyleSheet(QString()); }

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

    void checkStandsBeforeTheTitle()
    {
        QFrame page;
        page.setObjectName(QStringLiteral("MainPage"));
        page.resize(200, 100);
        QMWidgets::GroupBox box(QStringLiteral("Crop"), &page);
        box.setCheckable(true);
        box.setFocusPolicy(Qt::NoFocus);
        box.resize(200, 100);
        page.show();
        for (const bool fromRight : {false, true}) {
            readFromRight(fromRight);
            const QImage title = page.grab().toImage().copy(8, 4, 184, 14);
            const QPair<int, int> check = columns(title, kIsOrange);
            QVERIFY(check.second - check.first > 8);
            // The check's own frame is no text.
            const QImage before = title.copy(0, 0, check.first - 4, 14);
            const QImage after = title.copy(check.second + 4, 0, 200, 14);
            QCOMPARE(columns(before, kIsWhite).second >= 0, fromRight);
            QCOMPARE(columns(after, kIsWhite).second >= 0, !fromRight);
        }
    }

    void captionStandsBesideItsIcon()
    {
        QPixmap orange(24, 24);
        orange.fill(QColor(255, 176, 46));
        QWidget window;
        QPushButton button(orange, QStringLiteral("Photos"), &window);
        button.setObjectName(QStringLiteral("PushButton"));
        button.setFixedSize(400, 32);
        window.show();
        readFromRight(true);
        const QImage inside = button.grab().toImage().copy(8, 4, 384, 24);
        const QPair<int, int> icon = columns(inside, kIsOrange);
        const int gap = icon.first - columns(inside, kIsWhite).second;
        QVERIFY2(gap > 2 && gap < 12, qPrintable(QString::number(gap)));
    }

    void arrowStandsAtTheAddButton()
    {
        InitLabel label(nullptr);
        label.resize(735, 175);
        label.show();
        auto* const arrow = label.findChild<QMWidgets::MovieLabel*>();
        readFromRight(true);
        QTRY_VERIFY(arrow->x() > 600);
        QCOMPARE(arrow->movie()->state(), QMovie::Running);
        QVERIFY(arrow->movie()->fileName().endsWith(QLatin1String("arrow_rtl.gif")));
        // The picture leaves the arrow's corner free.
        arrow->hide();
        const QImage corner = label.grab().toImage().copy(arrow->geometry());
        QCOMPARE(columns(corner, kIsWhite).second, -1);
        arrow->show();
        readFromRight(false);
        QTRY_VERIFY(arrow->x() < 10);
        QVERIFY(arrow->movie()->fileName().endsWith(QLatin1String("arrow.gif")));
    }
};

TESSARIN_TEST(TestReadFromRight);
#include "tst_ReadFromRight.moc"
