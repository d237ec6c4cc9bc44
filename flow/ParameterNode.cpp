#include "flow/ParameterNode.h"

#include "flow/ColorParameter.h"
#include "flow/ComboSlider.h"
#include "flow/SliderParameter.h"
#include <QMWidgets/ColorWidget.h>

#include <QCoreApplication>
#include <QDomDocument>
#include <QFormLayout>

namespace
{
/// Long enough for a step of one unit to be a movement of the hand.
constexpr int kSliderWidth = 320;
} // namespace

void ParameterNode::readParameters(const QDomNode& parameters)
{
    m_bindings.read(parameters);
}

void ParameterNode::writeParameters(QDomElement& parameters, QDomDocument document)
{
    m_bindings.write(parameters, document);
}

ComboSlider* ParameterNode::makeSlider(const SliderParameter& parameter)
{
    auto* slider = new ComboSlider(QString(), nullptr);
    slider->setRange(parameter.minimum, parameter.maximum);
    slider->setTickInterval(parameter.tick);
    if (parameter.step > 0) {
        slider->setSingleStep(parameter.step);
    }
    slider->setValue(parameter.value);
    slider->setUnit(QLatin1String(parameter.unit));
    slider->setControlName(translated(parameter.caption));
    connect(slider, &ComboSlider::sliderMoved, this, &ParameterNode::parametersChanged);
    return slider;
}

ComboSlider* ParameterNode::addSlider(const SliderParameter& parameter, QFormLayout* form)
{
    ComboSlider* const slider = makeSlider(parameter);
    slider->setMinimumWidth(kSliderWidth);
    form->addRow(translated(parameter.caption), slider);
    m_bindings.bind(parameter.tag, slider);
    return slider;
}

QMWidgets::ColorWidget* ParameterNode::addColor(const ColorParameter& parameter, QFormLayout* form)
{
    auto* swatch = new QMWidgets::ColorWidget;
    swatch->setFixedSize(64, 32);
    swatch->setColor(parameter.value);
    form->addRow(translated(parameter.caption), swatch);
    connect(swatch, &QMWidgets::ColorWidget::colorChanged, this, &ParameterNode::parametersChanged);
    m_bindings.bind(parameter.tag, swatch);
    return swatch;
}

QColor ParameterNode::toldColor(const QMWidgets::ColorWidget* swatch)
{
    return QColor(swatch->color().name());
}

QString ParameterNode::translated(const char* caption) const
{
    return QCoreApplication::translate(metaObject()->className(), caption);
}
