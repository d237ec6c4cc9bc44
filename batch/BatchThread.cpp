#include "batch/BatchThread.h"

#include "batch/BatchWorker.h"
#include <MGraphX/HeapPolicy.h>

#include <QTimer>

namespace
{
constexpr int kStartDelay = 100; // milliseconds, in which the dialog comes up
} // namespace

BatchThread::BatchThread()
    : m_worker(new BatchWorker)
{
    m_worker->moveToThread(this);
}

BatchThread::~BatchThread()
{
    m_worker->requestStop();
    quit();
    waitUntilLeft();
    delete m_worker;
}

void BatchThread::waitUntilLeft()
{
    wait();
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
