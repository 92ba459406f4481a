#include <ovoui/lists/ListCellTips.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/DcScopes.h>
#include <ovoui/frame/Tip.h>
#include <ovoui/lists/ListCells.h>
#include <ovoui/lists/RowData.h>
#include <ovoui/lists/core/RowLayout.h>

using namespace ovoui::lists;
using ovoui::frame::toRect;

namespace
{

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

/// Whether a message is one by which code scrolls a list, if there is need.
bool mayScroll(UINT message)
{
    return message == LVM_SCROLL || message == LVM_ENSUREVISIBLE;
}

CRect textIn(const ovoui::frame::Box& area, int column)
{
    return toRect(textBox(area, column == 0 ? kLabelInset : kCellInset));
}

} // namespace

COVOListCellTips::COVOListCellTips()
    : m_tip(std::make_unique<ovoui::frame::Tip>())
{
}

COVOListCellTips::~COVOListCellTips()
{
    Detach();
}

void COVOListCellTips::Attach(COVOListCtrlEx& list)
{
    hear(list);
    m_list = &list;
}

void COVOListCellTips::Detach()
{
    stopHearing();
}

void COVOListCellTips::left()
{
    m_tip->destroy();
    m_list = nullptr;
    m_cell = {};
}

bool COVOListCellTips::takes(UINT message, WPARAM, LPARAM, LRESULT&)
{
    if (endsTip(message))
        hide();
    if (message == WM_MOUSELEAVE)
        m_cell = {};
    return false;
}

void COVOListCellTips::heard(UINT message, WPARAM, LPARAM lParam)
{
    if (message == WM_MOUSEMOVE)
        pointerAt(CPoint(lParam));
    else if (mayScroll(message) && liesElsewhere())
        hide();
}

/// No cell beside the cells, and when the list goes meanwhile.
COVOListCellTips::Cell COVOListCellTips::cellAt(COVOListCtrlEx& list, CPoint point)
{
    const Lifeline::Watch watch(list);
    const ListCells cells(list);
    const int row = cells.rowAt(point.y);
    const int column = row == -1 || !watch.alive() ? -1 : cells.columnAt(row, point.x);
    return column == -1 ? Cell{} : Cell{row, column};
}

/// The pointer may have moved on, or the list been left, when the host has given the text of a label.
void COVOListCellTips::pointerAt(CPoint point)
{
    const Lifeline::Watch watch(m_lifeline);
    const HWND window = m_window;
    const Cell before = m_cell;
    const Cell cell = cellAt(*m_list, point);
    if (!watch.alive() || m_window != window || m_cell != before || cell == before)
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
    const auto area = watch.alive() ? ListCells(list).textArea(cell.item, cell.column) : std::nullopt;
    if (!area || !watch.alive())
        return {};
    const bool isLabel = cell.column == 0;
    textPlace = textIn(*area, cell.column);
    CClientDC dc(&list);
    const ovoui::frame::SelectedTool font(dc, list.GetFont());
    const std::wstring shown = COVOListCtrlEx::MakeShortString(&dc, text.c_str(), area->width(),
                                                               isLabel ? kLabelOffset : kCellOffset);
    return shown == text ? std::wstring() : text;
}

/// The pointer may have moved on, or the list been left, when the host has given the text.
void COVOListCellTips::show(const Cell& cell)
{
    CRect place;
    const Lifeline::Watch watch(m_lifeline);
    const HWND window = m_window;
    const std::wstring text = cutText(cell, place);
    if (!watch.alive() || m_window != window || m_cell != cell)
        return;
    if (text.empty() || !m_tip->create(m_window, ovoui::frame::Tip::Tool::Owner))
        return;
    // The tip's text lies over the cell's.
    m_list->ClientToScreen(&place);
    m_tip->setFont(static_cast<HFONT>(m_list->GetFont()->GetSafeHandle()));
    m_tip->setText(text);
    m_tip->showAt(m_tip->cornerAround(place));
}

void COVOListCellTips::hide()
{
    m_tip->hide();
}

/// Whether a tip is shown whose cell is not below it any more.
bool COVOListCellTips::liesElsewhere() const
{
    if (!::IsWindowVisible(Window()))
        return false;
    const Lifeline::Watch watch(m_lifeline);
    const HWND window = m_window;
    const auto area = ListCells(*m_list).textArea(m_cell.item, m_cell.column);
    if (!watch.alive() || m_window != window)
        return false;
    CRect place = area ? textIn(*area, m_cell.column) : CRect();
    m_list->ClientToScreen(&place);
    return m_tip->cornerAround(place) != m_tip->corner();
}

HWND COVOListCellTips::Window() const
{
    return m_tip->window();
}
