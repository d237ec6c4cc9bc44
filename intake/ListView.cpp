#include "intake/ListView.h"

#include <QPersistentModelIndex>

ListView::ListView(QWidget* parent)
    : QListView(parent)
{
}

void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    // The answer runs the flow, which lets events through: new photos among them end these rows.
    const QPersistentModelIndex currentThen(current);
    const QPersistentModelIndex previousThen(previous);
    emit currentItemChanged(current, previous);
    QListView::currentChanged(currentThen, previousThen);
}
