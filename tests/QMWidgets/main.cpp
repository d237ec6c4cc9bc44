#include "support/TestHome.h"
#include "support/TestMain.h"

#include <cstring>
#include <QMWidgets/App.h>
#include <QMWidgets/ProtocolLog.h>

namespace
{

const QString kOrganization = QStringLiteral("Corvane");
const QString kApplication = QStringLiteral("Tessarin");

/// What the test of the protocol log runs as a process of its own.
int dieWithMessage(int argc, char** argv)
{
    const QMWidgets::App app(argc, argv, kOrganization, kApplication);
    qWarning("this one is dropped");
    QMWidgets::installProtocolHandler();
    qFatal("the end");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--die") == 0) {
        return dieWithMessage(argc, argv);
    }
    const TestHome home;
    const QMWidgets::App app(argc, argv, kOrganization, kApplication);
    return runTests(argc, argv);
}
