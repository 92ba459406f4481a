/// Keeps the layout of a list's columns in the application's profile.
///
///     restoreColumnLayout(m_list, L"Lists", L"Colours", &m_sorter);   // when the columns are there
///     saveColumnLayout(m_list, L"Lists", L"Colours", &m_sorter);      // before the window goes
#pragma once

#include <ovoui/export.h>

#include <afxcmn.h>

class COVOListSorter;

/// Writes order and widths of the columns, and with a `sorter` how the list is sorted, into the application's
/// profile, in `section` under `entry`. Columns are known by their headings, widths are written for 96 dots
/// per inch. False when the profile cannot be written.
OVOUI_API bool saveColumnLayout(CListCtrl& list, LPCWSTR section, LPCWSTR entry,
                                const COVOListSorter* sorter);

/// Brings back what was saved in `section` under `entry`, and with a `sorter` sorts the list. Columns that
/// were not saved keep their widths and come last; saved ones that the list does not have are left out. False
/// when nothing was saved, or when the host destroyed the list: the parent hears of the changes, and the
/// sorter may ask for comparisons. The sorter must live meanwhile.
OVOUI_API bool restoreColumnLayout(CListCtrl& list, LPCWSTR section, LPCWSTR entry, COVOListSorter* sorter);
