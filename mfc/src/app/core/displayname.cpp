#include "displayname.h"

#include <algorithm>
#include <cwctype>

namespace afxdetail
{

namespace
{

constexpr std::size_t kNone = std::wstring::npos;
constexpr wchar_t kGap[] = L"...";

std::size_t nameStart(const std::wstring& path)
{
    const std::size_t separator = path.find_last_of(L"\\/");
    return separator == kNone ? 0 : separator + 1;
}

/// The length of the drive or the share with the backslash behind it; 0 when there is none.
std::size_t rootLength(const std::wstring& path)
{
    if (path.starts_with(L"\\\\")) {
        const std::size_t server = path.find(L'\\', 2);
        const std::size_t share = server == kNone ? kNone : path.find(L'\\', server + 1);
        return share == kNone ? 0 : share + 1;
    }
    return path.size() > 2 && path[1] == L':' && path[2] == L'\\' ? 3 : 0;
}

/// The path with folders left out after the root so that it has room; empty when leaving out all is not
/// enough.
std::wstring withGap(const std::wstring& path, std::size_t room)
{
    const std::size_t root = rootLength(path);
    const std::size_t name = nameStart(path);
    if (root == 0 || name <= root)
        return {};
    const std::wstring start = path.substr(0, root) + kGap;
    for (std::size_t rest = path.find(L'\\', root); rest != kNone && rest < name;
         rest = path.find(L'\\', rest + 1))
        if (start.size() + path.size() - rest <= room)
            return start + path.substr(rest);
    return {};
}

std::wstring withoutEnding(const std::wstring& name)
{
    const std::size_t dot = name.rfind(L'.');
    return dot == kNone || dot == 0 ? name : name.substr(0, dot);
}

} // namespace

std::wstring abbreviatedPath(const std::wstring& path, std::size_t room, bool atLeastName)
{
    if (path.size() <= room)
        return path;
    if (const std::wstring shorter = withGap(path, room); !shorter.empty())
        return shorter;
    const std::wstring name = path.substr(nameStart(path));
    if (name.size() <= room)
        return name;
    const std::wstring plain = withoutEnding(name);
    return plain.size() <= room || atLeastName ? plain : std::wstring();
}

bool liesIn(const std::wstring& path, const std::wstring& folder)
{
    return nameStart(path) == folder.size() &&
           std::equal(folder.begin(), folder.end(), path.begin(),
                      [](wchar_t one, wchar_t other) { return std::towlower(one) == std::towlower(other); });
}

std::wstring numberedItem(int number, const std::wstring& name)
{
    std::wstring item = std::to_wstring(number);
    if (number <= 10)
        item.insert(item.size() - 1, 1, L'&');
    item += L' ';
    for (const wchar_t character : name)
        item.append(character == L'&' ? 2 : 1, character);
    return item;
}

} // namespace afxdetail
