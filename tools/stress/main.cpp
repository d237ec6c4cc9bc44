#include "app/Startup.h"
#include "BatchStress.h"
#include "FlowStress.h"
#include <QMWidgets/App.h>

#include <cstdio>

/// The parts of scripts/stress.sh. All of it lies in the home directory that the environment tells.
int main(int argc, char** argv)
{
    prepareProcess();
    QMWidgets::App app(argc, argv, kOrganizationName, kApplicationName);
    setUpApplication(app);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString part = arguments.value(0);
    if (part == QLatin1String("batch") || part == QLatin1String("full-disk")) {
        return stressBatch(arguments.value(1).toInt(), arguments.value(2).toInt(),
                           part == QLatin1String("full-disk"));
    }
    if (part == QLatin1String("save")) {
        return saveFlowsForEver();
    }
    if (part == QLatin1String("check")) {
        return checkFlows();
    }
    std::fprintf(stderr, "tessarin_stress batch|full-disk COUNT LARGEST_WIDTH, save, or check\n");
    return 2;
}
