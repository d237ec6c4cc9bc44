#include "FileNameOf.h"

QString fileNameOf(const QString& operationName)
{
    QString name;
    for (const QChar letter : operationName.toLower()) {
        name += letter.isLetterOrNumber() ? letter : QLatin1Char('-');
    }
    return name.replace(QLatin1String("--"), QLatin1String("-"));
}
