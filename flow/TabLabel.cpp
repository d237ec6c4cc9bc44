#include "flow/TabLabel.h"

#include "preview/BubblePreview.h"
#include <QMWidgets/App.h>

#include <QPushButton>
#include <QVBoxLayout>

namespace
{

constexpr int kFlightMilliseconds = 500;
/// The longest side of the picture's part of a bubble.
constexpr int kMostPictureSide = 350;

/// Units: logical pixels.
QSize bubbleSize(int width, int height)
{
    constexpr double kMost = kMostPictureSide;
    QSize picture(width, height);
    if (width > kMostPictureSide && width >= height) {
        picture = QSize(kMostPictureSide, int(height / (width / kMost)));
    } else if (height > kMostPictureSide) {
        picture = QSize(int(width / (height / kMost)), kMostPictureSide);
    }
    return picture + QSize(0, BubbleWindow::kPointerHeight);
}

} // namespace

TabLabel::TabLabel(QWidget* parent)
    : QMWidgets::Label(parent),
      m_previewButton(new QPushButton(this)),
      m_bubble(new BubblePreview(this))
{
    m_previewButton->setFlat(true);
    m_previewButton->setFixedSize(32, 16);
    m_previewButton->setObjectName(QStringLiteral("ThumbnailPreviewButton"));
    m_previewButton->setAccessibleName(tr("Preview"));
    m_previewButton->hide();
    connect(m_previewButton, &QPushButton::clicked, this, &TabLabel::slotShowPreview);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_previewButton);
    layout->addStretch(1);
}

TabLabel::~TabLabel()
{
    delete m_flightOut;
    delete m_flightHome;
    delete m_bubble;
}

void TabLabel::slotShowPreview()
{
    if (pixmap().isNull()) {
        return;
    }
    // A press of the mouse has closed an open bubble by now, but a key may have brought us here.
    m_bubble->hide();
    m_bubble->setPixmap(pixmap());

    const double ratio = QMWidgets::App::devicePixelRatio();
    const QSize size = bubbleSize(int(pixmap().width() / ratio), int(pixmap().height() / ratio));
    const QPoint place((width() - size.width()) / 2, -size.height());
    const QRect home(mapToGlobal(QPoint(0, 0)), this->size());
    const QRect out(mapToGlobal(place), size);
    delete m_flightOut;
    delete m_flightHome;
    m_flightOut = makeFlight(home, out);
    m_flightHome = makeFlight(out, home);
    m_bubble->setShowAnimation(m_flightOut);
    m_bubble->setHideAnimation(m_flightHome);
    m_bubble->show();
}

QPropertyAnimation* TabLabel::makeFlight(const QRect& from, const QRect& to) const
{
    auto* flight = new QPropertyAnimation(m_bubble, "geometry");
    flight->setDuration(kFlightMilliseconds);
    flight->setStartValue(from);
    flight->setEndValue(to);
    flight->setEasingCurve(QEasingCurve::InOutExpo);
    return flight;
}

void TabLabel::enterEvent(QEvent* event)
{
    m_previewButton->show();
    QMWidgets::Label::enterEvent(event);
}

void TabLabel::leaveEvent(QEvent* event)
{
    m_previewButton->hide();
    QMWidgets::Label::leaveEvent(event);
}

void TabLabel::mouseDoubleClickEvent(QMouseEvent* event)
{
    slotShowPreview();
    QMWidgets::Label::mouseDoubleClickEvent(event);
}
