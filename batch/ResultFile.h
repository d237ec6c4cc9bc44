#pragma once

#include <QString>

class QByteArray;
class QImage;

/// Whether the file lies in the folder itself, and not above or below it. A result never leaves the
/// folder of its run, whatever the user typed as its name.
bool liesIn(const QString& folder, const QString& file);

/// Writes a picture to a file, replacing one that is there. A picture that can't be written whole,
/// as on a full disk, leaves no file. Errors: false; a null image doesn't touch the file.
bool saveResult(const QImage& image, const QString& file, const QByteArray& format, int quality);
