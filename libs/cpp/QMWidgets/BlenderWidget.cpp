#include "BlenderWidget.h"

namespace QMWidgets
{

BlenderWidget::BlenderWidget(QWidget* parent)
    : QLabel(parent)
{
}

void BlenderWidget::mousePressEvent(QMouseEvent* event)
{
    QLabel::mousePressEvent(event);
}

} // namespace QMWidgets
