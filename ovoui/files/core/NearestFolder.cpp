#include <ovoui/files/core/NearestFolder.h>

#include <ovocor/Text.h>

namespace ovoui
{

std::wstring climbToFolder(std::wstring path, const IsFolder& isFolder)
{
    while (!isFolder(path)) {
        std::wstring parent = getDirectory(path);
        if (parent == path)
            break;
        path = std::move(parent);
    }
    return path;
}

std::wstring nearestFolder(std::wstring path, const IsFolder& isFolder)
{
    std::wstring folder = climbToFolder(std::move(path), isFolder);
    return isFolder(folder) ? folder : std::wstring();
}

std::wstring nearestFolder(const std::vector<std::wstring>& paths, const IsFolder& isFolder)
{
    for (const std::wstring& path : paths)
        if (std::wstring folder = nearestFolder(path, isFolder); !folder.empty())
            return folder;
    return {};
}

} // namespace ovoui
