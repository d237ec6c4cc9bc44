#include "flow/ComboSlider.h"
#include "support/TestMain.h"

#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>

class TestComboSlider : public QObject
{
    Q_OBJECT

private slots:
    void tellsEachChangeOnce()
    {
        ComboSlider control(QString(), nullptr);
        control.setRange(0, 100);
        auto* slider = control.findChild<QSlider*>();
        auto* spinBox = control.findChild<QSpinBox*>();
        QSignalSpy moved(&control, &ComboSlider::sliderMoved);

        control.setValue(40);
        QCOMPARE(moved.count(), 1);
        control.setValue(40);
        QCOMPARE(moved.count(), 1);
        slider->setValue(41);
        QCOMPARE(moved.count(), 2);
        QCOMPARE(spinBox->value(), 41);
        spinBox->setValue(42);
        QCOMPARE(moved.count(), 3);
        QCOMPARE(moved.last().first().toInt(), 42);
        QCOMPARE(control.value(), 42);
        control.setValue(500);
        QCOMPARE(control.value(), 100);
    }

    void aNewRangeMovesOnlyWhatLiesOutside()
    {
        ComboSlider control(QString(), nullptr);
        control.setRange(1, 100);
        control.setValue(50);
        QSignalSpy moved(&control, &ComboSlider::sliderMoved);
        control.setRange(8, 5000);
        QCOMPARE(moved.count(), 0);
        control.setRange(1, 100);
        control.setValue(1);
        moved.clear();
        control.setRange(8, 5000);
        QCOMPARE(moved.count(), 1);
        QCOMPARE(control.value(), 8);
    }
};

TESSARIN_TEST(TestComboSlider);
#include "tst_ComboSlider.moc"
