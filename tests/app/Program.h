#pragma once

#include "app/MainPage.h"
#include "app/Startup.h"

#include <QMenu>
#include <QMWidgets/App.h>
#include <QMWidgets/DropWidget.h>
#include <QPushButton>
#include <QStackedWidget>

/// The program, put together as main does.
class Program
{
public:
    Program()
    {
        setUpApplication(*QMWidgets::App::app());
        page = new MainPage(nullptr);
        preparePage(*QMWidgets::App::app(), *page);
        dropWindow = new QMWidgets::DropWidget(nullptr);
        openDropWindow(*QMWidgets::App::app(), *page, *dropWindow);
    }
    ~Program()
    {
        delete dropWindow;
        delete page;
    }

    QMenu* addMenu() { return page->findChild<QMenu*>(QStringLiteral("FlowPanelMenu")); }
    /// The page of the node in hand.
    QWidget* node() { return page->findChild<QStackedWidget*>()->currentWidget(); }
    QPushButton* button(const char* name)
    {
        return page->findChild<QPushButton*>(QLatin1String(name));
    }

    MainPage* page;
    QMWidgets::DropWidget* dropWindow;
};
