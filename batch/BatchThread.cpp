#include "batch/BatchThread.h"

#include "batch/BatchWorker.h"
#include <MGraphX/HeapPolicy.h>

#include <QTimer>

namespace
{
constexpr int kStartDelay = 100;         // milliseconds, in which the dialog comes up
constexpr unsigned long kStopPoll = 100; // milliseconds
} // namespace

BatchThread::BatchThread()
    : m_worker(new BatchWorker)
{
    m_worker->moveToThread(this);
}

BatchThread::~BatchThread()
{
    leave();
    delete m_worker;
}

void BatchThread::leave()
{
    // Again and again, since a run that just begins forgets a stop from before. It would go on, and
    // wait for pictures to be taken by the very thread that waits here.
    do {
        m_worker->requestStop();
        quit();
    } while (!wait(kStopPoll));
    Q_ASSERT(m_left);
    static_cast<void>(m_left.load());
}

void BatchThread::run()
{
    m_left = false;
    QTimer::singleShot(kStartDelay, m_worker, &BatchWorker::slotDoWork);
    exec();
    m_worker->endUnstartedRun();
    MGraphX::releaseHeap();
    m_left = true;
}
