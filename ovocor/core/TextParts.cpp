// The text helpers that need nothing of the system.
#include <ovocor/Text.h>

#include <algorithm>
#include <cwchar>

namespace
{

bool isSeparator(wchar_t c)
{
    return c == L'\\' || c == L'/';
}

bool isLetter(wchar_t c)
{
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z');
}

/// Position of the first separator from `from` on, or the end of the path.
std::size_t separatorFrom(std::wstring_view path, std::size_t from)
{
    const std::size_t found = path.find_first_of(L"\\/", from);
    return found == path.npos ? path.size() : found;
}

/// End of the "server\share" that begins at `from`.
std::size_t shareEnd(std::wstring_view path, std::size_t from)
{
    const std::size_t server = separatorFrom(path, from);
    return server == path.size() ? server : separatorFrom(path, server + 1);
}

/// End of the "X:" or "X:\" that begins at `from`, or `from`.
std::size_t driveEnd(std::wstring_view path, std::size_t from)
{
    if (path.size() < from + 2 || !isLetter(path[from]) || path[from + 1] != L':')
        return from;
    return path.size() > from + 2 && isSeparator(path[from + 2]) ? from + 3 : from + 2;
}

bool startsWithUnc(std::wstring_view path)
{
    return path.size() >= 4 && (path[0] | 0x20) == L'u' && (path[1] | 0x20) == L'n' &&
           (path[2] | 0x20) == L'c' && isSeparator(path[3]);
}

/// How much of the path is its root: what names a drive, a share or a device.
std::size_t rootLength(std::wstring_view path)
{
    if (path.empty() || !isSeparator(path[0]))
        return driveEnd(path, 0);
    if (path.size() < 2 || !isSeparator(path[1]))
        return 1;
    const bool device = path.size() >= 4 && (path[2] == L'?' || path[2] == L'.') && isSeparator(path[3]);
    if (!device)
        return shareEnd(path, 2);
    if (startsWithUnc(path.substr(4)))
        return shareEnd(path, 8);
    const std::size_t drive = driveEnd(path, 4);
    return drive > 4 ? drive : separatorFrom(path, 4);
}

bool isHighSurrogate(wchar_t c)
{
    return c >= 0xD800 && c <= 0xDBFF;
}

} // namespace

std::size_t packTo(wchar_t* buffer, std::size_t size, std::wstring_view text)
{
    if (size == 0)
        return 0;
    std::size_t length = std::min(text.size(), size - 1);
    if (length > 0 && length < text.size() && isHighSurrogate(text[length - 1]))
        --length;
    std::copy_n(text.begin(), length, buffer);
    buffer[length] = L'\0';
    return length;
}

std::wstring getDirectory(std::wstring_view path)
{
    const std::size_t root = rootLength(path);
    std::size_t end = path.size();
    while (end > root && !isSeparator(path[end - 1]))
        --end;
    if (end == root && root == 0)
        return std::wstring(path); // a bare name
    while (end > root && isSeparator(path[end - 1]))
        --end;
    return std::wstring(path.substr(0, end));
}
