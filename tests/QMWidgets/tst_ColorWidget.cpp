#include "support/TestMain.h"

#include <QGridLayout>
#include <QMWidgets/ColorWidget.h>
#include <QMWidgets/ColorWidgetPopup.h>
#include <QPushButton>
#include <QSignalSpy>
#include <QWindow>

using QMWidgets::ColorWidget;
using QMWidgets::ColorWidgetPopup;

namespace
{

QPushButton* buttonAt(const ColorWidgetPopup* popup, int row, int column)
{
    const auto* grid = static_cast<QGridLayout*>(popup->layout());
    return qobject_cast<QPushButton*>(grid->itemAtPosition(row, column)->widget());
}

} // namespace

class tst_ColorWidget : public QObject
{
    Q_OBJECT

private slots:
    void clicksToggleThePopup()
    {
        ColorWidget widget;
        widget.resize(64, 32);
        widget.move(100, 100);
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
        const auto* const popup = widget.findChild<ColorWidgetPopup*>();
        QVERIFY(popup->isHidden());
        QCOMPARE(popup->windowType(), Qt::Popup);

        // Clicks on windows, not on widgets, so that they take the road of real ones: an open popup
        // sees the click first.
        const QPoint middle(32, 16);
        QTest::mouseClick(widget.windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
        QVERIFY(popup->isVisible());
        // Right below, but for the frame that some platforms add.
        QVERIFY((popup->pos() - widget.mapToGlobal(QPoint(0, 32))).manhattanLength() <= 4);
        QTest::mouseClick(popup->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          popup->mapFromGlobal(widget.mapToGlobal(middle)));
        QVERIFY(popup->isHidden());
        // Only this keeps desktops that hand the press on from opening the popup again.
        QVERIFY(popup->testAttribute(Qt::WA_NoMouseReplay));
        QTest::mouseClick(widget.windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
        QTest::mouseClick(popup->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(-90, -90));
        QVERIFY(popup->isHidden());
        QVERIFY(!popup->testAttribute(Qt::WA_NoMouseReplay));
    }

    void worksByKeyboardAndHidesWhenLeft()
    {
        ColorWidget widget;
        widget.show();
        auto* const popup = widget.findChild<ColorWidgetPopup*>();
        QCOMPARE(widget.focusPolicy(), Qt::StrongFocus);
        QSignalSpy changed(&widget, &ColorWidget::colorChanged);
        QTest::keyClick(&widget, Qt::Key_A);
        QVERIFY(popup->isHidden());
        widget.setColor(QColor(1, 2, 3));
        QVERIFY(changed.isEmpty());
        // It tells of each choice, also of the same colour.
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(&widget, key);
            QVERIFY(popup->isVisible());
            QTest::keyClick(buttonAt(popup, 1, 1), key);
            QVERIFY(popup->isHidden());
            QCOMPARE(changed.takeLast().first().value<QColor>(), QColor(255, 128, 128));
            QCOMPARE(widget.color(), QColor(255, 128, 128));
        }
        QTest::keyClick(&widget, Qt::Key_Space);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(popup, &leave);
        QVERIFY(popup->isHidden());
        QVERIFY(changed.isEmpty());
    }

    void opensAtTheCurrentColor()
    {
        ColorWidget widget;
        widget.show();
        QVERIFY(QTest::qWaitForWindowActive(&widget));
        auto* const popup = widget.findChild<ColorWidgetPopup*>();
        const auto looks = [popup](int row, int column) {
            buttonAt(popup, row, column)->clearFocus();
            return buttonAt(popup, row, column)->grab().toImage();
        };
        const QImage unmarked = looks(2, 2);
        const struct {
            QColor color;
            QPoint cell;
        } rows[] = {{QColor(255, 128, 0), {2, 2}}, {QColor(1, 2, 3), {0, 0}}, {QColor(), {0, 0}}};
        for (const auto& row : rows) {
            widget.setColor(row.color);
            QTest::keyClick(&widget, Qt::Key_Space);
            const bool isMarked = row.cell != QPoint();
            QCOMPARE(QApplication::focusWidget(), buttonAt(popup, row.cell.y(), row.cell.x()));
            QCOMPARE(looks(2, 2) != unmarked, isMarked);
            QCOMPARE(buttonAt(popup, 0, 0)->isChecked(), false);
            popup->hide();
        }
    }
};

TESSARIN_TEST(tst_ColorWidget);
#include "tst_ColorWidget.moc"
