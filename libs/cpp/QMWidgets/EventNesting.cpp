#include "EventNesting.h"

#include <QThread>

namespace QMWidgets
{

namespace
{

thread_local int innermostLevel = 0; // number of event loops around the event
thread_local int innermostDepth = 0;

int loopLevel()
{
    return QThread::currentThread()->loopLevel();
}

} // namespace

EventNesting::EventNesting()
    : m_outerLevel(innermostLevel),
      m_outerDepth(innermostDepth)
{
    innermostDepth = depth() + 1;
    innermostLevel = loopLevel();
}

EventNesting::~EventNesting()
{
    innermostDepth = m_outerDepth;
    innermostLevel = m_outerLevel;
}

int EventNesting::depth()
{
    return loopLevel() == innermostLevel ? innermostDepth : 0;
}

} // namespace QMWidgets
