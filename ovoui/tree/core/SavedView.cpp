#include <ovoui/tree/core/SavedView.h>

namespace ovoui::tree
{

namespace
{

constexpr std::wstring_view kOpen = L"open";
constexpr std::wstring_view kSelected = L"selected";
constexpr std::wstring_view kCaret = L"caret";
constexpr std::wstring_view kAnchor = L"anchor";
constexpr std::wstring_view kFirst = L"first";

constexpr wchar_t kEscape = L'\\';
constexpr wchar_t kLineEnd = L'\n';

void append(std::wstring& text, std::wstring_view kind, const TreePath& path)
{
    if (path.empty())
        return;
    text += kind;
    text += L' ';
    for (const wchar_t character : formatPath(path)) {
        if (character == kLineEnd)
            text += kEscape;
        text += character;
    }
    text += kLineEnd;
}

std::size_t endOfLine(std::wstring_view text, std::size_t start)
{
    std::size_t end = start;
    while (end < text.size() && text[end] != kLineEnd)
        end += text[end] == kEscape && end + 1 < text.size() ? 2 : 1;
    return end;
}

void readLine(std::wstring_view line, SavedView& view)
{
    const std::size_t blank = line.find(L' ');
    if (blank == std::wstring_view::npos)
        return;
    const std::wstring_view kind = line.substr(0, blank);
    TreePath path = parsePath(line.substr(blank + 1));
    if (path.empty())
        return; // the line is cut off
    if (kind == kOpen)
        view.open.push_back(std::move(path));
    else if (kind == kSelected)
        view.selected.push_back(std::move(path));
    else if (kind == kCaret)
        view.caret = std::move(path);
    else if (kind == kAnchor)
        view.anchor = std::move(path);
    else if (kind == kFirst)
        view.first = std::move(path);
}

} // namespace

std::wstring formatView(const SavedView& view)
{
    std::wstring text;
    for (const TreePath& path : view.open)
        append(text, kOpen, path);
    for (const TreePath& path : view.selected)
        append(text, kSelected, path);
    append(text, kCaret, view.caret);
    append(text, kAnchor, view.anchor);
    append(text, kFirst, view.first);
    return text;
}

SavedView parseView(std::wstring_view text)
{
    SavedView view;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = endOfLine(text, start);
        readLine(text.substr(start, end - start), view);
        start = end + 1;
    }
    return view;
}

} // namespace ovoui::tree
