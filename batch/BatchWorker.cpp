#include "batch/BatchWorker.h"

#include "batch/ResultFile.h"
#include "intake/BaseNameOf.h"

#include <QDebug>
#include <QFileInfo>
#include <QThread>
#include <utility>

namespace
{
enum Numbers { AllNumbers, OddNumbers, EvenNumbers };
constexpr unsigned long kPausePoll = 500;  // milliseconds
constexpr unsigned long kPicturesPoll = 5; // milliseconds
/// Small pictures may pile up to so many bytes, so that nobody waits for the other.
constexpr qsizetype kMostUnderWay = 1 << 26;
} // namespace

void BatchWorker::setJob(const QString& format, int quality, bool rename, const QString& newName,
                         int numbers, const QString& destination, const QList<QUrl>& photos,
                         const Operations& operations)
{
    m_format = format;
    m_quality = quality;
    m_rename = rename;
    m_newName = newName;
    m_numbers = numbers;
    m_destination = destination;
    m_photos = photos;
    m_operations = operations;
    m_oddNumber = 1;
    m_evenNumber = 2;
    m_jobWaits = true;
}

void BatchWorker::endUnstartedRun()
{
    if (m_jobWaits) {
        m_jobWaits = false;
        emit finished();
    }
}

void BatchWorker::slotDoWork()
{
    m_jobWaits = false;
    m_stopped = false;
    m_paused = false;
    m_bytesUnderWay = 0;
    const int total = m_photos.size();
    // Once for all photos, and gone with the run: a logo in a text may be as large as a photo.
    const Filters filters = total > 0 ? readOperations() : Filters();
    for (int index = 0; index < total && !m_stopped; ++index) {
        // Deliberate: a stop during a pause still lets the photo in hand through.
        while (m_paused && !m_stopped) {
            nap(kPausePoll);
        }
        processPhoto(index, total, filters);
        waitForPictures();
    }
    emit finished();
}

BatchWorker::Filters BatchWorker::readOperations() const
{
    Filters filters;
    for (const auto& [name, parameters] : m_operations) {
        if (const Operation* const operation = findOperation(name)) {
            filters.push_back(operation->filterFromXml(parameters));
        }
    }
    return filters;
}

void BatchWorker::processPhoto(int index, int total, const Filters& filters)
{
    const QImage image = process(m_photos.at(index).toLocalFile(), filters);
    m_bytesUnderWay += m_awaitsPictures ? image.sizeInBytes() : 0;
    emit updateInfo(image, index, total);
    save(image, resultName(index));
}

void BatchWorker::waitForPictures()
{
    while (m_bytesUnderWay > kMostUnderWay && !m_stopped) {
        nap(kPicturesPoll);
    }
}

void BatchWorker::nap(unsigned long milliseconds)
{
    QThread::msleep(milliseconds);
}

QImage BatchWorker::process(const QString& file, const Filters& filters) const
{
    // Straight from the decoder's hand, the conversion works in place.
    QImage image = QImage(file).convertToFormat(QImage::Format_ARGB32);
    // A name such as "photo@2x" sets a ratio, which would have painters draw at half the scale.
    image.setDevicePixelRatio(1.0);
    if (image.isNull()) {
        // Streamed, a name stays one line whatever it holds.
        qWarning() << "Can't read the photo" << file;
        return image;
    }
    for (const ImageFilter& filter : filters) {
        image = filter(std::move(image));
    }
    if (image.isNull()) {
        qWarning() << "The flow leaves nothing of the photo" << file;
    }
    return image;
}

QString BatchWorker::resultName(int index)
{
    if (m_rename) {
        switch (m_numbers) {
        case AllNumbers:
            return m_newName + QString::number(index);
        case OddNumbers:
            m_oddNumber += 2;
            return m_newName + QString::number(m_oddNumber - 2);
        case EvenNumbers:
            m_evenNumber += 2;
            return m_newName + QString::number(m_evenNumber - 2);
        default:
            break;
        }
    }
    return baseNameOf(QFileInfo(m_photos.at(index).toLocalFile()));
}

void BatchWorker::save(const QImage& image, const QString& name) const
{
    const QString file = m_destination + name + QLatin1Char('.') + m_format.toLower();
    if (image.isNull()) {
        return;
    }
    if (!liesIn(m_destination, file) ||
        !saveResult(image, file, m_format.toLocal8Bit(), m_quality)) {
        qWarning() << "Can't write the result" << file;
    }
}
