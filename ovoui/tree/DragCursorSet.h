/// The pointers of a drag that begins at a node of the tree.
#pragma once

#include <ovoui/export.h>

#include <cstdint>

/// Numbers of cursor resources, as CWinApp::LoadCursor takes them; 0 leaves the pointer to OLE.
///
/// A node chooses a set in `dragStarting`. The tree only hands it on: the host's drop source shows the cursor
/// for the effect in GiveFeedback and answers S_OK, or answers DRAGDROP_S_USEDEFAULTCURSORS where the number
/// is 0. The cursors for several stand for a drag of more than one node; where they are 0, those for one are
/// shown.
struct DragCursorSet
{
    std::uint32_t none = 0;        ///< no drop here
    std::uint32_t copy = 0;        ///< a drop copies
    std::uint32_t move = 0;        ///< a drop moves
    std::uint32_t link = 0;        ///< a drop makes a link
    std::uint32_t copySeveral = 0; ///< a drop copies several nodes
    std::uint32_t moveSeveral = 0; ///< a drop moves several nodes
};

/// The set that a node chooses unless it overrides `dragStarting`: all 0, the pointers that every drag on
/// this system has.
OVOUI_API const DragCursorSet& defaultDragCursors();
