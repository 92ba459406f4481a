/// Not exported: the folder to begin in when the wanted one may be gone.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace ovoui
{

using IsFolder = std::function<bool(const std::wstring&)>;

/// Climbs from a path to the first folder that there is; to the last one that can be climbed to, when there
/// is none.
std::wstring climbToFolder(std::wstring path, const IsFolder& isFolder);

/// The same, but empty when there is no such folder.
std::wstring nearestFolder(std::wstring path, const IsFolder& isFolder);

/// That of the first path that has one; the others are not asked about.
std::wstring nearestFolder(const std::vector<std::wstring>& paths, const IsFolder& isFolder);

} // namespace ovoui
