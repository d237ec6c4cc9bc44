#pragma once

class QByteArray;
class QString;

namespace QMWidgets
{

/// Writes a whole file, in the place of a former one. Errors: false if it can't be written, and the
/// former file, or none, as it was: a full disk leaves no half file.
bool writeWholeFile(const QString& path, const QByteArray& content);

} // namespace QMWidgets
