// CWnd: what happens to messages that nobody else handles.
#include <afxwin.h>

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    // offered to the control that they come from
    ON_WM_CTLCOLOR()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_COMPAREITEM()
    ON_WM_DELETEITEM()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_PARENTNOTIFY()
END_MESSAGE_MAP()

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* control, UINT)
{
    LRESULT brush = 0;
    if (!control || !control->SendChildNotifyLastMsg(&brush))
        brush = Default();
    return reinterpret_cast<HBRUSH>(brush);
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* bar)
{
    if (!bar || !reinterpret_cast<CWnd*>(bar)->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* bar)
{
    if (!bar || !reinterpret_cast<CWnd*>(bar)->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT item)
{
    // A menu's item comes with the menu in place of a control.
    if (item->CtlType == ODT_MENU) {
        CMenu* menu = CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(item->hwndItem));
        if (menu) {
            menu->DrawItem(item);
            return;
        }
    } else if (ReflectLastMsg(item->hwndItem)) {
        return;
    }
    Default();
}

void CWnd::OnMeasureItem(int id, LPMEASUREITEMSTRUCT item)
{
    if (item->CtlType != ODT_MENU) {
        CWnd* control = GetDescendantWindow(id, TRUE);
        if (control && control->SendChildNotifyLastMsg())
            return;
    }
    Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT item)
{
    LRESULT result = 0;
    return static_cast<int>(ReflectLastMsg(item->hwndItem, &result) ? result : Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT item)
{
    if (!ReflectLastMsg(item->hwndItem))
        Default();
}

int CWnd::OnCharToItem(UINT, CListBox* box, UINT)
{
    LRESULT result = 0;
    CWnd* control = reinterpret_cast<CWnd*>(box);
    return static_cast<int>(control && control->SendChildNotifyLastMsg(&result) ? result : Default());
}

int CWnd::OnVKeyToItem(UINT, CListBox* box, UINT)
{
    LRESULT result = 0;
    CWnd* control = reinterpret_cast<CWnd*>(box);
    return static_cast<int>(control && control->SendChildNotifyLastMsg(&result) ? result : Default());
}

void CWnd::OnParentNotify(UINT event, LPARAM lParam)
{
    const UINT what = LOWORD(event);
    if (what != WM_CREATE && what != WM_DESTROY) {
        Default();
        return;
    }
    if (!ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        Default();
}

BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnSettingChange(UINT, LPCTSTR)
{
    Default();
}

// Everything else is the default procedure's business. Derived classes call these to have it done.
// clang-format off
int CWnd::OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
BOOL CWnd::OnNcCreate(LPCREATESTRUCT) { return static_cast<BOOL>(Default()); }
void CWnd::OnDestroy() { Default(); }
void CWnd::OnClose() { Default(); }
BOOL CWnd::OnQueryEndSession() { return static_cast<BOOL>(Default()); }
void CWnd::OnEndSession(BOOL) { Default(); }
void CWnd::OnMove(int, int) { Default(); }
void CWnd::OnMoving(UINT, LPRECT) { Default(); }
void CWnd::OnSize(UINT, int, int) { Default(); }
void CWnd::OnSizing(UINT, LPRECT) { Default(); }
void CWnd::OnWindowPosChanging(WINDOWPOS*) { Default(); }
void CWnd::OnWindowPosChanged(WINDOWPOS*) { Default(); }
void CWnd::OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
void CWnd::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { Default(); }
void CWnd::OnStyleChanged(int, LPSTYLESTRUCT) { Default(); }
void CWnd::OnStyleChanging(int, LPSTYLESTRUCT) { Default(); }
void CWnd::OnEnable(BOOL) { Default(); }
void CWnd::OnShowWindow(BOOL, UINT) { Default(); }
void CWnd::OnActivate(UINT, CWnd*, BOOL) { Default(); }
void CWnd::OnActivateApp(BOOL, DWORD) { Default(); }
BOOL CWnd::OnNcActivate(BOOL) { return static_cast<BOOL>(Default()); }
int CWnd::OnMouseActivate(CWnd*, UINT, UINT) { return static_cast<int>(Default()); }
void CWnd::OnSetFocus(CWnd*) { Default(); }
void CWnd::OnKillFocus(CWnd*) { Default(); }
void CWnd::OnCaptureChanged(CWnd*) { Default(); }
void CWnd::OnCancelMode() { Default(); }
void CWnd::OnChildActivate() { Default(); }
void CWnd::OnPaint() { Default(); }
BOOL CWnd::OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
void CWnd::OnNcPaint() { Default(); }
BOOL CWnd::OnQueryNewPalette() { return static_cast<BOOL>(Default()); }
void CWnd::OnPaletteChanged(CWnd*) { Default(); }
void CWnd::OnMouseMove(UINT, CPoint) { Default(); }
void CWnd::OnMouseLeave() { Default(); }
void CWnd::OnLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnLButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnRButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnMButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnMButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnMButtonDblClk(UINT, CPoint) { Default(); }
BOOL CWnd::OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
LRESULT CWnd::OnNcHitTest(CPoint) { return static_cast<LRESULT>(Default()); }
void CWnd::OnNcMouseMove(UINT, CPoint) { Default(); }
void CWnd::OnNcLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnNcLButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnNcLButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnNcRButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnNcRButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnDeadChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysChar(UINT, UINT, UINT) { Default(); }
UINT CWnd::OnGetDlgCode() { return static_cast<UINT>(Default()); }
BOOL CWnd::OnHelpInfo(HELPINFO*) { return static_cast<BOOL>(Default()); }
void CWnd::OnSysCommand(UINT, LPARAM) { Default(); }
void CWnd::OnContextMenu(CWnd*, CPoint) { Default(); }
void CWnd::OnInitMenu(CMenu*) { Default(); }
void CWnd::OnInitMenuPopup(CMenu*, UINT, BOOL) { Default(); }
void CWnd::OnUnInitMenuPopup(CMenu*, UINT) { Default(); }
void CWnd::OnMenuSelect(UINT, UINT, HMENU) { Default(); }
LRESULT CWnd::OnMenuChar(UINT, UINT, CMenu*) { return static_cast<LRESULT>(Default()); }
void CWnd::OnEnterMenuLoop(BOOL) { Default(); }
void CWnd::OnExitMenuLoop(BOOL) { Default(); }
void CWnd::OnEnterIdle(UINT, CWnd*) { Default(); }
void CWnd::OnTimer(UINT_PTR) { Default(); }
void CWnd::OnDropFiles(HDROP) { Default(); }
BOOL CWnd::OnCopyData(CWnd*, COPYDATASTRUCT*) { return static_cast<BOOL>(Default()); }
void CWnd::OnSysColorChange() { Default(); }
void CWnd::OnWinIniChange(LPCTSTR) { Default(); }
void CWnd::OnDevModeChange(LPTSTR) { Default(); }
void CWnd::OnFontChange() { Default(); }
void CWnd::OnTimeChange() { Default(); }
LRESULT CWnd::OnThemeChanged() { return static_cast<LRESULT>(Default()); }
// clang-format on
