#include "intake/ListView.h"

ListView::ListView(QWidget* parent)
    : QListView(parent)
{
}

void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    emit currentItemChanged(current, previous);
    QListView::currentChanged(current, previous);
}
