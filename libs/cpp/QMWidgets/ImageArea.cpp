#include "ImageArea.h"

#include "FocusRingOverlay.h"
#include "FollowLanguage.h"
#include "StepButtons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace QMWidgets
{

namespace
{

constexpr int kMovieSize = 96;
constexpr int kLoadingSize = 144;

QPixmap scaledInto(const QSize& box, const QPixmap& picture)
{
    // The toolkit warns of scaling nothing.
    return picture.isNull() ? picture
                            : picture.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

int atZoom(int length, int zoom)
{
    return qRound(length * zoom / 100.0);
}

Qt::ScrollBarPolicy barPolicy(bool scrolls)
{
    return scrolls ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
}

} // namespace

ImageArea::ImageArea(QWidget* parent)
    : QFrame(parent),
      m_scrollArea(new QScrollArea(this)),
      m_imageLabel(new QLabel),
      m_nextButton(makeNextButton(this)),
      m_previousButton(makePreviousButton(this)),
      m_infoLabel(new QLabel(this)),
      m_loadingLabel(new QLabel(this)),
      m_loadingMovie(QStringLiteral(":/loading_image.gif"))
{
    m_imageLabel->setObjectName(QStringLiteral("PreviewLabel"));
    m_imageLabel->setAlignment(Qt::AlignCenter);
    m_scrollArea->setWidget(m_imageLabel);
    followLanguage(m_scrollArea, [this] { m_scrollArea->setAccessibleName(tr("Picture")); });
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    new FocusRingOverlay(m_scrollArea);

    m_loadingMovie.setScaledSize(QSize(kMovieSize, kMovieSize));
    m_loadingLabel->setObjectName(QStringLiteral("ImageLoadingLabel"));
    followLanguage(m_loadingLabel, [this] { m_loadingLabel->setAccessibleName(tr("Loading")); });
    m_loadingLabel->setMovie(&m_loadingMovie);
    m_loadingLabel->setAlignment(Qt::AlignCenter);
    m_loadingLabel->setFixedSize(kLoadingSize, kLoadingSize);
    m_loadingLabel->hide();

    connect(m_nextButton, &QPushButton::clicked, this, &ImageArea::slotNextClicked);
    connect(m_previousButton, &QPushButton::clicked, this, &ImageArea::slotPreviousClicked);
    layOut();
}

/// The overlay: the scroll area below it is in no layout.
void ImageArea::layOut()
{
    auto* steps = new QHBoxLayout;
    steps->addWidget(m_previousButton);
    steps->addStretch(1);
    steps->addWidget(m_loadingLabel);
    steps->addStretch(1);
    steps->addWidget(m_nextButton);
    auto* info = new QHBoxLayout;
    info->addStretch(1);
    info->addWidget(m_infoLabel);
    info->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->addStretch(1);
    layout->addLayout(steps);
    layout->addStretch(1);
    layout->addLayout(info);
    for (QLayout* const one : {static_cast<QLayout*>(steps), static_cast<QLayout*>(info),
                               static_cast<QLayout*>(layout)}) {
        one->setContentsMargins(0, 0, 0, 0);
        one->setSpacing(0);
    }
}

void ImageArea::setPixmap(const QPixmap& pixmap)
{
    m_fullPixmap = pixmap;
    redraw();
    m_loadingMovie.stop();
    m_loadingLabel->hide();
}

void ImageArea::setInfo(const QString& text)
{
    if (text.isEmpty()) {
        m_infoLabel->hide();
        return;
    }
    m_infoLabel->setText(text);
    m_infoLabel->show();
}

void ImageArea::setSingleImage(bool singleImage)
{
    m_singleImage = singleImage;
    if (singleImage) {
        setStepsVisible(false);
        m_infoLabel->hide();
    }
}

void ImageArea::slotZoom(int zoom)
{
    m_fitToWindow = false;
    m_zoom = zoom;
    showZoomed();
}

void ImageArea::slotFitScreen()
{
    m_infoLabel->setText(tr("<H1>Fit to Window</H1>"));
    m_fitToWindow = true;
    showFitted();
}

void ImageArea::slotHideInfo()
{
    m_infoLabel->hide();
}

void ImageArea::slotShowInfo()
{
    m_infoLabel->show();
}

void ImageArea::slotNextClicked()
{
    startLoading();
    emit next();
    emit infoChanged();
}

void ImageArea::slotPreviousClicked()
{
    startLoading();
    emit previous();
    emit infoChanged();
}

void ImageArea::startLoading()
{
    m_loadingMovie.start();
    m_loadingLabel->show();
}

void ImageArea::redraw()
{
    if (m_fitToWindow) {
        showFitted();
    } else {
        showZoomed();
    }
}

void ImageArea::showZoomed()
{
    const QSize box(atZoom(m_fullPixmap.width(), m_zoom), atZoom(m_fullPixmap.height(), m_zoom));
    const QPixmap picture = scaledInto(box, m_fullPixmap);
    // Deliberate: a picture exactly as large as the area counts as larger.
    showPicture(picture, picture.width() >= width(), picture.height() >= height());
}

void ImageArea::showFitted()
{
    showPicture(scaledInto(size(), m_fullPixmap), false, false);
}

/// The label is as large as the area where nothing scrolls, so that the picture stays centred.
void ImageArea::showPicture(const QPixmap& picture, bool scrollsAcross, bool scrollsDown)
{
    m_imageLabel->setPixmap(picture);
    m_scrollArea->setHorizontalScrollBarPolicy(barPolicy(scrollsAcross));
    m_scrollArea->setVerticalScrollBarPolicy(barPolicy(scrollsDown));
    m_imageLabel->setFixedSize(scrollsAcross ? picture.width() : width(),
                               scrollsDown ? picture.height() : height());
    m_scrollArea->setGeometry(rect());
}

void ImageArea::setStepsVisible(bool visible)
{
    m_nextButton->setVisible(visible);
    m_previousButton->setVisible(visible);
}

void ImageArea::enterEvent(QEvent* event)
{
    if (!m_singleImage) {
        setStepsVisible(true);
    }
    m_infoLabel->show();
    QFrame::enterEvent(event);
}

void ImageArea::leaveEvent(QEvent* event)
{
    setStepsVisible(false);
    m_infoLabel->hide();
    QFrame::leaveEvent(event);
}

void ImageArea::resizeEvent(QResizeEvent* event)
{
    redraw();
    QFrame::resizeEvent(event);
}

} // namespace QMWidgets
