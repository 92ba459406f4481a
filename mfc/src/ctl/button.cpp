// CButton.
#include <afxwin.h>
#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CButton, CWnd)

CButton::CButton() = default;

BOOL CButton::Create(LPCTSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, L"BUTTON", caption, style | WS_CHILD, rect, parent, id);
}

UINT CButton::GetState() const
{
    return static_cast<UINT>(SendMessage(BM_GETSTATE));
}

void CButton::SetState(BOOL highlight)
{
    SendMessage(BM_SETSTATE, static_cast<WPARAM>(highlight));
}

int CButton::GetCheck() const
{
    return static_cast<int>(SendMessage(BM_GETCHECK));
}

void CButton::SetCheck(int check)
{
    SendMessage(BM_SETCHECK, static_cast<WPARAM>(check));
}

void CButton::SetButtonStyle(UINT style, BOOL redraw)
{
    SendMessage(BM_SETSTYLE, style, redraw);
}

HICON CButton::SetIcon(HICON icon)
{
    return reinterpret_cast<HICON>(SendMessage(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon)));
}

HICON CButton::GetIcon() const
{
    return reinterpret_cast<HICON>(SendMessage(BM_GETIMAGE, IMAGE_ICON));
}

HBITMAP CButton::SetBitmap(HBITMAP bitmap)
{
    return reinterpret_cast<HBITMAP>(SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
}

HBITMAP CButton::GetBitmap() const
{
    return reinterpret_cast<HBITMAP>(SendMessage(BM_GETIMAGE, IMAGE_BITMAP));
}

HCURSOR CButton::SetCursor(HCURSOR cursor)
{
    return reinterpret_cast<HCURSOR>(SendMessage(BM_SETIMAGE, IMAGE_CURSOR, reinterpret_cast<LPARAM>(cursor)));
}

HCURSOR CButton::GetCursor()
{
    return reinterpret_cast<HCURSOR>(SendMessage(BM_GETIMAGE, IMAGE_CURSOR));
}

BOOL CButton::GetIdealSize(SIZE* size)
{
    return static_cast<BOOL>(SendMessage(BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(size)));
}

BOOL CButton::SetImageList(PBUTTON_IMAGELIST imageList)
{
    return static_cast<BOOL>(SendMessage(BCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(imageList)));
}

BOOL CButton::GetImageList(PBUTTON_IMAGELIST imageList)
{
    return static_cast<BOOL>(SendMessage(BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(imageList)));
}

BOOL CButton::SetTextMargin(RECT* margin)
{
    return static_cast<BOOL>(SendMessage(BCM_SETTEXTMARGIN, 0, reinterpret_cast<LPARAM>(margin)));
}

BOOL CButton::GetTextMargin(RECT* margin)
{
    return static_cast<BOOL>(SendMessage(BCM_GETTEXTMARGIN, 0, reinterpret_cast<LPARAM>(margin)));
}

BOOL CButton::SetElevationRequired(BOOL required)
{
    return static_cast<BOOL>(SendMessage(BCM_SETSHIELD, 0, required));
}

BOOL CButton::GetNote(LPTSTR note, UINT* length) const
{
    return static_cast<BOOL>(SendMessage(BCM_GETNOTE, reinterpret_cast<WPARAM>(length), reinterpret_cast<LPARAM>(note)));
}

UINT CButton::GetNoteLength() const
{
    return static_cast<UINT>(SendMessage(BCM_GETNOTELENGTH));
}

BOOL CButton::SetNote(LPCTSTR note)
{
    return static_cast<BOOL>(SendMessage(BCM_SETNOTE, 0, reinterpret_cast<LPARAM>(note)));
}

BOOL CButton::GetSplitInfo(PBUTTON_SPLITINFO info) const
{
    return static_cast<BOOL>(SendMessage(BCM_GETSPLITINFO, 0, reinterpret_cast<LPARAM>(info)));
}

BOOL CButton::SetSplitInfo(PBUTTON_SPLITINFO info)
{
    return static_cast<BOOL>(SendMessage(BCM_SETSPLITINFO, 0, reinterpret_cast<LPARAM>(info)));
}

BOOL CButton::SetDropDownState(BOOL dropDown)
{
    return static_cast<BOOL>(SendMessage(BCM_SETDROPDOWNSTATE, static_cast<WPARAM>(dropDown)));
}

UINT CButton::GetButtonStyle() const
{
    return GetStyle() & 0xFF;
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CButton::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn control overrides this
}
