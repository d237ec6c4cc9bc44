#include "flow/FlowPanel.h"

#include "flow/BaseNode.h"
#include "flow/FavoritesDeleteDlg.h"
#include "flow/NamedEntry.h"
#include "flow/NodesOptionsPanel.h"
#include "flow/NodesTabBar.h"
#include "flow/Operations.h"
#include "flow/TabLabel.h"
#include <QMWidgets/App.h>
#include <QMWidgets/FollowLanguage.h>
#include <QMWidgets/TabOrder.h>

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

namespace
{

QPushButton* makeButton(const QString& caption, const QString& objectName, QWidget* parent)
{
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(objectName);
    button->setFlat(true);
    return button;
}

/// A round button whose caption is a sign: its tool tip names it.
QPushButton* makeRoundButton(const QString& sign, const QString& objectName, QWidget* parent)
{
    QPushButton* const button = makeButton(sign, objectName, parent);
    button->setFixedSize(40, 40);
    return button;
}

void nameByToolTip(QWidget* widget, const QString& toolTip)
{
    widget->setToolTip(toolTip);
    widget->setAccessibleName(toolTip);
}

} // namespace

FlowPanel::FlowPanel(NodesOptionsPanel* optionsPanel, QWidget* parent)
    : QFrame(parent),
      m_optionsPanel(optionsPanel),
      m_tabBar(new NodesTabBar(this)),
      m_removeButton(
          makeRoundButton(QStringLiteral("-"), QStringLiteral("PushButtonRemove"), this)),
      m_deleteDialog(new FavoritesDeleteDlg(nullptr))
{
    setObjectName(QStringLiteral("FlowPanel"));
    setFixedHeight(165);

    m_tabBar->setMovable(true);
    m_tabBar->setUsesScrollButtons(true);
    m_tabBar->setMinimumHeight(70);
    connect(m_tabBar, &NodesTabBar::tabClicked, this, &FlowPanel::slotTabClicked);
    connect(m_tabBar, &NodesTabBar::countChanged, this, &FlowPanel::slotNodesCountChanged);
    connect(m_tabBar, &NodesTabBar::tabMoved, this, &FlowPanel::slotTabMoved);
    connect(m_tabBar, &NodesTabBar::tabsDragged, this, &FlowPanel::slotTabsDragged);
    connect(m_tabBar, &NodesTabBar::previewAsked, this, &FlowPanel::slotPreviewAsked);

    auto* addButton = makeRoundButton(QStringLiteral("+"), QStringLiteral("PushButtonAdd"), this);
    addButton->setMenu(makeAddMenu(addButton));
    connect(m_removeButton, &QPushButton::clicked, this, &FlowPanel::slotRemoveNode);

    auto* flowsButton = makeButton(QStringLiteral("Flows"), QStringLiteral("PushButton"), this);
    flowsButton->setFixedHeight(40);
    m_favoritesMenu = new QMenu(flowsButton);
    m_favoritesMenu->setObjectName(QStringLiteral("FavoritesMenu"));
    flowsButton->setMenu(m_favoritesMenu);

    auto* runButton = new QPushButton(QStringLiteral("Save Results"), this);
    runButton->setObjectName(QStringLiteral("RunBatchButton"));
    connect(runButton, &QPushButton::clicked, this, &FlowPanel::slotRunBatch);

    QMWidgets::followLanguage(this, [=] {
        m_tabBar->setAccessibleName(tr("Operations"));
        nameByToolTip(addButton, tr("Add node"));
        nameByToolTip(m_removeButton, tr("Remove selected node"));
        runButton->setToolTip(tr("Save the resulted photos to the separate folder"));
        rebuildFavoritesMenu();
    });
    layOut(addButton, flowsButton, runButton);
    slotNodesCountChanged(0);
}

FlowPanel::~FlowPanel()
{
    delete m_deleteDialog;
}

QMenu* FlowPanel::makeAddMenu(QWidget* parent)
{
    auto* menu = new QMenu(parent);
    menu->setObjectName(QStringLiteral("FlowPanelMenu"));
    for (const Operation& operation : operations()) {
        QAction* const action = addNamedEntry(menu, nodeIcon(operation.name), operation.name);
        connect(action, &QAction::triggered, this, &FlowPanel::slotAddNode);
    }
    return menu;
}

void FlowPanel::layOut(QPushButton* addButton, QPushButton* flowsButton, QPushButton* runButton)
{
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(3);
    buttons->setContentsMargins(1, 1, 1, 1);
    buttons->addWidget(addButton);
    buttons->addSpacing(4);
    buttons->addWidget(m_removeButton);
    buttons->addWidget(flowsButton);
    buttons->addStretch(1);
    buttons->addWidget(runButton);

    auto* tabs = new QHBoxLayout;
    tabs->setSpacing(0);
    tabs->setContentsMargins(0, 0, 0, 0);
    tabs->addWidget(m_tabBar);

    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("FlowPanelFrame"));
    auto* rows = new QVBoxLayout(frame);
    rows->setSpacing(3);
    rows->setContentsMargins(3, 3, 3, 3);
    rows->addLayout(buttons);
    rows->addStretch(1);
    rows->addLayout(tabs);

    auto* layout = new QHBoxLayout(this);
    if (QMWidgets::App::isSmallScreen()) {
        layout->setSpacing(1);
        layout->setContentsMargins(1, 1, 1, 1);
    }
    layout->addWidget(frame);
    QMWidgets::tabAsLaidOut(this);
}

BaseNode* FlowPanel::addNode(const QString& operationName)
{
    BaseNode* const node = m_optionsPanel->createNode(operationName);
    if (!node) {
        return nullptr;
    }
    const int index = m_tabBar->addTab(nodeIcon(operationName), operationName);
    m_tabBar->setTabToolTip(index, operationName);
    m_flow[index] = node;

    auto* label = new TabLabel(nullptr);
    label->setFixedSize(70, 70);
    m_tabBar->setTabButton(index, QTabBar::LeftSide, label);
    m_tabBar->setCurrentIndex(index);
    m_tabLabels[node] = label;
    connect(node, &BaseNode::previewChanged, this, &FlowPanel::slotNodePreviewChanged);
    return node;
}

void FlowPanel::slotTabMoved(int from, int to)
{
    // The bar moves a tab by one place at a time, so that a swap is the whole move.
    std::swap(m_flow[from], m_flow[to]);
    if (!m_tabBar->isMovingTabs()) {
        slotTabsDragged();
    }
}

void FlowPanel::slotTabsDragged()
{
    emit flowChanged(m_flow);
}

void FlowPanel::slotAddNode()
{
    if (const auto* action = qobject_cast<QAction*>(sender())) {
        addAndTell(nameOf(action));
    }
}

void FlowPanel::slotAddWaterMarkNode()
{
    addAndTell(QStringLiteral("Watermark"));
}

void FlowPanel::addAndTell(const QString& operationName)
{
    if (addNode(operationName)) {
        emit flowChanged(m_flow);
    }
}

void FlowPanel::slotTabClicked()
{
    if (BaseNode* const node = m_flow.value(m_tabBar->currentIndex())) {
        emit showOptions(node);
    }
}

void FlowPanel::slotRemoveNode()
{
    const int current = m_tabBar->currentIndex();
    BaseNode* const removed = m_flow.value(current);
    if (!removed) {
        return;
    }
    const int last = m_flow.size() - 1;
    QMap<int, BaseNode*> remaining;
    for (int i = 0; i < last; ++i) {
        remaining[i] = m_flow.value(i < current ? i : i + 1);
    }
    m_tabLabels.remove(removed);
    m_tabBar->removeTab(current);
    m_flow = remaining;
    const int nextIndex = current == last ? last - 1 : current;
    m_tabBar->setCurrentIndex(nextIndex);
    emit nodeRemoved(m_flow, removed, m_flow.value(nextIndex));
}

void FlowPanel::slotNodesCountChanged(int count)
{
    m_removeButton->setEnabled(count != 0);
    m_saveAction->setEnabled(count != 0);
}

void FlowPanel::slotRunBatch()
{
    emit runBatch();
}

void FlowPanel::slotNodePreviewChanged(const QImage& image)
{
    const auto label = m_tabLabels.find(qobject_cast<BaseNode*>(sender()));
    if (label != m_tabLabels.end()) {
        label.value()->setPixmap(QPixmap::fromImage(image));
    }
}

void FlowPanel::slotPreviewAsked()
{
    if (TabLabel* const label = m_tabLabels.value(m_flow.value(m_tabBar->currentIndex()))) {
        label->showPreviewToKeys(m_tabBar);
    }
}
