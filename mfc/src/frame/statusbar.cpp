#include <afxext.h>

#include "core/panelayout.h"

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_MESSAGE(WM_SETTEXT, &CStatusBar::OnSetText)
END_MESSAGE_MAP()

namespace
{

constexpr int kPaneMargin = 10; // room beside an indicator's text
constexpr UINT kDrawTypes = SBT_NOBORDERS | SBT_POPOUT | SBT_OWNERDRAW;

int textWidth(CWnd& wnd, const CString& text)
{
    CClientDC dc(&wnd);
    CFont* const old = dc.SelectObject(wnd.GetFont());
    const int width = dc.GetTextExtent(text).cx;
    dc.SelectObject(old);
    return width;
}

bool isLockKey(UINT id)
{
    return id == ID_INDICATOR_CAPS || id == ID_INDICATOR_NUM || id == ID_INDICATOR_SCRL;
}

/// Shows a command in a pane. A handler may have destroyed the bar, or left it fewer panes.
class StatusCmdUI : public CCmdUI
{
public:
    explicit StatusCmdUI(CStatusBar& bar)
        : m_bar(bar.m_hWnd)
    {
        m_pOther = &bar;
    }

    bool isPaneThere() const
    {
        return CWnd::FromHandlePermanent(m_bar) == m_pOther && static_cast<int>(m_nIndex) < bar().GetCount();
    }

    void Enable(BOOL on) override
    {
        m_bEnableChanged = TRUE;
        setStyle(SBPS_DISABLED, !on);
    }
    void SetCheck(int check) override { setStyle(SBPS_POPOUT, check != 0); }
    void SetText(LPCTSTR text) override
    {
        if (isPaneThere())
            bar().SetPaneText(static_cast<int>(m_nIndex), text);
    }

private:
    CStatusBar& bar() const { return *static_cast<CStatusBar*>(m_pOther); }

    void setStyle(UINT bit, bool on)
    {
        if (!isPaneThere())
            return;
        const int index = static_cast<int>(m_nIndex);
        const UINT style = bar().GetPaneStyle(index) & ~bit;
        bar().SetPaneStyle(index, on ? style | bit : style);
    }

    const HWND m_bar;
};

} // namespace

CStatusBar::CStatusBar() = default;

CStatusBar::~CStatusBar() = default;

BOOL CStatusBar::Create(CWnd* parent, DWORD style, UINT id)
{
    // Where the bar's corner is the frame's corner, one can take hold of it.
    const CWnd* top = parent->GetTopLevelParent();
    const bool sizable = top && (top->GetStyle() & WS_THICKFRAME);
    return CreateEx(parent, sizable ? SBARS_SIZEGRIP : 0, style, id);
}

BOOL CStatusBar::CreateEx(CWnd* parent, DWORD controlStyle, DWORD style, UINT id)
{
    m_dwStyle = style & CBRS_ALL;
    // The frame's layout places the bar, not the control itself.
    constexpr DWORD kPlacedFromOutside = CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;
    const DWORD wndStyle =
        (style & ~static_cast<DWORD>(CBRS_ALL)) | controlStyle | kPlacedFromOutside | WS_CHILD;
    return CWnd::CreateEx(0, STATUSCLASSNAMEW, nullptr, wndStyle, CRect(0, 0, 0, 0), parent, id);
}

// Panes

BOOL CStatusBar::SetIndicators(const UINT* ids, int count)
{
    std::vector<Pane> panes;
    for (int i = 0; i < count; ++i) {
        Pane pane{ids ? ids[i] : 0, 0, SBPS_NORMAL, CString(), false};
        if (pane.id != ID_SEPARATOR) {
            if (!pane.text.LoadString(pane.id))
                return FALSE;
            pane.width = textWidth(*this, pane.text);
        }
        if (i == 0)
            pane.style = SBPS_STRETCH | SBPS_NOBORDERS;
        else if (isLockKey(pane.id)) // shown once the key is known to be on
            pane.style = SBPS_DISABLED;
        panes.push_back(pane);
    }
    m_panes = std::move(panes);
    m_nCount = count;
    layOutPanes();
    for (int i = 0; i < count; ++i)
        show(i);
    return TRUE;
}

/// Tells the control where each pane ends.
void CStatusBar::layOutPanes()
{
    if (m_panes.empty())
        return;
    std::vector<afxdetail::PaneExtent> extents;
    for (const Pane& pane : m_panes)
        extents.push_back({pane.width, (pane.style & SBPS_STRETCH) != 0});
    CRect client;
    GetClientRect(&client);
    const int grip = (GetStyle() & SBARS_SIZEGRIP) ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    const std::vector<int> ends = afxdetail::paneEnds(extents, client.Width() - grip, kPaneMargin);
    SendMessage(SB_SETPARTS, ends.size(), reinterpret_cast<LPARAM>(ends.data()));
}

void CStatusBar::show(int index)
{
    Pane& shown = pane(index);
    shown.stale = false;
    const LPCTSTR text = (shown.style & SBPS_DISABLED) ? L"" : shown.text.GetString();
    SendMessage(SB_SETTEXTW, static_cast<WPARAM>(index) | (shown.style & kDrawTypes),
                reinterpret_cast<LPARAM>(text));
}

CStatusBar::Pane& CStatusBar::pane(int index)
{
    if (index < 0 || index >= static_cast<int>(m_panes.size()))
        AfxThrowInvalidArgException();
    return m_panes[static_cast<std::size_t>(index)];
}

const CStatusBar::Pane& CStatusBar::pane(int index) const
{
    return const_cast<CStatusBar*>(this)->pane(index);
}

int CStatusBar::CommandToIndex(UINT id) const
{
    const auto found =
        std::find_if(m_panes.begin(), m_panes.end(), [id](const Pane& pane) { return pane.id == id; });
    return found == m_panes.end() ? -1 : static_cast<int>(found - m_panes.begin());
}

UINT CStatusBar::GetItemID(int index) const
{
    return pane(index).id;
}

void CStatusBar::GetItemRect(int index, LPRECT rect) const
{
    if (!SendMessage(SB_GETRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)))
        ::SetRectEmpty(rect);
}

CString CStatusBar::GetPaneText(int index) const
{
    return pane(index).text;
}

void CStatusBar::GetPaneText(int index, CString& text) const
{
    text = pane(index).text;
}

BOOL CStatusBar::SetPaneText(int index, LPCTSTR text, BOOL update)
{
    if (index < 0 || index >= static_cast<int>(m_panes.size()))
        return FALSE;
    Pane& changed = pane(index);
    if (changed.text != text) {
        changed.text = text;
        changed.stale = true;
    }
    if (update && changed.stale)
        show(index);
    return TRUE;
}

void CStatusBar::GetPaneInfo(int index, UINT& id, UINT& style, int& width) const
{
    const Pane& asked = pane(index);
    id = asked.id;
    style = asked.style;
    width = asked.width;
}

void CStatusBar::SetPaneInfo(int index, UINT id, UINT style, int width)
{
    Pane& changed = pane(index);
    changed.id = id;
    changed.style = style;
    changed.width = width;
    layOutPanes();
    show(index);
}

UINT CStatusBar::GetPaneStyle(int index) const
{
    return pane(index).style;
}

void CStatusBar::SetPaneStyle(int index, UINT style)
{
    Pane& changed = pane(index);
    const UINT different = changed.style ^ style;
    if (!different)
        return;
    changed.style = style;
    if (different & SBPS_STRETCH)
        layOutPanes();
    show(index);
}

CStatusBarCtrl& CStatusBar::GetStatusBarCtrl() const
{
    m_control.m_hWnd = m_hWnd;
    return m_control;
}

// Layout

CSize CStatusBar::CalcFixedLayout(BOOL, BOOL horizontal)
{
    CClientDC dc(this);
    CFont* const old = dc.SelectObject(GetFont());
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(old);
    const int edges = 2 * (::GetSystemMetrics(SM_CYBORDER) * 2 + 1) + 2;
    const int thickness = metrics.tmHeight + edges;
    return horizontal ? CSize(32767, thickness) : CSize(thickness, 32767);
}

void CStatusBar::OnSize(UINT type, int cx, int cy)
{
    CControlBar::OnSize(type, cx, cy);
    layOutPanes();
}

// Updates, painting, text

void CStatusBar::OnUpdateCmdUI(CFrameWnd* target, BOOL)
{
    StatusCmdUI ui(*this);
    ui.m_nIndexMax = static_cast<UINT>(m_panes.size());
    for (ui.m_nIndex = 0; ui.isPaneThere(); ++ui.m_nIndex) {
        const int index = static_cast<int>(ui.m_nIndex);
        ui.m_nID = pane(index).id;
        const bool handledHere =
            ui.m_nID != ID_SEPARATOR &&
            CWnd::OnCmdMsg(ui.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &ui, nullptr);
        if (!handledHere && ui.isPaneThere())
            ui.DoUpdate(target, FALSE);
        if (!ui.isPaneThere())
            return;
        if (pane(index).stale)
            show(index);
    }
}

/// The control paints itself; a frame's other bars paint lines and a gripper.
void CStatusBar::OnPaint()
{
    Default();
}

/// The bar's window text is its first pane.
LRESULT CStatusBar::OnSetText(WPARAM, LPARAM text)
{
    return SetPaneText(0, reinterpret_cast<LPCTSTR>(text)) ? TRUE : Default();
}

BOOL CStatusBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CControlBar::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CStatusBar::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // a bar with owner-drawn panes overrides this
}
