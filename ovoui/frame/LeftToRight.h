/// Not exported. Drawing that looks the same in a window laid out from right to left.
#pragma once

#include <afxwin.h>

namespace ovoui::frame
{

/// While it lives, a DC of such a window is laid out from left to right. A DC that is so anyhow stays as it
/// is.
class LeftToRight
{
public:
    explicit LeftToRight(CDC& dc)
        : m_dc(dc)
        , m_layout(dc.GetLayout())
    {
        if (!isMirrored())
            return;
        CPoint origin(0, 0);
        dc.LPtoDP(&origin);
        m_firstColumn = origin.x;
        m_state = dc.SaveDC();
        dc.SetLayout(0);
        dc.SetViewportOrg(0, 0);
        dc.SetWindowOrg(0, 0);
    }
    ~LeftToRight()
    {
        if (!isMirrored())
            return;
        m_dc.RestoreDC(m_state);
        m_dc.SetLayout(m_layout);
    }
    LeftToRight(const LeftToRight&) = delete;
    LeftToRight& operator=(const LeftToRight&) = delete;

    /// Where the pixels lie now that had these coordinates before.
    CRect place(const CRect& rect) const
    {
        if (!isMirrored())
            return rect;
        return {m_firstColumn + 1 - rect.right, rect.top, m_firstColumn + 1 - rect.left, rect.bottom};
    }

private:
    bool isMirrored() const { return (m_layout & LAYOUT_RTL) != 0; }

    CDC& m_dc;
    DWORD m_layout;
    int m_firstColumn = 0; ///< where column 0 of the mirrored DC lies
    int m_state = 0;
};

} // namespace ovoui::frame
