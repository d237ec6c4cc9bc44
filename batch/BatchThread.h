#pragma once

#include <QThread>

class BatchWorker;

/// The thread of the batch, with its worker. Started anew for each run and left by quit().
class BatchThread : public QThread
{
    Q_OBJECT

public:
    BatchThread();
    /// Stops a run that is under way and waits for the photo in hand.
    ~BatchThread() override;

    BatchWorker* worker() const { return m_worker; }

protected:
    void run() override;

private:
    BatchWorker* m_worker;
};
