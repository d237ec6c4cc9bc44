#include "FocusRingOverlay.h"

#include "FocusRing.h"

#include <QEvent>

namespace QMWidgets
{

FocusRingOverlay::FocusRingOverlay(QWidget* framed)
    : QWidget(framed)
{
    setAttribute(Qt::WA_TransparentForMouseEvents, true);
    setGeometry(framed->rect());
    hide();
    framed->installEventFilter(this);
    // Scroll bars put themselves on top of all.
    for (QWidget* child : framed->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child != this) {
            child->installEventFilter(this);
        }
    }
}

bool FocusRingOverlay::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        setVisible(parentWidget()->hasFocus());
        break;
    case QEvent::Resize:
        setGeometry(parentWidget()->rect());
        break;
    case QEvent::ZOrderChange:
        raise();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void FocusRingOverlay::paintEvent(QPaintEvent*)
{
    drawFocusRing(parentWidget(), this);
}

} // namespace QMWidgets
