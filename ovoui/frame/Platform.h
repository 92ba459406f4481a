/// Not exported to hosts: where one platform wants to be treated differently from another. What the library
/// does for the sake of Wine alone stands behind these switches; with all of them off it does what is right
/// on Windows. There is none where one way serves both. docs/wine.md says what of that is documented. Tests
/// set the switches to try both sides.
#pragma once

#include <ovoui/export.h>

namespace ovoui
{

/// What the platform does. All of it holds for Wine.
struct Platform
{
    // The tree view

    /// Changes in a closed item put the rows of all others out of order, until the tree view lays them out
    /// anew; and items that are not displayed may become the first row.
    bool losesRows;

    /// Deleting the children of an item that is being closed crashes when the first row shown is among them.
    bool losesFirstRow;

    /// TVM_SETINSERTMARK without an item leaves the mark where it is.
    bool keepsInsertMark;

    // Toolbars

    /// WM_SETREDRAW that turns drawing on again invalidates all of a toolbar.
    bool invalidatesWholeBar;

    // The list view

    /// A virtual list that selects or deselects a range of rows asks the display for each of them.
    bool asksForEachRow;

    /// A column of a virtual list that is to be as wide as its texts is measured by the texts of all rows.
    bool measuresEachRow;

    // Edit controls

    /// EM_SETRECT takes the control's margins and edge off the rectangle.
    bool insetsFormatRect;

    // Resources

    /// The language of a thread's resources is that of its locale, not its preferred language.
    bool takesLanguageFromLocale;
};

/// The platform that the process runs on, until a test changes it.
OVOUI_API Platform& platform();

} // namespace ovoui
