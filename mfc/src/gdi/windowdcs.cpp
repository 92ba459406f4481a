// Device contexts of windows.
#include <afxwin.h>

#include <detail/pending.h>

IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CClientDC::CClientDC(CWnd* window)
    : m_hWnd(window->GetSafeHwnd())
{
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* window)
    : m_hWnd(window->GetSafeHwnd())
{
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd* window)
    : m_ps{}
    , m_hWnd(window->GetSafeHwnd())
{
    if (!Attach(afxdetail::callOut([this] { return ::BeginPaint(m_hWnd, &m_ps); })))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
