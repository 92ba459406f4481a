#include <afxext.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CBitmapButton, CButton)

namespace
{

bool load(CBitmap& bitmap, LPCTSTR name)
{
    bitmap.DeleteObject();
    return name && bitmap.LoadBitmap(name);
}

CSize sizeOf(const CBitmap& picture)
{
    BITMAP bitmap{};
    ::GetObjectW(picture, sizeof bitmap, &bitmap);
    return {bitmap.bmWidth, bitmap.bmHeight};
}

} // namespace

CBitmapButton::CBitmapButton() = default;

BOOL CBitmapButton::LoadBitmaps(LPCTSTR released, LPCTSTR pressed, LPCTSTR focused, LPCTSTR disabled)
{
    bool complete = load(m_bitmap, released);
    complete &= load(m_bitmapSel, pressed) || !pressed;
    complete &= load(m_bitmapFocus, focused) || !focused;
    complete &= load(m_bitmapDisabled, disabled) || !disabled;
    if (m_hWnd)
        Invalidate();
    return complete;
}

BOOL CBitmapButton::LoadBitmaps(UINT releasedId, UINT pressedId, UINT focusedId, UINT disabledId)
{
    return LoadBitmaps(MAKEINTRESOURCEW(releasedId), MAKEINTRESOURCEW(pressedId), MAKEINTRESOURCEW(focusedId),
                       MAKEINTRESOURCEW(disabledId));
}

BOOL CBitmapButton::AutoLoad(UINT id, CWnd* parent)
{
    ASSERT(!m_hWnd);
    if (!SubclassDlgItem(id, parent))
        return FALSE;
    CString name;
    GetWindowText(name);
    LoadBitmaps(name + L"U", name + L"D", name + L"F", name + L"X");
    if (!m_bitmap.m_hObject)
        return FALSE;
    SizeToContent();
    return TRUE;
}

void CBitmapButton::SizeToContent()
{
    ASSERT(m_bitmap.m_hObject);
    const CSize size = sizeOf(m_bitmap);
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    Invalidate();
}

/// The picture of a state (ODS_ bits), else the first one.
const CBitmap& CBitmapButton::pictureOf(UINT state) const
{
    const CBitmap& wanted = (state & ODS_DISABLED)   ? m_bitmapDisabled
                            : (state & ODS_SELECTED) ? m_bitmapSel
                            : (state & ODS_FOCUS)    ? m_bitmapFocus
                                                     : m_bitmap;
    return wanted.m_hObject ? wanted : m_bitmap;
}

void CBitmapButton::DrawItem(LPDRAWITEMSTRUCT item)
{
    const CBitmap& picture = pictureOf(item->itemState);
    if (!picture.m_hObject)
        return;
    CDC* const dc = CDC::FromHandle(item->hDC);
    CDC memory;
    memory.CreateCompatibleDC(dc);
    const HGDIOBJ before = ::SelectObject(memory, picture.m_hObject);
    const CSize size = sizeOf(m_bitmap);
    dc->BitBlt(item->rcItem.left, item->rcItem.top, size.cx, size.cy, &memory, 0, 0, SRCCOPY);
    ::SelectObject(memory, before);
}
