#include "flow/NodesOptionsPanel.h"

#include "flow/BaseNode.h"
#include "flow/InitLabel.h"
#include "flow/Operations.h"
#include "intake/CommonData.h"
#include <MGraphX/OpaqueScaling.h>
#include <QMWidgets/DevicePixels.h>
#include <QMWidgets/TabOrder.h>

#include <QCoreApplication>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace
{

/// Width of a preview, in device-independent pixels.
constexpr int kPreviewWidth = 360;

} // namespace

NodesOptionsPanel::NodesOptionsPanel(QWidget* parent)
    : QFrame(parent),
      m_initLabel(new InitLabel(this)),
      m_stack(new QStackedWidget(this))
{
    setMinimumHeight(175);
    m_stack->addWidget(m_initLabel);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(m_stack);
}

void NodesOptionsPanel::setImage(QImage image)
{
    const bool hasAlpha = image.hasAlphaChannel();
    m_sourceImage = std::move(image).convertToFormat(QImage::Format_ARGB32);
    m_sourceIsOpaque = !hasAlpha || MGraphX::isOpaque(m_sourceImage);
    slotParametersChanged();
    emit realPreview();
}

BaseNode* NodesOptionsPanel::createNode(const QString& operationName)
{
    const Operation* const operation = findOperation(operationName);
    if (!operation) {
        return nullptr;
    }
    BaseNode* const node = operation->create(operation->name);
    m_stack->addWidget(node);
    m_stack->setCurrentWidget(node);
    QMWidgets::tabAsLaidOut(window());
    connect(node, &BaseNode::parametersChanged, this, &NodesOptionsPanel::slotParametersChanged,
            Qt::DirectConnection);
    return node;
}

void NodesOptionsPanel::slotShowOptions(BaseNode* node)
{
    if (node) {
        m_stack->setCurrentWidget(node);
    }
}

void NodesOptionsPanel::slotFlowChanged(QMap<int, BaseNode*> flow)
{
    m_flow = std::move(flow);
    slotParametersChanged();
}

void NodesOptionsPanel::slotNodeRemoved(QMap<int, BaseNode*> flow, BaseNode* removed,
                                        BaseNode* next)
{
    if (removed) {
        m_stack->removeWidget(removed);
        m_leavingNodes.append(removed);
    }
    slotShowOptions(next);
    slotFlowChanged(std::move(flow));
}

void NodesOptionsPanel::slotParametersChanged()
{
    ++m_runsUnderWay;
    runChain(++m_lastRun);
    if (--m_runsUnderWay == 0) {
        for (BaseNode* node : qAsConst(m_leavingNodes)) {
            node->deleteLater();
        }
        m_leavingNodes.clear();
    }
}

void NodesOptionsPanel::runChain(quint64 run)
{
    QImage image = workingCopy();
    const int count = m_flow.size();
    for (int i = 0; i < count; ++i) {
        if (!letEventsThrough(run)) {
            return;
        }
        if (BaseNode* const node = m_flow.value(i)) {
            node->process(image);
        }
    }
    if (letEventsThrough(run)) {
        emit imageChanged(image);
    }
}

QImage NodesOptionsPanel::workingCopy() const
{
    const int limit = QMWidgets::wholeDevicePixels(kPreviewWidth);
    // Deliberate: only the width counts, so a narrow picture keeps its full height.
    if (CommonData::instance()->previewMode() && limit < m_sourceImage.width()) {
        const QSize box(limit, limit);
        return m_sourceIsOpaque
                   ? MGraphX::scaledOpaque(m_sourceImage, box)
                   : m_sourceImage.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    return m_sourceImage;
}

/// False if a newer run has come and gone meanwhile.
bool NodesOptionsPanel::letEventsThrough(quint64 run)
{
    QCoreApplication::processEvents();
    return run == m_lastRun;
}
