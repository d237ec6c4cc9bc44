#pragma once

#include <QFrame>

class QLabel;
class QSlider;
class QSpinBox;

/// A slider and a spin box that stay in step, with a caption before and a unit behind them.
///
/// sliderMoved comes once for each change of the value, whether dragged, typed or set, and while
/// the slider's own signals are blocked.
class ComboSlider : public QFrame
{
    Q_OBJECT

public:
    /// An empty caption shows none.
    ComboSlider(const QString& caption, QWidget* parent);

    /// Values outside the range move to its nearer end.
    void setRange(int minimum, int maximum);
    void setValue(int value);
    int value() const;
    /// Step of the slider; the spin box keeps a step of 1.
    void setSingleStep(int step);
    void setTickInterval(int interval);
    /// Text behind the number, as in "%" or "px"; empty for none.
    void setUnit(const QString& text);
    /// What a screen reader calls both controls.
    void setControlName(const QString& name);

signals:
    void sliderMoved(int value);

public slots:
    void slotSpinValueChanged(int value);

private:
    QLabel* m_label;
    QSlider* m_slider;
    QSpinBox* m_spinBox;
    QLabel* m_unitLabel;
};
