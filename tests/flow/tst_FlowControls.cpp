#include "flow/ComboSlider.h"
#include "flow/DirectionsWidget.h"
#include "flow/FavoritesDeleteDlg.h"
#include "support/TestMain.h"

#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>

namespace
{

/// The button in one of nine places, row by row.
QPushButton* cell(const DirectionsWidget& widget, int index)
{
    const QSize third = widget.size() / 3;
    const QPoint place(third.width() * (index % 3), third.height() * (index / 3));
    return qobject_cast<QPushButton*>(widget.childAt(place + QRect(QPoint(), third).center()));
}

QList<int> checkedCells(const DirectionsWidget& widget)
{
    QList<int> checked;
    for (int i = 0; i < 9; ++i) {
        if (cell(widget, i) && cell(widget, i)->isChecked()) {
            checked.append(i);
        }
    }
    return checked;
}

} // namespace

class TestFlowControls : public QObject
{
    Q_OBJECT

private slots:
    void aSliderAndItsBoxTellEachChangeOnce()
    {
        ComboSlider control(QString(), nullptr);
        control.setRange(0, 100);
        auto* slider = control.findChild<QSlider*>();
        auto* spinBox = control.findChild<QSpinBox*>();
        QList<int> heard;
        connect(&control, &ComboSlider::sliderMoved, &control, [&](int value) {
            heard += value;
            if (value == 10) {
                slider->setValue(25); // a step that comes while the first one is being worked on
            }
        });
        control.setValue(40);
        control.setValue(40);
        slider->setValue(41);
        QCOMPARE(spinBox->value(), 41);
        spinBox->setValue(42);
        slider->setValue(10);
        QCOMPARE(spinBox->value(), 25);
        QCOMPARE(control.value(), 25);
        control.setValue(500);
        control.setRange(1, 5000);
        QCOMPARE(heard, QList<int>({40, 41, 42, 10, 25, 100}));
        control.setRange(200, 5000);
        QCOMPARE(heard.last(), 200);
        QCOMPARE(control.value(), 200);
    }

    void directionsLieInReadingOrder()
    {
        QWidget page;
        page.setLayoutDirection(Qt::RightToLeft); // left and right stay those of the photo
        DirectionsWidget widget(&page);
        widget.adjustSize();
        page.show();
        QSignalSpy changed(&widget, &DirectionsWidget::directionChanged);
        QCOMPARE(checkedCells(widget), QList<int>{BottomRight});
        for (int i = 0; i < 9; ++i) {
            QTest::mouseClick(cell(widget, i), Qt::LeftButton);
            QCOMPARE(int(widget.direction()), i);
            QCOMPARE(checkedCells(widget), QList<int>{i});
        }
        QTest::mouseClick(cell(widget, 8), Qt::LeftButton);
        QCOMPARE(checkedCells(widget), QList<int>{BottomRight});
        widget.setDirection(BottomRight);
        widget.setDirection(MiddleLeft);
        QCOMPARE(checkedCells(widget), QList<int>{MiddleLeft});
        widget.setDirection(Direction(-1));
        QCOMPARE(checkedCells(widget), QList<int>());
        QCOMPARE(changed.count(), 13);
    }

    void theFlowToDeleteIsChosenAmongAllInReverse()
    {
        FavoritesDeleteDlg dialog(nullptr);
        QCOMPARE(dialog.selectedFlow(), QString());
        dialog.addFlow(QStringLiteral("a.flow"));
        dialog.addFlow(QStringLiteral("b.flow"));
        dialog.show();
        QCOMPARE(dialog.selectedFlow(), QStringLiteral("b.flow"));
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCOMPARE(dialog.focusWidget()->objectName(), QStringLiteral("PushButton"));
        QTest::keyClick(dialog.findChild<QListWidget*>(), Qt::Key_Down);
        QCOMPARE(dialog.selectedFlow(), QStringLiteral("a.flow"));
        dialog.clearFlows();
        QCOMPARE(dialog.selectedFlow(), QString());
    }
};

TESSARIN_TEST(TestFlowControls);
#include "tst_FlowControls.moc"
