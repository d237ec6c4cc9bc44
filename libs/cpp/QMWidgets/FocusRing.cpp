#include "FocusRing.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace QMWidgets
{

void drawFocusRing(QWidget* widget, QWidget* canvas)
{
    if (!widget->hasFocus() || !widget->window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        return;
    }
    QStyleOptionFocusRect option;
    option.initFrom(widget);
    QPainter painter(canvas);
    widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, widget);
}

} // namespace QMWidgets
