#include "app/MainPage.h"
#include "app/Startup.h"
#include <QMWidgets/App.h>
#include <QMWidgets/DropWidget.h>
#include <QMWidgets/MakerSite.h>
#include <QMWidgets/UpdateService.h>

int main(int argc, char** argv)
{
    prepareProcess();
    QMWidgets::App app(argc, argv, kOrganizationName, kApplicationName);
    setUpApplication(app);
    // Nowhere but here: what else puts the program together, to try it, asks nobody.
    app.setUpdateService(
        {{QMWidgets::MakerSite::updateHost(), QMWidgets::MakerSite::secondUpdateHost()}});
    MainPage page(nullptr);
    preparePage(app, page);
    QMWidgets::DropWidget dropWindow(nullptr);
    openDropWindow(app, page, dropWindow);
    return QApplication::exec();
}
