// CStatic.
#include <afxwin.h>
#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CStatic, CWnd)

CStatic::CStatic() = default;

BOOL CStatic::Create(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, L"STATIC", text, style | WS_CHILD, rect, parent, id);
}

HBITMAP CStatic::SetBitmap(HBITMAP bitmap)
{
    return reinterpret_cast<HBITMAP>(SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
}

HBITMAP CStatic::GetBitmap() const
{
    return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP));
}

HICON CStatic::SetIcon(HICON icon)
{
    return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(icon)));
}

HICON CStatic::GetIcon() const
{
    return reinterpret_cast<HICON>(SendMessage(STM_GETICON));
}

HCURSOR CStatic::SetCursor(HCURSOR cursor)
{
    return reinterpret_cast<HCURSOR>(SendMessage(STM_SETIMAGE, IMAGE_CURSOR, reinterpret_cast<LPARAM>(cursor)));
}

HCURSOR CStatic::GetCursor()
{
    return reinterpret_cast<HCURSOR>(SendMessage(STM_GETIMAGE, IMAGE_CURSOR));
}

HENHMETAFILE CStatic::SetEnhMetaFile(HENHMETAFILE metafile)
{
    return reinterpret_cast<HENHMETAFILE>(SendMessage(STM_SETIMAGE, IMAGE_ENHMETAFILE, reinterpret_cast<LPARAM>(metafile)));
}

HENHMETAFILE CStatic::GetEnhMetaFile() const
{
    return reinterpret_cast<HENHMETAFILE>(SendMessage(STM_GETIMAGE, IMAGE_ENHMETAFILE));
}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn control overrides this
}
