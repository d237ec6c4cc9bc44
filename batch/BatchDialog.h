#pragma once

#include "batch/BatchThread.h"

#include <QDialog>
#include <QPair>
#include <QString>
#include <QVector>

class QImage;
class QLabel;
class QProgressBar;
class QPushButton;

namespace QMWidgets
{
class Label;
}

/// The modal window of a run: starts the thread, shows each finished photo, and offers pause and
/// stop. One dialog serves all runs.
class BatchDialog : public QDialog
{
    Q_OBJECT

public:
    /// Its end stops a run that is under way and waits for the photo in hand.
    BatchDialog();

    /// Starts a run over all photos with the output settings as they stand, into a new folder; the
    /// caller then calls exec(). A former run that still has its last photo in hand is waited for.
    void startBatch(const QVector<QPair<QString, QString>>& operations);

signals:
    void start();
    void paused(bool on);

public slots:
    void slotPause();
    void slotStop();
    void slotProgressChanged(int value);
    void slotAccept();
    void slotUpdateInfo(const QImage& image, int index, int total);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void endFormerRun();

    QProgressBar* m_progressBar;
    QLabel* m_infoLabel;
    QPushButton* m_pauseButton;
    QPushButton* m_stopButton;
    QMWidgets::Label* m_previewLabel;
    BatchThread m_thread;
    QString m_destination;
};
