#include "ExplorerWindows.h"

#include <windows.h>

#include <shellapi.h>

namespace QMWidgets::platform
{

bool showInExplorer(const std::wstring& path)
{
    const std::wstring parameters = L"/e,/select,\"" + path + L"\"";
    const HINSTANCE answer = ShellExecuteW(GetDesktopWindow(), L"open", L"explorer.exe",
                                           parameters.c_str(), nullptr, SW_SHOWNORMAL);
    // The shell's answer is no handle but a number: up to 32 it tells of an error.
    return reinterpret_cast<INT_PTR>(answer) > 32;
}

} // namespace QMWidgets::platform
