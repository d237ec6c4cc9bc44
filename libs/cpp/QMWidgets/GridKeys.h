#pragma once

#include <QObject>

class QGridLayout;

namespace QMWidgets
{

/// Moves the keyboard through a grid of buttons with the arrow keys, to the neighbour that lies in
/// the arrow's direction; at an edge it stays. The toolkit's own arrows only step along the order
/// of Tab.
class GridKeys : public QObject
{
    Q_OBJECT

public:
    /// The grid, with all its buttons in it, belongs to a widget, which owns the new object.
    explicit GridKeys(QGridLayout* grid);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QGridLayout* m_grid;
};

} // namespace QMWidgets
