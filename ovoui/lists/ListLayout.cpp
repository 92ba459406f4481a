#include <ovoui/lists/ListLayout.h>

#include <ovoui/frame/ProfileSection.h>
#include <ovoui/lists/ListSorter.h>
#include <ovoui/lists/ReportColumns.h>
#include <ovoui/lists/core/ColumnLayout.h>

#include <algorithm>

using namespace ovoui::lists;
using ovoui::frame::ProfileSection;

namespace
{

constexpr int kUsualDpi = 96;

int dotsPerInch(CWnd& window)
{
    CClientDC dc(&window);
    return dc.GetDeviceCaps(LOGPIXELSX);
}

std::vector<std::wstring> headingsOf(CListCtrl& list)
{
    std::vector<std::wstring> headings;
    const int count = static_cast<int>(columnsAsShown(list).size());
    for (int column = 0; column < count; ++column)
        headings.push_back(headingOf(list, column));
    return headings;
}

void restoreWidths(CListCtrl& list, const ColumnLayout& layout, const std::vector<std::wstring>& headings)
{
    const int dpi = dotsPerInch(list);
    const Lifeline::Watch watch(list);
    for (const auto& [heading, width] : layout.shown)
        for (std::size_t column = 0; watch.alive() && column < headings.size(); ++column)
            if (headings[column] == heading)
                list.SetColumnWidth(static_cast<int>(column), ::MulDiv(width, dpi, kUsualDpi));
}

} // namespace

bool saveColumnLayout(CListCtrl& list, LPCWSTR section, LPCWSTR entry, const COVOListSorter* sorter)
{
    ColumnLayout layout;
    const int dpi = dotsPerInch(list);
    for (const int column : columnsAsShown(list))
        layout.shown.push_back(
            {headingOf(list, column), ::MulDiv(list.GetColumnWidth(column), kUsualDpi, dpi)});
    if (sorter && sorter->Column() >= 0) {
        layout.sortedBy = headingOf(list, sorter->Column());
        layout.ascending = sorter->Ascending();
    }
    return ProfileSection(section).write(entry, formatLayout(layout));
}

bool restoreColumnLayout(CListCtrl& list, LPCWSTR section, LPCWSTR entry, COVOListSorter* sorter)
{
    const std::wstring text = ProfileSection(section).text(entry);
    if (text.empty())
        return false;
    const ColumnLayout layout = parseLayout(text);
    const std::vector<std::wstring> headings = headingsOf(list);
    std::vector<int> order = orderOfColumns(layout, headings);
    const Lifeline::Watch watch(list);
    list.SetColumnOrderArray(static_cast<int>(order.size()), order.data());
    if (watch.alive())
        restoreWidths(list, layout, headings);
    if (!watch.alive())
        return false;
    list.Invalidate();
    const auto sorted = std::find(headings.begin(), headings.end(), layout.sortedBy);
    if (sorter && !layout.sortedBy.empty() && sorted != headings.end())
        sorter->Sort(static_cast<int>(sorted - headings.begin()), layout.ascending);
    return true;
}
