#pragma once

#include <QFrame>
#include <QImage>
#include <QMap>
#include <QPair>

class BaseNode;
class FavoritesDeleteDlg;
class NodesOptionsPanel;
class NodesTabBar;
class QAction;
class QDomElement;
class QDomNode;
class QMenu;
class QPushButton;
class TabLabel;

/// The strip at the bottom of the page that holds the flow: a tab for each node, the menu that adds
/// one, the button that removes one, the menu of saved flows and the button that starts the batch.
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

    /// Fills the menu of flows with its commands and with the flows that the folder holds now.
    void rebuildFavoritesMenu();
    /// Saves the flow in the folder of flows. Errors: a file that can't be written stays as it was.
    void writeFlow(const QString& fileName);
    /// Puts the flow that the text tells in the place of the present one, and tells it. What can't
    /// be understood is left out: a text that is no XML leaves the flow empty. Removing the present
    /// nodes lets events through; if they bring another flow, or clear it, that one stays.
    void loadFlow(const QString& xml);
    /// The operations of a flow file by their place, each with its name and the node that holds its
    /// parameters, which may be null or anything else.
    QMap<int, QPair<QString, QDomNode>> readOperations(const QDomElement& root);

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
    /// Asks for a name and saves the flow under it; a flow of that name is replaced if the user
    /// agrees.
    void slotSaveFlow();
    /// Loads the flow that the sending action stands for. One that can't be read changes nothing.
    void slotLoadFavorite();
    /// Lets the user choose a saved flow, and removes its file.
    void slotDeleteFavorite();
    void slotTabClicked();
    /// Removes the node of the current tab.
    void slotRemoveNode();
    void slotNodesCountChanged(int count);
    void slotRunBatch();
    /// Shows the folder of flows in the file manager.
    void slotGotoPresetsLocation();
    void slotNodePreviewChanged(const QImage& image);
    /// Shows the current tab's picture larger, for as long as the keyboard rests there.
    void slotPreviewAsked();

private:
    QMenu* makeAddMenu(QWidget* parent);
    void layOut(QPushButton* addButton, QPushButton* flowsButton, QPushButton* runButton);
    void addAndTell(const QString& operationName);
    /// Removes every node. False if something newer has cleared the flow meanwhile.
    bool clearFlow();

    NodesOptionsPanel* m_optionsPanel;
    QMap<BaseNode*, TabLabel*> m_tabLabels;
    QMap<int, BaseNode*> m_flow;
    NodesTabBar* m_tabBar;
    QMenu* m_favoritesMenu = nullptr;
    QAction* m_saveAction = nullptr;
    QPushButton* m_removeButton;
    FavoritesDeleteDlg* m_deleteDialog;
    quint64 m_lastClearing = 0;
};
