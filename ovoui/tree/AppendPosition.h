/// Not exported: how to tell the tree view that an item goes behind the last of its siblings.
#pragma once

#include <windows.h>
#include <commctrl.h>

namespace ovoui::tree
{

/// What to insert behind, when the last sibling is known: whichever the platform finds faster, that item or
/// TVI_LAST.
///
/// Windows walks over all siblings for TVI_LAST, and takes an item as it is. Wine keeps the last sibling at
/// hand, but looks an item up among all items of the tree.
HTREEITEM behindLast(HTREEITEM last);

} // namespace ovoui::tree
