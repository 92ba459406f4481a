/// Not exported: what all rows of a list that are painted together share.
#pragma once

#include <ovoui/lists/ColumnShape.h>

#include <afxcmn.h>

#include <vector>

namespace ovoui::lists
{

struct ListLook
{
    bool focused;                     ///< the list has the keyboard focus
    COLORREF background;              ///< of rows that are not selected
    HIMAGELIST icons;                 ///< null for none
    std::vector<ColumnShape> columns; ///< by number
};

} // namespace ovoui::lists
