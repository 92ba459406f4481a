#include <ovoui/lists/ListCopier.h>

#include <ovoui/frame/ClipboardText.h>
#include <ovoui/frame/HeldKeysNow.h>
#include <ovoui/frame/Lifeline.h>
#include <ovoui/frame/core/BoxKeys.h>
#include <ovoui/lists/ReportColumns.h>
#include <ovoui/lists/core/TableText.h>

#include <string>
#include <utility>

using namespace ovoui::lists;
using namespace ovoui::frame;

namespace
{

template <class TextOf>
TableRow rowOf(const std::vector<int>& columns, TextOf textOf)
{
    TableRow row;
    for (const int column : columns)
        row.push_back(textOf(column));
    return row;
}

/// The host may be asked for texts, and may destroy the list then: the rest is left out.
std::vector<TableRow> selectedRows(CListCtrl& list, const std::vector<int>& columns)
{
    const Lifeline::Watch watch(list);
    std::vector<TableRow> rows;
    for (int item = -1; watch.alive() && (item = list.GetNextItem(item, LVNI_SELECTED)) != -1;)
        rows.push_back(rowOf(columns, [&](int column) -> std::wstring {
            return watch.alive() ? list.GetItemText(item, column).GetString() : L"";
        }));
    return rows;
}

std::string utf8(const std::wstring& text)
{
    const int size = static_cast<int>(text.size());
    std::string result(static_cast<std::size_t>(::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr,
                                                                      0, nullptr, nullptr)),
                       '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, result.data(), static_cast<int>(result.size()),
                          nullptr, nullptr);
    return result;
}

bool asksForCopy(WPARAM virtualKey)
{
    return ovoui::frame::isCopyKey(static_cast<unsigned>(virtualKey), ovoui::frame::heldKeysNow());
}

} // namespace

bool copySelectedRows(CListCtrl& list, bool headings)
{
    const std::vector<int> columns = columnsAsShown(list);
    const Lifeline::Watch watch(list);
    std::vector<TableRow> rows = selectedRows(list, columns);
    if (rows.empty() || !watch.alive())
        return false;
    if (headings)
        rows.insert(rows.begin(), rowOf(columns, [&](int column) { return headingOf(list, column); }));
    const std::wstring text = tabSeparated(rows);
    const std::string html = htmlForClipboard(utf8(htmlTable(rows, headings)));
    ClipboardFormat contents[] = {
        {CF_UNICODETEXT, globalText(text)},
        {::RegisterClipboardFormatW(L"HTML Format"), globalCopy(html.c_str(), html.size() + 1)}};
    return setClipboard(list, contents);
}

COVOListCopier::COVOListCopier() = default;

COVOListCopier::~COVOListCopier()
{
    Detach();
}

void COVOListCopier::Attach(CListCtrl& list, bool headings)
{
    hear(list);
    m_list = &list;
    m_headings = headings;
}

void COVOListCopier::Detach()
{
    stopHearing();
}

void COVOListCopier::left()
{
    m_list = nullptr;
    m_asked = false;
}

/// The keys held are those of now: the parent, who hears of the key next, may wait for others.
bool COVOListCopier::takes(UINT message, WPARAM wParam, LPARAM, LRESULT&)
{
    if (message == WM_KEYDOWN && asksForCopy(wParam))
        m_asked = true;
    return false;
}

void COVOListCopier::heard(UINT message, WPARAM, LPARAM)
{
    if (message == WM_KEYDOWN && std::exchange(m_asked, false))
        copySelectedRows(*m_list, m_headings);
}
