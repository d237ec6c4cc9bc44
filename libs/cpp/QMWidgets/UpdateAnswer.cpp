#include "UpdateAnswer.h"

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

} // namespace QMWidgets
