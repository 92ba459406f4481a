// Internal: where the panes of a status bar end. Plain values, no windows.
#pragma once

#include <span>
#include <vector>

namespace afxdetail
{

struct PaneExtent
{
    int width = 0; ///< of the text, in pixels
    bool stretched = false;
};

/// The right edge of each pane in a bar of `room` pixels. Every pane has `margin` pixels beside its text. The
/// first stretched pane takes what the others leave, at least its own width.
std::vector<int> paneEnds(std::span<const PaneExtent> panes, int room, int margin);

} // namespace afxdetail
