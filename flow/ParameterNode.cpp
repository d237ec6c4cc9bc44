#include "flow/ParameterNode.h"

#include "flow/ComboSlider.h"
#include "flow/SliderParameter.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QFormLayout>

void ParameterNode::readParameters(const QDomNode& parameters)
{
    m_bindings.read(parameters);
}

void ParameterNode::writeParameters(QDomElement& parameters, QDomDocument document)
{
    m_bindings.write(parameters, document);
}

namespace
{
/// Long enough for a step of one unit to be a movement of the hand.
constexpr int kSliderWidth = 320;
} // namespace

ComboSlider* ParameterNode::addSlider(const SliderParameter& parameter, QFormLayout* form)
{
    const QString caption =
        QCoreApplication::translate(metaObject()->className(), parameter.caption);
    auto* slider = new ComboSlider(QString(), nullptr);
    slider->setRange(parameter.minimum, parameter.maximum);
    slider->setTickInterval(parameter.tick);
    if (parameter.step > 0) {
        slider->setSingleStep(parameter.step);
    }
    slider->setValue(parameter.value);
    slider->setUnit(QLatin1String(parameter.unit));
    slider->setControlName(caption);
    slider->setMinimumWidth(kSliderWidth);
    form->addRow(caption, slider);
    connect(slider, &ComboSlider::sliderMoved, this, &ParameterNode::parametersChanged);
    m_bindings.bind(parameter.tag, slider);
    return slider;
}
