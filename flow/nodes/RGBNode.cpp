#include "flow/nodes/RGBNode.h"

#include "flow/ParameterReader.h"
#include <MGraphX/GraphX.h>

#include <QComboBox>
#include <QVBoxLayout>

using MGraphX::GraphX;

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

QImage RGBNode::processFromXml(const QImage& image, const QString& xml)
{
    return applyMode(image, ParameterReader::intValue(xml, kModeTag, 0));
}

QImage RGBNode::applyMode(const QImage& image, int mode)
{
    switch (mode) {
    case 0:
        return GraphX::swapRedBlue(image);
    case 1:
        return GraphX::swapRedGreen(image);
    case 2:
        return GraphX::swapGreenBlue(image);
    default:
        return image;
    }
}
