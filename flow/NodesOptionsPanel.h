#pragma once

#include <QFrame>
#include <QImage>
#include <QList>
#include <QMap>

class BaseNode;
class QStackedWidget;

namespace QMWidgets
{
class Label;
}

/// The hub of the live preview: shows the page of the node in hand, keeps the current photo and
/// runs the flow for the screen.
///
/// A run lets events through before each node and after the last. A change that arrives meanwhile
/// starts a run of its own, inside the older one; the older one then ends without a word, since the
/// newer has shown the newer picture. A node removed meanwhile lives until the outermost run has
/// ended: one of its controls may have started that run. Interface thread only.
class NodesOptionsPanel : public QFrame
{
    Q_OBJECT

public:
    explicit NodesOptionsPanel(QWidget* parent);

    /// Takes the next photo, of any format and size, null included, and runs the flow on it.
    void setImage(QImage image);
    /// Makes the node of an operation and shows its page. The panel owns it. Errors: null for a
    /// name that the operation table doesn't hold.
    BaseNode* createNode(const QString& operationName);
    /// The nodes in the order of the chain, the keys dense from 0.
    const QMap<int, BaseNode*>& flow() const { return m_flow; }

signals:
    void imageChanged(const QImage& image);
    void realPreview();
    void processEvents();

public slots:
    void slotShowOptions(BaseNode* node);
    void slotFlowChanged(QMap<int, BaseNode*> flow);
    /// Takes the removed node's page away and deletes the node, shows the next one's if there is
    /// one, and runs the remaining flow.
    void slotNodeRemoved(QMap<int, BaseNode*> flow, BaseNode* removed, BaseNode* next);
    /// Runs the flow on the current photo and emits imageChanged with the result.
    void slotParametersChanged();

private:
    QImage workingCopy() const;
    void runChain(quint64 run);
    bool letEventsThrough(quint64 run);

    QImage m_sourceImage;
    bool m_sourceIsOpaque = false;
    QMap<int, BaseNode*> m_flow;
    QMWidgets::Label* m_initLabel;
    QStackedWidget* m_stack;
    quint64 m_lastRun = 0;
    int m_runsUnderWay = 0;
    QList<BaseNode*> m_leavingNodes;
};
