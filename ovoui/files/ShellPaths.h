/// Not exported: folders as the shell's dialogs take them.
#pragma once

#include <shobjidl.h>

#include <string>

namespace ovoui
{

/// The nearest folder that exists, from this path upwards; empty when there is none.
std::wstring existingFolderNear(const std::wstring& path);

/// The same, but when there is none the last one that was tried.
std::wstring folderToBeginIn(const std::wstring& path);

/// The shell's item for a path, with a reference that the caller releases; null when there is none.
IShellItem* shellItemOf(const std::wstring& path);

} // namespace ovoui
