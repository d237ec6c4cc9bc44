#include "flow/nodes/HSTNode.h"

#include "flow/ComboSlider.h"
#include "flow/SliderParameter.h"
#include <MGraphX/GraphX.h>
#include <MGraphX/Tone.h>

using MGraphX::GraphX;

namespace
{
constexpr SliderParameter kParameters[] = {
    {"Left", QT_TRANSLATE_NOOP("HSTNode", "Left:"), 0, 100, 20, 0, 0, 0, ""},
    {"Right", QT_TRANSLATE_NOOP("HSTNode", "Right:"), 0, 100, 20, 0, 0, 0, ""},
};
} // namespace

HSTNode::HSTNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent)
{
    setNodeIcon(name);
    QFormLayout* const form = addForm();
    m_left = addSlider(kParameters[0], form);
    m_right = addSlider(kParameters[1], form);
}

void HSTNode::process(QImage& image)
{
    runFilter(image, [left = m_left->value(), right = m_right->value()](const QImage& source) {
        return GraphX::optimizeHistogram(source, left, right);
    });
}

QImage HSTNode::processFromXml(QImage&& image, const QString& xml)
{
    const auto [left, right] = readValues(xml, kParameters);
    return MGraphX::tone::optimizeHistogram(std::move(image), left, right);
}
