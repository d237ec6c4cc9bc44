#pragma once

#include <QtGlobal>

namespace QMWidgets
{

/// Counts the events that are delivered inside one another. App::notify() keeps one on its stack
/// for each event.
///
/// An event loop that runs inside an event, such as that of a dialog, starts at zero again: it
/// delivers events until its caller is done with it. QCoreApplication::processEvents() goes on
/// counting, since its caller has not finished its own event.
///
/// Thread: any; each has a count of its own.
class EventNesting
{
public:
    EventNesting();
    ~EventNesting();

    /// Events under way in the innermost event loop.
    static int depth();

private:
    Q_DISABLE_COPY(EventNesting)

    int m_outerLevel;
    int m_outerDepth;
};

} // namespace QMWidgets
