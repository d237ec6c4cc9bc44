#pragma once

#include <QListView>

/// A list view that tells of each change of its current row by a signal. The current row, and no
/// other, is the selected one, also while handlers of that signal move it on.
class ListView : public QListView
{
    Q_OBJECT

public:
    explicit ListView(QWidget* parent);

signals:
    void currentItemChanged(const QModelIndex& current, const QModelIndex& previous);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
};
