#include "intake/ListView.h"

#include <QMWidgets/RepeatGate.h>

#include <QPersistentModelIndex>

ListView::ListView(QWidget* parent)
    : QListView(parent),
      m_repeatGate(new QMWidgets::RepeatGate(this))
{
}

void ListView::keyPressEvent(QKeyEvent* event)
{
    m_repeatGate->pass(event, [this, event] { QListView::keyPressEvent(event); });
}

void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    selectionModel()->select(current, QItemSelectionModel::ClearAndSelect);
    // The answer runs the flow, which lets events through: they may bring new photos, which end
    // these rows, or move the current row on.
    const QPersistentModelIndex previousThen(previous);
    emit currentItemChanged(current, previous);
    QListView::currentChanged(currentIndex(), previousThen);
}

QItemSelectionModel::SelectionFlags ListView::selectionCommand(const QModelIndex&,
                                                               const QEvent*) const
{
    // The base class selects after it has set the current row, which may be another one by then.
    return QItemSelectionModel::NoUpdate;
}
