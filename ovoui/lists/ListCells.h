/// Not exported: where the cells of a row are drawn.
#pragma once

#include <ovoui/frame/core/Placement.h>
#include <ovoui/lists/ListCtrlEx.h>

#include <optional>
#include <vector>

namespace ovoui::lists
{

/// The item of a row, by an LVIR_ part.
frame::Box itemBox(const COVOListCtrlEx& list, int row, UINT part);

/// A cell; `before` is that of the column before. Under its heading if cells follow their headings, else
/// right of the cell before.
frame::Box cellBox(COVOListCtrlEx& list, int row, int column, int width, const frame::Box& before,
                   bool followsOrder);

/// The cells of a list as the user sees them, in client coordinates. Some platforms ask the host for the text
/// of a label, or the indent of a virtual list's item, to tell where it is: who asks for a place looks
/// afterwards whether the list is still there.
class ListCells
{
public:
    explicit ListCells(COVOListCtrlEx& list)
        : m_list(list)
    {
    }

    /// -1 above and below the rows.
    int rowAt(int y) const;

    /// -1 beside the cells.
    int columnAt(int row, int x) const;

    /// What a cell's text may use, the insets included. None when there is no such cell, or no list any more.
    std::optional<frame::Box> textArea(int row, int column) const;

private:
    std::vector<frame::Box> cellsOf(int row) const;

    COVOListCtrlEx& m_list;
};

} // namespace ovoui::lists
