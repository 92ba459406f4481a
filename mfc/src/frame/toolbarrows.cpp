// CToolBar: sizes and rows.
#include <afxext.h>

#include "core/toolbarlayout.h"

namespace
{

using afxdetail::Extent;
using afxdetail::ToolBarItem;

constexpr int kOneRow = 32767;
constexpr int kOneColumn = 0;

} // namespace

void CToolBar::SetSizes(SIZE button, SIZE image)
{
    m_sizeButton = button;
    m_sizeImage = image;
    if (!m_hWnd)
        return;
    SendMessage(TB_SETBITMAPSIZE, 0, MAKELPARAM(image.cx, image.cy));
    SendMessage(TB_SETBUTTONSIZE, 0, MAKELPARAM(button.cx, button.cy));
    Invalidate();
}

void CToolBar::SetHeight(int height)
{
    m_height = height;
}

CSize CToolBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    return layOut(-1, (stretch ? LM_STRETCH : 0) | (horizontal ? LM_HORZ : 0));
}

CSize CToolBar::CalcDynamicLayout(int length, DWORD mode)
{
    // Asked for neither a floating nor a docked size, the bar stays as its style says.
    if (length == -1 && !(mode & (LM_MRUWIDTH | LM_COMMIT)) && (mode & (LM_HORZDOCK | LM_VERTDOCK)))
        return CalcFixedLayout((mode & LM_STRETCH) != 0, (mode & LM_HORZDOCK) != 0);
    return layOut(length, mode);
}

/// The bar's size for LM_ bits. Rows are broken anew unless the bar is of fixed size.
CSize CToolBar::layOut(int length, DWORD mode)
{
    const bool horizontal = (mode & LM_HORZ) != 0;
    CRect inside(0, 0, 0, 0);
    CalcInsideRect(inside, horizontal);
    const CSize around(-inside.Width(), -inside.Height());

    std::vector<ToolBarItem> items = itemsOfBar();
    const int rowHeight = HIWORD(SendMessage(TB_GETBUTTONSIZE));
    if (!(m_dwStyle & CBRS_SIZE_FIXED)) {
        int width = horizontal ? kOneRow : kOneColumn;
        if ((mode & LM_MRUWIDTH) && (m_dwStyle & CBRS_SIZE_DYNAMIC))
            width = m_nMRUWidth;
        else if (length != -1 && (m_dwStyle & CBRS_SIZE_DYNAMIC))
            width = (mode & LM_LENGTHY) ? afxdetail::widthForHeight(items, rowHeight, length - around.cy)
                                        : length - around.cx;
        afxdetail::wrapItems(items, width);
    }
    const Extent extent = afxdetail::extentOf(items, rowHeight);
    if (mode & LM_COMMIT)
        m_nMRUWidth = extent.width;
    if (length == -1 || (mode & LM_COMMIT))
        breakRows(items);

    CSize size(extent.width + around.cx, extent.height + around.cy);
    if (horizontal && m_height > 0)
        size.cy = m_height;
    if (mode & LM_STRETCH)
        (horizontal ? size.cx : size.cy) = kOneRow;
    return size;
}

std::vector<ToolBarItem> CToolBar::itemsOfBar() const
{
    std::vector<ToolBarItem> items;
    const int count = static_cast<int>(SendMessage(TB_BUTTONCOUNT));
    for (int i = 0; i < count; ++i) {
        const TBBUTTON shown = button(i);
        ToolBarItem item;
        item.separator = (shown.fsStyle & TBSTYLE_SEP) != 0;
        item.hidden = (shown.fsState & TBSTATE_HIDDEN) != 0;
        item.lastOfRow = (shown.fsState & TBSTATE_WRAP) != 0;
        CRect rect;
        CToolBar::GetItemRect(i, &rect);
        item.width = item.separator ? shown.iBitmap : rect.Width();
        items.push_back(item);
    }
    return items;
}

void CToolBar::breakRows(const std::vector<ToolBarItem>& items)
{
    for (std::size_t i = 0; i < items.size(); ++i) {
        const int index = static_cast<int>(i);
        TBBUTTON changed = button(index);
        changed.fsState = static_cast<BYTE>(changed.fsState & ~TBSTATE_WRAP);
        if (items[i].lastOfRow)
            changed.fsState |= TBSTATE_WRAP;
        setButton(index, changed);
    }
}
