#include "flow/nodes/CRPNode.h"

#include "flow/ComboSlider.h"
#include "flow/SliderParameter.h"
#include <MGraphX/Geometry.h>
#include <MGraphX/GraphX.h>

#include <utility>

using MGraphX::GraphX;

namespace
{
constexpr SliderParameter kParameters[] = {
    {"Left", QT_TRANSLATE_NOOP("CRPNode", "Left:"), 0, 100, 20, 0, 0, 0, "%"},
    {"Right", QT_TRANSLATE_NOOP("CRPNode", "Right:"), 0, 100, 20, 0, 0, 0, "%"},
    {"Top", QT_TRANSLATE_NOOP("CRPNode", "Top:"), 0, 100, 20, 0, 0, 0, "%"},
    {"Bottom", QT_TRANSLATE_NOOP("CRPNode", "Buttom:"), 0, 100, 20, 0, 0, 0, "%"}, // sic
};
} // namespace

CRPNode::CRPNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent)
{
    setNodeIcon(name);
    QFormLayout* const form = addForm();
    m_left = addSlider(kParameters[0], form);
    m_right = addSlider(kParameters[1], form);
    m_top = addSlider(kParameters[2], form);
    m_bottom = addSlider(kParameters[3], form);
}

void CRPNode::process(QImage& image)
{
    runFilter(image, [left = m_left->value(), right = m_right->value(), top = m_top->value(),
                      bottom = m_bottom->value()](const QImage& source) {
        return GraphX::crop(source, left, right, top, bottom);
    });
}

QImage CRPNode::processFromXml(QImage&& image, const QString& xml)
{
    const auto [left, right, top, bottom] = readValues(xml, kParameters);
    return MGraphX::geometry::crop(std::move(image), left, right, top, bottom);
}
