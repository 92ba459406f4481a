#include <ovoui/lists/ListLayout.h>

#include <ovoui/frame/ProfileSection.h>
#include <ovoui/frame/core/Scaling.h>
#include <ovoui/lists/ListSorter.h>
#include <ovoui/lists/ReportColumns.h>
#include <ovoui/lists/core/ColumnLayout.h>

using namespace ovoui::lists;
using ovoui::frame::ProfileSection;
using ovoui::frame::scaledFrom;
using ovoui::frame::scaledTo;

namespace
{

int dotsPerInch(CWnd& window)
{
    CClientDC dc(&window);
    return dc.GetDeviceCaps(LOGPIXELSX);
}

std::vector<std::wstring> headingsOf(CListCtrl& list)
{
    std::vector<std::wstring> headings;
    const int count = columnCount(list);
    for (int column = 0; column < count; ++column)
        headings.push_back(headingOf(list, column));
    return headings;
}

void restoreWidths(CListCtrl& list, const ColumnLayout& layout, const std::vector<std::wstring>& headings)
{
    const int dpi = dotsPerInch(list);
    const Lifeline::Watch watch(list);
    for (const auto& [column, width] : widthsOfColumns(layout, headings))
        if (watch.alive())
            list.SetColumnWidth(column, scaledTo(dpi, width));
}

} // namespace

bool saveColumnLayout(CListCtrl& list, LPCWSTR section, LPCWSTR entry, const COVOListSorter* sorter)
{
    ColumnLayout layout;
    const int dpi = dotsPerInch(list);
    for (const int column : columnsAsShown(list))
        layout.shown.push_back({headingOf(list, column), scaledFrom(dpi, list.GetColumnWidth(column))});
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
    const std::optional<int> sorted = sortedColumn(layout, headings);
    if (sorter && sorted)
        sorter->Sort(*sorted, layout.ascending);
    return watch.alive();
}
