#include "TabOrder.h"

#include <QHash>
#include <QLayout>
#include <QList>
#include <QWidget>

namespace QMWidgets
{

namespace
{

using Stops = QList<QWidget*>;

void addStops(QWidget* widget, Stops& stops);

void addStops(QLayout* layout, Stops& stops, QList<QObject*>& seen)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* const item = layout->itemAt(i);
        if (QWidget* const widget = item->widget()) {
            seen += widget;
            addStops(widget, stops);
        } else if (item->layout()) {
            addStops(item->layout(), stops, seen);
        }
    }
}

/// A control without a layout of its own keeps its parts to itself.
void addStops(QWidget* widget, Stops& stops)
{
    if (widget->focusPolicy() & Qt::TabFocus || widget->focusProxy()) {
        stops += widget;
    }
    if (!widget->layout()) {
        return;
    }
    Stops laidOut;
    QList<QObject*> seen;
    addStops(widget->layout(), laidOut, seen);
    for (QObject* const child : widget->children()) {
        auto* const below = qobject_cast<QWidget*>(child);
        if (below && !below->isWindow() && !seen.contains(below)) {
            addStops(below, stops);
        }
    }
    stops += laidOut;
}

} // namespace

void tabAsLaidOut(QWidget* widget)
{
    Stops stops;
    addStops(widget, stops);
    // Tab goes to a control's proxy by way of the control, so that has to be in order too. With its
    // proxy in place, it would take along whatever stands between the two.
    QHash<QWidget*, QWidget*> proxies;
    for (QWidget* const stop : qAsConst(stops)) {
        if (QWidget* const proxy = stop->focusProxy()) {
            proxies.insert(stop, proxy);
            stop->setFocusProxy(nullptr);
        }
    }
    for (int i = 1; i < stops.size(); ++i) {
        QWidget::setTabOrder(stops.at(i - 1), stops.at(i));
    }
    // For the toolkit a last stop that stands before the first is in order, as Tab comes round. But
    // then a window would open with the keyboard there.
    if (stops.size() > 2) {
        QWidget::setTabOrder(stops.first(), stops.last());
        QWidget::setTabOrder(stops.at(stops.size() - 2), stops.last());
    }
    for (auto each = proxies.cbegin(); each != proxies.cend(); ++each) {
        each.key()->setFocusProxy(each.value());
    }
}

} // namespace QMWidgets
