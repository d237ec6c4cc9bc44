#pragma once

#include <QFrame>
#include <QImage>
#include <QMap>

class BaseNode;
class FavoritesDeleteDlg;
class NodesOptionsPanel;
class NodesTabBar;
class QBoxLayout;
class QMenu;
class QPushButton;
class TabLabel;

/// The strip at the bottom of the page that holds the flow: a tab for each node, the menu that adds
/// one, the button that removes one, the menu of flows and the button that starts the batch.
///
/// It keeps the order of the nodes and tells each change of it; it runs nothing and owns no node.
/// Key k of the flow is the node of tab k and the place in the chain.
class FlowPanel : public QFrame
{
    Q_OBJECT

public:
    FlowPanel(NodesOptionsPanel* optionsPanel, QWidget* parent);
    ~FlowPanel() override;

    /// Adds a tab and a node at the end and makes them current. The caller tells the new flow.
    /// Errors: an unknown operation adds nothing, and null comes back.
    BaseNode* addNode(const QString& operationName);

signals:
    void showOptions(BaseNode* node);
    void flowChanged(QMap<int, BaseNode*> flow);
    /// The remaining nodes, the node that leaves, and the one to be shown, which may be null.
    void nodeRemoved(QMap<int, BaseNode*> flow, BaseNode* removed, BaseNode* next);
    void runBatch();

public slots:
    /// Swaps the two nodes and tells the new flow; of a drag it is told when the bar is done.
    void slotTabMoved(int from, int to);
    void slotTabsDragged();
    /// Adds the operation that the sending action names.
    void slotAddNode();
    void slotAddWaterMarkNode();
    /// Removes every node.
    void slotNewFavorite();
    void slotTabClicked();
    /// Removes the node of the current tab.
    void slotRemoveNode();
    void slotNodesCountChanged(int count);
    void slotRunBatch();
    void slotNodePreviewChanged(const QImage& image);

private:
    QMenu* makeAddMenu(QWidget* parent);
    void rebuildFavoritesMenu();
    void layOut(QPushButton* addButton, QPushButton* flowsButton, QPushButton* runButton);
    void addAndTell(const QString& operationName);

    NodesOptionsPanel* m_optionsPanel;
    QMap<BaseNode*, TabLabel*> m_tabLabels;
    QMap<int, BaseNode*> m_flow;
    NodesTabBar* m_tabBar;
    QMenu* m_favoritesMenu = nullptr;
    QPushButton* m_removeButton;
    FavoritesDeleteDlg* m_deleteDialog;
};
