#include "flow/ComboSlider.h"

#include "flow/ParameterSpinBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>

namespace
{
constexpr int kSpinBoxWidth = 60;
} // namespace

ComboSlider::ComboSlider(const QString& caption, QWidget* parent)
    : QFrame(parent),
      m_label(new QLabel(caption, this)),
      m_slider(new QSlider(Qt::Horizontal, this)),
      m_spinBox(new ParameterSpinBox(this)),
      m_unitLabel(new QLabel(this))
{
    m_label->setVisible(!caption.isEmpty());
    m_unitLabel->hide();
    m_slider->setTickPosition(QSlider::TicksBothSides);
    m_slider->setTickInterval(20);
    // Spin boxes of different ranges stand under each other in forms.
    m_spinBox->setMinimumWidth(kSpinBoxWidth);
    setFocusProxy(m_slider);
    setControlName(caption);

    connect(m_slider, &QSlider::valueChanged, m_spinBox, &QSpinBox::setValue);
    connect(m_spinBox, qOverload<int>(&QSpinBox::valueChanged), this,
            &ComboSlider::slotSpinValueChanged);

    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_label);
    layout->addWidget(m_slider);
    layout->addWidget(m_spinBox);
    layout->addWidget(m_unitLabel);
}

void ComboSlider::setRange(int minimum, int maximum)
{
    m_slider->setRange(minimum, maximum);
    m_spinBox->setRange(minimum, maximum);
}

void ComboSlider::setValue(int value)
{
    m_slider->setValue(value);
    m_spinBox->setValue(value);
}

int ComboSlider::value() const
{
    return m_slider->value();
}

void ComboSlider::setSingleStep(int step)
{
    m_slider->setSingleStep(step);
}

void ComboSlider::setTickInterval(int interval)
{
    m_slider->setTickInterval(interval);
}

void ComboSlider::setUnit(const QString& text)
{
    if (!text.isEmpty()) {
        m_unitLabel->setText(text);
    }
    m_unitLabel->setVisible(!text.isEmpty());
}

void ComboSlider::setControlName(const QString& name)
{
    m_slider->setAccessibleName(name);
    m_spinBox->setAccessibleName(name);
}

void ComboSlider::slotSpinValueChanged(int value)
{
    const bool wereBlocked = m_slider->blockSignals(true);
    m_slider->setValue(value);
    emit sliderMoved(value);
    m_slider->blockSignals(wereBlocked);
    // The receiver may have let events through, and a step of the slider among them was not heard.
    if (m_slider->value() != m_spinBox->value()) {
        m_spinBox->setValue(m_slider->value());
    }
}
