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

/// The rule behind the palette: from the second column on, each column lights some of the three
/// channels, and each row says how bright lit and unlit channels are.
QColor expectedColor(int row, int column)
{
    if (row == 5 && column == 2) {
        return QColor(128, 64, 64);
    }
    static const int kGrey[] = {255, 224, 192, 128, 64, 0};
    static const int kLit[] = {255, 255, 255, 192, 128, 64};
    static const int kUnlit[] = {192, 128, 0, 0, 0, 0};
    static const int kHalf[] = {224, 192, 128, 64, 64, 0};
    if (column == 0) {
        return QColor(kGrey[row], kGrey[row], kGrey[row]);
    }
    if (column == 2) {
        return QColor(kLit[row], kHalf[row], kUnlit[row]);
    }
    static const int kChannels[] = {0, 4, 0, 6, 2, 3, 1, 5};
    const auto level = [&](int bit) {
        return kChannels[column] & bit ? kLit[row] : kUnlit[row];
    };
    return QColor(level(4), level(2), level(1));
}

} // namespace

class tst_ColorWidget : public QObject
{
    Q_OBJECT

private slots:
    void paletteIsTheGivenOne()
    {
        ColorWidgetPopup popup(nullptr);
        QSignalSpy chosen(&popup, &ColorWidgetPopup::colorChanged);
        QCOMPARE(popup.findChildren<QPushButton*>().count(), 48);
        for (int row = 0; row < 6; ++row) {
            for (int column = 0; column < 8; ++column) {
                QPushButton* button = buttonAt(&popup, row, column);
                button->click();
                const QColor color = chosen.takeLast().first().value<QColor>();
                QCOMPARE(color.name(QColor::HexArgb),
                         expectedColor(row, column).name(QColor::HexArgb));
                QVERIFY(button->accessibleName().contains(color.name()));
            }
        }
    }

    void choosingTellsEachTime()
    {
        ColorWidget widget;
        const auto* popup = widget.findChild<ColorWidgetPopup*>();
        QSignalSpy changed(&widget, &ColorWidget::colorChanged);
        widget.setColor(QColor(1, 2, 3));
        QCOMPARE(changed.count(), 0);
        for (int i = 1; i <= 2; ++i) {
            buttonAt(popup, 2, 1)->click();
            QCOMPARE(changed.count(), i);
            QCOMPARE(changed.last().first().value<QColor>(), QColor(255, 0, 0));
        }
        QCOMPARE(widget.color(), QColor(255, 0, 0));
        QCOMPARE(widget.accessibleName(), QStringLiteral("Color #ff0000"));
    }

    void clicksToggleThePopup()
    {
        ColorWidget widget;
        widget.resize(64, 32);
        widget.move(100, 100);
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
        const auto* popup = widget.findChild<ColorWidgetPopup*>();
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

    void leavingHidesThePopup()
    {
        ColorWidget widget;
        widget.show();
        auto* popup = widget.findChild<ColorWidgetPopup*>();
        QSignalSpy changed(&widget, &ColorWidget::colorChanged);
        QTest::mouseClick(&widget, Qt::LeftButton);
        QVERIFY(popup->isVisible());
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(popup, &leave);
        QVERIFY(popup->isHidden());
        QCOMPARE(changed.count(), 0);
    }

    void worksByKeyboard()
    {
        ColorWidget widget;
        widget.show();
        const auto* popup = widget.findChild<ColorWidgetPopup*>();
        QCOMPARE(widget.focusPolicy(), Qt::StrongFocus);
        QSignalSpy changed(&widget, &ColorWidget::colorChanged);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(&widget, key);
            QVERIFY(popup->isVisible());
            QTest::keyClick(buttonAt(popup, 1, 1), key);
            QVERIFY(popup->isHidden());
            QCOMPARE(changed.takeLast().first().value<QColor>(), QColor(255, 128, 128));
        }
        QTest::keyClick(&widget, Qt::Key_A);
        QVERIFY(popup->isHidden());
    }
};

TESSARIN_TEST(tst_ColorWidget);
#include "tst_ColorWidget.moc"
