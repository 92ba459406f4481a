/// Sorts an extended list when its headings are clicked.
///
///     COVOListSorter sorter;                       // a member beside the list
///     sorter.Attach(m_list);
///     sorter.SetKind(1, COVOListSorter::Kind::Number);
///     sorter.Sort(0, true);
#pragma once

#include <ovoui/export.h>
#include <ovoui/lists/ListCtrlEx.h>
#include <ovoui/lists/ListHelper.h>

#include <functional>
#include <map>
#include <vector>

/// A click on a heading sorts by its column, a second one the other way round; an arrow in the heading shows
/// it. Rows that are equal keep their order. Selection, focus, item data and row colours go with their rows.
///
/// The parent still gets LVN_COLUMNCLICK, before the list is sorted. A list with LVS_OWNERDATA is never
/// sorted.
class OVOUI_API COVOListSorter : private ovoui::lists::ListHelper
{
public:
    /// What a column is compared as.
    enum class Kind
    {
        Text,   ///< the order of the user's locale
        Number, ///< the number that the text begins with, in the user's locale; other texts come first
        Date,   ///< a date or time in the user's locale; other texts come first
        Custom  ///< the host's comparison
    };

    /// Negative when the first row comes first, 0 when both are equal. Rows are given by their present
    /// indices. It may throw, or empty or destroy the list: then nothing is sorted.
    using Compare = std::function<int(COVOListCtrlEx& list, int row, int other)>;

    COVOListSorter();
    ~COVOListSorter() override;

    /// The list must have its window. It may be destroyed before this object. Replaces the list of before.
    void Attach(COVOListCtrlEx& list);
    /// Headings sort no more; the list stays as it is. Nothing happens without a list.
    void Detach();

    /// How a column is sorted; Text at first.
    void SetKind(int column, Kind kind);
    /// Makes a column's kind Custom.
    void SetCompare(int column, Compare compare);

    /// Sorts by a `column`, the least row first if `ascending`. False when there is no list or no such
    /// column, when the list has LVS_OWNERDATA, and when rows came or went, or the list was left, while the
    /// host was asked or told.
    bool Sort(int column, bool ascending);

    int Column() const { return m_column; } ///< -1 before the first sorting
    /// Whether the least row came first in the last sorting.
    bool Ascending() const { return m_ascending; }

private:
    void heard(UINT message, WPARAM wParam, LPARAM lParam) override;
    void left() override;
    void headingClicked(int column);
    std::vector<int> orderOf(int column, bool ascending) const;
    std::vector<int> orderByHost(int column, bool ascending) const;
    Kind kindOf(int column) const;
    void showArrow();

    COVOListCtrlEx* m_list = nullptr;
    std::map<int, Kind> m_kinds;
    std::map<int, Compare> m_compares;
    int m_column = -1;
    bool m_ascending = true;
};
