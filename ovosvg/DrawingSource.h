/// Not exported: where the texts of drawings come from.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace ovosvg
{

/// The bytes of the file `path`, but at most one more than a drawing may have. Raises WinError.
std::string textOfFile(const std::wstring& path);

/// The bytes of the resource `id` of a `type`, found by the framework's search; they stay as long as the
/// module that holds them. Raises WinError.
std::string_view textOfResource(UINT id, const wchar_t* type);

} // namespace ovosvg
