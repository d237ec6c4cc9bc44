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

/// Puts the page and the drop window together and shows the drop window; the page follows when the
/// first photos arrive.
void openProgram(QMWidgets::App& app, MainPage& page, QMWidgets::DropWidget& dropWindow);
