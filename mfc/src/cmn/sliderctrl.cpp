#include <afxwin.h>
#include <afxcmn.h>

#include <detail/handleof.h>
#include <detail/send.h>

using afxdetail::handleOf;
using afxdetail::send;

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)

CSliderCtrl::CSliderCtrl() = default;

BOOL CSliderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(TRACKBAR_CLASSW, nullptr, style, rect, parent, id);
}

BOOL CSliderCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, TRACKBAR_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

int CSliderCtrl::GetPos() const
{
    return send<int>(*this, TBM_GETPOS);
}

void CSliderCtrl::SetPos(int position)
{
    send(*this, TBM_SETPOS, TRUE, position);
}

void CSliderCtrl::GetRange(int& minimum, int& maximum) const
{
    minimum = GetRangeMin();
    maximum = GetRangeMax();
}

void CSliderCtrl::SetRange(int minimum, int maximum, BOOL redraw)
{
    // TBM_SETRANGE has room for 16 bits each only.
    SetRangeMin(minimum, FALSE);
    SetRangeMax(maximum, redraw);
}

int CSliderCtrl::GetRangeMin() const
{
    return send<int>(*this, TBM_GETRANGEMIN);
}

void CSliderCtrl::SetRangeMin(int minimum, BOOL redraw)
{
    send(*this, TBM_SETRANGEMIN, redraw, minimum);
}

int CSliderCtrl::GetRangeMax() const
{
    return send<int>(*this, TBM_GETRANGEMAX);
}

void CSliderCtrl::SetRangeMax(int maximum, BOOL redraw)
{
    send(*this, TBM_SETRANGEMAX, redraw, maximum);
}

int CSliderCtrl::GetLineSize() const
{
    return send<int>(*this, TBM_GETLINESIZE);
}

int CSliderCtrl::SetLineSize(int size)
{
    return send<int>(*this, TBM_SETLINESIZE, 0, size);
}

int CSliderCtrl::GetPageSize() const
{
    return send<int>(*this, TBM_GETPAGESIZE);
}

int CSliderCtrl::SetPageSize(int size)
{
    return send<int>(*this, TBM_SETPAGESIZE, 0, size);
}

void CSliderCtrl::GetSelection(int& minimum, int& maximum) const
{
    minimum = send<int>(*this, TBM_GETSELSTART);
    maximum = send<int>(*this, TBM_GETSELEND);
}

void CSliderCtrl::SetSelection(int minimum, int maximum)
{
    send(*this, TBM_SETSELSTART, FALSE, minimum);
    send(*this, TBM_SETSELEND, TRUE, maximum);
}

void CSliderCtrl::ClearSel(BOOL redraw)
{
    send(*this, TBM_CLEARSEL, redraw);
}

UINT CSliderCtrl::GetNumTics() const
{
    return send<UINT>(*this, TBM_GETNUMTICS);
}

DWORD* CSliderCtrl::GetTicArray() const
{
    return send<DWORD*>(*this, TBM_GETPTICS);
}

int CSliderCtrl::GetTic(int tic) const
{
    return send<int>(*this, TBM_GETTIC, tic);
}

int CSliderCtrl::GetTicPos(int tic) const
{
    return send<int>(*this, TBM_GETTICPOS, tic);
}

BOOL CSliderCtrl::SetTic(int position)
{
    return send<BOOL>(*this, TBM_SETTIC, 0, position);
}

void CSliderCtrl::SetTicFreq(int frequency)
{
    send(*this, TBM_SETTICFREQ, frequency);
}

void CSliderCtrl::ClearTics(BOOL redraw)
{
    send(*this, TBM_CLEARTICS, redraw);
}

void CSliderCtrl::GetChannelRect(LPRECT rect) const
{
    send(*this, TBM_GETCHANNELRECT, 0, rect);
}

void CSliderCtrl::GetThumbRect(LPRECT rect) const
{
    send(*this, TBM_GETTHUMBRECT, 0, rect);
}

int CSliderCtrl::GetThumbLength() const
{
    return send<int>(*this, TBM_GETTHUMBLENGTH);
}

void CSliderCtrl::SetThumbLength(int length)
{
    send(*this, TBM_SETTHUMBLENGTH, length);
}

CWnd* CSliderCtrl::GetBuddy(BOOL leftOrAbove) const
{
    return CWnd::FromHandle(send<HWND>(*this, TBM_GETBUDDY, leftOrAbove));
}

CWnd* CSliderCtrl::SetBuddy(CWnd* buddy, BOOL leftOrAbove)
{
    return CWnd::FromHandle(send<HWND>(*this, TBM_SETBUDDY, leftOrAbove, handleOf(buddy)));
}

CToolTipCtrl* CSliderCtrl::GetToolTips() const
{
    return afxdetail::controlFrom<CToolTipCtrl>(send<HWND>(*this, TBM_GETTOOLTIPS));
}

void CSliderCtrl::SetToolTips(CToolTipCtrl* tip)
{
    send(*this, TBM_SETTOOLTIPS, handleOf(tip));
}

int CSliderCtrl::SetTipSide(int side)
{
    return send<int>(*this, TBM_SETTIPSIDE, side);
}
