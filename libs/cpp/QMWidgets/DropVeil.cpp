#include "DropVeil.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>

namespace QMWidgets
{

DropVeil::DropVeil(QWidget* target)
    : QFrame(target)
{
    setObjectName(QStringLiteral("DropVeil"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropVeil::enter(QDragEnterEvent* event)
{
    if (!event->mimeData()->hasFormat(QStringLiteral("text/uri-list"))) {
        return;
    }
    event->acceptProposedAction();
    setGeometry(parentWidget()->rect());
    raise();
    show();
}

void DropVeil::leave()
{
    hide();
}

QList<QUrl> DropVeil::take(QDropEvent* event)
{
    hide();
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!urls.isEmpty()) {
        // A source whose files were moved may delete them, so no move is reported, not even to one
        // that offers nothing else.
        event->setDropAction(Qt::CopyAction);
        if (event->dropAction() == Qt::MoveAction) {
            event->setDropAction(Qt::IgnoreAction);
        }
        event->accept();
    }
    return urls;
}

} // namespace QMWidgets
