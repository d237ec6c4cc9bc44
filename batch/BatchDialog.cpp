#include "batch/BatchDialog.h"

#include "batch/AppSettingsDialog.h"
#include "batch/BatchWorker.h"
#include "intake/CommonData.h"
#include <MGraphX/Reduced.h>
#include <QMWidgets/App.h>
#include <QMWidgets/FollowLanguage.h>
#include <QMWidgets/Label.h>
#include <QMWidgets/OpenInFileManager.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace
{

/// Makes the folder of a run that starts now.
QString makeRunFolder()
{
    QString folder = QMWidgets::App::app()->defaultOutputFolder(true) +
                     QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd_hh-mm-ss")) +
                     QLatin1Char('/');
    QDir().mkpath(folder);
    return folder;
}

/// The picture as a pixmap; one larger than most cameras take, reduced by a whole number, so that
/// a huge photo isn't there twice.
QPixmap pixmapFor(const QImage& image)
{
    constexpr double kMostPixels = 1 << 25;
    const double pixels = double(image.width()) * image.height();
    const int factor = int(std::ceil(std::sqrt(pixels / kMostPixels)));
    return QPixmap::fromImage(factor > 1 ? MGraphX::reduced(image, factor) : image);
}

} // namespace

BatchDialog::BatchDialog()
    : m_progressBar(new QProgressBar(this)),
      m_infoLabel(new QLabel(this)),
      m_pauseButton(new QPushButton(this)),
      m_stopButton(new QPushButton(this)),
      m_previewLabel(new QMWidgets::Label(this))
{
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint);
    QMWidgets::followLanguage(this, [this] {
        setWindowTitle(QCoreApplication::applicationName() + tr(" Batch Process"));
        m_progressBar->setAccessibleName(tr("Progress"));
        m_pauseButton->setText(tr("Pause"));
        m_stopButton->setText(tr("Stop"));
    });
    setMinimumWidth(500);
    m_progressBar->setRange(0, 100);
    m_progressBar->setValue(20);
    m_infoLabel->setMaximumHeight(32);
    m_pauseButton->setCheckable(true);
    m_pauseButton->setObjectName(QStringLiteral("BatchPauseButton"));
    m_stopButton->setObjectName(QStringLiteral("BatchStopButton"));
    m_previewLabel->setObjectName(QStringLiteral("PreviewLabel"));
    m_previewLabel->setMinimumSize(400, 400);

    BatchWorker* const worker = m_thread.worker();
    worker->awaitPictures();
    connect(worker, &BatchWorker::updateInfo, this, &BatchDialog::slotUpdateInfo);
    connect(worker, &BatchWorker::finished, this, &BatchDialog::slotAccept);
    connect(m_pauseButton, &QPushButton::clicked, this, &BatchDialog::slotPause);
    connect(m_stopButton, &QPushButton::clicked, this, &BatchDialog::slotStop);
    connect(this, &BatchDialog::rejected, this, &BatchDialog::slotStop);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_pauseButton);
    buttons->addWidget(m_stopButton);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_previewLabel);
    layout->addWidget(m_infoLabel);
    layout->addWidget(m_progressBar);
    layout->addLayout(buttons);
}

void BatchDialog::startBatch(const QVector<QPair<QString, QString>>& operations)
{
    endFormerRun();
    const QString format = AppSettingsDialog::keyFormat();
    const int quality = format == QLatin1String("JPEG") ? AppSettingsDialog::keyQuality() : -1;
    m_destination = makeRunFolder();
    m_thread.worker()->setJob(format, quality, AppSettingsDialog::keyRename(),
                              AppSettingsDialog::keyNewName(), AppSettingsDialog::keyNumbers(),
                              m_destination, CommonData::instance()->items(), operations);
    m_thread.start(QThread::InheritPriority);
}

/// A dialog closed in the middle of a run leaves the thread with a photo in hand, and its last
/// signals on their way. Both have to arrive before the next run, or they would end that one.
void BatchDialog::endFormerRun()
{
    m_thread.leave();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

void BatchDialog::slotPause()
{
    const bool pause = m_pauseButton->isChecked();
    m_pauseButton->setText(pause ? tr("Resume") : tr("Pause"));
    m_thread.worker()->setPaused(pause);
}

void BatchDialog::slotStop()
{
    m_thread.worker()->requestStop();
    m_thread.quit();
}

void BatchDialog::slotProgressChanged(int) {}

void BatchDialog::slotAccept()
{
    accept();
    if (AppSettingsDialog::keyOpenLocation()) {
        QMWidgets::openInFileManager(m_destination);
    }
    m_thread.quit();
}

void BatchDialog::slotUpdateInfo(const QImage& image, int index, int total)
{
    m_previewLabel->setText(QString());
    m_previewLabel->setPixmap(pixmapFor(image));
    m_thread.worker()->pictureTaken(image);
    m_progressBar->setValue(int(qint64(index) * 100 / total));
    m_infoLabel->setText(
        QStringLiteral("<CENTER><H2>%1 of %2</H2></CENTER>").arg(index + 1).arg(total));
}

void BatchDialog::showEvent(QShowEvent* event)
{
    m_pauseButton->setChecked(false);
    m_pauseButton->setText(tr("Pause"));
    m_progressBar->setValue(0);
    m_previewLabel->setPixmap(QPixmap());
    m_previewLabel->setText(tr("<CENTER><H1>Please, wait...</H1></CENTER>"));
    QDialog::showEvent(event);
}

void BatchDialog::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
}
