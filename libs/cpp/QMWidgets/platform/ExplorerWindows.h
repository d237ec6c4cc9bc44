#pragma once

#include <string>

namespace QMWidgets::platform
{

/// Opens Explorer with `path` selected; `path` has the system's own separators.
/// Errors: false if the shell could not.
bool showInExplorer(const std::wstring& path);

} // namespace QMWidgets::platform
