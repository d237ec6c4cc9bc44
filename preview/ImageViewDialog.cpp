#include "preview/ImageViewDialog.h"

#include "intake/CommonData.h"
#include "preview/PositionText.h"
#include <QMWidgets/ImageViewer.h>

#include <QCoreApplication>
#include <QImage>
#include <QVBoxLayout>

using QMWidgets::ImageViewer;

ImageViewDialog::ImageViewDialog(QWidget* parent)
    : QDialog(parent),
      m_viewer(new ImageViewer(this))
{
    m_viewer->setObjectName(QStringLiteral("ImageViewer"));
    connect(m_viewer, &ImageViewer::systemPreviewOpened, this, &ImageViewDialog::accept);
    connect(m_viewer, &ImageViewer::next, this, &ImageViewDialog::next);
    connect(m_viewer, &ImageViewer::previous, this, &ImageViewDialog::previous);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_viewer);
}

void ImageViewDialog::slotUpdateInfo()
{
    m_viewer->setInfo(positionText());
}

void ImageViewDialog::slotLoad(const QImage& image)
{
    const quint64 load = ++m_lastLoad;
    if (isVisible()) {
        // The animation moves on before a large picture takes its time.
        QCoreApplication::processEvents();
        if (load != m_lastLoad) {
            return; // a step made meanwhile has brought the newer picture
        }
    }
    slotUpdateInfo();
    m_viewer->slotLoad(image);
    m_viewer->setSingleImage(CommonData::instance()->count() < 2);
}
