#include "app/Startup.h"

#include "app/Catalogue.h"
#include "app/DeskStyle.h"
#include "app/HelpSlides.h"
#include "app/MainPage.h"
#include "app/StyleSheet.h"
#include "flow/FlowsFolder.h"
#include <MGraphX/HeapPolicy.h>
#include <QMWidgets/App.h>
#include <QMWidgets/DropWidget.h>
#include <QMWidgets/MakerSite.h>

#include <QIcon>

namespace MakerSite = QMWidgets::MakerSite;

const QString kOrganizationName = QStringLiteral("Corvane");
const QString kApplicationName = QStringLiteral("Tessarin");

namespace
{
const QString kSampleFlow = QStringLiteral(":/sample.flow");
} // namespace

void prepareProcess()
{
    MGraphX::keepHeap();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // A slider scales a whole photo at each step: moves that wait meanwhile become one.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

void setUpApplication(QMWidgets::App& app)
{
    app.setPromotedAppUrl(MakerSite::page(QStringLiteral("/apps/tessarin/")));
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSARIN_VERSION));
    QCoreApplication::setOrganizationDomain(MakerSite::organizationDomain());
    QApplication::setStyle(new DeskStyle); // the application owns it
    app.setStyleSheet(applicationStyleSheet());
    // Some rules are for readers from the right only. The widgets hear of it after the signal.
    QObject::connect(
        &app, &QGuiApplication::layoutDirectionChanged, &app,
        [&app] { app.setStyleSheet(app.styleSheet()); }, Qt::QueuedConnection);
    app.setupWebLinks();
    if (app.firstRun()) {
        // Without it the program runs just as well.
        static_cast<void>(app.copyFileToFolder(kSampleFlow, flowsFolder(), QString()));
    }
    QIcon icon(QStringLiteral(":/appicon.png"));
    icon.addFile(QStringLiteral(":/app.png")); // for task bars and switchers
    QGuiApplication::setWindowIcon(icon);
}

void preparePage(QMWidgets::App& app, MainPage& page)
{
    fillCatalogue(*page.menuBar());
    QObject::connect(&app, &QMWidgets::App::dockClicked, &page, &MainPage::showNormal);
    app.setHelpImages(helpSlides(app.language(), app.resourcesPath()));
    page.setWindowTitle(QCoreApplication::applicationName());
}

void openDropWindow(QMWidgets::App& app, MainPage& page, QMWidgets::DropWidget& dropWindow)
{
    dropWindow.setWindowTitle(QCoreApplication::applicationName());
    dropWindow.resize(400, 400);
    dropWindow.show();
    QObject::connect(&dropWindow, &QMWidgets::DropWidget::dropped, &page,
                     &MainPage::slotFilesDropped);
    app.setMainWidget(&page);
}
