#pragma once

#include <QString>

class QByteArray;
class QImage;

/// Whether the file lies in the folder itself, and not above or below it. A result never leaves the
/// folder of its run, whatever the user typed as its name.
bool liesIn(const QString& folder, const QString& file);

/// Writes a picture to a file, as a whole or not at all (QMWidgets::writeWholeFile). Only where
/// nothing can be made beside the file, or where it is a device, it is written to itself, and
/// removed if that fails midway. Errors: false.
bool saveResult(const QImage& image, const QString& file, const QByteArray& format, int quality);
