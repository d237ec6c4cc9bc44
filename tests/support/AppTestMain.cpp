#include "support/TestHome.h"
#include "support/TestMain.h"
#include <QMWidgets/App.h>

/// The main of every test program that needs the application object.
int main(int argc, char** argv)
{
    const TestHome home;
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("Tessarin"));
    return runTests(argc, argv);
}
