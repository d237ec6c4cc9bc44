#include "preview/BubbleWindow.h"

#include <QMWidgets/App.h>

#include <QPainter>

namespace
{

constexpr double kHalfPointerWidth = 20.0;

void startIfSet(QAbstractAnimation* animation)
{
    if (animation) {
        animation->start(QAbstractAnimation::KeepWhenStopped);
    }
}

QPolygonF outline(double width, double height)
{
    const double bottom = height - BubbleWindow::kPointerHeight;
    const double middle = width / 2;
    return QPolygonF({{0, 0},
                      {width, 0},
                      {width, bottom},
                      {middle + kHalfPointerWidth, bottom},
                      {middle, height},
                      {middle - kHalfPointerWidth, bottom},
                      {0, bottom}});
}

} // namespace

BubbleWindow::BubbleWindow(QWidget* parent)
    : QFrame(parent)
{
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground, true);
    if (const QMWidgets::App* const app = QMWidgets::App::app()) {
        connect(app, &QMWidgets::App::mouseButtonPress, this, &BubbleWindow::hide);
    }
}

void BubbleWindow::slotFocusChanged(QWidget*, QWidget*)
{
    if (QApplication::activeWindow() != this) {
        hide();
    }
}

bool BubbleWindow::event(QEvent* event)
{
    return QFrame::event(event);
}

void BubbleWindow::mousePressEvent(QMouseEvent* event)
{
    hide();
    QFrame::mousePressEvent(event);
}

void BubbleWindow::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    QPen pen(QBrush(Qt::lightGray), 1.0, Qt::SolidLine, Qt::SquareCap);
    pen.setJoinStyle(Qt::RoundJoin);
    painter.setPen(pen);
    painter.setBrush(QColor(0, 0, 0, 80));
    painter.drawPolygon(outline(width(), height()));
}

void BubbleWindow::showEvent(QShowEvent* event)
{
    startIfSet(m_showAnimation);
    QFrame::showEvent(event);
}

void BubbleWindow::hideEvent(QHideEvent* event)
{
    startIfSet(m_hideAnimation);
    QFrame::hideEvent(event);
}
