#include "flow/ComboSlider.h"
#include "flow/DirectionsWidget.h"
#include "support/TestMain.h"

#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

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
        for (int i = 0; i < 9; ++i) {
            const QSize third = widget.size() / 3;
            const QPoint corner(third.width() * (i % 3), third.height() * (i / 3));
            auto* const cell = widget.childAt(QRect(corner, third).center());
            QTest::mouseClick(cell, Qt::LeftButton);
            QCOMPARE(int(widget.direction()), i);
            QVERIFY(qobject_cast<QPushButton*>(cell)->isChecked());
        }
    }
};

TESSARIN_TEST(TestFlowControls);
#include "tst_FlowControls.moc"
