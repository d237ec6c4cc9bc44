#include "flow/nodes/BINNode.h"

#include "flow/ComboSlider.h"
#include "flow/SliderParameter.h"
#include <MGraphX/GraphX.h>
#include <MGraphX/Tone.h>

using MGraphX::GraphX;

namespace
{
constexpr SliderParameter kParameters[] = {
    {"Threshold", QT_TRANSLATE_NOOP("BINNode", "Threshold:"), 0, 255, 5, 1, 127, 127, ""},
};
} // namespace

BINNode::BINNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent)
{
    setNodeIcon(name);
    m_threshold = addSlider(kParameters[0], addForm());
}

void BINNode::process(QImage& image)
{
    runFilter(image, [threshold = m_threshold->value()](const QImage& source) {
        return GraphX::binarize(source, threshold);
    });
}

QImage BINNode::processFromXml(QImage&& image, const QString& xml)
{
    const auto [threshold] = readValues(xml, kParameters);
    return MGraphX::tone::binarize(std::move(image), threshold);
}
