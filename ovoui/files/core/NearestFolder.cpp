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

} // namespace ovoui
