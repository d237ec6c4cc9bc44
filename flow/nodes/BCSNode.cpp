#include "flow/nodes/BCSNode.h"

#include "flow/ComboSlider.h"
#include "flow/SliderParameter.h"
#include <MGraphX/Tone.h>

namespace
{

// Deliberate: a new node starts at twice the colour, while a text without the tag takes it all
// away.
constexpr SliderParameter kParameters[] = {
    {"Brightness", QT_TRANSLATE_NOOP("BCSNode", "Brightness:"), -127, 128, 20, 0, 0, 0, ""},
    {"Contrast", QT_TRANSLATE_NOOP("BCSNode", "Contrast:"), -127, 128, 20, 0, 0, 0, ""},
    {"Saturation", QT_TRANSLATE_NOOP("BCSNode", "Saturation:"), 0, 100, 20, 0, 100, 0, ""},
};

QImage apply(QImage image, int brightness, int contrast, int saturation)
{
    return MGraphX::tone::brightnessContrastSaturation(std::move(image), brightness, contrast,
                                                       static_cast<float>(saturation / 50.0));
}

} // namespace

BCSNode::BCSNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent)
{
    setNodeIcon(name);
    QFormLayout* const form = addForm();
    m_brightness = addSlider(kParameters[0], form);
    m_contrast = addSlider(kParameters[1], form);
    m_saturation = addSlider(kParameters[2], form);
}

void BCSNode::process(QImage& image)
{
    runFilter(image, [brightness = m_brightness->value(), contrast = m_contrast->value(),
                      saturation = m_saturation->value()](const QImage& source) {
        return apply(source, brightness, contrast, saturation);
    });
}

QImage BCSNode::processFromXml(QImage&& image, const QString& xml)
{
    const auto [brightness, contrast, saturation] = readValues(xml, kParameters);
    return apply(std::move(image), brightness, contrast, saturation);
}
