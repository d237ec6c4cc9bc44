#pragma once

#include <QString>

namespace QMWidgets
{

/// Shows a folder in the system's file manager. Nobody is told if there is none.
void openInFileManager(const QString& path);

} // namespace QMWidgets
