#pragma once

#include <QString>

class QAction;
class QIcon;
class QMenu;

/// Adds an entry that shows a name letter by letter and is known by it. Its text alone doesn't tell
/// the name for sure: a "&" in it underlines what follows, and some desktops put in one of their
/// own.
QAction* addNamedEntry(QMenu* menu, const QIcon& icon, const QString& name);

/// The name by which an entry is known; the text of one that addNamedEntry() did not make.
QString nameOf(const QAction* entry);
