/// What a tree shows, as one text: what is open and selected, and where it is scrolled to. Plain values, no
/// windows.
///
/// One line for each item, its kind in front of its path: "open /Project", "selected /Project/Sources",
/// "caret /Project/Sources", "anchor ...", "first /Project". In a path a line feed is written with a
/// backslash in front.
#pragma once

#include <ovoui/tree/core/TreePath.h>

#include <string>
#include <string_view>
#include <vector>

namespace ovoui::tree
{

using TreePath = std::vector<PathStep>;

struct SavedView
{
    std::vector<TreePath> open; ///< those around others before these
    std::vector<TreePath> selected;
    TreePath caret; ///< empty for none, as the others
    TreePath anchor;
    TreePath first; ///< at the top of the window

    friend bool operator==(const SavedView&, const SavedView&) = default;
};

std::wstring formatView(const SavedView& view);

/// Reads what formatView writes. Lines that it does not know are left out, as a later version may write them.
SavedView parseView(std::wstring_view text);

} // namespace ovoui::tree
