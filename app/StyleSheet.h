#pragma once

#include <QString>

/// The text of the program's one style sheet, read from the resources at the first call.
const QString& applicationStyleSheet();
