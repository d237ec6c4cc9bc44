#include "MailUrl.h"

namespace QMWidgets
{

namespace
{

QString encoded(const QString& text)
{
    // The signs that mean nothing in a query stay readable.
    return QString::fromLatin1(QUrl::toPercentEncoding(text, QByteArrayLiteral(" !(),:/")));
}

} // namespace

QUrl mailUrl(const QString& to, const QString& subject, const QString& body)
{
    return QUrl(QLatin1String("mailto:") + to + QLatin1String("?subject=") + encoded(subject) +
                QLatin1String("&body=") + encoded(body));
}

} // namespace QMWidgets
