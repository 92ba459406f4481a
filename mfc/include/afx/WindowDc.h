// CWindowDC: a window with its frame, to draw on outside WM_NCPAINT.
#pragma once

#include <afx/Dc.h>

/// Fetched by the constructor, given back by the destructor.
class OVOMFC_API CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)

public:
    /// NULL means the whole screen. Throws CResourceException when there is no context to be had.
    explicit CWindowDC(CWnd* window);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};
