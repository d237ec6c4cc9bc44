#pragma once

#include <QListView>

namespace QMWidgets
{
class RepeatGate;
}

/// A list view that emits a signal at each change of its current row. The current row, and no
/// other, is the selected one, also while handlers of that signal move it on.
class ListView : public QListView
{
    Q_OBJECT

public:
    explicit ListView(QWidget* parent);

signals:
    void currentItemChanged(const QModelIndex& current, const QModelIndex& previous);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    QMWidgets::RepeatGate* m_repeatGate;
};
