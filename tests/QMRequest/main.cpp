#include "support/TestHome.h"
#include "support/TestMain.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    const TestHome home;
    const QCoreApplication application(argc, argv);
    return runTests(argc, argv);
}
