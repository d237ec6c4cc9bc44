#pragma once

#include <functional>

class QByteArray;
class QFileDevice;
class QString;

namespace QMWidgets
{

/// Writes what a file is to hold to an open one. Errors: false.
using FileWriter = std::function<bool(QFileDevice& file)>;

/// Writes a whole file, in the place of a former one, which gives it its permissions. The file is
/// whole at any moment: it is written beside its place, under a short name, and takes its own name
/// at the end. A link stays, and what it leads to is replaced.
/// Errors: false. The former file stays as it was, and a full disk leaves no half file. The
/// writer isn't called if no file can be made there, or if the place is a device or may not be
/// written to.
/// Thread: any, one at a time in each folder.
bool writeWholeFile(const QString& path, const FileWriter& write);

/// The same for a content that is there already. It has reached the disk when this returns.
bool writeWholeFile(const QString& path, const QByteArray& content);

/// Writes to the file itself and removes it if that fails midway. Errors: false.
bool writeOrRemove(const QString& path, const FileWriter& write);

} // namespace QMWidgets
