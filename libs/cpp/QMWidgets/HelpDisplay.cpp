#include "HelpDisplay.h"

#include <QPainter>

namespace QMWidgets
{

HelpDisplay::HelpDisplay(QWidget* parent)
    : QFrame(parent)
{
}

void HelpDisplay::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (m_slide.isEmpty()) {
        return;
    }
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRect(rect());

    const QPixmap file(m_slide);
    if (file.isNull()) {
        return;
    }
    // Twice the pixels that are shown: a dense screen has a use for them.
    const QPixmap slide = file.scaled(2 * size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    const QSize shown(slide.width() / 2, slide.height() / 2);
    const QPoint corner(qAbs(width() - shown.width()) / 2, qAbs(height() - shown.height()) / 2);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(corner, shown), slide, slide.rect());
}

} // namespace QMWidgets
