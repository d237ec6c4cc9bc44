#include "batch/BatchThread.h"

#include "batch/BatchWorker.h"
#include "flow/RaceDetector.h"
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
    RaceDetector::acquire(this);
}

void BatchThread::run()
{
    QTimer::singleShot(kStartDelay, m_worker, &BatchWorker::slotDoWork);
    exec();
    m_worker->endUnstartedRun();
    MGraphX::releaseHeap();
    RaceDetector::release(this);
}
