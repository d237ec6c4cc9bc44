#include "app/StyleSheet.h"

#include <QFile>

const QString& applicationStyleSheet()
{
    static const QString text = [] {
        QFile file(QStringLiteral(":/tessarin.qss"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }();
    return text;
}
