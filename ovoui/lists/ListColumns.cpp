#include <ovoui/lists/ListColumns.h>

#include <ovoui/lists/ListCtrlEx.h>
#include <ovoui/lists/ReportColumns.h>

#include <algorithm>

bool addColumns(COVOListCtrlEx& list, const std::vector<ListColumn>& columns)
{
    constexpr int kMask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
    for (const ListColumn& column : columns) {
        const int index = list.AddColumn(column.heading, ovoui::lists::columnCount(list), -1,
                                         column.showsColour, kMask, column.format);
        if (index < 0)
            return false;
        const int margins = list.GetColumnWidth(index) - list.GetStringWidth(column.heading.c_str());
        const int sample = list.GetStringWidth(column.sample.c_str()) + margins;
        list.SetColumnWidth(index, std::max(sample, list.GetColumnWidth(index)));
    }
    CRect client;
    list.GetClientRect(&client);
    list.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
    return true;
}
