#include "flow/nodes/FRMNode.h"

#include "flow/ColorParameter.h"
#include "flow/ComboSlider.h"
#include "flow/SliderParameter.h"
#include <MGraphX/GraphX.h>
#include <QMWidgets/ColorWidget.h>

using MGraphX::GraphX;

namespace
{
constexpr SliderParameter kParameters[] = {
    {"Width", QT_TRANSLATE_NOOP("FRMNode", "Width:"), 0, 100, 20, 0, 2, 0, "%"},
};
constexpr ColorParameter kColor = {"Color", QT_TRANSLATE_NOOP("FRMNode", "Color:"), Qt::green,
                                   Qt::black};
} // namespace

FRMNode::FRMNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent)
{
    setNodeIcon(name);
    QFormLayout* const form = addForm();
    m_width = addSlider(kParameters[0], form);
    m_color = addColor(kColor, form);
}

void FRMNode::process(QImage& image)
{
    runFilter(image, [width = m_width->value(), color = toldColor(m_color)](const QImage& source) {
        return GraphX::frame(source, width, color);
    });
}

QImage FRMNode::processFromXml(const QImage& image, const QString& xml)
{
    const auto [width] = readValues(xml, kParameters);
    return GraphX::frame(image, width, readValue(xml, kColor));
}
