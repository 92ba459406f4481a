// Internal: the frame that follows the pointer while a bar is dragged.
#pragma once

#include <afxwin.h>

namespace afxdetail
{

/// A hollow window in front of all others, which the mouse does not notice. It goes with the object.
class DragOutline
{
public:
    DragOutline() = default;
    ~DragOutline();
    DragOutline(const DragOutline&) = delete;
    DragOutline& operator=(const DragOutline&) = delete;

    /// On the screen, in pixels.
    void show(const CRect& rect, int thickness);

private:
    HWND m_wnd = nullptr;
    CSize m_size{-1, -1};
    int m_thickness = 0;
};

} // namespace afxdetail
