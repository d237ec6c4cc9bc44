#include "BuildDate.h"

#include <QDebug>

namespace QMWidgets
{

QDate parseBuildDate(const QString& text)
{
    // Not left to QDate's month names: those follow the user's locale, the compiler's don't.
    static const char* const kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                          "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    QString numbers = text.simplified();
    numbers.replace(QLatin1Char(' '), QLatin1Char('/'));
    int month = 0;
    for (const char* name : kMonths) {
        numbers.replace(QLatin1String(name), QString::number(++month));
    }
    qDebug() << "&&&BUILD:" << numbers;
    const QDate date = QDate::fromString(numbers, QStringLiteral("M/d/yyyy"));
    qDebug() << "&&&DATE:" << date;
    return date;
}

} // namespace QMWidgets
