#include "FocusRing.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace QMWidgets
{

void drawFocusRing(QWidget* widget)
{
    if (!widget->hasFocus() || !widget->window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        return;
    }
    QStyleOptionFocusRect option;
    option.initFrom(widget);
    QPainter painter(widget);
    widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, widget);
}

} // namespace QMWidgets
