#include "ImageViewer.h"

#include "App.h"
#include "FollowLanguage.h"
#include "ImageArea.h"
#include "TabOrder.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QImage>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QUrl>
#include <QVBoxLayout>

namespace QMWidgets
{

namespace
{

constexpr int kButtonHeight = 32;
constexpr int kLeastZoom = 1;
constexpr int kFullZoom = 100;

void setCheckedQuietly(QPushButton* button, bool checked)
{
    const QSignalBlocker blocker(button);
    button->setChecked(checked);
}

} // namespace

ImageViewer::ImageViewer(QWidget* parent)
    : QFrame(parent),
      m_area(new ImageArea(this)),
      m_slider(new QSlider(Qt::Horizontal, this)),
      m_fitButton(new QPushButton(this)),
      m_actualPixelsButton(new QPushButton(this))
{
    setMinimumHeight(400);
    connect(m_area, &ImageArea::next, this, &ImageViewer::next);
    connect(m_area, &ImageArea::previous, this, &ImageViewer::previous);
    connect(m_area, &ImageArea::infoChanged, this, &ImageViewer::infoChanged);
    makeSlider();
    makeViewButtons();
    layOut();
}

void ImageViewer::makeSlider()
{
    m_slider->setObjectName(QStringLiteral("ImageViewSlider"));
    m_slider->setMinimumWidth(200);
    m_slider->setRange(kLeastZoom, kFullZoom);
    m_slider->setValue(kFullZoom);
    m_slider->setTickPosition(QSlider::TicksBothSides);
    connect(m_slider, &QSlider::valueChanged, this, &ImageViewer::slotZoom);
    connect(m_slider, &QSlider::sliderPressed, this, &ImageViewer::slotShowInfo);
    connect(m_slider, &QSlider::sliderReleased, m_area, &ImageArea::slotHideInfo);
}

void ImageViewer::makeViewButtons()
{
    m_fitButton->setObjectName(QStringLiteral("FitToScreenButton"));
    m_fitButton->setCheckable(true);
    m_fitButton->setFlat(true);
    m_fitButton->setChecked(true);
    connect(m_fitButton, &QPushButton::clicked, this, &ImageViewer::slotFitScreen);

    m_actualPixelsButton->setObjectName(QStringLiteral("ActualPixelsButton"));
    m_actualPixelsButton->setFixedHeight(kButtonHeight);
    m_actualPixelsButton->setCheckable(true);
    m_actualPixelsButton->setFlat(true);
    connect(m_actualPixelsButton, &QPushButton::clicked, this, &ImageViewer::slotActualPixels);
}

QPushButton* ImageViewer::makeStepButton(const QString& objectName)
{
    auto* button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setFlat(true);
    button->setFixedSize(44, 44);
    return button;
}

QHBoxLayout* ImageViewer::makeZoomRow()
{
    // Deliberate: these two names are crossed, and so are the pictures of the style sheet. What
    // the user sees, the minus left of the slider and the plus right of it, does as it shows.
    QPushButton* const minusButton = makeStepButton(QStringLiteral("ZoomInButton"));
    QPushButton* const plusButton = makeStepButton(QStringLiteral("ZoomOutButton"));
    connect(plusButton, &QPushButton::clicked, this, &ImageViewer::slotIncZoom);
    connect(minusButton, &QPushButton::clicked, this, &ImageViewer::slotDecZoom);

    followLanguage(this, [=] {
        minusButton->setAccessibleName(tr("Reduce the picture"));
        plusButton->setAccessibleName(tr("Enlarge the picture"));
        m_slider->setAccessibleName(tr("Zoom"));
        m_actualPixelsButton->setText(tr("Actual Pixels"));
        m_actualPixelsButton->setToolTip(tr("100%"));
        m_fitButton->setToolTip(tr("Fit To Window"));
        m_fitButton->setAccessibleName(tr("Fit To Window"));
    });

    auto* row = new QHBoxLayout;
    row->setContentsMargins(5, 5, 5, 5);
    row->addStretch(1);
    row->addWidget(minusButton);
    row->addWidget(m_slider);
    row->addWidget(plusButton);
    row->addSpacing(5);
    row->addWidget(m_actualPixelsButton);
    row->addSpacing(20);
    row->addWidget(m_fitButton);
    row->addStretch(1);
    return row;
}

void ImageViewer::layOut()
{
    auto* sysPreviewButton = new QPushButton(this);
    followLanguage(sysPreviewButton, [=] { sysPreviewButton->setText(tr("Open with Preview")); });
    sysPreviewButton->setObjectName(QStringLiteral("SysPreviewButton"));
    sysPreviewButton->setFixedHeight(kButtonHeight);
    sysPreviewButton->setFlat(true);
    connect(sysPreviewButton, &QPushButton::clicked, this, &ImageViewer::slotSysPreview);

    auto* upper = new QHBoxLayout;
    upper->addStretch(1);
    upper->addWidget(sysPreviewButton);
    upper->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(upper);
    layout->addWidget(m_area);
    layout->addLayout(makeZoomRow());
    tabAsLaidOut(this);
}

void ImageViewer::setInfo(const QString& text)
{
    m_area->setInfo(text);
}

void ImageViewer::setSingleImage(bool singleImage)
{
    m_area->setSingleImage(singleImage);
}

void ImageViewer::slotLoad(const QString& path)
{
    slotLoad(QImage(path));
}

void ImageViewer::slotLoad(const QImage& image)
{
    m_area->setPixmap(QPixmap::fromImage(image));
}

void ImageViewer::slotActualPixels()
{
    setCheckedQuietly(m_fitButton, false);
    if (!m_actualPixelsButton->isChecked()) {
        return;
    }
    if (m_slider->value() == kFullZoom) {
        slotZoom(kFullZoom); // the slider says nothing of a value that it has already
    }
    m_slider->setValue(kFullZoom);
}

void ImageViewer::slotZoom(int value)
{
    setInfo(QStringLiteral("<H1>%1%</H1>").arg(value));
    setCheckedQuietly(m_fitButton, false);
    setCheckedQuietly(m_actualPixelsButton, m_slider->value() == kFullZoom);
    m_area->slotZoom(value);
}

void ImageViewer::slotFitScreen()
{
    setInfo(QString());
    m_area->slotHideInfo();
    m_actualPixelsButton->setChecked(false);
    m_area->slotFitScreen();
}

void ImageViewer::slotIncZoom()
{
    if (m_slider->value() < kFullZoom) {
        m_slider->setValue(m_slider->value() + 1);
    }
}

void ImageViewer::slotDecZoom()
{
    if (m_slider->value() > kLeastZoom) {
        m_slider->setValue(m_slider->value() - 1);
    }
}

void ImageViewer::slotSysPreview()
{
    const QString path = App::appHomeFolder(true) + QStringLiteral("preview.png");
    // The viewer tells of a file that isn't there, better than a message here would.
    static_cast<void>(m_area->fullPixmap().save(path, "png", -1));
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        emit systemPreviewOpened();
    }
}

void ImageViewer::slotShowInfo()
{
    slotZoom(m_slider->value());
}

} // namespace QMWidgets
