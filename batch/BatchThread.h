#pragma once

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
};
