#include "flow/TabLabel.h"

#include "preview/BubblePreview.h"
#include <QMWidgets/App.h>

#include <QKeyEvent>
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

/// Whether a key leads the keyboard on, to another tab or out of the bar.
bool leadsOn(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Tab ||
           key == Qt::Key_Backtab;
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
    // There for the mouse alone: keys ask the bar.
    m_previewButton->setFocusPolicy(Qt::NoFocus);
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
    ignoreKeys();
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

void TabLabel::showPreviewToKeys(QWidget* focused)
{
    m_bubble->setAttribute(Qt::WA_ShowWithoutActivating, true);
    slotShowPreview();
    m_bubble->setAttribute(Qt::WA_ShowWithoutActivating, false);
    // The bubble too: some desktops give it the keyboard all the same.
    m_focused = focused;
    m_focused->installEventFilter(this);
    m_bubble->installEventFilter(this);
}

bool TabLabel::eventFilter(QObject* watched, QEvent* event)
{
    auto* const key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    // One that is held down goes on being the one that has opened the bubble.
    const bool isKey = key && !key->isAutoRepeat();
    const bool isLeave = event->type() == QEvent::FocusOut && !m_bubble->isActiveWindow();
    if (!isKey && !isLeave) {
        return QMWidgets::Label::eventFilter(watched, event);
    }
    const bool wasOpen = m_bubble->isVisible();
    m_bubble->hide();
    ignoreKeys();
    // A key that leads on does so; any other has done its work by closing the bubble.
    return isKey && wasOpen && !leadsOn(key->key());
}

void TabLabel::ignoreKeys()
{
    m_bubble->removeEventFilter(this);
    if (m_focused) {
        m_focused->removeEventFilter(this);
    }
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
