#include "preview/Representor.h"

#include "batch/BatchDialog.h"
#include "flow/BaseNode.h"
#include "flow/NodesOptionsPanel.h"
#include "preview/ImagePreview.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMap>
#include <QPair>
#include <QVBoxLayout>
#include <QVector>

Representor::Representor(NodesOptionsPanel* optionsPanel, QWidget* parent)
    : QFrame(parent),
      m_preview(new ImagePreview(nullptr)),
      m_batchDialog(new BatchDialog),
      m_optionsPanel(optionsPanel)
{
    connect(m_preview, &ImagePreview::next, this, &Representor::next);
    connect(m_preview, &ImagePreview::previous, this, &Representor::previous);

    auto* heading = new QHBoxLayout;
    heading->setContentsMargins(0, 0, 0, 0);
    heading->setSpacing(0);
    heading->addWidget(new QLabel(QStringLiteral("<H2><CENTER>Result</CENTER></H2>"), this));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(3, 3, 3, 3);
    layout->setSpacing(0);
    layout->addLayout(heading);
    layout->addWidget(m_preview);
    layout->addStretch(1);
}

Representor::~Representor()
{
    delete m_batchDialog;
}

void Representor::slotSetImage(const QImage& image)
{
    m_preview->slotSetImage(image);
}

void Representor::slotSetFormat(const QString&) {}

void Representor::slotRealPreview() {}

void Representor::slotRunBatchClicked()
{
    const QMap<int, BaseNode*> flow = m_optionsPanel->flow();
    QVector<QPair<QString, QString>> operations;
    for (int i = 0; i < flow.size(); ++i) {
        BaseNode* const node = flow.value(i);
        if (node && node->isActive()) {
            operations.append(qMakePair(node->name(), node->parametersText()));
        }
    }
    m_batchDialog->startBatch(operations);
    m_batchDialog->exec();
}

void Representor::slotNext()
{
    emit next();
}
