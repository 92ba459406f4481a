#include <afxext.h>

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_MESSAGE(WM_SETTEXT, OnSetText)
END_MESSAGE_MAP()

namespace
{

constexpr int kPaneGap = 10; // room beside an indicator's text

int textWidth(CWnd& wnd, const CString& text)
{
    CClientDC dc(&wnd);
    CFont* const old = dc.SelectObject(wnd.GetFont());
    const int width = dc.GetTextExtent(text).cx;
    dc.SelectObject(old);
    return width;
}

/// Shows an indicator pane's command: its text is shown while the command is enabled.
class StatusCmdUI : public CCmdUI
{
public:
    void Enable(BOOL on) override
    {
        m_bEnableChanged = TRUE;
        auto& bar = *static_cast<CStatusBar*>(m_pOther);
        const int index = static_cast<int>(m_nIndex);
        const UINT style = bar.GetPaneStyle(index) & ~static_cast<UINT>(SBPS_DISABLED);
        bar.SetPaneStyle(index, on ? style : style | SBPS_DISABLED);
    }
    void SetCheck(int) override {}
    void SetText(LPCTSTR text) override
    {
        static_cast<CStatusBar*>(m_pOther)->SetPaneText(static_cast<int>(m_nIndex), text);
    }
};

/// The key that an indicator of the framework shows the state of; 0 for other panes.
int lockKey(UINT id)
{
    switch (id) {
    case ID_INDICATOR_CAPS:
        return VK_CAPITAL;
    case ID_INDICATOR_NUM:
        return VK_NUMLOCK;
    case ID_INDICATOR_SCRL:
        return VK_SCROLL;
    default:
        return 0;
    }
}

} // namespace

CStatusBar::CStatusBar() = default;

CStatusBar::~CStatusBar()
{
    if (m_hWnd)
        DestroyWindow();
}

BOOL CStatusBar::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style |= CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;
    return CControlBar::PreCreateWindow(cs);
}

BOOL CStatusBar::Create(CWnd* parent, DWORD style, UINT id)
{
    takeStyle(style);
    const CWnd* frame = parent->GetTopLevelParent();
    const DWORD grip = frame && (frame->GetStyle() & WS_THICKFRAME) ? SBARS_SIZEGRIP : 0;
    const DWORD window = (style & ~static_cast<DWORD>(CBRS_ALL)) | WS_CHILD | grip;
    return CreateEx(0, STATUSCLASSNAMEW, nullptr, window, CRect(0, 0, 0, 0), parent, id);
}

BOOL CStatusBar::SetIndicators(const UINT* ids, int count)
{
    m_panes.clear();
    m_nCount = count;
    for (int i = 0; i < count; ++i) {
        Pane pane{ids ? ids[i] : 0, 0, 0, CString()};
        if (pane.id != 0) {
            if (!pane.text.LoadString(pane.id))
                return FALSE;
            pane.width = textWidth(*this, pane.text);
            pane.style = lockKey(pane.id) ? SBPS_DISABLED : SBPS_NORMAL;
        } else if (i == 0) {
            pane.style = SBPS_STRETCH | SBPS_NOBORDERS;
        }
        m_panes.push_back(pane);
    }
    layOutPanes();
    for (int i = 0; i < count; ++i)
        show(i);
    return TRUE;
}

/// Tells the control where each pane ends: the stretched one takes what the others leave.
void CStatusBar::layOutPanes()
{
    if (m_panes.empty())
        return;
    CRect client;
    GetClientRect(&client);
    int fixed = (GetStyle() & SBARS_SIZEGRIP) ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    int stretched = 0;
    for (const Pane& pane : m_panes) {
        if (pane.style & SBPS_STRETCH)
            ++stretched;
        else
            fixed += pane.width + kPaneGap;
    }
    const int share = stretched ? std::max(0, client.Width() - fixed) / stretched : 0;
    std::vector<int> ends;
    int right = 0;
    for (const Pane& pane : m_panes) {
        right += (pane.style & SBPS_STRETCH) ? share : pane.width + kPaneGap;
        ends.push_back(right);
    }
    SendMessage(SB_SETPARTS, ends.size(), reinterpret_cast<LPARAM>(ends.data()));
}

void CStatusBar::show(int index)
{
    const Pane& pane = m_panes[static_cast<std::size_t>(index)];
    const UINT type = pane.style & (SBT_NOBORDERS | SBT_POPOUT | SBT_OWNERDRAW);
    const LPCTSTR text = (pane.style & SBPS_DISABLED) ? L"" : pane.text.GetString();
    DefWindowProc(SB_SETTEXTW, static_cast<WPARAM>(index) | type, reinterpret_cast<LPARAM>(text));
}

int CStatusBar::CommandToIndex(UINT id) const
{
    for (std::size_t i = 0; i < m_panes.size(); ++i)
        if (m_panes[i].id == id)
            return static_cast<int>(i);
    return -1;
}

UINT CStatusBar::GetItemID(int index) const
{
    return m_panes.at(static_cast<std::size_t>(index)).id;
}

void CStatusBar::GetItemRect(int index, LPRECT rect) const
{
    if (!SendMessage(SB_GETRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)))
        ::SetRectEmpty(rect);
}

void CStatusBar::GetPaneText(int index, CString& text) const
{
    text = m_panes.at(static_cast<std::size_t>(index)).text;
}

CString CStatusBar::GetPaneText(int index) const
{
    return m_panes.at(static_cast<std::size_t>(index)).text;
}

BOOL CStatusBar::SetPaneText(int index, LPCTSTR text, BOOL update)
{
    if (index < 0 || index >= static_cast<int>(m_panes.size()))
        return FALSE;
    Pane& pane = m_panes[static_cast<std::size_t>(index)];
    if (pane.text == text)
        return TRUE;
    pane.text = text;
    if (update)
        show(index);
    return TRUE;
}

void CStatusBar::GetPaneInfo(int index, UINT& id, UINT& style, int& width) const
{
    const Pane& pane = m_panes.at(static_cast<std::size_t>(index));
    id = pane.id;
    style = pane.style;
    width = pane.width;
}

void CStatusBar::SetPaneInfo(int index, UINT id, UINT style, int width)
{
    Pane& pane = m_panes.at(static_cast<std::size_t>(index));
    pane.id = id;
    pane.style = style;
    pane.width = width;
    layOutPanes();
    show(index);
}

UINT CStatusBar::GetPaneStyle(int index) const
{
    return m_panes.at(static_cast<std::size_t>(index)).style;
}

void CStatusBar::SetPaneStyle(int index, UINT style)
{
    Pane& pane = m_panes.at(static_cast<std::size_t>(index));
    if (pane.style == style)
        return;
    pane.style = style;
    show(index);
}

CStatusBarCtrl& CStatusBar::GetStatusBarCtrl() const
{
    // The bar's window is the control; the wrapper adds members only.
    return *reinterpret_cast<CStatusBarCtrl*>(const_cast<CStatusBar*>(this));
}

CSize CStatusBar::CalcFixedLayout(BOOL, BOOL horizontal)
{
    CClientDC dc(const_cast<CStatusBar*>(this));
    CFont* const old = dc.SelectObject(GetFont());
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(old);
    const int edges = 2 * (::GetSystemMetrics(SM_CYBORDER) * 2 + 1) + 2;
    return horizontal ? CSize(32767, metrics.tmHeight + edges) : CSize(metrics.tmHeight + edges, 32767);
}

void CStatusBar::OnUpdateCmdUI(CFrameWnd* target, BOOL)
{
    for (std::size_t i = 0; i < m_panes.size(); ++i) {
        const int index = static_cast<int>(i);
        StatusCmdUI ui;
        ui.m_pOther = this;
        ui.m_nIndex = static_cast<UINT>(i);
        ui.m_nIndexMax = static_cast<UINT>(m_panes.size());
        ui.m_nID = m_panes[i].id;
        if (const int key = lockKey(ui.m_nID)) {
            ui.Enable((::GetKeyState(key) & 1) != 0);
            continue;
        }
        if (CWnd::OnCmdMsg(ui.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &ui, nullptr))
            continue;
        if (index > 0)
            ui.DoUpdate(target, FALSE);
    }
}

void CStatusBar::OnSize(UINT type, int cx, int cy)
{
    CControlBar::OnSize(type, cx, cy);
    layOutPanes();
}

void CStatusBar::OnPaint()
{
    Default();
}

/// The bar's window text is its first pane.
LRESULT CStatusBar::OnSetText(WPARAM, LPARAM text)
{
    return SetPaneText(0, reinterpret_cast<LPCTSTR>(text)) ? 0 : -1;
}
