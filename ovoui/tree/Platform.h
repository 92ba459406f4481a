/// Not exported to hosts: where the tree view of one platform wants to be treated differently from that of
/// another. Tests may set the switches to try both sides.
#pragma once

#include <ovoui/export.h>

namespace ovoui::tree
{

struct Platform
{
    /// Behind the last sibling TVI_LAST is faster than that sibling's handle. Windows walks over all siblings
    /// for TVI_LAST and takes a handle as it is; Wine keeps the last sibling at hand, but looks a handle up
    /// among all items of the tree.
    bool appendsFasterByMarker;

    /// Changes in a closed item put the rows of all others out of order, until the tree view lays them out
    /// anew. Wine does this.
    bool losesRows;

    /// Deleting the children of an item that is being closed crashes when the first row shown is among them.
    /// Wine does this.
    bool losesFirstRow;

    /// TVM_SETINSERTMARK without an item leaves the mark where it is. Wine does this.
    bool keepsInsertMark;
};

/// The platform that the process runs on, until a test changes it.
OVOUI_API Platform& platform();

} // namespace ovoui::tree
