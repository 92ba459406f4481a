#include "filelist.h"

namespace afxdetail
{

namespace
{

bool isSeparator(wchar_t character)
{
    return character == L'\\' || character == L'/';
}

bool isFullPath(std::wstring_view path)
{
    const bool drive = path.size() >= 3 && path[1] == L':' && isSeparator(path[2]);
    const bool share = path.size() >= 2 && isSeparator(path[0]) && isSeparator(path[1]);
    return drive || share;
}

bool isDriveRoot(std::wstring_view folder)
{
    return folder.size() == 2 && folder[1] == L':';
}

std::wstring_view entryAt(const wchar_t* place, ListStyle style)
{
    const std::wstring_view text(place);
    return style == ListStyle::Blanks ? text.substr(0, text.find(L' ')) : text;
}

/// The entry behind the one that ends here, or null.
const wchar_t* entryBehind(const wchar_t* end, ListStyle style)
{
    if (style == ListStyle::OneFile)
        return nullptr;
    if (style == ListStyle::Zeros)
        return end[1] ? end + 1 : nullptr;
    while (*end == L' ')
        ++end;
    return *end ? end : nullptr;
}

} // namespace

PathParts splitPath(std::wstring_view path)
{
    const std::size_t separator = path.find_last_of(L"\\/");
    if (separator == std::wstring_view::npos)
        return {{}, path};
    std::wstring_view folder = path.substr(0, separator);
    if (folder.empty() || isDriveRoot(folder))
        folder = path.substr(0, separator + 1);
    return {folder, path.substr(separator + 1)};
}

std::wstring joinPath(std::wstring_view folder, std::wstring_view name)
{
    if (folder.empty() || isFullPath(name))
        return std::wstring(name);
    std::wstring path(folder);
    if (!isSeparator(path.back()))
        path += L'\\';
    return path += name;
}

std::size_t extensionOffset(std::wstring_view path)
{
    const std::size_t dot = path.find_last_of(L"\\/.");
    return dot != std::wstring_view::npos && path[dot] == L'.' ? dot + 1 : path.size();
}

void FileList::endAsAList()
{
    constexpr std::wstring_view kEnd(L"\0", 2);
    if (!text.ends_with(kEnd))
        text += L'\0';
}

FileList packPaths(const std::vector<std::wstring>& paths)
{
    FileList list;
    if (paths.empty())
        return list;
    const PathParts first = splitPath(paths.front());
    if (paths.size() == 1) {
        list.text = paths.front() + L'\0';
        list.nameOffset = paths.front().size() - first.name.size();
        const std::size_t extension = extensionOffset(paths.front());
        list.extensionOffset = extension < paths.front().size() ? extension : 0;
        return list;
    }
    list.text.append(first.folder) += L'\0';
    list.nameOffset = list.text.size();
    for (const std::wstring& path : paths) {
        const PathParts parts = splitPath(path);
        list.text.append(parts.folder == first.folder ? parts.name : std::wstring_view(path)) += L'\0';
    }
    list.text += L'\0';
    return list;
}

std::wstring nextPath(const wchar_t* begin, const wchar_t*& place, ListStyle style)
{
    const std::wstring_view at = entryAt(place, style);
    const wchar_t* next = entryBehind(place + at.size(), style);
    if (place != begin) {
        place = next;
        return joinPath(entryAt(begin, style), at);
    }
    place = next;
    return next ? nextPath(begin, place, style)
                : std::wstring(at); // the folder stands first, or it is one file
}

} // namespace afxdetail
