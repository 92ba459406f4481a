/// Not exported: folders as the shell's dialogs take them.
#pragma once

#include <shobjidl.h>

#include <memory>
#include <string>
#include <vector>

namespace ovoui
{

/// The nearest folder that exists, from this path upwards; empty when there is none.
std::wstring existingFolderNear(const std::wstring& path);

/// The same for the first of several paths that has one.
std::wstring existingFolderNear(const std::vector<std::wstring>& paths);

/// The same, but when there is none the last one that was tried.
std::wstring folderToBeginIn(const std::wstring& path);

struct ReleaseItem
{
    void operator()(IShellItem* item) const { item->Release(); }
};

/// The shell's item for a path; null when there is none, and for a path that is empty or
/// begins with a slash.
std::unique_ptr<IShellItem, ReleaseItem> shellItemOf(const std::wstring& path);

} // namespace ovoui
