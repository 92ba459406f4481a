#include <ovoui/lists/core/ColumnLayout.h>

#include <algorithm>

namespace ovoui::lists
{

namespace
{

constexpr int kWidest = 10000;

std::wstring escaped(const std::wstring& heading)
{
    std::wstring text;
    for (const wchar_t c : heading) {
        if (c == L'/')
            text += L"%2F";
        else if (c == L'=')
            text += L"%3D";
        else if (c == L'%')
            text += L"%25";
        else
            text += c;
    }
    return text;
}

std::wstring unescaped(std::wstring_view text)
{
    std::wstring heading;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::wstring_view code = text.substr(i, 3);
        const wchar_t c = code == L"%2F" ? L'/' : code == L"%3D" ? L'=' : code == L"%25" ? L'%' : 0;
        heading += c ? c : text[i];
        if (c)
            i += 2;
    }
    return heading;
}

/// -1 for what is no width.
int widthIn(std::wstring_view digits)
{
    int width = digits.empty() ? -1 : 0;
    for (const wchar_t c : digits) {
        if (c < L'0' || c > L'9' || width > kWidest)
            return -1;
        width = width * 10 + (c - L'0');
    }
    return width > kWidest ? -1 : width;
}

void takeColumn(ColumnLayout& layout, std::wstring_view part)
{
    const std::size_t sign = part.find(L'=');
    const int width = sign == part.npos ? -1 : widthIn(part.substr(sign + 1));
    if (width >= 0)
        layout.shown.push_back({unescaped(part.substr(0, sign)), width});
}

void takeSorting(ColumnLayout& layout, std::wstring_view part)
{
    if (part.empty() || (part[0] != L'+' && part[0] != L'-'))
        return;
    layout.ascending = part[0] == L'+';
    layout.sortedBy = unescaped(part.substr(1));
}

} // namespace

std::wstring formatLayout(const ColumnLayout& layout)
{
    std::wstring text = (layout.ascending ? L"+" : L"-") + escaped(layout.sortedBy);
    for (const auto& [heading, width] : layout.shown)
        text += L"/" + escaped(heading) + L"=" + std::to_wstring(width);
    return text;
}

ColumnLayout parseLayout(std::wstring_view text)
{
    ColumnLayout layout;
    for (bool first = true; !text.empty(); first = false) {
        const std::size_t end = std::min(text.find(L'/'), text.size());
        first ? takeSorting(layout, text.substr(0, end)) : takeColumn(layout, text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return layout;
}

std::vector<int> orderOfColumns(const ColumnLayout& layout, const std::vector<std::wstring>& headings)
{
    std::vector<int> order;
    const auto take = [&](int column) {
        if (std::find(order.begin(), order.end(), column) == order.end())
            order.push_back(column);
    };
    const int count = static_cast<int>(headings.size());
    for (const ColumnWidth& known : layout.shown)
        for (int column = 0; column < count; ++column)
            if (headings[static_cast<std::size_t>(column)] == known.heading)
                take(column);
    for (int column = 0; column < count; ++column)
        take(column);
    return order;
}

std::vector<WidthOfColumn> widthsOfColumns(const ColumnLayout& layout,
                                           const std::vector<std::wstring>& headings)
{
    std::vector<WidthOfColumn> widths;
    const int count = static_cast<int>(headings.size());
    for (const auto& [heading, width] : layout.shown)
        for (int column = 0; column < count; ++column)
            if (headings[static_cast<std::size_t>(column)] == heading)
                widths.push_back({column, width});
    return widths;
}

std::optional<int> sortedColumn(const ColumnLayout& layout, const std::vector<std::wstring>& headings)
{
    const auto sorted = std::find(headings.begin(), headings.end(), layout.sortedBy);
    if (layout.sortedBy.empty() || sorted == headings.end())
        return std::nullopt;
    return static_cast<int>(sorted - headings.begin());
}

} // namespace ovoui::lists
