/// Not exported: makes a column of a virtual list of many rows as wide as its texts.
#pragma once

#include <windows.h>

#include <optional>

class COVOListCtrlEx;

namespace ovoui::lists
{

/// A column that is to be fitted to its texts. Where the platform would measure the texts of all rows, those
/// of the rows that are shown count: a million of them would take minutes.
class ColumnFit
{
public:
    /// What a message to `list` wants to have fitted: LVM_SETCOLUMNWIDTH with LVSCW_AUTOSIZE or
    /// LVSCW_AUTOSIZE_USEHEADER, or WM_NOTIFY of a double click on the divider of a heading. None when the
    /// platform can do it.
    static std::optional<ColumnFit> wanted(const COVOListCtrlEx& list, UINT message, WPARAM wParam,
                                           LPARAM lParam);

    int column() const { return m_column; }

    /// In pixels. Asks the host for the texts; none when the list has gone or the column meanwhile.
    std::optional<int> width(COVOListCtrlEx& list, int stateImageWidth) const;

private:
    ColumnFit(int column, bool coversHeading)
        : m_column(column)
        , m_coversHeading(coversHeading)
    {
    }

    std::optional<int> widestText(COVOListCtrlEx& list) const;

    int m_column;
    bool m_coversHeading; ///< the heading's text counts, too
};

} // namespace ovoui::lists
