#include "TabWalk.h"

#include <algorithm>
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMWidgets/ColorWidget.h>
#include <QTabBar>
#include <QTextEdit>
#include <QtTest>

namespace
{

constexpr int kMostStops = 200;

/// In its window, as an eye sees it that reads from the left.
QRect placeOf(const QWidget* widget, Qt::LayoutDirection direction)
{
    const QWidget* const window = widget->window();
    QRect place(widget->mapTo(window, QPoint(0, 0)), widget->size());
    if (direction == Qt::RightToLeft) {
        place.moveLeft(window->width() - place.left() - place.width());
    }
    return place;
}

QList<QWidget*> round(QWidget* start, Qt::Key key)
{
    QList<QWidget*> stops;
    QWidget* stop = start;
    while (stop && !stops.contains(stop) && stops.size() < kMostStops) {
        stops += stop;
        QTest::keyClick(stop, key);
        stop = QApplication::focusWidget();
    }
    return stops;
}

/// The toolkit's own parts of a control are used through it.
bool isPart(const QWidget* widget)
{
    const QWidget* const parent = widget->parentWidget();
    return widget->objectName().startsWith(QLatin1String("qt_")) ||
           widget->inherits("QScrollBar") || qobject_cast<const QTabBar*>(parent) ||
           qobject_cast<const QAbstractSpinBox*>(parent) || qobject_cast<const QComboBox*>(parent);
}

bool isControl(const QWidget* widget)
{
    const auto* const group = qobject_cast<const QGroupBox*>(widget);
    const auto* const bar = qobject_cast<const QTabBar*>(widget);
    return qobject_cast<const QAbstractButton*>(widget) ||
           qobject_cast<const QAbstractSlider*>(widget) ||
           qobject_cast<const QAbstractSpinBox*>(widget) ||
           qobject_cast<const QComboBox*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
           qobject_cast<const QAbstractItemView*>(widget) ||
           qobject_cast<const QTextEdit*>(widget) ||
           qobject_cast<const QMWidgets::ColorWidget*>(widget) || (group && group->isCheckable()) ||
           (bar && bar->count() > 0);
}

} // namespace

TabWalk::TabWalk(QWidget* window)
{
    QWidget* const start = QApplication::focusWidget();
    if (!start || start->window() != window) {
        return;
    }
    forward = round(start, Qt::Key_Tab);
    start->setFocus(Qt::TabFocusReason);
    back = round(start, Qt::Key_Backtab);
    if (!back.isEmpty()) {
        std::reverse(back.begin() + 1, back.end());
    }
}

QList<QWidget*> controlsOf(QWidget* window)
{
    QList<QWidget*> controls;
    for (QWidget* const widget : window->findChildren<QWidget*>()) {
        if (widget->window() == window && widget->isVisible() && widget->isEnabled() &&
            isControl(widget) && !isPart(widget)) {
            controls += widget;
        }
    }
    return controls;
}

bool isReadingOrder(const QWidget* from, const QWidget* to)
{
    const QWidget* const around =
        from->parentWidget() == to->parentWidget() ? from->parentWidget() : from->window();
    const QRect one = placeOf(from, around->layoutDirection());
    const QRect next = placeOf(to, around->layoutDirection());
    if (one.contains(next)) {
        return true;
    }
    const bool isOnOneLine = one.top() <= next.center().y() && next.top() <= one.center().y();
    const bool isFurtherOn = next.left() > one.left();
    const bool isBelow = next.top() > one.top();
    const bool isInNextColumn = next.left() > one.right();
    return isOnOneLine ? isFurtherOn : isBelow || isInNextColumn;
}

QString nameForMessage(const QWidget* widget)
{
    const QRect place = placeOf(widget, Qt::LeftToRight);
    return QStringLiteral("%1 %2 \"%3\" at %4,%5")
        .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(),
             widget->accessibleName())
        .arg(place.left())
        .arg(place.top());
}
