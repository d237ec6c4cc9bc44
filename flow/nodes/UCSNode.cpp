#include "flow/nodes/UCSNode.h"

#include "flow/ColorParameter.h"
#include "flow/ComboSlider.h"
#include "flow/SliderParameter.h"
#include <MGraphX/Vignette.h>
#include <QMWidgets/ColorWidget.h>

namespace
{

constexpr SliderParameter kParameters[] = {
    {"Radius", QT_TRANSLATE_NOOP("UCSNode", "Radius:"), 0, 100, 5, 5, 65, 2, ""},
    {"Opacity", QT_TRANSLATE_NOOP("UCSNode", "Opacity:"), 0, 100, 5, 5, 80, 127, ""},
};
constexpr ColorParameter kColor = {"Color", QT_TRANSLATE_NOOP("UCSNode", "Color:"), Qt::black,
                                   Qt::black};

} // namespace

UCSNode::UCSNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent)
{
    setNodeIcon(name);
    QFormLayout* const form = addForm();
    m_radius = addSlider(kParameters[0], form);
    m_opacity = addSlider(kParameters[1], form);
    m_color = addColor(kColor, form);
}

void UCSNode::process(QImage& image)
{
    runFilter(image, [radius = m_radius->value(), opacity = m_opacity->value(),
                      color = toldColor(m_color)](const QImage& source) {
        return vignette(source, radius, opacity, color);
    });
}

QImage UCSNode::processFromXml(QImage&& image, const QString& xml)
{
    const auto [radius, opacity] = readValues(xml, kParameters);
    return MGraphX::vignetteImage(std::move(image), radius, opacity, readValue(xml, kColor));
}

QImage UCSNode::vignette(const QImage& image, int radius, int opacity, const QColor& color)
{
    return MGraphX::vignetteImage(image, radius, opacity, color);
}
