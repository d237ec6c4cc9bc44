#pragma once

#include <QTabBar>

/// The tab bar of a flow: tells when a press or a drag ends and when the number of tabs changes.
/// What the mouse drags, the arrow keys move with Ctrl held down.
class NodesTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit NodesTabBar(QWidget* parent);

    /// True while the bar itself moves tabs under the mouse: tabsDragged() follows.
    bool isMovingTabs() const { return m_movingTabs; }

signals:
    /// The mouse button went up, after a click or a drag, or a key or the wheel may have stepped to
    /// another tab.
    void tabClicked();
    void countChanged(int count);
    /// Space or Enter: the user wants to see the current tab's picture.
    void previewAsked();
    /// A drag has moved tabs; comes when the bar is done with the movement of the mouse, and so may
    /// be answered by anything, be it a removal of tabs.
    void tabsDragged();

protected:
    void tabInserted(int index) override;
    void tabRemoved(int index) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// By one place, to the side of the arrow `key`; at an end it stays.
    void moveCurrentTab(int key);

    bool m_movingTabs = false;
};
