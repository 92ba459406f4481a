#include <afxwin.h>
#include <afxcmn.h>

#include <detail/send.h>

using afxdetail::send;

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

CProgressCtrl::CProgressCtrl() = default;

BOOL CProgressCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(PROGRESS_CLASSW, nullptr, style, rect, parent, id);
}

BOOL CProgressCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, PROGRESS_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

void CProgressCtrl::SetRange(short lower, short upper)
{
    send(*this, PBM_SETRANGE, 0, afxdetail::pack(lower, upper));
}

void CProgressCtrl::SetRange32(int lower, int upper)
{
    send(*this, PBM_SETRANGE32, lower, upper);
}

void CProgressCtrl::GetRange(int& lower, int& upper)
{
    PBRANGE range{};
    send(*this, PBM_GETRANGE, TRUE, &range);
    lower = range.iLow;
    upper = range.iHigh;
}

int CProgressCtrl::GetPos()
{
    return send<int>(*this, PBM_GETPOS);
}

int CProgressCtrl::SetPos(int position)
{
    return send<int>(*this, PBM_SETPOS, position);
}

int CProgressCtrl::OffsetPos(int distance)
{
    return send<int>(*this, PBM_DELTAPOS, distance);
}

int CProgressCtrl::GetStep() const
{
    return send<int>(*this, PBM_GETSTEP);
}

int CProgressCtrl::SetStep(int step)
{
    return send<int>(*this, PBM_SETSTEP, step);
}

int CProgressCtrl::StepIt()
{
    return send<int>(*this, PBM_STEPIT);
}

BOOL CProgressCtrl::SetMarquee(BOOL marquee, int interval)
{
    return send<BOOL>(*this, PBM_SETMARQUEE, marquee, interval);
}

int CProgressCtrl::GetState() const
{
    return send<int>(*this, PBM_GETSTATE);
}

int CProgressCtrl::SetState(int state)
{
    return send<int>(*this, PBM_SETSTATE, state);
}

COLORREF CProgressCtrl::GetBarColor() const
{
    return send<COLORREF>(*this, PBM_GETBARCOLOR);
}

COLORREF CProgressCtrl::SetBarColor(COLORREF colour)
{
    return send<COLORREF>(*this, PBM_SETBARCOLOR, 0, colour);
}

COLORREF CProgressCtrl::GetBkColor() const
{
    return send<COLORREF>(*this, PBM_GETBKCOLOR);
}

COLORREF CProgressCtrl::SetBkColor(COLORREF colour)
{
    return send<COLORREF>(*this, PBM_SETBKCOLOR, 0, colour);
}
