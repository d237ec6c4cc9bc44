#include "flow/FlowsFolder.h"

#include <QMWidgets/App.h>

#include <QDir>

QString flowsFolder()
{
    const QString folder = QMWidgets::App::appHomeFolder(true) + QLatin1String("Flows/");
    QDir().mkpath(folder);
    return folder;
}
