#include "GridKeys.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QWidget>

namespace QMWidgets
{

namespace
{

/// Columns to the right and rows down, as the eye sees them.
QPoint directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

GridKeys::GridKeys(QGridLayout* grid)
    : QObject(grid->parentWidget()),
      m_grid(grid)
{
    for (int i = 0; i < grid->count(); ++i) {
        grid->itemAt(i)->widget()->installEventFilter(this);
    }
}

bool GridKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    auto* const from = static_cast<QWidget*>(watched);
    QPoint step = directionOf(static_cast<QKeyEvent*>(event)->key());
    if (step.isNull()) {
        return QObject::eventFilter(watched, event);
    }
    if (from->layoutDirection() == Qt::RightToLeft) {
        step.rx() = -step.x();
    }
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    m_grid->getItemPosition(m_grid->indexOf(from), &row, &column, &rows, &columns);
    row += step.y();
    column += step.x();
    const bool isInside =
        row >= 0 && row < m_grid->rowCount() && column >= 0 && column < m_grid->columnCount();
    if (QLayoutItem* const next = isInside ? m_grid->itemAtPosition(row, column) : nullptr) {
        next->widget()->setFocus(step.x() + step.y() > 0 ? Qt::TabFocusReason
                                                         : Qt::BacktabFocusReason);
    }
    return true;
}

} // namespace QMWidgets
