#include "Label.h"

#include "App.h"

#include <QPainter>

namespace QMWidgets
{

Label::Label(QWidget* parent)
    : QLabel(parent)
{
}

void Label::setPixmap(const QPixmap& pixmap)
{
    m_pixmap = pixmap;
    update();
}

void Label::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    const double ratio = App::devicePixelRatio();
    const QSize box(int(width() * ratio), int(height() * ratio));
    if (m_pixmap.isNull() || box.isEmpty()) {
        return;
    }
    const Qt::AspectRatioMode mode =
        m_expanding ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio;
    const QPixmap scaled = m_pixmap.scaled(box, mode, Qt::SmoothTransformation);
    const double scaledWidth = scaled.width() / ratio;
    const double scaledHeight = scaled.height() / ratio;
    QPoint place;
    if (!m_expanding) {
        place = QPoint(int((width() - scaledWidth) * 0.5), int((height() - scaledHeight) * 0.5));
    }
    QPainter painter(this);
    painter.drawPixmap(QRect(place, QSize(int(scaledWidth), int(scaledHeight))), scaled, QRect());
}

} // namespace QMWidgets
