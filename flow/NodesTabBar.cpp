#include "flow/NodesTabBar.h"

NodesTabBar::NodesTabBar(QWidget* parent)
    : QTabBar(parent)
{
}

void NodesTabBar::tabInserted(int index)
{
    QTabBar::tabInserted(index);
    emit countChanged(count());
}

void NodesTabBar::tabRemoved(int index)
{
    QTabBar::tabRemoved(index);
    emit countChanged(count());
}

void NodesTabBar::keyPressEvent(QKeyEvent* event)
{
    QTabBar::keyPressEvent(event);
    emit tabClicked();
}

void NodesTabBar::wheelEvent(QWheelEvent* event)
{
    QTabBar::wheelEvent(event);
    emit tabClicked();
}

void NodesTabBar::mouseMoveEvent(QMouseEvent* event)
{
    bool moved = false;
    const auto note = connect(this, &QTabBar::tabMoved, this, [&moved] { moved = true; });
    m_movingTabs = true;
    QTabBar::mouseMoveEvent(event);
    m_movingTabs = false;
    disconnect(note);
    if (moved) {
        emit tabsDragged();
    }
}

void NodesTabBar::mouseReleaseEvent(QMouseEvent* event)
{
    // Deliberate: a further press ends the drag of a tab at once, where the base class's release
    // would let the tab slide home and keep the drag open until it has arrived.
    QTabBar::mousePressEvent(event);
    emit tabClicked();
}
