#pragma once

#include <QStringList>

/// The twelve picture files of the help in a language, in the order of the show. A language that
/// has none gets the English ones. `folder` ends with a slash. The files lie beside the program and
/// may be missing.
QStringList helpSlides(const QString& language, const QString& folder);
