#include <ovoui/colour/ColourGrid.h>

#include <ovoui/colour/AccessibleColours.h>
#include <ovoui/colour/ColourCells.h>
#include <ovoui/colour/ColourText.h>
#include <ovoui/colour/core/CellLayout.h>
#include <ovoui/colour/core/ControlKeys.h>
#include <ovoui/colour/core/DropGesture.h>
#include <ovoui/frame/AskedKey.h>
#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/BufferedPaint.h>
#include <ovoui/frame/LoadedText.h>
#include <ovoui/frame/OwnWindow.h>
#include <ovoui/frame/TellParent.h>
#include <ovoui/frame/WindowText.h>
#include <ovouires/resource.h>

#include <oleacc.h>

#include <algorithm>
#include <utility>

using namespace ovoui::colour;

IMPLEMENT_DYNAMIC(CColourGrid, CWnd)

BEGIN_MESSAGE_MAP(CColourGrid, CWnd)
    ON_WM_LBUTTONDOWN() // mouse
    ON_WM_LBUTTONUP()
    ON_WM_KEYDOWN() // keyboard
    ON_WM_GETDLGCODE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_PAINT() // painting
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_ENABLE()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_GETOBJECT, &CColourGrid::OnGetObject)
END_MESSAGE_MAP()

CColourGrid::CColourGrid()
    : m_identity(std::make_shared<ColourIdentity>())
{
    m_identity->role = ROLE_SYSTEM_LIST;
    m_identity->name = [this] { return ovoui::frame::windowText(*this); };
    m_identity->cellName = [this](int cell) {
        return nameOrCodeOfColour(Colour::colorref(m_colours[static_cast<std::size_t>(cell)]));
    };
    m_identity->cellPlace = [this](int cell) {
        CRect place = CellRect(cell);
        ClientToScreen(&place);
        return place;
    };
    m_identity->current = [this] { return Current(); };
    m_identity->cellAction = [this] {
        return IsWindowEnabled() ? ovoui::frame::loadedText(IDS_COLOUR_TAKE) : std::wstring();
    };
    m_identity->pressCell = [this](int cell) { postClick(*this, CellRect(cell).CenterPoint()); };
}

CColourGrid::~CColourGrid()
{
    m_identity->window = nullptr;
    ::DestroyWindow(m_hWnd);
}

BOOL CColourGrid::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    if (!CWnd::Create(ovoui::frame::arrowClass(), L"", style | WS_CHILD, rect, parent, id))
        return FALSE;
    m_identity->window = m_hWnd;
    return TRUE;
}

bool CColourGrid::createInPlace(CWnd& dialog, UINT id)
{
    CWnd* const place = dialog.GetDlgItem(static_cast<int>(id));
    if (!place)
        return false;
    CRect rect;
    place->GetWindowRect(&rect);
    dialog.ScreenToClient(&rect);
    CString text;
    place->GetWindowText(text);
    const DWORD shown = place->GetStyle() & (WS_VISIBLE | WS_DISABLED);
    if (!Create(shown | WS_TABSTOP, rect, &dialog, id))
        return false;
    SetWindowText(text);
    SetWindowPos(place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ::DestroyWindow(place->m_hWnd);
    return true;
}

// Colours

void CColourGrid::SetColours(std::vector<COLORREF> colours, int columns)
{
    m_colours = std::move(colours);
    m_columns = std::max(1, columns);
    m_current = 0;
    m_pressed = -1;
    m_identity->cells = static_cast<int>(m_colours.size());
    if (m_hWnd)
        Invalidate(FALSE);
}

void CColourGrid::SetCurrent(int index)
{
    if (index < 0 || index >= static_cast<int>(m_colours.size()) || index == m_current)
        return;
    m_current = index;
    if (m_hWnd)
        Invalidate(FALSE);
}

CellLayout CColourGrid::layout() const
{
    CRect client;
    GetClientRect(&client);
    // Rows that are not full leave room for what may come.
    return {.area = ovoui::frame::toBox(client),
            .count = static_cast<int>(m_colours.size()),
            .columns = m_columns};
}

CRect CColourGrid::CellRect(int index) const
{
    return ovoui::frame::toRect(layout().cell(index));
}

int CColourGrid::cellAt(CPoint point) const
{
    return layout().at(point.x, point.y);
}

// What the user does. There may be no grid after a notification.

/// Whether the grid still has its window afterwards.
bool CColourGrid::point(int index)
{
    if (index == m_current)
        return true;
    SetCurrent(index);
    ovoui::frame::announce(EVENT_OBJECT_FOCUS, m_hWnd, index);
    return tell(kPointed);
}

void CColourGrid::choose(int index)
{
    if (point(index))
        tell(kChosen);
}

bool CColourGrid::tell(UINT code)
{
    return ovoui::frame::tellParent(*this, code);
}

void CColourGrid::OnLButtonDown(UINT, CPoint where)
{
    const Lifeline::Watch watch(m_lifeline);
    SetFocus();
    if (!watch.alive() || !m_hWnd)
        return;
    m_pressed = cellAt(where);
    if (m_pressed >= 0)
        point(m_pressed);
}

void CColourGrid::OnLButtonUp(UINT, CPoint where)
{
    const int pressed = std::exchange(m_pressed, -1);
    if (choosesPressed(pressed, cellAt(where), m_identity->cells))
        choose(pressed);
}

void CColourGrid::OnKeyDown(UINT key, UINT, UINT)
{
    const bool fromTheRight = (GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    switch (gridKey(key, m_colours.empty())) {
    case GridKey::Move: {
        const WheelKey pressed = *wheelKeyOf(key);
        point(cellAfter(m_current, m_identity->cells, m_columns, fromTheRight ? mirrored(pressed) : pressed));
        break;
    }
    case GridKey::Choose:
        choose(m_current);
        break;
    case GridKey::None:
        Default();
    }
}

/// Enter is the grid's while it has the focus and something to choose.
UINT CColourGrid::OnGetDlgCode()
{
    const bool asksEnter = ovoui::frame::asksForKey(CWnd::GetCurrentMessage()->lParam, VK_RETURN);
    return DLGC_WANTARROWS | (gridWantsKey(asksEnter, m_colours.empty()) ? DLGC_WANTMESSAGE : 0);
}

// Painting

void CColourGrid::OnPaint()
{
    BufferedPaint paint(*this);
    CDC& dc = paint.dc();
    CRect client;
    GetClientRect(&client);
    const Lifeline::Watch watch(m_lifeline);
    const auto brush = reinterpret_cast<HBRUSH>(
        ovoui::frame::sendToHost(::GetParent(m_hWnd), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC),
                                 reinterpret_cast<LPARAM>(m_hWnd)));
    if (!watch.alive() || !m_hWnd)
        return;
    ::FillRect(dc, &client, brush ? brush : ::GetSysColorBrush(COLOR_BTNFACE));
    for (int i = 0; i < m_identity->cells; ++i)
        drawColourCell(dc, CellRect(i), m_colours[static_cast<std::size_t>(i)], IsWindowEnabled() != FALSE);
    if (m_identity->cells > 0 && ::GetFocus() == m_hWnd)
        drawCellMark(dc, CellRect(m_current));
}

BOOL CColourGrid::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CColourGrid::OnSetFocus(CWnd*)
{
    Default();
    Invalidate(FALSE);
    if (m_identity->cells > 0)
        ovoui::frame::announce(EVENT_OBJECT_FOCUS, m_hWnd, m_current);
}

void CColourGrid::OnKillFocus(CWnd*)
{
    Default();
    Invalidate(FALSE);
}

void CColourGrid::OnSize(UINT, int, int)
{
    Default();
    Invalidate(FALSE);
}

void CColourGrid::OnEnable(BOOL)
{
    Default();
    Invalidate(FALSE);
}

void CColourGrid::OnDestroy()
{
    m_identity->window = nullptr;
    Default();
}

LRESULT CColourGrid::OnGetObject(WPARAM wParam, LPARAM lParam)
{
    if (!ovoui::frame::asksForContents(lParam))
        return Default();
    return ovoui::frame::accessibleAnswer(wParam, accessibleColours(m_identity));
}
