/// Not exported: many changes, one repaint.
#pragma once

#include <windows.h>

namespace ovoui::tree
{

/// While it lives, the window does not draw; then it is drawn as a whole. Nothing happens for a window that
/// is hidden or already held.
///
/// The tree view's own WM_SETREDRAW leaves it working on its scroll bars at every change; that of the default
/// window procedure, which makes the window invisible for the time being, does not.
class RedrawHold
{
public:
    explicit RedrawHold(HWND window);
    ~RedrawHold();
    RedrawHold(const RedrawHold&) = delete;
    RedrawHold& operator=(const RedrawHold&) = delete;

private:
    HWND m_window; ///< null when there is nothing to let go
};

} // namespace ovoui::tree
