#include <ovoui/lists/ComboHits.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/OwnWindow.h>
#include <ovoui/frame/Subclass.h>
#include <ovoui/lists/ComboBox.h>
#include <ovoui/lists/core/ComboItemLayout.h>

using ovoui::frame::toBox;
using ovoui::frame::toRect;

namespace ovoui::lists
{

namespace
{

constexpr int kMostRows = 12;
constexpr UINT kListId = 1;

} // namespace

// The list

BEGIN_MESSAGE_MAP(HitList, CListBox)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

void HitList::DrawItem(LPDRAWITEMSTRUCT item)
{
    if (draws)
        draws(item);
}

int HitList::itemAt(CPoint point)
{
    BOOL outside = FALSE;
    const auto item = static_cast<int>(ItemFromPoint(point, outside));
    return outside || item >= GetCount() ? -1 : item;
}

void HitList::OnLButtonDown(UINT, CPoint)
{
    // The platform would take the focus.
}

/// The list may be gone afterwards.
void HitList::OnLButtonUp(UINT, CPoint point)
{
    const int item = itemAt(point);
    if (item != -1 && clicked)
        clicked(item);
}

void HitList::OnMouseMove(UINT, CPoint point)
{
    const int item = itemAt(point);
    if (item != -1 && item != GetCurSel())
        SetCurSel(item);
}

// The window

BEGIN_MESSAGE_MAP(ComboHits, CWnd)
    ON_WM_MOUSEACTIVATE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

ComboHits::ComboHits(COVOComboBox& combo, std::function<void(int)> taken)
    : m_combo(combo)
    , m_taken(std::move(taken))
{
    m_list.draws = [this](LPDRAWITEMSTRUCT item) { draw(*item); };
    m_list.clicked = [this](int index) {
        if (!isShown()) // the release was on its way when the hits went
            return;
        const auto tell = m_taken; // which may end this object
        tell(itemAt(index));
    };
}

ComboHits::~ComboHits()
{
    ::DestroyWindow(m_hWnd);
}

/// The combo box may have come into another window since.
bool ComboHits::create()
{
    CWnd* const top = m_combo.GetAncestor(GA_ROOT);
    if (m_hWnd && top && top->m_hWnd == m_top)
        return true;
    DestroyWindow();
    const LPCTSTR windowClass = frame::arrowClass(CS_DROPSHADOW, reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    if (!top || !frame::createPopup(*this, windowClass, *top, WS_BORDER))
        return false;
    ModifyStyleEx(0, m_combo.GetExStyle() & WS_EX_LAYOUTRTL); // the list inherits it
    m_top = top->m_hWnd;
    frame::setSubclass(m_top, &topProcedure, reinterpret_cast<UINT_PTR>(this),
                       reinterpret_cast<DWORD_PTR>(this));
    if (m_list.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_OWNERDRAWFIXED | LBS_NODATA |
                          LBS_NOINTEGRALHEIGHT,
                      CRect(), this, kListId))
        return true;
    DestroyWindow(); // to be tried again
    return false;
}

void ComboHits::OnDestroy()
{
    frame::removeSubclass(m_top, &topProcedure, reinterpret_cast<UINT_PTR>(this));
    CWnd::OnDestroy();
}

LRESULT CALLBACK ComboHits::topProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                         DWORD_PTR hits)
{
    if (message == WM_MOVE || message == WM_SIZE)
        reinterpret_cast<ComboHits*>(hits)->hide();
    return frame::nextProcedure(window, message, wParam, lParam);
}

/// The list asks it, too.
int ComboHits::OnMouseActivate(CWnd*, UINT, UINT)
{
    return MA_NOACTIVATE;
}

void ComboHits::show(std::vector<int> items, const std::wstring& foldedPart)
{
    m_items = std::move(items);
    m_part = foldedPart;
    const bool isWanted = !m_items.empty() && create();
    // Also while nothing is to be shown: others can show the window.
    if (m_list.m_hWnd)
        m_list.SendMessage(LB_SETCOUNT, static_cast<WPARAM>(count()), 0);
    if (!isWanted) {
        hide();
        return;
    }
    m_list.SetFont(m_combo.GetFont(), FALSE);
    m_list.SetItemHeight(0, static_cast<UINT>(m_combo.listItemHeight()));
    m_list.SetCurSel(-1);
    place();
    m_list.Invalidate();
}

void ComboHits::place()
{
    CRect field;
    m_combo.GetWindowRect(&field);
    CRect room(0, 0, 0, m_list.GetItemHeight(0) * std::min(count(), kMostRows));
    ::AdjustWindowRectEx(&room, GetStyle(), FALSE, GetExStyle());
    const CRect wanted = toRect(placeBeside(toBox(field), toBox(GetWorkArea(field)), room.Height()));
    SetWindowPos(&wndTopMost, wanted.left, wanted.top, wanted.Width(), wanted.Height(),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    CRect client;
    GetClientRect(&client);
    m_list.MoveWindow(&client);
}

void ComboHits::hide()
{
    if (isShown())
        ShowWindow(SW_HIDE);
}

bool ComboHits::isShown() const
{
    return m_hWnd && IsWindowVisible();
}

void ComboHits::repaint()
{
    if (isShown())
        m_list.Invalidate(FALSE);
}

void ComboHits::select(int index)
{
    m_list.SetCurSel(index);
}

int ComboHits::page() const
{
    CRect client;
    m_list.GetClientRect(&client);
    return client.Height() / std::max(1, m_list.GetItemHeight(0));
}

void ComboHits::draw(const DRAWITEMSTRUCT& item)
{
    if (item.itemID < m_items.size())
        m_combo.drawListItem(item, itemAt(static_cast<int>(item.itemID)), m_part);
}

} // namespace ovoui::lists
