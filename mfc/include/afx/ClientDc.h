// CClientDC: the client area of a window, to draw on outside WM_PAINT.
#pragma once

#include <afx/Dc.h>

/// Fetched by the constructor, given back by the destructor.
class OVOMFC_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    /// NULL means the whole screen. Throws CResourceException when there is no context to be had.
    explicit CClientDC(CWnd* window);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};
