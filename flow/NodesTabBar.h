#pragma once

#include <QTabBar>

/// The tab bar of a flow: tells when a press or a drag ends and when the number of tabs changes.
class NodesTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit NodesTabBar(QWidget* parent);

signals:
    /// The mouse button went up, after a click or a drag.
    void tabClicked();
    void countChanged(int count);

protected:
    void tabInserted(int index) override;
    void tabRemoved(int index) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};
