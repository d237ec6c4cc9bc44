#include "flow/NodesTabBar.h"

#include <QMWidgets/FollowLanguage.h>

#include <QKeyEvent>
#include <QToolButton>

NodesTabBar::NodesTabBar(QWidget* parent)
    : QTabBar(parent)
{
    // The arrow keys bring tabs into sight by themselves.
    for (QToolButton* button : findChildren<QToolButton*>()) {
        button->setFocusPolicy(Qt::NoFocus);
    }
    // Qt's names never change with the language, and "left" is wrong where reading goes left.
    QMWidgets::followLanguage(this, [this] {
        for (QToolButton* button : findChildren<QToolButton*>()) {
            button->setAccessibleName(button->objectName() == QLatin1String("ScrollLeftButton")
                                          ? tr("Earlier operations")
                                          : tr("Later operations"));
        }
    });
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
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat()) {
            emit previewAsked();
        }
        return;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (event->modifiers() & Qt::ControlModifier) {
            moveCurrentTab(event->key());
            return;
        }
        break;
    default:
        break;
    }
    QTabBar::keyPressEvent(event);
    emit tabClicked();
}

void NodesTabBar::moveCurrentTab(int key)
{
    const Qt::Key forward = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    const int target = currentIndex() + (key == forward ? 1 : -1);
    if (target >= 0 && target < count()) {
        moveTab(currentIndex(), target);
    }
}

void NodesTabBar::wheelEvent(QWheelEvent* event)
{
    QTabBar::wheelEvent(event);
    emit tabClicked();
}

void NodesTabBar::mouseMoveEvent(QMouseEvent* event)
{
    // After a click the base class takes a move with any button held down for a drag, and only a
    // release of the left one would end it.
    if (!(event->buttons() & Qt::LeftButton)) {
        return;
    }
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
