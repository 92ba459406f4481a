// CVantorToolBar: painting, and controls that draw themselves.
#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/DcScopes.h>
#include <ovoui/frame/DrawnState.h>
#include <ovoui/frame/ThemeData.h>
#include <ovoui/toolbar/BarButtons.h>
#include <ovoui/toolbar/ToolBarState.h>
#include <ovoui/toolbar/core/FlyoutPlacement.h>
#include <ovoui/toolbar/core/GripperDots.h>

using namespace ovoui::toolbar;

namespace
{

constexpr int kFocusMargin = 2; // pixels from a button's edge to the mark of the keyboard

/// A dot with a light edge at its lower right.
void drawDot(CDC& dc, const ovoui::frame::Point& dot)
{
    dc.FillSolidRect(dot.x + 1, dot.y + 1, kDotSize, kDotSize, ::GetSysColor(COLOR_BTNHIGHLIGHT));
    dc.FillSolidRect(dot.x, dot.y, kDotSize, kDotSize, ::GetSysColor(COLOR_BTNSHADOW));
}

/// The text of an item of a list or combo box; empty where there is none.
std::wstring itemText(const DRAWITEMSTRUCT& item)
{
    const bool combo = item.CtlType == ODT_COMBOBOX;
    const LRESULT length =
        ::SendMessageW(item.hwndItem, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, item.itemID, 0);
    if (length <= 0)
        return {};
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    ::SendMessageW(item.hwndItem, combo ? CB_GETLBTEXT : LB_GETTEXT, item.itemID,
                   reinterpret_cast<LPARAM>(text.data()));
    return text;
}

/// Whether the items are texts, which can be asked for.
bool hasTexts(const DRAWITEMSTRUCT& item)
{
    const LONG_PTR style = ::GetWindowLongPtrW(item.hwndItem, GWL_STYLE);
    return (item.CtlType == ODT_COMBOBOX && (style & CBS_HASSTRINGS)) ||
           (item.CtlType == ODT_LISTBOX && (style & LBS_HASSTRINGS));
}

void drawTextItem(const DRAWITEMSTRUCT& item)
{
    const ovoui::frame::ItemColours colours = ovoui::frame::itemColoursOf(item.itemState);
    CRect rect(item.rcItem);
    CDC& dc = *CDC::FromHandle(item.hDC);
    dc.FillSolidRect(rect, ovoui::frame::colorrefOf(colours.background));
    const COLORREF before = dc.SetTextColor(ovoui::frame::colorrefOf(colours.text));
    rect.DeflateRect(2, 0);
    const std::wstring text = itemText(item);
    dc.DrawText(text.c_str(), static_cast<int>(text.size()), &rect,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    dc.SetTextColor(before);
    if (ovoui::frame::showsFocus(item.itemState))
        ::DrawFocusRect(item.hDC, &item.rcItem);
}

int textHeight(HWND control)
{
    CClientDC dc(CWnd::FromHandle(control));
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(control, WM_GETFONT, 0, 0));
    const ovoui::frame::SelectedTool selected(dc, font);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    return metrics.tmHeight;
}

} // namespace

void CVantorToolBar::OnPaint()
{
    const std::shared_ptr<State> state = m_state;
    if (state->keyboard.on)
        redrawButton(state->keyboard.button); // its mark would be inverted away where only others are painted
    CToolBar::OnPaint(); // asks the owner about custom drawing
    if (state->usable())
        erasePlaces();
    if (state->usable() && state->marksFlyouts)
        drawFlyoutMarks();
    if (state->usable() && state->keyboard.on)
        drawFocus();
}

/// Separators that keep the places of controls have the line of a separator, which would be seen above and
/// below a control that is lower than the buttons.
void CVantorToolBar::erasePlaces()
{
    const std::shared_ptr<State> state = m_state;
    for (int i = 0; state->usable() && i < buttonCount(); ++i) {
        const HWND control = controlAt(buttonOf(m_hWnd, i));
        CRect place;
        if (!control || !::IsWindowVisible(control) || !GetToolBarCtrl().GetItemRect(i, &place))
            continue;
        CRect covered;
        ::GetWindowRect(control, &covered);
        ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(&covered), 2);
        CClientDC dc(this);
        dc.IntersectClipRect(&place);
        dc.ExcludeClipRect(&covered);
        SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC)); // the bar's ground, whoever draws it
    }
}

/// The button that the keyboard is at.
void CVantorToolBar::drawFocus()
{
    CRect rect;
    if (!GetToolBarCtrl().GetItemRect(m_state->keyboard.button, &rect))
        return;
    CClientDC dc(this);
    rect.DeflateRect(kFocusMargin, kFocusMargin);
    dc.DrawFocusRect(&rect);
}

void CVantorToolBar::ShowFlyoutMarks(bool show)
{
    m_state->marksFlyouts = show;
    if (m_hWnd)
        Invalidate();
}

/// In a mirrored bar the device context is mirrored too: the corner is then the left one.
void CVantorToolBar::drawFlyoutMarks()
{
    CClientDC dc(this);
    for (int i = 0; i < buttonCount(); ++i) {
        CRect rect;
        if (!HasFlyout(i) || !GetToolBarCtrl().GetItemRect(i, &rect))
            continue;
        const CornerMark mark = cornerMark(ovoui::frame::toBox(rect));
        const bool disabled = (GetButtonStyle(i) & TBBS_DISABLED) != 0;
        const COLORREF colour = ::GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
        for (int row = 0; row < mark.size; ++row)
            dc.FillSolidRect(mark.right - mark.size + row, mark.bottom - 1 - row, mark.size - row, 1, colour);
    }
}

// The gripper

void CVantorToolBar::DrawGripper(CDC* dc, const CRect& rect)
{
    const bool shown = (m_dwStyle & (CBRS_GRIPPER | CBRS_FLOATING)) == CBRS_GRIPPER;
    if (shown)
        DrawNCGripper(dc, rect);
}

/// With visual styles a row of dots, without them the framework's gripper.
void CVantorToolBar::DrawNCGripper(CDC* dc, const CRect& rect)
{
    if (!CThemeData::getThemeData().IsAppThemed()) {
        CToolBar::DrawGripper(dc, rect);
        return;
    }
    const bool horizontal = (m_dwStyle & CBRS_ORIENT_HORZ) != 0;
    for (const ovoui::frame::Point& dot : gripperDots(ovoui::frame::toBox(rect), horizontal))
        drawDot(*dc, dot);
}

// Controls that draw themselves: what neither they nor the owner draws or measures is plain text.

void CVantorToolBar::OnDrawItem(int id, LPDRAWITEMSTRUCT item)
{
    const std::shared_ptr<State> state = m_state;
    LRESULT drawn = 0;
    if (ReflectLastMsg(item->hwndItem, &drawn) || !state->usable())
        return;
    const CWnd* const owner = GetOwner();
    if (owner && owner->SendMessage(WM_DRAWITEM, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(item)))
        return;
    if (::IsWindow(item->hwndItem) && hasTexts(*item))
        drawTextItem(*item);
}

void CVantorToolBar::OnMeasureItem(int id, LPMEASUREITEMSTRUCT item)
{
    const std::shared_ptr<State> state = m_state;
    const HWND control = ::GetDlgItem(m_hWnd, id);
    LRESULT measured = 0;
    if (ReflectLastMsg(control, &measured) || !state->usable())
        return;
    const CWnd* const owner = GetOwner();
    if (owner && owner->SendMessage(WM_MEASUREITEM, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(item)))
        return;
    if (::IsWindow(control))
        item->itemHeight = static_cast<UINT>(textHeight(control) + 2);
}

// Settings of the system

void CVantorToolBar::OnSettingChange(UINT flags, LPCTSTR section)
{
    CToolBar::OnSettingChange(flags, section);
    if (onResolutionChanged(0))
        Invalidate();
}
