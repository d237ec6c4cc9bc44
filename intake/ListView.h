#pragma once

#include <QListView>

/// A list view that tells of each change of its current row by a signal.
class ListView : public QListView
{
    Q_OBJECT

public:
    explicit ListView(QWidget* parent);

signals:
    void currentItemChanged(const QModelIndex& current, const QModelIndex& previous);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
};
