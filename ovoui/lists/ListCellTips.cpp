#include <ovoui/lists/ListCellTips.h>

#include <ovoui/lists/RowData.h>
#include <ovoui/lists/core/RowLayout.h>

#include <commctrl.h>

using namespace ovoui::lists;

namespace
{

TOOLINFOW toolOf(HWND list)
{
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_TRACK | TTF_ABSOLUTE | TTF_TRANSPARENT;
    tool.hwnd = list;
    tool.uId = 1;
    return tool;
}

bool endsTip(UINT message)
{
    switch (message) {
    case WM_MOUSELEAVE:
    case WM_KEYDOWN:
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MOUSEWHEEL:
    case WM_VSCROLL:
    case WM_HSCROLL:
    case WM_KILLFOCUS:
        return true;
    default:
        return false;
    }
}

} // namespace

COVOListCellTips::COVOListCellTips() = default;

COVOListCellTips::~COVOListCellTips()
{
    Detach();
}

void COVOListCellTips::Attach(COVOListCtrlEx& list)
{
    Detach();
    m_list = &list;
    m_window = list.m_hWnd;
    ::SetWindowSubclass(m_window, &listProcedure, reinterpret_cast<UINT_PTR>(this),
                        reinterpret_cast<DWORD_PTR>(this));
}

void COVOListCellTips::Detach()
{
    if (m_window)
        ::RemoveWindowSubclass(m_window, &listProcedure, reinterpret_cast<UINT_PTR>(this));
    if (m_tip)
        ::DestroyWindow(m_tip);
    m_list = nullptr;
    m_window = nullptr;
    m_tip = nullptr;
    m_cell = {};
}

LRESULT CALLBACK COVOListCellTips::listProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                                 UINT_PTR, DWORD_PTR tips)
{
    auto* const self = reinterpret_cast<COVOListCellTips*>(tips);
    if (message == WM_NCDESTROY)
        self->Detach();
    else if (endsTip(message))
        self->hide();
    if (message == WM_MOUSELEAVE)
        self->m_cell = {};
    const Lifeline::Watch watch(self->m_lifeline);
    const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
    // Last, since the host is called, who may take subclasses away.
    if (message == WM_MOUSEMOVE && watch.alive() && self->m_window == window)
        self->pointerAt(CPoint(lParam));
    return result;
}

void COVOListCellTips::pointerAt(CPoint point)
{
    LVHITTESTINFO hit{};
    hit.pt = point;
    const Lifeline::Watch watch(m_lifeline);
    const HWND window = m_window;
    // The platform may ask the host for the label's text, who may destroy list and tips.
    const Cell cell = m_list->SubItemHitTest(&hit) == -1 ? Cell{} : Cell{hit.iItem, hit.iSubItem};
    if (!watch.alive() || m_window != window || cell == m_cell)
        return;
    hide();
    m_cell = cell;
    TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, m_window, 0};
    ::TrackMouseEvent(&leaving);
    if (cell.item != -1)
        show(cell);
}

/// Empty when the cell has room for its text. The host may be asked for the text, and change or destroy the
/// list then.
std::wstring COVOListCellTips::cutText(const Cell& cell, CRect& textPlace) const
{
    COVOListCtrlEx& list = *m_list;
    const Lifeline::Watch watch(list);
    CellText reader;
    const std::wstring text = reader(list, cell.item, cell.column);
    LVCOLUMN known{};
    known.mask = LVCF_WIDTH;
    if (!watch.alive() || cell.item >= list.GetItemCount() || !list.GetColumn(cell.column, &known))
        return {};
    const bool isLabel = cell.column == 0;
    if (isLabel)
        list.GetItemRect(cell.item, &textPlace, LVIR_LABEL);
    else
        list.GetSubItemRect(cell.item, cell.column, LVIR_BOUNDS, textPlace);
    CClientDC dc(&list);
    CFont* const old = dc.SelectObject(list.GetFont());
    const LPCWSTR shown = COVOListCtrlEx::MakeShortString(&dc, text.c_str(), textPlace.Width(),
                                                          isLabel ? kLabelOffset : kCellOffset);
    const bool isCut = shown != text.c_str() && shown != text;
    dc.SelectObject(old);
    textPlace.DeflateRect(isLabel ? kLabelInset : kCellInset, 0);
    return isCut ? text : std::wstring();
}

void COVOListCellTips::show(const Cell& cell)
{
    CRect place;
    const Lifeline::Watch watch(m_lifeline);
    const std::wstring text = cutText(cell, place);
    if (!watch.alive())
        return;
    m_text = text;
    if (m_text.empty() || !m_list || !createTip())
        return;
    TOOLINFOW tool = toolOf(m_window);
    tool.lpszText = m_text.data();
    ::SendMessageW(m_tip, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
    // The tip's text lies over the cell's.
    m_list->ClientToScreen(&place);
    ::SendMessageW(m_tip, TTM_ADJUSTRECT, TRUE, reinterpret_cast<LPARAM>(static_cast<RECT*>(&place)));
    ::SendMessageW(m_tip, TTM_TRACKPOSITION, 0, MAKELPARAM(place.left, place.top));
    ::SendMessageW(m_tip, TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
}

void COVOListCellTips::hide()
{
    if (!m_tip)
        return;
    TOOLINFOW tool = toolOf(m_window);
    ::SendMessageW(m_tip, TTM_TRACKACTIVATE, FALSE, reinterpret_cast<LPARAM>(&tool));
}

bool COVOListCellTips::createTip()
{
    if (!m_tip) {
        m_tip = ::CreateWindowExW(WS_EX_TOPMOST | WS_EX_TRANSPARENT, TOOLTIPS_CLASSW, nullptr,
                                  WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0, 0, m_window, nullptr,
                                  nullptr, nullptr);
        TOOLINFOW tool = toolOf(m_window);
        tool.lpszText = m_text.data();
        ::SendMessageW(m_tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
    ::SendMessageW(m_tip, WM_SETFONT, reinterpret_cast<WPARAM>(m_list->GetFont()->GetSafeHandle()), FALSE);
    return m_tip != nullptr;
}
