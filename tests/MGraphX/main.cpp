#include "support/TestHome.h"
#include "support/TestMain.h"

#include <QGuiApplication>

int main(int argc, char** argv)
{
    const TestHome home;
    const QGuiApplication application(argc, argv);
    return runTests(argc, argv);
}
