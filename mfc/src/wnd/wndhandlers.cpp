// CWnd: what happens to messages that no derived class handles.
#include <afxwin.h>

#include "wndmenus.h"

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
    if (item->CtlType == ODT_MENU) {
        if (CMenu* menu = afxdetail::menuWithItem(*this, item->itemID)) {
            menu->MeasureItem(item);
            return;
        }
    } else {
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
LRESULT CWnd::OnNcHitTest(CPoint) { return Default(); }
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
LRESULT CWnd::OnMenuChar(UINT, UINT, CMenu*) { return Default(); }
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
LRESULT CWnd::OnThemeChanged() { return Default(); }
void CWnd::OnAppCommand(CWnd*, UINT, UINT, UINT) { Default(); }
void CWnd::OnAskCbFormatName(UINT, LPTSTR) { Default(); }
void CWnd::OnChangeCbChain(HWND, HWND) { Default(); }
void CWnd::OnChangeUIState(UINT, UINT) { Default(); }
void CWnd::OnClipboardUpdate() { Default(); }
void CWnd::OnColorizationColorChanged(DWORD, BOOL) { Default(); }
void CWnd::OnCompacting(UINT) { Default(); }
void CWnd::OnCompositionChanged() { Default(); }
void CWnd::OnDestroyClipboard() { Default(); }
BOOL CWnd::OnDeviceChange(UINT, DWORD_PTR) { return static_cast<BOOL>(Default()); }
void CWnd::OnDrawClipboard() { Default(); }
void CWnd::OnEnterSizeMove() { Default(); }
void CWnd::OnExitSizeMove() { Default(); }
void CWnd::OnHotKey(UINT, UINT, UINT) { Default(); }
void CWnd::OnHScrollClipboard(CWnd*, UINT, UINT) { Default(); }
void CWnd::OnIconEraseBkgnd(CDC*) { Default(); }
void CWnd::OnInputDeviceChange(unsigned short) { Default(); }
void CWnd::OnInputLangChange(UINT, UINT) { Default(); }
void CWnd::OnInputLangChangeRequest(UINT, UINT) { Default(); }
UINT CWnd::OnMenuDrag(UINT, CMenu*) { return static_cast<UINT>(Default()); }
UINT CWnd::OnMenuGetObject(MENUGETOBJECTINFO*) { return static_cast<UINT>(Default()); }
void CWnd::OnMenuRButtonUp(UINT, CMenu*) { Default(); }
void CWnd::OnMouseHover(UINT, CPoint) { Default(); }
void CWnd::OnMouseHWheel(UINT, short, CPoint) { Default(); }
void CWnd::OnNcMButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnNcMButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnNcMButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnNcMouseHover(UINT, CPoint) { Default(); }
void CWnd::OnNcMouseLeave() { Default(); }
void CWnd::OnNcRButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnNcRenderingChanged(BOOL) { Default(); }
void CWnd::OnNcXButtonDblClk(short, UINT, CPoint) { Default(); }
void CWnd::OnNcXButtonDown(short, UINT, CPoint) { Default(); }
void CWnd::OnNcXButtonUp(short, UINT, CPoint) { Default(); }
void CWnd::OnNextMenu(UINT, LPMDINEXTMENU) { Default(); }
UINT CWnd::OnNotifyFormat(CWnd*, UINT) { return static_cast<UINT>(Default()); }
void CWnd::OnPaintClipboard(CWnd*, HGLOBAL) { Default(); }
void CWnd::OnPaletteIsChanging(CWnd*) { Default(); }
UINT CWnd::OnPowerBroadcast(UINT, UINT) { return static_cast<UINT>(Default()); }
HCURSOR CWnd::OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(Default()); }
BOOL CWnd::OnQueryOpen() { return static_cast<BOOL>(Default()); }
UINT CWnd::OnQueryUIState() { return static_cast<UINT>(Default()); }
void CWnd::OnRawInput(UINT, HRAWINPUT) { Default(); }
void CWnd::OnRenderAllFormats() { Default(); }
void CWnd::OnRenderFormat(UINT) { Default(); }
void CWnd::OnSessionChange(UINT, UINT) { Default(); }
void CWnd::OnSizeClipboard(CWnd*, HGLOBAL) { Default(); }
void CWnd::OnSpoolerStatus(UINT, UINT) { Default(); }
void CWnd::OnSysDeadChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnTCard(UINT, DWORD) { Default(); }
void CWnd::OnUniChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnUpdateUIState(UINT, UINT) { Default(); }
void CWnd::OnUserChanged() { Default(); }
void CWnd::OnVScrollClipboard(CWnd*, UINT, UINT) { Default(); }
void CWnd::OnWindowMaximizedChanged(BOOL) { Default(); }
void CWnd::OnXButtonDblClk(UINT, UINT, CPoint) { Default(); }
void CWnd::OnXButtonDown(UINT, UINT, CPoint) { Default(); }
void CWnd::OnXButtonUp(UINT, UINT, CPoint) { Default(); }
// clang-format on
