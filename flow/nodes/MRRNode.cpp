#include "flow/nodes/MRRNode.h"

#include "flow/ParameterReader.h"
#include <MGraphX/Geometry.h>
#include <MGraphX/GraphX.h>

#include <QHBoxLayout>
#include <QPushButton>
#include <utility>

using MGraphX::GraphX;

namespace
{
constexpr char kHorizontalTag[] = "Horizontal";
constexpr char kVerticalTag[] = "Vertical";
} // namespace

MRRNode::MRRNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent),
      m_horizontalButton(new QPushButton),
      m_verticalButton(new QPushButton)
{
    setNodeIcon(name);
    // Deliberate: the letters cross over. A picture shows the axis of reflection, and a horizontal
    // flip has a vertical one.
    m_horizontalButton->setObjectName(QStringLiteral("MirrorVButton"));
    m_horizontalButton->setAccessibleName(tr("Mirror horizontally"));
    m_verticalButton->setObjectName(QStringLiteral("MirrorHButton"));
    m_verticalButton->setAccessibleName(tr("Mirror vertically"));

    auto* layout = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (QPushButton* button : {m_horizontalButton, m_verticalButton}) {
        button->setFlat(true);
        button->setCheckable(true);
        layout->addWidget(button);
        connect(button, &QPushButton::clicked, this, &MRRNode::parametersChanged);
    }
    m_horizontalButton->setChecked(true);
    optionsLayout()->addLayout(layout);

    bindings().bind(kHorizontalTag, m_horizontalButton);
    bindings().bind(kVerticalTag, m_verticalButton);
}

void MRRNode::process(QImage& image)
{
    runFilter(image, [horizontal = m_horizontalButton->isChecked(),
                      vertical = m_verticalButton->isChecked()](const QImage& source) {
        return GraphX::mirror(source, horizontal, vertical);
    });
}

QImage MRRNode::processFromXml(QImage&& image, const QString& xml)
{
    return MGraphX::geometry::mirror(std::move(image),
                                     ParameterReader::yesNoValue(xml, kHorizontalTag, true),
                                     ParameterReader::yesNoValue(xml, kVerticalTag, false));
}
