#include "flow/nodes/RTTNode.h"

#include "flow/ParameterReader.h"
#include <MGraphX/Geometry.h>

#include <QHBoxLayout>
#include <QPushButton>
#include <utility>

namespace geometry = MGraphX::geometry;

namespace
{

constexpr char kAngleTag[] = "Angle";
constexpr int kQuarter = 90;
constexpr int kMostAngle = 270;

} // namespace

RTTNode::RTTNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent),
      m_rightButton(new QPushButton),
      m_leftButton(new QPushButton)
{
    setNodeIcon(name);
    m_rightButton->setObjectName(QStringLiteral("RotateRightButton"));
    m_rightButton->setAccessibleName(tr("Rotate right"));
    m_rightButton->setFlat(true);
    m_leftButton->setObjectName(QStringLiteral("RotateLeftButton"));
    m_leftButton->setAccessibleName(tr("Rotate left"));
    m_leftButton->setFlat(true);

    auto* row = new QWidget;
    // Left and right are those of the photo, whichever way the interface is read.
    row->setLayoutDirection(Qt::LeftToRight);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_leftButton);
    layout->addWidget(m_rightButton);
    optionsLayout()->addWidget(row);

    connect(m_rightButton, &QPushButton::clicked, this, &RTTNode::slotRightClicked);
    connect(m_leftButton, &QPushButton::clicked, this, &RTTNode::slotLeftClicked);
    bindings().bind(
        kAngleTag, [this](const QString& text) { ParameterReader::readInt(text, m_angle); },
        [this] { return QString::number(m_angle, 10); });
}

void RTTNode::process(QImage& image)
{
    runFilter(image, [angle = m_angle](const QImage& source) { return applyAngle(source, angle); });
}

QImage RTTNode::processFromXml(QImage&& image, const QString& xml)
{
    return applyAngle(std::move(image), ParameterReader::intValue(xml, kAngleTag, 0));
}

QImage RTTNode::applyAngle(QImage&& image, int angle)
{
    switch (angle) {
    case 90:
    case -270:
        return geometry::rotate90(std::move(image));
    case 180:
    case -180:
        return geometry::rotate180(std::move(image));
    case 270:
    case -90:
        return geometry::rotate270(std::move(image));
    default:
        return std::move(image);
    }
}

// A stored angle may be any number, so the bound is tested before the step is made.

void RTTNode::slotRightClicked()
{
    m_angle = m_angle > kMostAngle - kQuarter ? 0 : m_angle + kQuarter;
    emit parametersChanged();
}

void RTTNode::slotLeftClicked()
{
    m_angle = m_angle < kQuarter - kMostAngle ? 0 : m_angle - kQuarter;
    emit parametersChanged();
}
