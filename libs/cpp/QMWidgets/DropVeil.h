#pragma once

#include <QFrame>
#include <QList>
#include <QUrl>

class QDragEnterEvent;
class QDropEvent;

namespace QMWidgets
{

/// A widget's part in a drag of URLs. While the drag is over the widget the veil covers it, with a
/// look that the style sheet gives. The widget hands its drag and drop events on to it.
class DropVeil : public QFrame
{
public:
    explicit DropVeil(QWidget* target);

    /// Accepts the proposed action of a drag of URLs; any other drag stays as it came.
    void enter(QDragEnterEvent* event);
    /// To be called too when the user gives the drag up: it leaves the widget as well.
    void leave();
    /// What was dropped. A drop without any URL isn't accepted.
    QList<QUrl> take(QDropEvent* event);
};

} // namespace QMWidgets
