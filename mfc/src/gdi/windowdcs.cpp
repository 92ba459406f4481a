// Device contexts of windows: CClientDC, CWindowDC and CPaintDC.
#include <afxwin.h>

#include <detail/handleof.h>

using afxdetail::handleOf;

IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CClientDC::CClientDC(CWnd* window)
    : m_hWnd(handleOf(window))
{
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* window)
    : m_hWnd(handleOf(window))
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
    , m_hWnd(handleOf(window))
{
    // What erasing the background raises stays pending: painting has begun, and has to end.
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}
