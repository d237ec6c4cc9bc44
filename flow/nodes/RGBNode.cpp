#include "flow/nodes/RGBNode.h"

#include "flow/ParameterReader.h"
#include <MGraphX/Tone.h>

#include <QComboBox>
#include <QVBoxLayout>

namespace tone = MGraphX::tone;

namespace
{
constexpr char kModeTag[] = "Mode";
} // namespace

RGBNode::RGBNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent),
      m_mode(new QComboBox)
{
    setNodeIcon(name);
    m_mode->addItem(tr("Red<->Blue"), 0);
    m_mode->addItem(tr("Red<->Green"), 1);
    m_mode->addItem(tr("Green<->Blue"), 2);
    m_mode->setAccessibleName(name);

    auto* layout = new QVBoxLayout;
    layout->addWidget(m_mode);
    optionsLayout()->addLayout(layout);

    connect(m_mode, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &RGBNode::parametersChanged);
    bindings().bind(kModeTag, m_mode);
}

void RGBNode::process(QImage& image)
{
    runFilter(image, [mode = m_mode->currentData().toInt()](const QImage& source) {
        return applyMode(source, mode);
    });
}

QImage RGBNode::processFromXml(QImage&& image, const QString& xml)
{
    return applyMode(std::move(image), ParameterReader::intValue(xml, kModeTag, 0));
}

QImage RGBNode::applyMode(QImage image, int mode)
{
    switch (mode) {
    case 0:
        return tone::swapRedBlue(std::move(image));
    case 1:
        return tone::swapRedGreen(std::move(image));
    case 2:
        return tone::swapGreenBlue(std::move(image));
    default:
        return image;
    }
}
