// CControlBar: style, layout, messages. Its painting is in controlbarpaint.cpp.
#include <afxext.h>
#include <afxpriv.h>

#include "bararea.h"
#include "bardrag.h"
#include "dockmemory.h"

#include <utility>

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    // life
    ON_WM_CREATE()
    ON_WM_DESTROY()
    // layout, painting, updates
    ON_WM_PAINT()
    ON_WM_TIMER() // prompts, in controlbartips.cpp
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_CLOSE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
    ON_MESSAGE(WM_INITIALUPDATE, &CControlBar::OnInitialUpdate)
    ON_MESSAGE(WM_HELPHITTEST, &CControlBar::OnHelpHitTest)
    // about the bar's controls
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DELETEITEM()
    ON_WM_COMPAREITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_CHARTOITEM()
END_MESSAGE_MAP()

using afxdetail::Area;
using afxdetail::Side;

namespace
{

bool isKey(UINT message)
{
    return message >= WM_KEYFIRST && message <= WM_KEYLAST;
}

/// Whether a tooltip that asked for its text was given one.
bool hasText(const NMTTDISPINFOW& tip)
{
    const bool pointsElsewhere = tip.lpszText && tip.lpszText != tip.szText;
    return pointsElsewhere || tip.szText[0] != 0;
}

} // namespace

CControlBar::CControlBar() = default;

CControlBar::~CControlBar()
{
    if (m_hWnd)
        ::DestroyWindow(m_hWnd); // not by the member: no exception may leave a destructor
    // A derived class may have kept WM_DESTROY to itself.
    if (m_pDockBar)
        m_pDockBar->release(*this);
    if (m_pDockSite)
        m_pDockSite->removeControlBar(this);
}

// Style, borders, state

void CControlBar::SetBarStyle(DWORD style)
{
    if (m_dwStyle == style)
        return;
    m_dwStyle = style;
    followTipStyle();
    if (m_hWnd)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_FRAMECHANGED | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CControlBar::SetBorders(int left, int top, int right, int bottom)
{
    m_cxLeftBorder = left;
    m_cyTopBorder = top;
    m_cxRightBorder = right;
    m_cyBottomBorder = bottom;
}

void CControlBar::SetBorders(LPCRECT borders)
{
    SetBorders(borders->left, borders->top, borders->right, borders->bottom);
}

void CControlBar::EnableDocking(DWORD dockStyle)
{
    m_dwDockStyle = dockStyle & (CBRS_ALIGN_ANY | CBRS_FLOAT_MULTI);
    m_dockingEnabled = true;
}

/// Whether its user can drag it: docking was enabled, and it was docked or made to float.
bool CControlBar::isDockable() const
{
    return m_dockingEnabled && m_pDockBar;
}

void CControlBar::SetInPlaceOwner(CWnd* owner)
{
    m_pInPlaceOwner = owner;
    if (m_pDockSite)
        m_pDockSite->hideBarsInPlace();
}

BOOL CControlBar::IsVisible() const
{
    if (!m_hWnd || m_pending == Pending::Hide)
        return FALSE;
    return m_pending == Pending::Show || (GetStyle() & WS_VISIBLE) != 0;
}

void CControlBar::delayShow(bool show)
{
    const bool shown = (GetStyle() & WS_VISIBLE) != 0;
    m_pending = shown == show ? Pending::Nothing : show ? Pending::Show : Pending::Hide;
}

void CControlBar::applyPending()
{
    const Pending pending = std::exchange(m_pending, Pending::Nothing);
    if (m_hWnd && pending != Pending::Nothing)
        ShowWindow(pending == Pending::Show ? SW_SHOWNA : SW_HIDE);
}

// Life

BOOL CControlBar::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    cs.style |= WS_CLIPSIBLINGS;
    return CWnd::PreCreateWindow(cs);
}

int CControlBar::OnCreate(LPCREATESTRUCT cs)
{
    if (CWnd::OnCreate(cs) == -1)
        return -1;
    m_pDockSite = GetParentFrame();
    if (m_pDockSite) {
        m_pDockSite->addControlBar(this);
        SetOwner(m_pDockSite);
    }
    return 0;
}

void CControlBar::OnDestroy()
{
    forgetPrompt();
    if (m_pDockBar)
        m_pDockBar->release(*this);
    if (m_pDockSite)
        std::exchange(m_pDockSite, nullptr)->removeControlBar(this);
    CWnd::OnDestroy();
}

void CControlBar::PostNcDestroy()
{
    if (m_bAutoDelete)
        delete this;
}

// Layout

CSize CControlBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    return CSize(stretch && horizontal ? 32767 : 0, stretch && !horizontal ? 32767 : 0);
}

CSize CControlBar::CalcDynamicLayout(int, DWORD mode)
{
    return CalcFixedLayout((mode & LM_STRETCH) != 0, (mode & LM_HORZ) != 0);
}

/// Takes the bar's strip off the frame's free area.
LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam)
{
    auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    if (!IsVisible() || !(m_dwStyle & CBRS_ALIGN_ANY))
        return 0;

    const Side side = afxdetail::sideOf(m_dwStyle);
    const DWORD direction = isHorizontal(side) ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK;
    const HWND wnd = m_hWnd;
    const CSize size = CalcDynamicLayout(-1, direction | (layout.bStretch ? LM_STRETCH : 0));
    if (FromHandlePermanent(wnd) != this)
        return 0;

    Area free = afxdetail::areaOf(layout.rect);
    afxdetail::Extent total = afxdetail::extentOf(layout.sizeTotal);
    const Area place = afxdetail::takeStrip(free, afxdetail::extentOf(size), side);
    afxdetail::addToTotal(total, place, side);
    layout.rect = afxdetail::rectOf(free);
    layout.sizeTotal = CSize(total.width, total.height);
    if (layout.hDWP)
        AfxRepositionWindow(&layout, m_hWnd, afxdetail::rectOf(place));
    return 0;
}

/// A bar that was shown or hidden in another way than by the frame: its room is taken or given back when
/// there is time.
void CControlBar::OnWindowPosChanged(WINDOWPOS* place)
{
    CWnd::OnWindowPosChanged(place);
    if (m_pDockSite && !m_pDockSite->m_layingOut && (place->flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW)))
        m_pDockSite->m_layoutPending = true;
}

void CControlBar::OnClose()
{
    if (m_pDockSite)
        m_pDockSite->ShowControlBar(this, FALSE, FALSE);
    else
        ShowWindow(SW_HIDE);
}

// Dragging

void CControlBar::OnLButtonDown(UINT flags, CPoint point)
{
    if (!isDockable()) {
        CWnd::OnLButtonDown(flags, point);
        return;
    }
    ClientToScreen(&point);
    afxdetail::BarDrag(*this, *this, point).run();
}

void CControlBar::OnLButtonDblClk(UINT flags, CPoint point)
{
    if (isDockable())
        afxdetail::BarDrag::toggle(*this);
    else
        CWnd::OnLButtonDblClk(flags, point);
}

// Updates

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM disableIfNoHandler, LPARAM)
{
    if (!IsVisible())
        return 0;
    CWnd* owner = GetOwner();
    if (!owner)
        owner = GetParentFrame();
    // The owner need not be a frame: it is only asked as a command target.
    if (owner)
        OnUpdateCmdUI(static_cast<CFrameWnd*>(owner), static_cast<BOOL>(disableIfNoHandler));
    return 0;
}

LRESULT CControlBar::OnInitialUpdate(WPARAM, LPARAM)
{
    return OnIdleUpdateCmdUI(TRUE, 0);
}

// Messages of the bar's controls

LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_NOTIFY && message != WM_COMMAND)
        return CWnd::WindowProc(message, wParam, lParam);
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result))
        return result;
    if (message == WM_COMMAND || !lParam)
        return sendToOwner();
    return notifyOwner(*reinterpret_cast<NMHDR*>(lParam));
}

LRESULT CControlBar::sendToOwner()
{
    const MSG message = *GetCurrentMessage();
    const CWnd* owner = GetOwner();
    return owner && owner != this ? owner->SendMessage(message.message, message.wParam, message.lParam)
                                  : Default();
}

LRESULT CControlBar::notifyOwner(const NMHDR& header)
{
    const LRESULT result = sendToOwner();
    if (header.code != TTN_GETDISPINFOW)
        return result;
    // The control may know a text where the owner has none.
    return hasText(reinterpret_cast<const NMTTDISPINFOW&>(header)) ? result : Default();
}

/// Offers the message being handled to the control that it is about, then to the owner.
LRESULT CControlBar::offer(HWND control)
{
    LRESULT result = 0;
    return ReflectLastMsg(control, &result) ? result : sendToOwner();
}

void CControlBar::OnDrawItem(int, LPDRAWITEMSTRUCT item)
{
    offer(item->hwndItem);
}

void CControlBar::OnMeasureItem(int id, LPMEASUREITEMSTRUCT)
{
    offer(GetDescendantWindow(id, TRUE)->GetSafeHwnd());
}

void CControlBar::OnDeleteItem(int, LPDELETEITEMSTRUCT item)
{
    offer(item->hwndItem);
}

int CControlBar::OnCompareItem(int, LPCOMPAREITEMSTRUCT item)
{
    return static_cast<int>(offer(item->hwndItem));
}

int CControlBar::OnVKeyToItem(UINT, CListBox* box, UINT)
{
    return static_cast<int>(offer(reinterpret_cast<CWnd*>(box)->GetSafeHwnd()));
}

int CControlBar::OnCharToItem(UINT, CListBox* box, UINT)
{
    return static_cast<int>(offer(reinterpret_cast<CWnd*>(box)->GetSafeHwnd()));
}

BOOL CControlBar::PreTranslateMessage(MSG* message)
{
    const HWND wnd = m_hWnd;
    followTipStyle();
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    if (!FromHandlePermanent(wnd)) // a host that was asked for the text of a tip has destroyed the bar
        return FALSE;
    if (message->message == WM_MOUSEMOVE)
        followPointer();
    if (!isKey(message->message) || !::GetTopWindow(m_hWnd))
        return FALSE;
    // The dialog keys take every key message: what the frames above want of them must come first.
    for (CWnd* owner = GetOwner(); owner; owner = owner->GetParentFrame())
        if (owner->PreTranslateMessage(message))
            return TRUE;
    return IsDialogMessage(message);
}
