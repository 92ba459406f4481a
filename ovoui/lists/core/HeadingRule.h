/// What a click on a heading leads to. Plain values, no windows.
#pragma once

namespace ovoui::lists
{

/// Whether a click on the heading of `column` sorts ascending: it does, except at the second click.
constexpr bool sortsAscending(int column, int sortedColumn, bool ascending)
{
    return column != sortedColumn || !ascending;
}

} // namespace ovoui::lists
