/// Not exported: many changes, one repaint.
#pragma once

#include <windows.h>

namespace ovoui::frame
{

/// While it lives, a window does not draw. The window may go meanwhile.
class RedrawHold
{
public:
    enum class By
    {
        /// The default window procedure, for which the window is hidden for the time being. It is drawn as a
        /// whole afterwards. Nothing happens for a window that is hidden or already held. This spares the
        /// work that controls such as the tree view go on with at every change, on their scroll bars above
        /// all.
        System,
        /// The control itself, which must know WM_SETREDRAW. What is drawn afterwards is its choice.
        Control,
        /// The same, but all of the window is drawn afterwards.
        ControlThenAll
    };

    explicit RedrawHold(HWND window, By by = By::System);
    ~RedrawHold();
    RedrawHold(const RedrawHold&) = delete;
    RedrawHold& operator=(const RedrawHold&) = delete;

private:
    void setRedraw(BOOL redraw) const;

    HWND m_window; ///< null when there is nothing to let go
    By m_by;
};

} // namespace ovoui::frame
