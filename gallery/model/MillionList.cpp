#include "MillionList.h"

#include "ColourTable.h"
#include "ColumnWidth.h"
#include "Resolution.h"

#include <ovocor/Colour.h>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <string_view>

BEGIN_MESSAGE_MAP(MillionList, COVOListCtrlEx)
    ON_NOTIFY_REFLECT(LVN_GETDISPINFO, &MillionList::OnGetDispInfo)
    ON_NOTIFY_REFLECT(LVN_ODFINDITEM, &MillionList::OnFindItem)
END_MESSAGE_MAP()

namespace
{

constexpr int kColumn = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;

std::wstring textOf(int row, int column, DWORD entry)
{
    switch (column) {
    case 0:
        return L"Row " + std::to_wstring(row + 1);
    case 1:
        return std::to_wstring(static_cast<long long>(row + 1) * (row + 1));
    default:
        return hexOf(entry);
    }
}

/// A text to look for as the rows have it, in small letters. Without a value no row has it.
std::optional<std::string> searched(std::wstring text)
{
    ::CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    if (std::any_of(text.begin(), text.end(), [](wchar_t c) { return c > L'~'; }))
        return std::nullopt;
    return std::string(text.begin(), text.end());
}

/// Whether a row's first two columns have a part. A million rows are asked for one text that is not there, so
/// this makes no strings.
bool hasPart(int row, std::string_view part)
{
    char text[32] = "row ";
    const auto has = [&](char* begin, long long number) {
        const char* const end = std::to_chars(begin, std::end(text), number).ptr;
        return std::string_view(text, end).find(part) != std::string_view::npos;
    };
    const long long number = row + 1;
    if (has(text + 4, number))
        return true;
    return has(text, number * number);
}

} // namespace

bool MillionList::create(CWnd& parent)
{
    return CreateEx(WS_EX_CLIENTEDGE, WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_OWNERDATA | LVS_SHOWSELALWAYS,
                    CRect(), &parent, 1) != FALSE;
}

void MillionList::fill()
{
    UseRowColours(TRUE);
    AddColumn(L"Row", 0, -1, false, kColumn, LVCFMT_LEFT);
    AddColumn(L"Square", 1, -1, false, kColumn, LVCFMT_RIGHT);
    AddColumn(L"Colour", 2, -1, true, kColumn, LVCFMT_LEFT);
    for (int column = 0; column < 2; ++column)
        SetColumnWidth(column, scaled(m_hWnd, 110));
    SetColumnWidth(2, columnWidth(*this, 110, L"#E61919#E61919")); // the text on a half
    SetItemCountEx(kRows);
}

/// Hues go round once in a thousand rows, and the colours fade in and out.
DWORD MillionList::rowColour(int item)
{
    const Colour colour = Colour::hls(Angle::degrees(0.36 * (item % 1000)), 0.5, 0.8);
    const DWORD alpha = static_cast<DWORD>(std::abs(item % 34 - 17) * 15);
    return static_cast<DWORD>(colour.colorref()) | alpha << 24;
}

void MillionList::OnGetDispInfo(NMHDR* header, LRESULT* result)
{
    LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
    if ((item.mask & LVIF_TEXT) && item.cchTextMax > 0)
        ::lstrcpynW(item.pszText, textOf(item.iItem, item.iSubItem, rowColour(item.iItem)).c_str(),
                    item.cchTextMax);
    *result = 0;
}

/// Finds what is written in a row's first two columns, whatever the case.
void MillionList::OnFindItem(NMHDR* header, LRESULT* result)
{
    const auto& wanted = *reinterpret_cast<NMLVFINDITEM*>(header);
    const std::optional<std::string> part = searched(wanted.lvfi.psz);
    const int start = std::max(wanted.iStart, 0); // Wine hands on the -1 that asks for the beginning
    *result = -1;
    for (int i = 0; part && i < kRows && *result == -1; ++i) {
        const int row = (start + i) % kRows;
        if (hasPart(row, *part))
            *result = row;
    }
}
