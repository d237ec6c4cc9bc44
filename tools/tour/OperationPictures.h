#pragma once

#include <QString>

/// Writes the pictures of the operations' guide: for each operation a sample photo beside what the
/// operation makes of it. Needs a QGuiApplication, for the watermark's text. Errors: what went
/// wrong, or an empty text.
QString writeOperationPictures(const QString& folder);
