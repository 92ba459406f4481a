// CPaintDC: what WM_PAINT is answered with.
#pragma once

#include <afx/Dc.h>

/// Begins painting when made and ends it when destroyed, which validates the window.
class OVOMFC_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)

public:
    /// `window` has a handle. Throws CResourceException when painting cannot begin.
    explicit CPaintDC(CWnd* window);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps; ///< What BeginPaint told: m_ps.rcPaint is the area to paint.

protected:
    HWND m_hWnd;
};
