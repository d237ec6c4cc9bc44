#pragma once

#include <QString>

/// Saved flows as files: where they lie, and how their text is written and read.
namespace FlowFile
{

/// The file of that name in the folder of flows; a slash before the name changes nothing. Errors:
/// an empty path for a name that would lead out of the folder, such as "../x.flow".
QString path(const QString& fileName);

/// Reads a whole file: in UTF-8, in what its byte order mark tells, or in the system's encoding
/// where the bytes are neither. Errors: false if the file can't be read or is too large for a flow,
/// and the text as it was.
bool read(const QString& path, QString& text);

/// Writes a whole file, in UTF-8. Errors: false if it can't be written, and a former file as it
/// was.
bool write(const QString& path, const QString& text);

} // namespace FlowFile
