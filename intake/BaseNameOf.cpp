#include "intake/BaseNameOf.h"

#include <QFileInfo>

QString baseNameOf(const QFileInfo& file)
{
    const QString name = file.fileName();
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? file.baseName() : name.left(dot);
}
