// CWnd: a window.
#pragma once

#include <afx/CmdTarget.h>
#include <afxmsg_.h>
#include <detail/pending.h>

#include <vector>

class CDataExchange;
class CDC;
class CFont;
class CFrameWnd;
class CMenu;
class COleDropTarget;
class CRgn;
class CScrollBar;

// RunModalLoop
#define MLF_NOIDLEMSG 0x0001
#define MLF_NOKICKIDLE 0x0002
#define MLF_SHOWONIDLE 0x0004

/// Wraps one window and destroys it when destroyed, unless the object is temporary.
///
/// Members not described here do what the window function of the same name does and give what it gives. Pointers
/// that they return may be temporary objects: good until the next idle time. Exceptions other than CException
/// that a message handler raises come out of the call that sent the message.
class OVOMFC_API CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

public:
    CWnd();
    ~CWnd() override;

    HWND m_hWnd = nullptr;

    static const CWnd wndTop, wndBottom, wndTopMost, wndNoTopMost; ///< for SetWindowPos

    // Objects and handles
    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& other) const { return m_hWnd == other.m_hWnd; }
    BOOL operator!=(const CWnd& other) const { return m_hWnd != other.m_hWnd; }
    HWND GetSafeHwnd() const; ///< NULL when there is no window, or no object.
    static CWnd* PASCAL FromHandle(HWND wnd);
    static CWnd* PASCAL FromHandlePermanent(HWND wnd);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HWND wnd); ///< FALSE for NULL. The window's procedure stays what it is.
    HWND Detach();

    // Creation. `create` and friends give FALSE on failure.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL Create(LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                        void* context = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR title, DWORD style, int x, int y, int width, int height,
                  HWND parent, HMENU idOrMenu, LPVOID param = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect, CWnd* parent,
                  UINT id, LPVOID param = nullptr);
    virtual BOOL DestroyWindow();
    /// Takes over a window with its procedure. FALSE when it belongs to another object already.
    BOOL SubclassWindow(HWND wnd);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    HWND UnsubclassWindow();
    /// Called before the window gets its first message, or is subclassed.
    virtual void PreSubclassWindow();

    // Style and state
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE)); }
    /// FALSE when nothing changes. With `flags` also SetWindowPos with them, without moving or sizing.
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT flags = 0);
    BOOL ShowWindow(int show);
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL EnableWindow(BOOL enable = TRUE);
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    CWnd* SetFocus();
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetActiveWindow();
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    BOOL SetForegroundWindow();
    static CWnd* PASCAL GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    void BringWindowToTop();
    static CWnd* PASCAL GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }

    // Text, font, icon
    void SetWindowText(LPCTSTR text);
    int GetWindowText(LPTSTR buffer, int maxCount) const;
    void GetWindowText(CString& text) const;
    int GetWindowTextLength() const;
    void SetFont(CFont* font, BOOL redraw = TRUE);
    CFont* GetFont() const;
    HICON SetIcon(HICON icon, BOOL big);
    HICON GetIcon(BOOL big) const;

    // The tree of windows
    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* parent);
    CWnd* GetOwner() const; ///< The one set, else the parent.
    void SetOwner(CWnd* owner) { m_hWndOwner = owner->GetSafeHwnd(); }
    CWnd* GetParentOwner() const;
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;
    CWnd* GetTopLevelParent() const;
    CWnd* GetTopLevelOwner() const;
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    CWnd* GetWindow(UINT command) const { return FromHandle(::GetWindow(m_hWnd, command)); }
    CWnd* GetNextWindow(UINT flag = GW_HWNDNEXT) const { return FromHandle(::GetWindow(m_hWnd, flag)); }
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    BOOL IsChild(const CWnd* wnd) const { return ::IsChild(m_hWnd, wnd->GetSafeHwnd()); }
    CWnd* ChildWindowFromPoint(POINT point) const { return FromHandle(::ChildWindowFromPoint(m_hWnd, point)); }
    CWnd* ChildWindowFromPoint(POINT point, UINT flags) const
    {
        return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, flags));
    }
    static CWnd* PASCAL WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    static CWnd* PASCAL FindWindow(LPCTSTR className, LPCTSTR title) { return FromHandle(::FindWindowW(className, title)); }
    /// The window to own a message box or dialog: `parent`, else the main window, each as its last active popup's
    /// top-level window. `*topLevel` gets the window to be disabled.
    static CWnd* PASCAL GetSafeOwner(CWnd* parent = nullptr, HWND* topLevel = nullptr);
    CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    void GetDlgItem(int id, HWND* wnd) const { *wnd = ::GetDlgItem(m_hWnd, id); }
    CWnd* GetDescendantWindow(int id, BOOL onlyPermanent = FALSE) const;
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int id) { return static_cast<int>(::SetWindowLongPtrW(m_hWnd, GWLP_ID, id)); }

    // Place
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE);
    BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int cx, int cy, UINT flags);
    void GetWindowRect(LPRECT rect) const { ::GetWindowRect(m_hWnd, rect); }
    void GetClientRect(LPRECT rect) const { ::GetClientRect(m_hWnd, rect); }
    void ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }
    void ClientToScreen(LPRECT rect) const;
    void ScreenToClient(LPPOINT point) const { ::ScreenToClient(m_hWnd, point); }
    void ScreenToClient(LPRECT rect) const;
    void MapWindowPoints(CWnd* to, LPPOINT points, UINT count) const
    {
        ::MapWindowPoints(m_hWnd, to->GetSafeHwnd(), points, count);
    }
    void MapWindowPoints(CWnd* to, LPRECT rect) const
    {
        ::MapWindowPoints(m_hWnd, to->GetSafeHwnd(), reinterpret_cast<POINT*>(rect), 2);
    }
    /// Centres on the parent (a child) or the owner (a popup), or on `alternate`, inside the work area.
    void CenterWindow(CWnd* alternate = nullptr);
    enum AdjustType
    {
        adjustBorder = 0,
        adjustOutside = 1
    };
    virtual void CalcWindowRect(LPRECT clientRect, UINT adjustType = adjustBorder);
    BOOL GetWindowPlacement(WINDOWPLACEMENT* placement) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* placement);
    int SetWindowRgn(HRGN region, BOOL redraw);
    int GetWindowRgn(HRGN region) const { return ::GetWindowRgn(m_hWnd, region); }
    UINT ArrangeIconicWindows() { return ::ArrangeIconicWindows(m_hWnd); }
    enum RepositionFlags
    {
        reposDefault = 0,
        reposQuery = 1,
        reposExtra = 2
    };
    /// Lays out the control bars with ids from `first` to `last` along the edges of the client area (or of
    /// `client`), and gives the rest to the child `leftOver`. reposQuery moves nothing and writes the rest to
    /// `rect`; reposExtra takes `rect` off the rest's sides.
    void RepositionBars(UINT first, UINT last, UINT leftOver, UINT flag = reposDefault, LPRECT rect = nullptr,
                        LPCRECT client = nullptr, BOOL stretch = TRUE);

    // Painting
    CDC* BeginPaint(LPPAINTSTRUCT paint);
    void EndPaint(LPPAINTSTRUCT paint) { ::EndPaint(m_hWnd, paint); }
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* clip, DWORD flags);
    int ReleaseDC(CDC* dc);
    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, rect, erase); }
    void InvalidateRgn(CRgn* region, BOOL erase = TRUE);
    void ValidateRect(LPCRECT rect) { ::ValidateRect(m_hWnd, rect); }
    BOOL GetUpdateRect(LPRECT rect, BOOL erase = FALSE) { return ::GetUpdateRect(m_hWnd, rect, erase); }
    int GetUpdateRgn(CRgn* region, BOOL erase = FALSE);
    void UpdateWindow();
    BOOL RedrawWindow(LPCRECT rect = nullptr, CRgn* region = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    void SetRedraw(BOOL redraw = TRUE) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw), 0); }
    BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
    static void PASCAL UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }
    void Print(CDC* dc, DWORD flags) const;
    void PrintClient(CDC* dc, DWORD flags) const;
    void ScrollWindow(int x, int y, LPCRECT rect = nullptr, LPCRECT clip = nullptr);
    int ScrollWindowEx(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn* update, LPRECT updateRect, UINT flags);
    void ShowOwnedPopups(BOOL show = TRUE) { ::ShowOwnedPopups(m_hWnd, show); }

    // Messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::PostMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return ::SendNotifyMessageW(m_hWnd, message, wParam, lParam);
    }
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL deep = TRUE,
                                  BOOL onlyPermanent = FALSE);
    static void PASCAL SendMessageToDescendants(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep,
                                                BOOL onlyPermanent);
    static const MSG* PASCAL GetCurrentMessage();
    UINT_PTR SetTimer(UINT_PTR id, UINT elapse, TIMERPROC procedure) { return ::SetTimer(m_hWnd, id, elapse, procedure); }
    BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }
    BOOL IsDialogMessage(LPMSG message);
    virtual BOOL PreTranslateMessage(MSG* message);
    /// Offers the message being handled to the control `child`. TRUE when it took it.
    static BOOL PASCAL ReflectLastMsg(HWND child, LRESULT* result = nullptr);
    /// Offers the message being handled to this control.
    BOOL SendChildNotifyLastMsg(LRESULT* result = nullptr);

    // Dialog items
    void SetDlgItemText(int id, LPCTSTR text);
    int GetDlgItemText(int id, LPTSTR buffer, int maxCount) const;
    int GetDlgItemText(int id, CString& text) const;
    void SetDlgItemInt(int id, UINT value, BOOL isSigned = TRUE) { ::SetDlgItemInt(m_hWnd, id, value, isSigned); }
    UINT GetDlgItemInt(int id, BOOL* translated = nullptr, BOOL isSigned = TRUE) const
    {
        return ::GetDlgItemInt(m_hWnd, id, translated, isSigned);
    }
    void CheckDlgButton(int id, UINT check) { ::CheckDlgButton(m_hWnd, id, check); }
    UINT IsDlgButtonChecked(int id) const { return ::IsDlgButtonChecked(m_hWnd, id); }
    void CheckRadioButton(int first, int last, int id) { ::CheckRadioButton(m_hWnd, first, last, id); }
    int GetCheckedRadioButton(int first, int last) const; ///< 0 when none is checked.
    CWnd* GetNextDlgTabItem(CWnd* control, BOOL previous = FALSE) const
    {
        return FromHandle(::GetNextDlgTabItem(m_hWnd, control->GetSafeHwnd(), previous));
    }
    CWnd* GetNextDlgGroupItem(CWnd* control, BOOL previous = FALSE) const
    {
        return FromHandle(::GetNextDlgGroupItem(m_hWnd, control->GetSafeHwnd(), previous));
    }
    int DlgDirList(LPTSTR path, int listBox, int staticPath, UINT fileType)
    {
        return ::DlgDirListW(m_hWnd, path, listBox, staticPath, fileType);
    }

    // Menus, scroll bars, caret, the rest
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* menu);
    CMenu* GetSystemMenu(BOOL revert) const;
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    BOOL HiliteMenuItem(CMenu* menu, UINT item, UINT hilite);
    int SetScrollPos(int bar, int pos, BOOL redraw = TRUE) { return ::SetScrollPos(m_hWnd, bar, pos, redraw); }
    int GetScrollPos(int bar) const { return ::GetScrollPos(m_hWnd, bar); }
    void SetScrollRange(int bar, int min, int max, BOOL redraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, bar, min, max, redraw);
    }
    void GetScrollRange(int bar, LPINT min, LPINT max) const { ::GetScrollRange(m_hWnd, bar, min, max); }
    BOOL SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw = TRUE);
    BOOL GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask = SIF_ALL);
    int GetScrollLimit(int bar);
    void ShowScrollBar(UINT bar, BOOL show = TRUE) { ::ShowScrollBar(m_hWnd, static_cast<int>(bar), show); }
    BOOL EnableScrollBar(int bar, UINT flags = ESB_ENABLE_BOTH) { return ::EnableScrollBar(m_hWnd, bar, flags); }
    virtual CScrollBar* GetScrollBarCtrl(int bar) const; ///< A sibling scroll bar; NULL for the window's own.
    void CreateCaret(HBITMAP bitmap) { ::CreateCaret(m_hWnd, bitmap, 0, 0); }
    void CreateSolidCaret(int width, int height) { ::CreateCaret(m_hWnd, nullptr, width, height); }
    static CPoint PASCAL GetCaretPos();
    static void PASCAL SetCaretPos(POINT point) { ::SetCaretPos(point.x, point.y); }
    void ShowCaret() { ::ShowCaret(m_hWnd); }
    void HideCaret() { ::HideCaret(m_hWnd); }
    void DragAcceptFiles(BOOL accept = TRUE);
    BOOL OpenClipboard() { return ::OpenClipboard(m_hWnd); }
    static CWnd* PASCAL GetClipboardOwner() { return FromHandle(::GetClipboardOwner()); }
    BOOL FlashWindow(BOOL invert) { return ::FlashWindow(m_hWnd, invert); }
    BOOL SetLayeredWindowAttributes(COLORREF key, BYTE alpha, DWORD flags)
    {
        return ::SetLayeredWindowAttributes(m_hWnd, key, alpha, flags);
    }
    int MessageBox(LPCTSTR text, LPCTSTR caption = nullptr, UINT type = MB_OK);
    virtual void HtmlHelp(DWORD_PTR data, UINT command = 0x000F);
    virtual void WinHelp(DWORD_PTR data, UINT command = HELP_CONTEXT);

    // Data exchange
    /// TRUE reads the controls into the members, with validation; FALSE fills the controls. FALSE when a value
    /// was refused.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);
    virtual void DoDataExchange(CDataExchange* exchange);
    /// Sends each child with a command its update request.
    void UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler);

    // Tooltips
    BOOL EnableToolTips(BOOL enable = TRUE);
    static void PASCAL CancelToolTips(BOOL keys = FALSE);
    void FilterToolTipMessage(MSG* message);
    /// The tool under a client point, or -1; fills `info` when it is not null.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const;

    // Modal loops
    /// Runs until EndModalLoop; gives its value.
    virtual int RunModalLoop(DWORD flags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int result);

    // What a derived class handles
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    BOOL IsTopParentActive() const;
    void ActivateTopParent();
    void OnFinalRelease() override;

    // What the framework calls; public so that it can
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL IsFrameWnd() const { return FALSE; }
    virtual WNDPROC* GetSuperWndProcAddr() { return &m_pfnSuper; }
    virtual BOOL CheckAutoCenter() { return TRUE; }

    COleDropTarget* m_pDropTarget = nullptr; ///< registered on this window; revoked with it
    HWND m_hWndOwner = nullptr;
    UINT m_nFlags = 0; ///< the framework's own

protected:
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Called last of all; the object may delete itself.
    virtual void PostNcDestroy();
    /// The default handling of the message being handled, with its original parameters.
    LRESULT Default();
    /// Reflects a message to this control.
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);

    // Handlers for derived classes to call. They work with the original parameters of the message being handled.
    afx_msg int OnCreate(LPCREATESTRUCT);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL);
    afx_msg void OnMove(int, int);
    afx_msg void OnMoving(UINT, LPRECT);
    afx_msg void OnSize(UINT, int, int);
    afx_msg void OnSizing(UINT, LPRECT);
    afx_msg void OnWindowPosChanging(WINDOWPOS*);
    afx_msg void OnWindowPosChanged(WINDOWPOS*);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO*);
    afx_msg void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*);
    afx_msg void OnStyleChanged(int, LPSTYLESTRUCT);
    afx_msg void OnStyleChanging(int, LPSTYLESTRUCT);
    afx_msg void OnEnable(BOOL);
    afx_msg void OnShowWindow(BOOL, UINT);
    afx_msg void OnActivate(UINT, CWnd*, BOOL);
    afx_msg void OnActivateApp(BOOL, DWORD);
    afx_msg BOOL OnNcActivate(BOOL);
    afx_msg int OnMouseActivate(CWnd*, UINT, UINT);
    afx_msg void OnSetFocus(CWnd*);
    afx_msg void OnKillFocus(CWnd*);
    afx_msg void OnCaptureChanged(CWnd*);
    afx_msg void OnCancelMode();
    afx_msg void OnChildActivate();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*);
    afx_msg void OnNcPaint();
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd*, UINT);
    afx_msg BOOL OnQueryNewPalette();
    afx_msg void OnPaletteChanged(CWnd*);
    afx_msg void OnMouseMove(UINT, CPoint);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT, CPoint);
    afx_msg void OnLButtonUp(UINT, CPoint);
    afx_msg void OnLButtonDblClk(UINT, CPoint);
    afx_msg void OnRButtonDown(UINT, CPoint);
    afx_msg void OnRButtonUp(UINT, CPoint);
    afx_msg void OnRButtonDblClk(UINT, CPoint);
    afx_msg void OnMButtonDown(UINT, CPoint);
    afx_msg void OnMButtonUp(UINT, CPoint);
    afx_msg void OnMButtonDblClk(UINT, CPoint);
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint);
    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT);
    afx_msg LRESULT OnNcHitTest(CPoint);
    afx_msg void OnNcMouseMove(UINT, CPoint);
    afx_msg void OnNcLButtonDown(UINT, CPoint);
    afx_msg void OnNcLButtonUp(UINT, CPoint);
    afx_msg void OnNcLButtonDblClk(UINT, CPoint);
    afx_msg void OnNcRButtonDown(UINT, CPoint);
    afx_msg void OnNcRButtonUp(UINT, CPoint);
    afx_msg void OnKeyDown(UINT, UINT, UINT);
    afx_msg void OnKeyUp(UINT, UINT, UINT);
    afx_msg void OnChar(UINT, UINT, UINT);
    afx_msg void OnDeadChar(UINT, UINT, UINT);
    afx_msg void OnSysKeyDown(UINT, UINT, UINT);
    afx_msg void OnSysKeyUp(UINT, UINT, UINT);
    afx_msg void OnSysChar(UINT, UINT, UINT);
    afx_msg UINT OnGetDlgCode();
    afx_msg BOOL OnHelpInfo(HELPINFO*);
    afx_msg void OnSysCommand(UINT, LPARAM);
    afx_msg void OnContextMenu(CWnd*, CPoint);
    afx_msg void OnInitMenu(CMenu*);
    afx_msg void OnInitMenuPopup(CMenu*, UINT, BOOL);
    afx_msg void OnUnInitMenuPopup(CMenu*, UINT);
    afx_msg void OnMenuSelect(UINT, UINT, HMENU);
    afx_msg LRESULT OnMenuChar(UINT, UINT, CMenu*);
    afx_msg void OnEnterMenuLoop(BOOL);
    afx_msg void OnExitMenuLoop(BOOL);
    afx_msg void OnEnterIdle(UINT, CWnd*);
    afx_msg void OnHScroll(UINT, UINT, CScrollBar*);
    afx_msg void OnVScroll(UINT, UINT, CScrollBar*);
    afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT);
    afx_msg void OnMeasureItem(int, LPMEASUREITEMSTRUCT);
    afx_msg int OnCompareItem(int, LPCOMPAREITEMSTRUCT);
    afx_msg void OnDeleteItem(int, LPDELETEITEMSTRUCT);
    afx_msg int OnCharToItem(UINT, CListBox*, UINT);
    afx_msg int OnVKeyToItem(UINT, CListBox*, UINT);
    afx_msg void OnParentNotify(UINT, LPARAM);
    afx_msg void OnTimer(UINT_PTR);
    afx_msg void OnDropFiles(HDROP);
    afx_msg BOOL OnCopyData(CWnd*, COPYDATASTRUCT*);
    afx_msg void OnSysColorChange();
    afx_msg void OnSettingChange(UINT, LPCTSTR);
    afx_msg void OnWinIniChange(LPCTSTR);
    afx_msg void OnDevModeChange(LPTSTR);
    afx_msg void OnFontChange();
    afx_msg void OnTimeChange();
    afx_msg LRESULT OnThemeChanged();
    DECLARE_MESSAGE_MAP()

    WNDPROC m_pfnSuper = nullptr; ///< the procedure of before subclassing
    int m_nModalResult = 0;

private:
    explicit CWnd(HWND wnd); // for the constants above, and temporary objects

    void forgetThreadRoles();
    bool tooltipsEnabled() const;

    friend struct WndAccess;
};

OVOMFC_API LRESULT CALLBACK AfxWndProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam);
OVOMFC_API void AFXAPI AfxHookWindowCreate(CWnd* wnd);
/// TRUE when the hook was still waiting: no window was created.
OVOMFC_API BOOL AFXAPI AfxUnhookWindowCreate();
OVOMFC_API LRESULT AFXAPI AfxCallWndProc(CWnd* object, HWND wnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// A CWnd member as the framework's own parts need it. Not for hosts.
struct WndAccess
{
    static CWnd* makeTemporary(HWND wnd);
};
