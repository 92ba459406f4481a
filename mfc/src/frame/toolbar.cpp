// CToolBar: its buttons, their updates, its window. Layout and pictures have files of their own.
#include <afxext.h>

#include <utility>

IMPLEMENT_DYNAMIC(CToolBar, CControlBar)

BEGIN_MESSAGE_MAP(CToolBar, CControlBar)
    // lines, gripper and borders lie around the control
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_NCHITTEST()
    // the control paints itself
    ON_WM_PAINT()
    ON_WM_SYSCOLORCHANGE()
    // beside the buttons it can be dragged
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

namespace
{

constexpr int kSeparatorWidth = 8;

/// Shows a command as a button. A handler may have destroyed the bar, or deleted the button.
class ToolCmdUI : public CCmdUI
{
public:
    explicit ToolCmdUI(CToolBar& bar)
        : m_bar(bar.m_hWnd)
    {
        m_pOther = &bar;
    }

    bool isBarThere() const { return CWnd::FromHandlePermanent(m_bar) == m_pOther; }
    /// False when there is no such button.
    bool readButton(TBBUTTON& button) const
    {
        return ::SendMessageW(m_bar, TB_GETBUTTON, m_nIndex, reinterpret_cast<LPARAM>(&button)) != 0;
    }

    void Enable(BOOL on) override
    {
        m_bEnableChanged = TRUE;
        setStyle(on ? 0 : TBBS_DISABLED, TBBS_DISABLED);
    }
    void SetCheck(int check) override
    {
        const UINT state = check == 2 ? TBBS_INDETERMINATE : check ? TBBS_CHECKED : 0;
        setStyle(state | TBBS_CHECKBOX, TBBS_CHECKED | TBBS_INDETERMINATE | TBBS_CHECKBOX);
    }
    void SetText(LPCTSTR) override {}

private:
    void setStyle(UINT bits, UINT among)
    {
        TBBUTTON present{};
        if (!isBarThere() || !readButton(present))
            return;
        auto& bar = *static_cast<CToolBar*>(m_pOther);
        const int index = static_cast<int>(m_nIndex);
        bar.SetButtonStyle(index, (bar.GetButtonStyle(index) & ~among) | bits);
    }

    const HWND m_bar;
};

bool isSeparator(UINT style)
{
    return (style & TBSTYLE_SEP) != 0;
}

/// The button at a client point; -1 where there is none. The control answers 0 for a separator that is the
/// first item, and where the first item is the nearest.
int buttonAt(const CToolBar& bar, CPoint point)
{
    CPoint asked(point);
    const int index = bar.GetToolBarCtrl().HitTest(&asked);
    if (index < 0)
        return -1;
    CRect rect;
    bar.GetItemRect(index, &rect);
    return rect.PtInRect(point) && !isSeparator(bar.GetButtonStyle(index)) ? index : -1;
}

} // namespace

CToolBar::CToolBar() = default;

CToolBar::~CToolBar()
{
    // The control draws with the bitmap: it must go first. Not by the member: no exception may leave a
    // destructor.
    if (m_hWnd)
        ::DestroyWindow(m_hWnd);
    ::DeleteObject(m_bitmap);
}

BOOL CToolBar::Create(CWnd* parent, DWORD style, UINT id)
{
    return CreateEx(parent, 0, style, GetBorders(), id);
}

BOOL CToolBar::CreateEx(CWnd* parent, DWORD controlStyle, DWORD style, CRect borders, UINT id)
{
    ::DeleteObject(std::exchange(m_bitmap, nullptr)); // of a window before
    SetBorders(borders);
    m_dwStyle = style & CBRS_ALL;
    // The frame's layout places the bar, not the control itself.
    constexpr DWORD kPlacedFromOutside = CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;
    const DWORD wndStyle =
        (style & ~static_cast<DWORD>(CBRS_ALL)) | controlStyle | kPlacedFromOutside | WS_CHILD;
    if (!CWnd::CreateEx(0, TOOLBARCLASSNAMEW, nullptr, wndStyle, CRect(0, 0, 0, 0), parent, id))
        return FALSE;
    SendMessage(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    SetSizes(m_sizeButton, m_sizeImage);
    return TRUE;
}

CToolBarCtrl& CToolBar::GetToolBarCtrl() const
{
    m_control.m_hWnd = m_hWnd;
    return m_control;
}

// Buttons

BOOL CToolBar::SetButtons(const UINT* ids, int count)
{
    while (SendMessage(TB_DELETEBUTTON, 0)) {
    }
    int image = 0;
    for (int i = 0; i < count; ++i) {
        TBBUTTON button{};
        button.fsState = TBSTATE_ENABLED;
        button.iString = -1;
        button.idCommand = ids ? static_cast<int>(ids[i]) : 0;
        const bool separates = ids && ids[i] == ID_SEPARATOR;
        button.fsStyle = separates ? TBSTYLE_SEP : TBSTYLE_BUTTON;
        button.iBitmap = separates ? kSeparatorWidth : ids ? image++ : 0;
        if (!SendMessage(TB_INSERTBUTTON, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&button)))
            return FALSE;
    }
    m_nCount = count;
    return TRUE;
}

TBBUTTON CToolBar::button(int index) const
{
    TBBUTTON button{};
    if (!SendMessage(TB_GETBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&button)))
        AfxThrowInvalidArgException();
    return button;
}

void CToolBar::setButton(int index, const TBBUTTON& wanted)
{
    const TBBUTTON before = button(index);
    TBBUTTONINFO info{};
    info.cbSize = sizeof info;
    if (before.idCommand != wanted.idCommand)
        info.dwMask |= TBIF_COMMAND;
    if (before.iBitmap != wanted.iBitmap)
        info.dwMask |= isSeparator(wanted.fsStyle) ? TBIF_SIZE | TBIF_IMAGE : TBIF_IMAGE;
    if (before.fsState != wanted.fsState)
        info.dwMask |= TBIF_STATE;
    if (before.fsStyle != wanted.fsStyle)
        info.dwMask |= TBIF_STYLE;
    if (!info.dwMask)
        return; // nothing to paint anew
    info.dwMask |= TBIF_BYINDEX;
    info.idCommand = wanted.idCommand;
    info.iImage = wanted.iBitmap;
    info.cx = static_cast<WORD>(wanted.iBitmap);
    info.fsState = wanted.fsState;
    info.fsStyle = wanted.fsStyle;
    SendMessage(TB_SETBUTTONINFO, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&info));
}

int CToolBar::CommandToIndex(UINT id) const
{
    return static_cast<int>(SendMessage(TB_COMMANDTOINDEX, id));
}

UINT CToolBar::GetItemID(int index) const
{
    const TBBUTTON asked = button(index);
    return isSeparator(asked.fsStyle) ? ID_SEPARATOR : static_cast<UINT>(asked.idCommand);
}

void CToolBar::GetItemRect(int index, LPRECT rect) const
{
    if (!SendMessage(TB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)))
        ::SetRectEmpty(rect);
}

UINT CToolBar::GetButtonStyle(int index) const
{
    const TBBUTTON asked = button(index);
    return static_cast<UINT>(MAKELONG(asked.fsStyle, asked.fsState ^ TBSTATE_ENABLED));
}

void CToolBar::SetButtonStyle(int index, UINT style)
{
    TBBUTTON changed = button(index);
    changed.fsStyle = static_cast<BYTE>(LOWORD(style));
    changed.fsState = static_cast<BYTE>(HIWORD(style) ^ TBSTATE_ENABLED);
    setButton(index, changed);
}

void CToolBar::GetButtonInfo(int index, UINT& id, UINT& style, int& image) const
{
    const TBBUTTON asked = button(index);
    id = static_cast<UINT>(asked.idCommand);
    style = GetButtonStyle(index);
    image = asked.iBitmap;
}

void CToolBar::SetButtonInfo(int index, UINT id, UINT style, int image)
{
    TBBUTTON changed = button(index);
    changed.idCommand = static_cast<int>(id);
    changed.iBitmap = image;
    changed.fsStyle = static_cast<BYTE>(LOWORD(style));
    changed.fsState = static_cast<BYTE>(HIWORD(style) ^ TBSTATE_ENABLED);
    setButton(index, changed);
}

BOOL CToolBar::SetButtonText(int index, LPCTSTR text)
{
    TBBUTTONINFO info{};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_BYINDEX | TBIF_TEXT;
    info.pszText = const_cast<LPTSTR>(text);
    return static_cast<BOOL>(
        SendMessage(TB_SETBUTTONINFO, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&info)));
}

CString CToolBar::GetButtonText(int index) const
{
    CString text;
    GetButtonText(index, text);
    return text;
}

void CToolBar::GetButtonText(int index, CString& text) const
{
    TBBUTTONINFO info{};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_BYINDEX | TBIF_TEXT;
    constexpr int kRoom = 256;
    info.cchText = kRoom;
    info.pszText = text.GetBuffer(kRoom);
    info.pszText[0] = 0;
    SendMessage(TB_GETBUTTONINFO, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&info));
    text.ReleaseBuffer();
}

// Updates and tools

void CToolBar::OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler)
{
    ToolCmdUI ui(*this);
    ui.m_nIndexMax = static_cast<UINT>(SendMessage(TB_BUTTONCOUNT));
    for (ui.m_nIndex = 0; ui.m_nIndex < ui.m_nIndexMax; ++ui.m_nIndex) {
        TBBUTTON shown{};
        if (!ui.readButton(shown))
            break; // a handler has deleted buttons
        if (isSeparator(shown.fsStyle))
            continue;
        ui.m_nID = static_cast<UINT>(shown.idCommand);
        const BOOL done = CWnd::OnCmdMsg(ui.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &ui, nullptr);
        if (!done && ui.isBarThere())
            ui.DoUpdate(target, disableIfNoHandler);
        if (!ui.isBarThere())
            return;
    }
    UpdateDialogControls(target, disableIfNoHandler); // controls that lie in the bar
}

INT_PTR CToolBar::OnToolHitTest(CPoint point, TOOLINFO* info) const
{
    const INT_PTR child = CControlBar::OnToolHitTest(point, info);
    if (child != -1)
        return child;
    const int index = buttonAt(*this, point);
    if (index < 0)
        return -1;
    const UINT id = GetItemID(index);
    if (info && info->cbSize >= TTTOOLINFOW_V1_SIZE) {
        GetItemRect(index, &info->rect);
        info->hwnd = m_hWnd;
        info->uId = id;
        info->lpszText = LPSTR_TEXTCALLBACKW;
    }
    return static_cast<INT_PTR>(id);
}

// Its window

void CToolBar::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* sizes)
{
    calcFrame(*sizes);
}

void CToolBar::OnNcPaint()
{
    paintFrame();
}

/// Lines and gripper are the bar's too: the mouse takes hold of it there.
LRESULT CToolBar::OnNcHitTest(CPoint)
{
    return HTCLIENT;
}

void CToolBar::OnPaint()
{
    Default();
}

bool CToolBar::isOnButton(CPoint point) const
{
    return buttonAt(*this, point) >= 0;
}

void CToolBar::OnLButtonDown(UINT flags, CPoint point)
{
    if (isOnButton(point))
        Default();
    else
        CControlBar::OnLButtonDown(flags, point);
}

void CToolBar::OnLButtonDblClk(UINT flags, CPoint point)
{
    if (isOnButton(point))
        Default();
    else
        CControlBar::OnLButtonDblClk(flags, point);
}
