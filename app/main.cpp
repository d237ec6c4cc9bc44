#include "app/MainPage.h"
#include "app/Startup.h"
#include <QMWidgets/App.h>
#include <QMWidgets/DropWidget.h>

int main(int argc, char** argv)
{
    prepareProcess();
    QMWidgets::App app(argc, argv, kOrganizationName, kApplicationName);
    setUpApplication(app);
    MainPage page(nullptr);
    QMWidgets::DropWidget dropWindow(nullptr);
    openProgram(app, page, dropWindow);
    return QApplication::exec();
}
