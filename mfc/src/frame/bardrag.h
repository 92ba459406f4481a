// Internal: a bar that its user drags, from the press to the release.
#pragma once

#include "core/dragrules.h"
#include "dragoutline.h"

#include <afx/ControlBar.h>

namespace afxdetail
{

class BarDrag
{
public:
    /// `held` is the window that was taken hold of: the bar, or the one that it floats in. `grab` on the
    /// screen.
    BarDrag(CControlBar& bar, CWnd& held, CPoint grab);
    BarDrag(const BarDrag&) = delete;
    BarDrag& operator=(const BarDrag&) = delete;

    /// Follows the mouse until the button is released, the bar is dropped, or its user gives up with Escape.
    void run();

    /// Makes a docked bar float where it floated last, and docks a floating one where it was docked last.
    static void toggle(CControlBar& bar);

private:
    enum class End
    {
        Dropped,
        GivenUp
    };

    void measure();
    void collectSides();
    End followMouse();
    void follow();
    DragTarget target();
    void drop(const DragTarget& where);
    bool isAlive() const;

    static void makeFloat(CControlBar& bar);
    static void dockAgain(CControlBar& bar);

    CControlBar& m_bar;
    CFrameWnd& m_frame;
    const HWND m_barWnd;
    const HWND m_held;
    Place m_pointer;
    DraggedBar m_dragged;
    std::vector<DockStrip> m_strips;
    std::vector<CDockBar*> m_sides; ///< of the strips
    bool m_moved = false;
    DragOutline m_outline;
};

} // namespace afxdetail
