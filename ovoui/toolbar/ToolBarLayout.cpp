// CVantorToolBar: rows of buttons and the places of embedded controls.
#include <ovoui/frame/BoxRect.h>
#include <ovoui/toolbar/BarButtons.h>
#include <ovoui/toolbar/ToolBarState.h>
#include <ovoui/toolbar/core/ButtonRules.h>
#include <ovoui/toolbar/core/LayoutRules.h>

using namespace ovoui::frame;
using namespace ovoui::toolbar;

namespace
{

int rowHeightOf(HWND bar)
{
    return HIWORD(::SendMessageW(bar, TB_GETBUTTONSIZE, 0, 0));
}

int shownWidth(HWND bar, int index)
{
    CRect rect;
    const BOOL shown = static_cast<BOOL>(::SendMessageW(bar, TB_GETITEMRECT, static_cast<WPARAM>(index),
                                                        reinterpret_cast<LPARAM>(static_cast<RECT*>(&rect))));
    return shown ? rect.Width() : LOWORD(::SendMessageW(bar, TB_GETBUTTONSIZE, 0, 0));
}

std::vector<RowItem> itemsOf(HWND bar, const TBBUTTON* buttons, int count)
{
    std::vector<RowItem> items;
    for (int i = 0; i < count; ++i)
        items.push_back(rowItemOf(fieldsOf(buttons[i]), shownWidth(bar, i)));
    return items;
}

LayoutAsked askedBy(DWORD mode, int length)
{
    return {.stretched = (mode & LM_STRETCH) != 0,
            .horizontal = (mode & LM_HORZ) != 0,
            .asLast = (mode & LM_MRUWIDTH) != 0,
            .atTop = (mode & LM_HORZDOCK) != 0,
            .atSide = (mode & LM_VERTDOCK) != 0,
            .byHeight = (mode & LM_LENGTHY) != 0,
            .forCertain = (mode & LM_COMMIT) != 0,
            .length = length};
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
    const LayoutAsked asked = askedBy(mode, length);
    const BarSettings settings{.fixed = (m_dwStyle & CBRS_SIZE_FIXED) != 0,
                               .dynamic = (m_dwStyle & CBRS_SIZE_DYNAMIC) != 0,
                               .lastWidth = m_nMRUWidth,
                               .height = m_state->height};
    CRect inside(0, 0, 0, 0);
    CalcInsideRect(inside, asked.horizontal);
    const Around around{-inside.Width(), -inside.Height()};

    std::vector<TBBUTTON> buttons = allButtons();
    const int count = static_cast<int>(buttons.size());
    for (TBBUTTON& button : buttons)
        if (controlAt(button))
            setState(button, TBSTATE_HIDDEN, !asked.horizontal);
    const RowsAsked rows = rowsFor(asked, settings, around);
    if (rows.limit != RowLimit::AsTheyAre)
        sizeToolBar(buttons.data(), count, rows.length, rows.limit == RowLimit::Height);
    const CSize size = calcSize(buttons.data(), count);
    if (asked.forCertain)
        m_nMRUWidth = size.cx;
    if (takesLayout(asked))
        takeLayout(buttons, asked.horizontal);
    const RowsSize whole = barSize({size.cx, size.cy}, asked, settings, around);
    return CSize(whole.width, whole.height);
}

CSize CVantorToolBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    return calcLayout((stretch ? LM_STRETCH : 0) | (horizontal ? LM_HORZ : 0));
}

CSize CVantorToolBar::CalcDynamicLayout(int length, DWORD mode)
{
    const LayoutAsked asked = askedBy(mode, length);
    return asksForUsualSize(asked) ? CalcFixedLayout(asked.stretched, asked.atTop) : calcLayout(mode, length);
}

/// The control whose place a separator keeps; null for other buttons.
HWND CVantorToolBar::controlAt(const TBBUTTON& button) const
{
    return keepsControl(fieldsOf(button)) ? ::GetDlgItem(m_hWnd, button.idCommand) : nullptr;
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
    for (std::size_t i = 0; i < buttons.size(); ++i)
        if (const HWND control = controlAt(buttons[i]))
            layOutControl(control, buttons[i].idCommand, static_cast<int>(i), horizontal);
}

void CVantorToolBar::layOutControl(HWND control, int id, int index, bool horizontal)
{
    const bool visible = (::GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE) != 0;
    const ControlChange change = controlChange(horizontal, visible, m_state->controlsPutAway.contains(id));
    switch (change) {
    case ControlChange::PutAway:
        m_state->controlsPutAway.insert(id);
        [[fallthrough]];
    case ControlChange::Hide:
        ::ShowWindow(control, SW_HIDE);
        break;
    case ControlChange::Place:
    case ControlChange::PlaceShow:
        putIntoPlace(control, index);
        if (change == ControlChange::PlaceShow) {
            m_state->controlsPutAway.erase(id);
            ::ShowWindow(control, SW_SHOWNA);
        }
        break;
    }
}

void CVantorToolBar::putIntoPlace(HWND control, int index)
{
    CRect place;
    GetItemRect(index, &place);
    CRect size;
    ::GetWindowRect(control, &size);
    const Box middle = centredIn(toBox(place), size.Width(), size.Height());
    // Wine moves the pixels in a mirrored window to a wrong place.
    const UINT bits = (GetExStyle() & WS_EX_LAYOUTRTL) ? SWP_NOCOPYBITS : 0;
    ::SetWindowPos(control, nullptr, middle.left, middle.top, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | bits);
}
