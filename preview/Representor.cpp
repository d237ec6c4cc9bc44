#include "preview/Representor.h"

#include "batch/BatchDialog.h"
#include "flow/BaseNode.h"
#include "flow/NodesOptionsPanel.h"
#include "intake/CommonData.h"
#include "preview/ImagePreview.h"
#include "preview/ImageViewDialog.h"
#include <QMWidgets/FollowLanguage.h>

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMap>
#include <QPair>
#include <QPointer>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QVBoxLayout>
#include <QVector>

namespace
{

constexpr int kGrowTime = 1000; // milliseconds

/// The large view's place: the middle of the whole desktop, seven tenths of it each way.
QRect largeViewGeometry()
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    const QSize desktop = screen ? screen->virtualSize() : QSize();
    const int width = int(0.7f * float(desktop.width()));
    const int height = int(0.7f * float(desktop.height()));
    return {(desktop.width() - width) / 2, (desktop.height() - height) / 2, width, height};
}

} // namespace

Representor::Representor(NodesOptionsPanel* optionsPanel, QWidget* parent)
    : QFrame(parent),
      m_preview(new ImagePreview(nullptr)),
      m_viewDialog(new ImageViewDialog(nullptr)),
      m_batchDialog(new BatchDialog),
      m_optionsPanel(optionsPanel)
{
    connect(m_preview, &ImagePreview::next, this, &Representor::next);
    connect(m_preview, &ImagePreview::previous, this, &Representor::previous);
    connect(m_viewDialog, &ImageViewDialog::next, this, &Representor::next);
    connect(m_viewDialog, &ImageViewDialog::previous, this, &Representor::previous);

    auto* previewButton = new QPushButton(this);
    previewButton->setObjectName(QStringLiteral("PreviewButton"));
    QMWidgets::followLanguage(
        previewButton, [previewButton] { previewButton->setAccessibleName(tr("Large view")); });
    previewButton->setFlat(true);
    connect(previewButton, &QPushButton::clicked, this, &Representor::slotPreview);

    auto* heading = new QHBoxLayout;
    heading->setContentsMargins(0, 0, 0, 0);
    heading->setSpacing(0);
    heading->addWidget(new QLabel(QStringLiteral("<H2><CENTER>Result</CENTER></H2>"), this));
    heading->addWidget(previewButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(3, 3, 3, 3);
    layout->setSpacing(0);
    layout->addLayout(heading);
    layout->addWidget(m_preview);
    layout->addStretch(1);
}

Representor::~Representor()
{
    delete m_viewDialog;
    delete m_batchDialog;
}

void Representor::slotSetImage(const QImage& image)
{
    m_preview->slotSetImage(image);
    m_viewDialog->slotLoad(image);
}

void Representor::slotSetFormat(const QString&) {}

void Representor::slotRealPreview() {}

void Representor::slotPreview()
{
    if (m_isPreviewing) {
        return;
    }
    m_isPreviewing = true;
    CommonData::instance()->setPreviewMode(false);
    // The dialog runs a loop of its own, in which even the panel may go.
    const auto atEnd = qScopeGuard([self = QPointer<Representor>(this)] {
        CommonData::instance()->setPreviewMode(true);
        if (self) {
            self->m_isPreviewing = false;
        }
    });
    emit realSizeRequired();
    growOutOfPanel();
    m_viewDialog->setFocus(Qt::OtherFocusReason);
    m_viewDialog->exec();
}

/// Moves the large view from the panel's middle to its own place while it opens.
void Representor::growOutOfPanel()
{
    m_viewDialog->setMinimumWidth(5);
    m_viewDialog->setMinimumHeight(5);
    // The dialog may go before the next step, at which a free animation would end.
    auto* animation = new QPropertyAnimation(m_viewDialog, "geometry", m_viewDialog);
    animation->setDuration(kGrowTime);
    animation->setStartValue(QRect(mapToGlobal(QPoint(width() / 2, height() / 2)),
                                   QSize(qRound(width() / 10.0), qRound(height() / 10.0))));
    animation->setEndValue(largeViewGeometry());
    animation->setEasingCurve(QEasingCurve::OutQuint);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

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
