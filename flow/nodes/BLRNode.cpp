#include "flow/nodes/BLRNode.h"

#include "flow/ComboSlider.h"
#include "flow/SliderParameter.h"
#include <MGraphX/Blur.h>

#include <utility>

namespace
{

constexpr SliderParameter kParameters[] = {
    {"Radius", QT_TRANSLATE_NOOP("BLRNode", "Blur:"), 0, 20, 5, 5, 10, 2, ""},
};

QImage apply(QImage image, int radius)
{
    const QRect whole = image.rect();
    return MGraphX::blurImage(std::move(image), whole, radius, false);
}

} // namespace

BLRNode::BLRNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent)
{
    setNodeIcon(name);
    m_radius = addSlider(kParameters[0], addForm());
}

void BLRNode::process(QImage& image)
{
    runFilter(image,
              [radius = m_radius->value()](const QImage& source) { return apply(source, radius); });
}

QImage BLRNode::processFromXml(QImage&& image, const QString& xml)
{
    const auto [radius] = readValues(xml, kParameters);
    return apply(std::move(image), radius);
}
