#include <afxwin.h>
#include <afxcmn.h>

#include <detail/handleof.h>
#include <detail/send.h>

using afxdetail::handleOf;
using afxdetail::send;

IMPLEMENT_DYNAMIC(CButton, CWnd)

namespace
{

/// Asks for one part of what a split button knows.
BUTTON_SPLITINFO splitInfo(const CButton& button, UINT mask)
{
    BUTTON_SPLITINFO info{};
    info.mask = mask;
    button.GetSplitInfo(&info);
    return info;
}

} // namespace

CButton::CButton() = default;

BOOL CButton::Create(LPCTSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_BUTTONW, caption, style, rect, parent, id);
}

UINT CButton::GetState() const
{
    return send<UINT>(*this, BM_GETSTATE);
}

void CButton::SetState(BOOL highlight)
{
    send(*this, BM_SETSTATE, highlight);
}

int CButton::GetCheck() const
{
    return send<int>(*this, BM_GETCHECK);
}

void CButton::SetCheck(int check)
{
    send(*this, BM_SETCHECK, check);
}

UINT CButton::GetButtonStyle() const
{
    return LOWORD(GetStyle());
}

void CButton::SetButtonStyle(UINT style, BOOL redraw)
{
    send(*this, BM_SETSTYLE, style, redraw);
}

HICON CButton::SetIcon(HICON icon)
{
    return send<HICON>(*this, BM_SETIMAGE, IMAGE_ICON, icon);
}

HICON CButton::GetIcon() const
{
    return send<HICON>(*this, BM_GETIMAGE, IMAGE_ICON);
}

HBITMAP CButton::SetBitmap(HBITMAP bitmap)
{
    return send<HBITMAP>(*this, BM_SETIMAGE, IMAGE_BITMAP, bitmap);
}

HBITMAP CButton::GetBitmap() const
{
    return send<HBITMAP>(*this, BM_GETIMAGE, IMAGE_BITMAP);
}

HCURSOR CButton::SetCursor(HCURSOR cursor)
{
    return send<HCURSOR>(*this, BM_SETIMAGE, IMAGE_CURSOR, cursor);
}

HCURSOR CButton::GetCursor()
{
    return send<HCURSOR>(*this, BM_GETIMAGE, IMAGE_CURSOR);
}

BOOL CButton::GetIdealSize(SIZE* size)
{
    return send<BOOL>(*this, BCM_GETIDEALSIZE, 0, size);
}

BOOL CButton::SetImageList(PBUTTON_IMAGELIST imageList)
{
    return send<BOOL>(*this, BCM_SETIMAGELIST, 0, imageList);
}

BOOL CButton::GetImageList(PBUTTON_IMAGELIST imageList)
{
    return send<BOOL>(*this, BCM_GETIMAGELIST, 0, imageList);
}

BOOL CButton::SetTextMargin(RECT* margin)
{
    return send<BOOL>(*this, BCM_SETTEXTMARGIN, 0, margin);
}

BOOL CButton::GetTextMargin(RECT* margin)
{
    return send<BOOL>(*this, BCM_GETTEXTMARGIN, 0, margin);
}

BOOL CButton::SetElevationRequired(BOOL required)
{
    return send<BOOL>(*this, BCM_SETSHIELD, 0, required);
}

CString CButton::GetNote() const
{
    CString note;
    UINT length = GetNoteLength() + 1;
    GetNote(note.GetBuffer(static_cast<int>(length)), &length);
    note.ReleaseBuffer();
    return note;
}

BOOL CButton::GetNote(LPTSTR note, UINT* length) const
{
    return send<BOOL>(*this, BCM_GETNOTE, length, note);
}

UINT CButton::GetNoteLength() const
{
    return send<UINT>(*this, BCM_GETNOTELENGTH);
}

BOOL CButton::SetNote(LPCTSTR note)
{
    return send<BOOL>(*this, BCM_SETNOTE, 0, note);
}

BOOL CButton::GetSplitInfo(PBUTTON_SPLITINFO info) const
{
    return send<BOOL>(*this, BCM_GETSPLITINFO, 0, info);
}

BOOL CButton::SetSplitInfo(PBUTTON_SPLITINFO info)
{
    return send<BOOL>(*this, BCM_SETSPLITINFO, 0, info);
}

UINT CButton::GetSplitStyle() const
{
    return splitInfo(*this, BCSIF_STYLE).uSplitStyle;
}

BOOL CButton::SetSplitStyle(UINT style)
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_STYLE;
    info.uSplitStyle = style;
    return SetSplitInfo(&info);
}

BOOL CButton::GetSplitSize(LPSIZE size) const
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_SIZE;
    if (!GetSplitInfo(&info))
        return FALSE;
    *size = info.size;
    return TRUE;
}

BOOL CButton::SetSplitSize(LPSIZE size)
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_SIZE;
    info.size = *size;
    return SetSplitInfo(&info);
}

CImageList* CButton::GetSplitImageList() const
{
    return CImageList::FromHandle(splitInfo(*this, BCSIF_IMAGE).himlGlyph);
}

BOOL CButton::SetSplitImageList(CImageList* imageList)
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_IMAGE;
    info.himlGlyph = handleOf(imageList);
    return SetSplitInfo(&info);
}

TCHAR CButton::GetSplitGlyph() const
{
    // With this mask the field holds a character instead of an image list.
    return static_cast<TCHAR>(reinterpret_cast<UINT_PTR>(splitInfo(*this, BCSIF_GLYPH).himlGlyph));
}

BOOL CButton::SetSplitGlyph(TCHAR glyph)
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_GLYPH;
    info.himlGlyph = reinterpret_cast<HIMAGELIST>(static_cast<UINT_PTR>(glyph));
    return SetSplitInfo(&info);
}

BOOL CButton::SetDropDownState(BOOL dropDown)
{
    return send<BOOL>(*this, BCM_SETDROPDOWNSTATE, dropDown);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
