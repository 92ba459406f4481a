/// Order, widths and sorting of a list's columns, as a text for the profile.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovoui::lists
{

struct ColumnWidth
{
    std::wstring heading;
    int width = 0; ///< pixels at 96 dots per inch

    friend bool operator==(const ColumnWidth&, const ColumnWidth&) = default;
};

/// Columns are known by their headings.
struct ColumnLayout
{
    std::vector<ColumnWidth> shown; ///< from left to right
    std::wstring sortedBy;          ///< empty for unsorted
    bool ascending = true;

    friend bool operator==(const ColumnLayout&, const ColumnLayout&) = default;
};

/// "+Name/Name=110/Colour=80": a sign and a heading for the sorting, then the columns. Slashes, equals signs
/// and percent signs within headings become %2F, %3D and %25.
std::wstring formatLayout(const ColumnLayout& layout);

/// Parts that cannot be read are left out, as are widths that are negative or beyond 10000.
ColumnLayout parseLayout(std::wstring_view text);

/// The present columns, given by their headings, in the order of a layout. Those that the layout does not
/// know keep their order behind the others; headings that are not present are left out.
std::vector<int> orderOfColumns(const ColumnLayout& layout, const std::vector<std::wstring>& headings);

/// A present column that gets a width.
struct WidthOfColumn
{
    int column = 0;
    int width = 0; ///< pixels at 96 dots per inch

    friend bool operator==(const WidthOfColumn&, const WidthOfColumn&) = default;
};

/// What a layout does to the widths of the present columns, from its first column on. A column of which it
/// has several widths gets the last one in the end.
std::vector<WidthOfColumn> widthsOfColumns(const ColumnLayout& layout,
                                           const std::vector<std::wstring>& headings);

/// The first of the present columns with the heading that a layout is sorted by; none when it is unsorted or
/// there is no such column.
std::optional<int> sortedColumn(const ColumnLayout& layout, const std::vector<std::wstring>& headings);

} // namespace ovoui::lists
