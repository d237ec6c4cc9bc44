#pragma once

#include <QString>

class MainPage;

namespace QMWidgets
{
class App;
class DropWidget;
} // namespace QMWidgets

extern const QString kOrganizationName;
extern const QString kApplicationName;

/// The first thing in main, before the application object: how this process keeps its memory and
/// treats dense screens.
void prepareProcess();

/// Gives the application its identity, its look and, on the first run, the sample flow. Before any
/// widget is made.
void setUpApplication(QMWidgets::App& app);

/// Fills the page's menus and loads the language, which the page follows. Before the drop window is
/// made.
void preparePage(QMWidgets::App& app, MainPage& page);

/// Shows the drop window; the page comes up when the first photos arrive there.
void openDropWindow(QMWidgets::App& app, MainPage& page, QMWidgets::DropWidget& dropWindow);
