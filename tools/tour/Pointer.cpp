#include "Pointer.h"

#include <QCursor>
#include <QGuiApplication>
#include <QPointer>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace
{

constexpr int kSteps = 24;

QWindow* windowOf(const QWidget* widget)
{
    return widget->window()->windowHandle();
}

QPoint inWindow(const QWidget* widget, const QPoint& place)
{
    return widget->mapTo(widget->window(), place);
}

} // namespace

void Pointer::moveTo(QWidget* widget, const QPoint& place)
{
    // The system's pointer goes along, or it would send hover events of its own. It can't leave the
    // screen, while a large window may.
    m_place = widget->mapToGlobal(place);
    if (QGuiApplication::screenAt(m_place)) {
        QCursor::setPos(m_place);
    }
    QTest::mouseMove(windowOf(widget), inWindow(widget, place));
}

void Pointer::moveTo(QWidget* widget)
{
    moveTo(widget, widget->rect().center());
}

void Pointer::press(QWidget* widget, const QPoint& place)
{
    moveTo(widget, place);
    QTest::mousePress(windowOf(widget), Qt::LeftButton, Qt::NoModifier, inWindow(widget, place));
}

void Pointer::release(QWidget* widget, const QPoint& place)
{
    QTest::mouseRelease(windowOf(widget), Qt::LeftButton, Qt::NoModifier, inWindow(widget, place));
}

void Pointer::click(QWidget* widget, const QPoint& place)
{
    QPointer<QWidget> target(widget);
    press(widget, place);
    // A press may have closed the widget, as one on a menu's entry does on some systems.
    if (target && windowOf(target)) {
        release(target, place);
    }
}

void Pointer::click(QWidget* widget)
{
    click(widget, widget->rect().center());
}

void Pointer::pull(QWidget* widget, const QPoint& from, const QPoint& to)
{
    press(widget, from);
    for (int step = 1; step <= kSteps; ++step) {
        moveTo(widget, from + (to - from) * step / kSteps);
    }
}

QPoint Pointer::placeIn(const QWidget* widget) const
{
    return widget->mapFromGlobal(m_place);
}
