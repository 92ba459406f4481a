/// Not exported: lists whose rows are too many to be gone through one by one.
#pragma once

#include <ovoui/lists/ListCtrlEx.h>

namespace ovoui::lists
{

/// They take a tenth of a second where the host or the display is asked for each.
constexpr int kManyRows = 1000;

/// Whether a list is virtual and has many rows.
inline bool hasManyRows(const COVOListCtrlEx& list)
{
    return (list.GetStyle() & LVS_OWNERDATA) && list.GetItemCount() > kManyRows;
}

} // namespace ovoui::lists
