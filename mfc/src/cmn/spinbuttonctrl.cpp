#include <afxwin.h>
#include <afxcmn.h>

#include <detail/handleof.h>
#include <detail/send.h>

using afxdetail::handleOf;
using afxdetail::send;

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

CSpinButtonCtrl::CSpinButtonCtrl() = default;

BOOL CSpinButtonCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(UPDOWN_CLASSW, nullptr, style, rect, parent, id);
}

BOOL CSpinButtonCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, UPDOWN_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CSpinButtonCtrl::SetAccel(int count, UDACCEL* accelerations)
{
    return send<BOOL>(*this, UDM_SETACCEL, count, accelerations);
}

UINT CSpinButtonCtrl::GetAccel(int room, UDACCEL* accelerations) const
{
    return send<UINT>(*this, UDM_GETACCEL, room, accelerations);
}

int CSpinButtonCtrl::SetBase(int base)
{
    return send<int>(*this, UDM_SETBASE, base);
}

UINT CSpinButtonCtrl::GetBase() const
{
    return send<UINT>(*this, UDM_GETBASE);
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* buddy)
{
    return CWnd::FromHandle(send<HWND>(*this, UDM_SETBUDDY, handleOf(buddy)));
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    return CWnd::FromHandle(send<HWND>(*this, UDM_GETBUDDY));
}

int CSpinButtonCtrl::GetPos() const
{
    return send<int>(*this, UDM_GETPOS);
}

int CSpinButtonCtrl::SetPos(int position)
{
    return static_cast<short>(LOWORD(send<DWORD>(*this, UDM_SETPOS, 0, afxdetail::pack(position, 0))));
}

int CSpinButtonCtrl::GetPos32(LPBOOL error) const
{
    return send<int>(*this, UDM_GETPOS32, 0, error);
}

int CSpinButtonCtrl::SetPos32(int position)
{
    return send<int>(*this, UDM_SETPOS32, 0, position);
}

void CSpinButtonCtrl::SetRange(short lower, short upper)
{
    send(*this, UDM_SETRANGE, 0, afxdetail::pack(upper, lower));
}

void CSpinButtonCtrl::SetRange32(int lower, int upper)
{
    send(*this, UDM_SETRANGE32, lower, upper);
}

DWORD CSpinButtonCtrl::GetRange() const
{
    return send<DWORD>(*this, UDM_GETRANGE);
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const
{
    const DWORD range = GetRange();
    lower = static_cast<short>(HIWORD(range));
    upper = static_cast<short>(LOWORD(range));
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const
{
    send(*this, UDM_GETRANGE32, &lower, &upper);
}
