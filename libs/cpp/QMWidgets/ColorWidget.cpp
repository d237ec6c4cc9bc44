#include "ColorWidget.h"

#include "ColorWidgetPopup.h"
#include "FocusRing.h"

#include <QKeyEvent>
#include <QPainter>
#include <QRadialGradient>

namespace QMWidgets
{

ColorWidget::ColorWidget(QWidget* parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    setMinimumWidth(10);
    setMinimumHeight(10);
    setFocusPolicy(Qt::StrongFocus);
    storeColor(m_color);
    m_popup = new ColorWidgetPopup(this, Qt::ToolTip);
    m_popup->hide();
    m_popup->setWindowOpacity(1.0);
    connect(m_popup, &ColorWidgetPopup::colorChanged, this, &ColorWidget::slotColorChanged);
}

void ColorWidget::setColor(const QColor& color)
{
    storeColor(color);
    update();
}

void ColorWidget::setPopupOpacity(float opacity)
{
    m_popup->setWindowOpacity(double(opacity));
}

void ColorWidget::slotColorChanged(const QColor& color)
{
    storeColor(color);
    repaint();
    emit colorChanged(m_color);
}

void ColorWidget::storeColor(const QColor& color)
{
    m_color = color;
    setAccessibleName(ColorWidgetPopup::caption(color));
}

void ColorWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect frame(0, 0, width() - 1, height() - 1);
    painter.setBrush(m_color);
    painter.drawRect(frame);

    QRadialGradient shine(QPointF(5, 5), width() / 2, QPointF(5, 5));
    shine.setColorAt(0, Qt::white);
    shine.setColorAt(1, Qt::gray);
    painter.setOpacity(0.5);
    painter.setBrush(shine);
    painter.drawRect(frame);

    painter.setOpacity(1.0);
    painter.setBrush(Qt::white);
    painter.translate(width() - 10, height() - 8);
    const QPoint arrow[] = {QPoint(0, 0), QPoint(8, 0), QPoint(4, 4)};
    painter.drawPolygon(arrow, 3);
    painter.end();
    drawFocusRing(this);
}

void ColorWidget::mousePressEvent(QMouseEvent* event)
{
    togglePopup();
    QWidget::mousePressEvent(event);
}

void ColorWidget::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        togglePopup();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ColorWidget::togglePopup()
{
    m_popup->move(mapToGlobal(QPoint(0, height())));
    m_popup->setCurrentColor(m_color);
    m_popup->setVisible(!m_popup->isVisible());
}

} // namespace QMWidgets
