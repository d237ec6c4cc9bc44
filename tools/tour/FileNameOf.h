#pragma once

#include <QString>

/// An operation's name for a file: "RGB-Order" becomes "rgb-order", "Brightness, Contrast,
/// Saturation" loses its commas too.
QString fileNameOf(const QString& operationName);
