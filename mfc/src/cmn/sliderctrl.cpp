// CSliderCtrl.
#include <afxwin.h>
#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)

CSliderCtrl::CSliderCtrl() = default;

BOOL CSliderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, TRACKBAR_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CSliderCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, TRACKBAR_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

int CSliderCtrl::GetPos() const
{
    return static_cast<int>(SendMessage(TBM_GETPOS));
}

void CSliderCtrl::SetPos(int position)
{
    SendMessage(TBM_SETPOS, TRUE, position);
}

int CSliderCtrl::GetRangeMin() const
{
    return static_cast<int>(SendMessage(TBM_GETRANGEMIN));
}

void CSliderCtrl::SetRangeMin(int minimum, BOOL redraw)
{
    SendMessage(TBM_SETRANGEMIN, static_cast<WPARAM>(redraw), minimum);
}

int CSliderCtrl::GetRangeMax() const
{
    return static_cast<int>(SendMessage(TBM_GETRANGEMAX));
}

void CSliderCtrl::SetRangeMax(int maximum, BOOL redraw)
{
    SendMessage(TBM_SETRANGEMAX, static_cast<WPARAM>(redraw), maximum);
}

int CSliderCtrl::GetLineSize() const
{
    return static_cast<int>(SendMessage(TBM_GETLINESIZE));
}

int CSliderCtrl::SetLineSize(int size)
{
    return static_cast<int>(SendMessage(TBM_SETLINESIZE, 0, size));
}

int CSliderCtrl::GetPageSize() const
{
    return static_cast<int>(SendMessage(TBM_GETPAGESIZE));
}

int CSliderCtrl::SetPageSize(int size)
{
    return static_cast<int>(SendMessage(TBM_SETPAGESIZE, 0, size));
}

void CSliderCtrl::ClearSel(BOOL redraw)
{
    SendMessage(TBM_CLEARSEL, static_cast<WPARAM>(redraw));
}

UINT CSliderCtrl::GetNumTics() const
{
    return static_cast<UINT>(SendMessage(TBM_GETNUMTICS));
}

DWORD* CSliderCtrl::GetTicArray() const
{
    return reinterpret_cast<DWORD*>(SendMessage(TBM_GETPTICS));
}

int CSliderCtrl::GetTic(int tic) const
{
    return static_cast<int>(SendMessage(TBM_GETTIC, static_cast<WPARAM>(tic)));
}

int CSliderCtrl::GetTicPos(int tic) const
{
    return static_cast<int>(SendMessage(TBM_GETTICPOS, static_cast<WPARAM>(tic)));
}

BOOL CSliderCtrl::SetTic(int position)
{
    return static_cast<BOOL>(SendMessage(TBM_SETTIC, 0, position));
}

void CSliderCtrl::SetTicFreq(int frequency)
{
    SendMessage(TBM_SETTICFREQ, static_cast<WPARAM>(frequency));
}

void CSliderCtrl::ClearTics(BOOL redraw)
{
    SendMessage(TBM_CLEARTICS, static_cast<WPARAM>(redraw));
}

void CSliderCtrl::GetChannelRect(LPRECT rect) const
{
    SendMessage(TBM_GETCHANNELRECT, 0, reinterpret_cast<LPARAM>(rect));
}

void CSliderCtrl::GetThumbRect(LPRECT rect) const
{
    SendMessage(TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(rect));
}

int CSliderCtrl::GetThumbLength() const
{
    return static_cast<int>(SendMessage(TBM_GETTHUMBLENGTH));
}

void CSliderCtrl::SetThumbLength(int length)
{
    SendMessage(TBM_SETTHUMBLENGTH, static_cast<WPARAM>(length));
}

CWnd* CSliderCtrl::GetBuddy(BOOL leftOrAbove) const
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TBM_GETBUDDY, static_cast<WPARAM>(leftOrAbove))));
}

CWnd* CSliderCtrl::SetBuddy(CWnd* buddy, BOOL leftOrAbove)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TBM_SETBUDDY, static_cast<WPARAM>(leftOrAbove), reinterpret_cast<LPARAM>(buddy->GetSafeHwnd()))));
}

CToolTipCtrl* CSliderCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TBM_GETTOOLTIPS))));
}

void CSliderCtrl::SetToolTips(CToolTipCtrl* tip)
{
    SendMessage(TBM_SETTOOLTIPS, reinterpret_cast<WPARAM>(tip->GetSafeHwnd()));
}

int CSliderCtrl::SetTipSide(int side)
{
    return static_cast<int>(SendMessage(TBM_SETTIPSIDE, static_cast<WPARAM>(side)));
}

void CSliderCtrl::GetRange(int& minimum, int& maximum) const
{
    minimum = GetRangeMin();
    maximum = GetRangeMax();
}

void CSliderCtrl::SetRange(int minimum, int maximum, BOOL redraw)
{
    // Two messages: TBM_SETRANGE would cut the bounds to 16 bits.
    SetRangeMin(minimum, FALSE);
    SetRangeMax(maximum, redraw);
}

void CSliderCtrl::GetSelection(int& minimum, int& maximum) const
{
    minimum = static_cast<int>(SendMessage(TBM_GETSELSTART));
    maximum = static_cast<int>(SendMessage(TBM_GETSELEND));
}

void CSliderCtrl::SetSelection(int minimum, int maximum)
{
    SendMessage(TBM_SETSELSTART, FALSE, minimum);
    SendMessage(TBM_SETSELEND, TRUE, maximum);
}
