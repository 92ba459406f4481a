// CVantorToolBar: rows of buttons and the places of embedded controls.
#include <ovoui/toolbar/ToolBarState.h>
#include <ovoui/toolbar/core/ButtonRows.h>

using namespace ovoui::toolbar;

namespace
{

constexpr int kLong = 32767; // a stretched bar: as long as the frame's edge

bool isSeparator(const TBBUTTON& button)
{
    return (button.fsStyle & TBSTYLE_SEP) != 0;
}

int rowHeightOf(HWND bar)
{
    return HIWORD(::SendMessageW(bar, TB_GETBUTTONSIZE, 0, 0));
}

int widthOf(HWND bar, int index, const TBBUTTON& button)
{
    if (isSeparator(button))
        return button.iBitmap;
    CRect rect;
    const BOOL shown = static_cast<BOOL>(::SendMessageW(bar, TB_GETITEMRECT, static_cast<WPARAM>(index),
                                                        reinterpret_cast<LPARAM>(static_cast<RECT*>(&rect))));
    return shown ? rect.Width() : LOWORD(::SendMessageW(bar, TB_GETBUTTONSIZE, 0, 0));
}

std::vector<RowItem> itemsOf(HWND bar, const TBBUTTON* buttons, int count)
{
    std::vector<RowItem> items;
    for (int i = 0; i < count; ++i) {
        const TBBUTTON& button = buttons[i];
        RowItem item;
        item.width = widthOf(bar, i, button);
        item.separator = isSeparator(button);
        item.control = item.separator && button.idCommand != 0;
        item.hidden = (button.fsState & TBSTATE_HIDDEN) != 0;
        item.endsRow = (button.fsState & TBSTATE_WRAP) != 0;
        items.push_back(item);
    }
    return items;
}

void setState(TBBUTTON& button, BYTE bit, bool on)
{
    button.fsState = static_cast<BYTE>(on ? button.fsState | bit : button.fsState & ~bit);
}

} // namespace

CSize CVantorToolBar::calcSize(const TBBUTTON* buttons, int count) const
{
    const RowsSize size = sizeOfRows(itemsOf(m_hWnd, buttons, count), rowHeightOf(m_hWnd));
    return CSize(size.width, size.height);
}

void CVantorToolBar::sizeToolBar(TBBUTTON* buttons, int count, int length, bool vertical) const
{
    std::vector<RowItem> items = itemsOf(m_hWnd, buttons, count);
    splitRows(items, vertical ? widthForHeight(items, rowHeightOf(m_hWnd), length) : length);
    for (int i = 0; i < count; ++i)
        setState(buttons[i], TBSTATE_WRAP, items[static_cast<std::size_t>(i)].endsRow);
}

void CVantorToolBar::SetHeight(int height)
{
    CToolBar::SetHeight(height);
    m_state->height = height;
}

CSize CVantorToolBar::calcLayout(DWORD mode, int length)
{
    const bool horizontal = (mode & LM_HORZ) != 0;
    CRect inside(0, 0, 0, 0);
    CalcInsideRect(inside, horizontal);
    const CSize around(-inside.Width(), -inside.Height());

    std::vector<TBBUTTON> buttons = allButtons();
    const int count = static_cast<int>(buttons.size());
    for (TBBUTTON& button : buttons)
        if (controlAt(button))
            setState(button, TBSTATE_HIDDEN, !horizontal);

    if (!(m_dwStyle & CBRS_SIZE_FIXED)) {
        const bool dynamic = (m_dwStyle & CBRS_SIZE_DYNAMIC) != 0;
        if (dynamic && (mode & LM_MRUWIDTH))
            sizeToolBar(buttons.data(), count, m_nMRUWidth);
        else if (dynamic && length != -1 && (mode & LM_LENGTHY))
            sizeToolBar(buttons.data(), count, length - around.cy, true);
        else if (dynamic && length != -1)
            sizeToolBar(buttons.data(), count, length - around.cx);
        else
            sizeToolBar(buttons.data(), count, horizontal ? kLong : 0);
    }
    CSize size = calcSize(buttons.data(), count);
    if (mode & LM_COMMIT)
        m_nMRUWidth = size.cx;
    if (length == -1 || (mode & LM_COMMIT))
        takeLayout(buttons, horizontal);
    size += around;
    if (horizontal && m_state->height > 0)
        size.cy = m_state->height;
    if (mode & LM_STRETCH)
        (horizontal ? size.cx : size.cy) = kLong;
    return size;
}

CSize CVantorToolBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    return calcLayout((stretch ? LM_STRETCH : 0) | (horizontal ? LM_HORZ : 0));
}

CSize CVantorToolBar::CalcDynamicLayout(int length, DWORD mode)
{
    // Asked for neither a floating nor a docked size, the bar stays as its style says.
    if (length == -1 && !(mode & (LM_MRUWIDTH | LM_COMMIT)) && (mode & (LM_HORZDOCK | LM_VERTDOCK)))
        return CalcFixedLayout((mode & LM_STRETCH) != 0, (mode & LM_HORZDOCK) != 0);
    return calcLayout(mode, length);
}

/// The control whose place a separator keeps; null for other buttons.
HWND CVantorToolBar::controlAt(const TBBUTTON& button) const
{
    return isSeparator(button) && button.idCommand != 0 ? ::GetDlgItem(m_hWnd, button.idCommand) : nullptr;
}

void CVantorToolBar::takeLayout(const std::vector<TBBUTTON>& buttons, bool horizontal)
{
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const int index = static_cast<int>(i);
        const UINT style = GetButtonStyle(index);
        constexpr UINT kLayout = TBBS_WRAPPED | TBBS_HIDDEN;
        const UINT wanted = static_cast<UINT>(MAKELONG(0, buttons[i].fsState)) & kLayout;
        SetButtonStyle(index, (style & ~kLayout) | wanted);
    }
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const HWND control = controlAt(buttons[i]);
        if (!control)
            continue;
        if (!horizontal) {
            if (::GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE)
                m_state->controlsPutAway.insert(buttons[i].idCommand);
            ::ShowWindow(control, SW_HIDE);
            continue;
        }
        CRect place;
        GetItemRect(static_cast<int>(i), &place);
        CRect size;
        ::GetWindowRect(control, &size);
        ::SetWindowPos(control, nullptr, place.left + (place.Width() - size.Width()) / 2,
                       place.top + (place.Height() - size.Height()) / 2, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        if (m_state->controlsPutAway.erase(buttons[i].idCommand))
            ::ShowWindow(control, SW_SHOWNA);
    }
}
