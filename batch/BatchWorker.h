#pragma once

#include "flow/Operations.h"

#include <atomic>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QUrl>
#include <QVector>
#include <vector>

/// Takes photos through a flow at full size, one after the other, and saves each result.
///
/// It knows the flow only as pairs of operation name and parameter text, so it touches no node and
/// no widget. It lives on a thread of its own; setJob is called while that thread stands still,
/// stop and pause at any time from any thread. They act between photos.
class BatchWorker : public QObject
{
    Q_OBJECT

public:
    using Operations = QVector<QPair<QString, QString>>;

    BatchWorker() = default;

    /// The format is a name of the image writer, and in lower case the files' extension; quality -1
    /// leaves the writer's own. With renaming, the new name is followed by a number: of all (0),
    /// odd (1) or even (2) numbers. The destination ends in a slash.
    void setJob(const QString& format, int quality, bool rename, const QString& newName,
                int numbers, const QString& destination, const QList<QUrl>& photos,
                const Operations& operations);
    void requestStop() { m_stopped = true; }
    void setPaused(bool paused) { m_paused = paused; }
    /// For a thread that was left before slotDoWork had its turn: the run is over all the same.
    void endUnstartedRun();
    /// From now on the receiver of updateInfo on another thread tells by pictureTaken what it has
    /// taken, and the run waits for it before the next photo whenever the pictures under way are
    /// large. Else a receiver that falls behind would fill the memory with them.
    void awaitPictures() { m_awaitsPictures = true; }
    void pictureTaken(const QImage& image) { m_bytesUnderWay -= image.sizeInBytes(); }

public slots:
    /// The run. A photo that can't be read or written, or that the flow leaves nothing of, is
    /// passed over with one line of warning in the log; it keeps its number.
    void slotDoWork();

signals:
    /// A photo is done and about to be saved; index counts from 0.
    void updateInfo(const QImage& image, int index, int total);
    void finished();

protected:
    /// One round of waiting, in a pause or for pictures to be taken.
    virtual void nap(unsigned long milliseconds);

private:
    using Filters = std::vector<ImageFilter>;

    Filters readOperations() const;
    void processPhoto(int index, int total, const Filters& filters);
    void waitForPictures();
    QImage process(const QString& file, const Filters& filters) const;
    QString resultName(int index);
    void save(const QImage& image, const QString& name) const;

    QString m_format = QStringLiteral("JPEG");
    int m_quality = 100;
    bool m_rename = false;
    QString m_newName = QStringLiteral("NewName");
    int m_numbers = 0;
    QString m_destination = QStringLiteral(".");
    int m_oddNumber = 1;
    int m_evenNumber = 2;
    QList<QUrl> m_photos;
    Operations m_operations;
    std::atomic<bool> m_stopped{false};
    std::atomic<bool> m_paused{false};
    bool m_jobWaits = false;
    bool m_awaitsPictures = false;
    std::atomic<qsizetype> m_bytesUnderWay{0};
};
