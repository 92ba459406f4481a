#include <ovoui/lists/core/TableText.h>

#include <array>
#include <cstdio>

namespace ovoui::lists
{

namespace
{

constexpr char kBefore[] = "<html><body>\r\n<!--StartFragment-->";
constexpr char kAfter[] = "<!--EndFragment-->\r\n</body></html>";

std::wstring inOneLine(std::wstring text)
{
    for (wchar_t& c : text)
        if (c == L'\t' || c == L'\r' || c == L'\n')
            c = L' ';
    return text;
}

std::wstring escaped(const std::wstring& text)
{
    std::wstring result;
    for (const wchar_t c : text) {
        if (c == L'&')
            result += L"&amp;";
        else if (c == L'<')
            result += L"&lt;";
        else if (c == L'>')
            result += L"&gt;";
        else if (c == L'\n')
            result += L"<br>";
        else if (c != L'\r')
            result += c;
    }
    return result;
}

std::string description(std::size_t html, std::size_t end, std::size_t fragment, std::size_t fragmentEnd)
{
    std::array<char, 160> text{};
    std::snprintf(
        text.data(), text.size(),
        "Version:0.9\r\nStartHTML:%010u\r\nEndHTML:%010u\r\nStartFragment:%010u\r\nEndFragment:%010u\r\n",
        static_cast<unsigned>(html), static_cast<unsigned>(end), static_cast<unsigned>(fragment),
        static_cast<unsigned>(fragmentEnd));
    return text.data();
}

} // namespace

std::wstring tabSeparated(const std::vector<TableRow>& rows)
{
    std::wstring text;
    for (const TableRow& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            text += (i ? L"\t" : L"") + inOneLine(row[i]);
        text += L"\r\n";
    }
    return text;
}

std::wstring htmlTable(const std::vector<TableRow>& rows, bool headings)
{
    std::wstring text = L"<table>";
    bool isHeading = headings;
    for (const TableRow& row : rows) {
        text += L"<tr>";
        for (const std::wstring& cell : row)
            text += (isHeading ? L"<th>" : L"<td>") + escaped(cell) + (isHeading ? L"</th>" : L"</td>");
        text += L"</tr>\r\n";
        isHeading = false;
    }
    return text + L"</table>";
}

std::string htmlForClipboard(const std::string& utf8Fragment)
{
    const std::size_t html = description(0, 0, 0, 0).size();
    const std::size_t fragment = html + sizeof kBefore - 1;
    const std::size_t fragmentEnd = fragment + utf8Fragment.size();
    const std::size_t end = fragmentEnd + sizeof kAfter - 1;
    return description(html, end, fragment, fragmentEnd) + kBefore + utf8Fragment + kAfter;
}

} // namespace ovoui::lists
