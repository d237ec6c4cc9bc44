#include "preview/ImagePreview.h"

#include "intake/CommonData.h"
#include "preview/PositionText.h"
#include <QMWidgets/App.h>
#include <QMWidgets/StepButtons.h>

#include <QHBoxLayout>
#include <QImage>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

ImagePreview::ImagePreview(QWidget* parent)
    : QMWidgets::Label(parent),
      m_nextButton(QMWidgets::makeNextButton(this)),
      m_previousButton(QMWidgets::makePreviousButton(this)),
      m_infoLabel(new QLabel(QStringLiteral("<H1>INFO</H1>"), this))
{
    setFixedSize(360, 360);
    // The square of the source panel bears the same name: both stand on the same ground.
    setObjectName(QStringLiteral("DropArea"));
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);

    setControlsVisible(false);
    connect(m_nextButton, &QPushButton::clicked, this, &ImagePreview::next);
    connect(m_previousButton, &QPushButton::clicked, this, &ImagePreview::previous);

    auto* column = new QVBoxLayout;
    column->addStretch(1);
    column->addWidget(m_infoLabel);
    auto* row = new QHBoxLayout(this);
    row->addWidget(m_previousButton);
    row->addStretch(1);
    row->addLayout(column);
    row->addStretch(1);
    row->addWidget(m_nextButton);
}

void ImagePreview::slotSetImage(const QImage& image)
{
    updateInfo();
    const double ratio = QMWidgets::App::devicePixelRatio();
    const QSize target(qRound(width() * ratio), qRound(height() * ratio));
    setPixmap(
        QPixmap::fromImage(image.scaled(target, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

void ImagePreview::enterEvent(QEvent* event)
{
    if (CommonData::instance()->count() > 1) {
        setControlsVisible(true);
        updateInfo();
    }
    Label::enterEvent(event);
}

void ImagePreview::leaveEvent(QEvent* event)
{
    setControlsVisible(false);
    Label::leaveEvent(event);
}

void ImagePreview::updateInfo()
{
    m_infoLabel->setText(positionText());
}

void ImagePreview::setControlsVisible(bool visible)
{
    m_nextButton->setVisible(visible);
    m_previousButton->setVisible(visible);
    m_infoLabel->setVisible(visible);
}
