#include "UpdateAnswer.h"

#include "UpdateService.h"

#include <QCoreApplication>
#include <QMRequest/Downloader.h>
#include <QTimer>

namespace QMWidgets
{

UpdateState readUpdateAnswer(const QString& answer, const QDate& buildDate)
{
    if (!answer.contains(QLatin1String("!date!"))) {
        return UpdateState::Unknown;
    }
    const QString last = answer.split(QStringLiteral(";;;")).last().trimmed();
    const QDate release = QDate::fromString(last, QStringLiteral("yyyy-MM-dd"));
    return release.isValid() && buildDate < release ? UpdateState::Newer : UpdateState::Latest;
}

QString updateAnswerText(const QByteArray& bytes)
{
    const int zero = bytes.indexOf('\0');
    return QString::fromLatin1(zero < 0 ? bytes : bytes.left(zero));
}

std::optional<QString> fetchUpdateAnswer(const UpdateService& service)
{
    const QString page = QStringLiteral("/apps/appscontrol/updaterequest.php?appname=") +
                         QCoreApplication::applicationName().toLower();
    for (const QString& host : service.hosts) {
        QMRequest::Downloader downloader;
        QTimer::singleShot(service.timeLimit, &downloader, &QMRequest::Downloader::slotAbort);
        const QString answer = updateAnswerText(downloader.get(host + page));
        if (downloader.isBrokenOff()) {
            return std::nullopt;
        }
        if (!answer.isEmpty()) {
            return answer;
        }
    }
    return QString();
}

} // namespace QMWidgets
