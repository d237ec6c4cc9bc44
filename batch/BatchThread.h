#pragma once

#include <atomic>
#include <QThread>

class BatchWorker;

/// The thread of the batch, with its worker. Started anew for each run and left by quit().
class BatchThread : public QThread
{
    Q_OBJECT

public:
    BatchThread();
    /// Leaves, as below.
    ~BatchThread() override;

    BatchWorker* worker() const { return m_worker; }
    /// Stops a run that is under way, and waits for the photo in hand and until the thread stands
    /// still.
    void leave();

protected:
    void run() override;

private:
    BatchWorker* m_worker;
    /// Says by the language's own means what the toolkit's locks say too: that all of a run lies
    /// before what follows the waiting. Race detectors can't look into those locks.
    std::atomic<bool> m_left{true};
};
