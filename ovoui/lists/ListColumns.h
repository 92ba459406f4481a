/// The columns of a report list as a table.
///
///     addColumns(m_list, {{.heading = L"Name", .sample = L"A name of the usual length"},
///                         {.heading = L"Size", .sample = L"9,999 KB", .format = LVCFMT_RIGHT}});
#pragma once

#include <ovoui/export.h>

#include <afxcmn.h>

#include <string>
#include <vector>

class COVOListCtrlEx;

/// One column.
struct ListColumn
{
    std::wstring heading;     ///< The text at its top.
    std::wstring sample;      ///< The column is as wide as this or its heading, in the list's font.
    int format = LVCFMT_LEFT; ///< LVCFMT_LEFT, _RIGHT or _CENTER; that of the first one is always left.
    bool showsColour = false; ///< Its cells show the row's colour.
};

/// Adds the `columns` behind those that `list` has, and tells a list of a dialog, which has not been sized
/// yet, how wide it is. False when the list has refused a column; those before it stay.
OVOUI_API bool addColumns(COVOListCtrlEx& list, const std::vector<ListColumn>& columns);
