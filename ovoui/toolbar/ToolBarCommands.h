/// The buttons of a toolbar as a table of commands.
///
///     setCommands(m_bar, {{ID_FILE_OPEN, 0},
///                         {}, // a separator
///                         {ID_EDIT_COPY, 1, {{ID_EDIT_COPY, 1}, {ID_COPY_ALL, 2}}}},
///                 {{IDB_BAR_16, 16}, {IDB_BAR_24, 24}, {IDB_BAR_32, 32}}, 16);
#pragma once

#include <ovoui/export.h>
#include <ovoui/toolbar/VantorToolBar.h>

#include <vector>

/// What an entry of a flyout does.
struct ToolBarCommand
{
    UINT command = ID_SEPARATOR; ///< Its number; ID_SEPARATOR makes a separator.
    int image = 0;               ///< The index of its image in the strips.
};

/// What a button of the bar does.
struct ToolBarEntry
{
    UINT command = ID_SEPARATOR;             ///< Its number; ID_SEPARATOR makes a separator.
    int image = 0;                           ///< The index of its image in the strips.
    std::vector<ToolBarCommand> flyout = {}; ///< What its flyout offers; without entries there is none.
};

/// Gives `bar`, which has its window, the buttons `entries` in place of those that it has, with images from
/// `strips` that are `imageSize` pixels large at 96 dots per inch (CVantorToolBar::UseStrips). The host has
/// started GDI+. False when the bar has refused the buttons.
OVOUI_API bool setCommands(CVantorToolBar& bar, const std::vector<ToolBarEntry>& entries,
                           const std::vector<CVantorToolBar::Strip>& strips, int imageSize);
