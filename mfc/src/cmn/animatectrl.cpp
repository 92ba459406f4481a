#include <afxwin.h>
#include <afxcmn.h>

#include <detail/send.h>

using afxdetail::send;

IMPLEMENT_DYNAMIC(CAnimateCtrl, CWnd)

CAnimateCtrl::CAnimateCtrl() = default;

BOOL CAnimateCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(ANIMATE_CLASSW, nullptr, style, rect, parent, id);
}

BOOL CAnimateCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, ANIMATE_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CAnimateCtrl::Open(LPCTSTR fileOrResource)
{
    return send<BOOL>(*this, ACM_OPENW, 0, fileOrResource);
}

BOOL CAnimateCtrl::Open(UINT resourceId)
{
    const LPCTSTR name = MAKEINTRESOURCEW(resourceId);
    return send<BOOL>(*this, ACM_OPENW, AfxFindResourceHandle(name, L"AVI"), name);
}

BOOL CAnimateCtrl::Play(UINT from, UINT to, UINT repetitions)
{
    return send<BOOL>(*this, ACM_PLAY, repetitions, MAKELPARAM(from, to));
}

BOOL CAnimateCtrl::Seek(UINT frame)
{
    return Play(frame, frame, 1);
}

BOOL CAnimateCtrl::Stop()
{
    return send<BOOL>(*this, ACM_STOP);
}

BOOL CAnimateCtrl::Close()
{
    return Open(static_cast<LPCTSTR>(nullptr));
}
