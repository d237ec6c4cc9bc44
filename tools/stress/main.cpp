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
    if (QStringList({"batch", "same-shape", "full-disk"}).contains(part)) {
        return stressBatch(arguments.value(1).toInt(), arguments.value(2).toInt(),
                           part == QLatin1String("same-shape"), part == QLatin1String("full-disk"));
    }
    if (part == QLatin1String("check-results")) {
        return checkResults();
    }
    if (part == QLatin1String("save")) {
        return saveFlowsForEver();
    }
    if (part == QLatin1String("check")) {
        return checkFlows();
    }
    std::fprintf(stderr, "tessarin_stress batch|same-shape|full-disk COUNT LARGEST_WIDTH, "
                         "check-results, save, or check\n");
    return 2;
}
