// CWnd: a window.
#pragma once

#include <afx/CmdTarget.h>
#include <afxmsg_.h>

#include <vector>

class CBitmap;
class CDataExchange;
class CDC;
class CFont;
class CFrameWnd;
class CMenu;
class COleDropTarget;
class CRgn;
class CScrollBar;
struct CCreateContext;

namespace afxdetail
{
struct WndAccess;
}

// RunModalLoop
#define MLF_NOIDLEMSG 0x0001
#define MLF_NOKICKIDLE 0x0002
#define MLF_SHOWONIDLE 0x0004

// OnToolHitTest, beside the control's own flags
#define TTF_NOTBUTTON 0x80000000L // the tip comes back after a press; a button's waits until the pointer has left it
#define TTF_ALWAYSTIP 0x40000000L // also while the program is not the active one

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
    /// FALSE for NULL, and when the window or this object is attached already. The window's procedure stays what
    /// it is.
    BOOL Attach(HWND wnd);
    HWND Detach();

    // Creation. FALSE on failure; PostNcDestroy has been called then. When a handler raises an exception on the
    // way, there is no window, and the exception comes out of the call.
    /// May change everything about the window to be. FALSE: it is not created. Without a class name the window
    /// gets a plain class.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    /// A child window.
    virtual BOOL Create(LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                        CCreateContext* context = nullptr);
    virtual BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR title, DWORD style, int x, int y, int width,
                          int height, HWND parent, HMENU idOrMenu, LPVOID param = nullptr);
    virtual BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect,
                          CWnd* parent, UINT id, LPVOID param = nullptr);
    /// FALSE when there is no window. The object may have deleted itself afterwards.
    virtual BOOL DestroyWindow();
    /// Takes over a window with its procedure. FALSE when the window or this object is attached already, or the
    /// window is not this program's.
    BOOL SubclassWindow(HWND wnd);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    /// Gives the window back its former procedure, and the caller the window.
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
    CWnd* SetCapture();
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    BOOL SetForegroundWindow();
    static CWnd* PASCAL GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    void BringWindowToTop();
    void CloseWindow();
    BOOL AnimateWindow(DWORD milliseconds, DWORD flags);
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
    CWnd* GetParentOwner() const;     ///< The nearest one, itself included, that is no child window.
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;
    CWnd* GetTopLevelParent() const;  ///< The outermost parent or owner; the owners that were set do not count.
    CWnd* GetTopLevelOwner() const;   ///< The outermost one; the owners that were set do count.
    BOOL IsTopParentActive() const;
    void ActivateTopParent();
    CWnd* GetAncestor(UINT flags) const { return FromHandle(::GetAncestor(m_hWnd, flags)); }
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
    static CWnd* PASCAL FindWindow(LPCTSTR className, LPCTSTR title);
    static CWnd* PASCAL FindWindowEx(HWND parent, HWND childAfter, LPCTSTR className, LPCTSTR title);
    long GetWindowedChildCount(); ///< The number of immediate children.
    /// The window to own a message box or dialog: the first of `parent` and its parents that is no child window;
    /// without `parent`, what is in front of the main window. `*topLevel` gets the window below that is to be
    /// disabled meanwhile, or NULL.
    static CWnd* PASCAL GetSafeOwner(CWnd* parent = nullptr, HWND* topLevel = nullptr);
    CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    void GetDlgItem(int id, HWND* wnd) const { *wnd = ::GetDlgItem(m_hWnd, id); }
    /// The child with this number, else one further down. NULL when there is none.
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
    UINT ArrangeIconicWindows();
    BOOL DrawAnimatedRects(int kind, CONST RECT* from, CONST RECT* to)
    {
        return ::DrawAnimatedRects(m_hWnd, kind, from, to);
    }
    BOOL GetWindowInfo(PWINDOWINFO info) const; ///< Fills in the size of the structure by itself, as do the next two.
    BOOL GetTitleBarInfo(PTITLEBARINFO info) const;
    BOOL GetMenuBarInfo(LONG object, LONG item, PMENUBARINFO info) const;
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
    void ValidateRgn(CRgn* region);
    BOOL GetUpdateRect(LPRECT rect, BOOL erase = FALSE);
    int GetUpdateRgn(CRgn* region, BOOL erase = FALSE);
    void UpdateWindow();
    BOOL RedrawWindow(LPCRECT rect = nullptr, CRgn* region = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    void SetRedraw(BOOL redraw = TRUE) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw), 0); }
    BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
    static void PASCAL UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }
    void Print(CDC* dc, DWORD flags) const;
    void PrintClient(CDC* dc, DWORD flags) const;
    BOOL PrintWindow(CDC* dc, UINT flags) const;
    BOOL DrawCaption(CDC* dc, LPCRECT rect, UINT flags);
    void ScrollWindow(int x, int y, LPCRECT rect = nullptr, LPCRECT clip = nullptr);
    int ScrollWindowEx(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn* update, LPRECT updateRect, UINT flags);
    void ShowOwnedPopups(BOOL show = TRUE);

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
    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC procedure)
    {
        return ::SetTimer(m_hWnd, id, milliseconds, procedure);
    }
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
    void SetDlgItemInt(int id, UINT value, BOOL isSigned = TRUE);
    UINT GetDlgItemInt(int id, BOOL* translated = nullptr, BOOL isSigned = TRUE) const;
    void CheckDlgButton(int id, UINT check);
    UINT IsDlgButtonChecked(int id) const;
    void CheckRadioButton(int first, int last, int id);
    int GetCheckedRadioButton(int first, int last) const; ///< 0 when none is checked.
    CWnd* GetNextDlgTabItem(CWnd* control, BOOL previous = FALSE) const
    {
        return FromHandle(::GetNextDlgTabItem(m_hWnd, control->GetSafeHwnd(), previous));
    }
    CWnd* GetNextDlgGroupItem(CWnd* control, BOOL previous = FALSE) const
    {
        return FromHandle(::GetNextDlgGroupItem(m_hWnd, control->GetSafeHwnd(), previous));
    }
    int DlgDirList(LPTSTR path, int listBox, int staticPath, UINT fileType);
    int DlgDirListComboBox(LPTSTR path, int comboBox, int staticPath, UINT fileType);
    /// `path` must have room for MAX_PATH characters.
    BOOL DlgDirSelect(LPTSTR path, int listBox);
    BOOL DlgDirSelectComboBox(LPTSTR path, int comboBox);

    // Menus
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* menu);
    CMenu* GetSystemMenu(BOOL revert) const;
    void DrawMenuBar();
    BOOL HiliteMenuItem(CMenu* menu, UINT item, UINT hilite);

    // Scroll bars: the sibling control that GetScrollBarCtrl names, else the window's own
    virtual CScrollBar* GetScrollBarCtrl(int bar) const; ///< NULL unless overridden.
    int SetScrollPos(int bar, int pos, BOOL redraw = TRUE);
    int GetScrollPos(int bar) const;
    void SetScrollRange(int bar, int min, int max, BOOL redraw = TRUE);
    void GetScrollRange(int bar, LPINT min, LPINT max) const;
    BOOL SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw = TRUE);
    BOOL GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask = SIF_ALL);
    BOOL GetScrollBarInfo(LONG object, PSCROLLBARINFO info) const;
    int GetScrollLimit(int bar); ///< The largest position that the user can scroll to.
    void ShowScrollBar(UINT bar, BOOL show = TRUE);
    void EnableScrollBarCtrl(int bar, BOOL enable = TRUE);
    BOOL EnableScrollBar(int bar, UINT flags = ESB_ENABLE_BOTH); ///< The window's own only.

    // Caret
    void CreateCaret(CBitmap* bitmap); ///< The bitmap stays the caller's, and must live as long as the caret.
    void CreateSolidCaret(int width, int height) { ::CreateCaret(m_hWnd, nullptr, width, height); }
    void CreateGrayCaret(int width, int height)
    {
        ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(static_cast<INT_PTR>(1)), width, height);
    }
    static CPoint PASCAL GetCaretPos();
    static void PASCAL SetCaretPos(POINT point) { ::SetCaretPos(point.x, point.y); }
    void ShowCaret() { ::ShowCaret(m_hWnd); }
    void HideCaret() { ::HideCaret(m_hWnd); }

    // Clipboard, files, the user's attention
    BOOL OpenClipboard() { return ::OpenClipboard(m_hWnd); }
    static CWnd* PASCAL GetClipboardOwner() { return FromHandle(::GetClipboardOwner()); }
    static CWnd* PASCAL GetOpenClipboardWindow() { return FromHandle(::GetOpenClipboardWindow()); }
    static CWnd* PASCAL GetClipboardViewer() { return FromHandle(::GetClipboardViewer()); }
    HWND SetClipboardViewer();
    BOOL ChangeClipboardChain(HWND next);
    void DragAcceptFiles(BOOL accept = TRUE);
    BOOL DragDetect(POINT point) const;
    BOOL FlashWindow(BOOL invert);
    BOOL FlashWindowEx(DWORD flags, UINT count, DWORD milliseconds);
    void NotifyWinEvent(DWORD event, LONG object, LONG child) { ::NotifyWinEvent(event, m_hWnd, object, child); }
    BOOL SetLayeredWindowAttributes(COLORREF key, BYTE alpha, DWORD flags)
    {
        return ::SetLayeredWindowAttributes(m_hWnd, key, alpha, flags);
    }
    BOOL GetLayeredWindowAttributes(COLORREF* key, BYTE* alpha, DWORD* flags) const
    {
        return ::GetLayeredWindowAttributes(m_hWnd, key, alpha, flags);
    }
    BOOL UpdateLayeredWindow(CDC* destination, POINT* place, SIZE* size, CDC* source, POINT* sourcePlace,
                             COLORREF key, BLENDFUNCTION* blend, DWORD flags);

    // Messages to the user, help
    /// A NULL caption makes it the system's word for an error.
    int MessageBox(LPCTSTR text, LPCTSTR caption = nullptr, UINT type = MB_OK);
    BOOL SetWindowContextHelpId(DWORD id) { return ::SetWindowContextHelpId(m_hWnd, id); }
    DWORD GetWindowContextHelpId() const { return ::GetWindowContextHelpId(m_hWnd); }
    virtual void HtmlHelp(DWORD_PTR data, UINT command = 0x000F);
    virtual void WinHelp(DWORD_PTR data, UINT command = HELP_CONTEXT);
    // Commands that the program carries out, for message maps of frames
    afx_msg void OnHelp();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpUsing();

    // Data exchange
    /// TRUE reads the controls into the members, with validation; FALSE fills the controls. FALSE when a value
    /// was refused.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);
    virtual void DoDataExchange(CDataExchange* exchange);
    /// Sends each child with a command its update request.
    void UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler);

    // Tooltips
    /// Gives the tools that OnToolHitTest knows, by default the child windows, tips. The window is asked for a
    /// tip's text with TTN_NEEDTEXT.
    BOOL EnableToolTips(BOOL enable = TRUE);
    /// Takes the tip, if one is shown, off the screen.
    static void PASCAL CancelToolTips(BOOL keys = FALSE);
    void FilterToolTipMessage(MSG* message);
    /// The tool under a client point: a number of its own, or -1. Fills `info` when it is not null: `uId`, `rect`,
    /// `lpszText`, which must live until the tip goes, or LPSTR_TEXTCALLBACK, and the flags.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const;

    // Modal loops
    /// Handles messages until ContinueModal gives FALSE; gives what EndModalLoop was given, or -1 when WM_QUIT
    /// comes (which stays in the queue) or the window is destroyed. `flags` are MLF_ ones.
    int RunModalLoop(DWORD flags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int result);
    virtual void BeginModalState();
    virtual void EndModalState();

    // What a derived class handles
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
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
    afx_msg void OnAppCommand(CWnd*, UINT, UINT, UINT);
    afx_msg void OnAskCbFormatName(UINT, LPTSTR);
    afx_msg void OnChangeCbChain(HWND, HWND);
    afx_msg void OnChangeUIState(UINT, UINT);
    afx_msg void OnClipboardUpdate();
    afx_msg void OnColorizationColorChanged(DWORD, BOOL);
    afx_msg void OnCompacting(UINT);
    afx_msg void OnCompositionChanged();
    afx_msg void OnDestroyClipboard();
    afx_msg BOOL OnDeviceChange(UINT, DWORD_PTR);
    afx_msg void OnDrawClipboard();
    afx_msg void OnEnterSizeMove();
    afx_msg void OnExitSizeMove();
    afx_msg void OnHotKey(UINT, UINT, UINT);
    afx_msg void OnHScrollClipboard(CWnd*, UINT, UINT);
    afx_msg void OnIconEraseBkgnd(CDC*);
    afx_msg void OnInputDeviceChange(unsigned short);
    afx_msg void OnInputLangChange(UINT, UINT);
    afx_msg void OnInputLangChangeRequest(UINT, UINT);
    afx_msg UINT OnMenuDrag(UINT, CMenu*);
    afx_msg UINT OnMenuGetObject(MENUGETOBJECTINFO*);
    afx_msg void OnMenuRButtonUp(UINT, CMenu*);
    afx_msg void OnMouseHover(UINT, CPoint);
    afx_msg void OnMouseHWheel(UINT, short, CPoint);
    afx_msg void OnNcMButtonDblClk(UINT, CPoint);
    afx_msg void OnNcMButtonDown(UINT, CPoint);
    afx_msg void OnNcMButtonUp(UINT, CPoint);
    afx_msg void OnNcMouseHover(UINT, CPoint);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnNcRButtonDblClk(UINT, CPoint);
    afx_msg void OnNcRenderingChanged(BOOL);
    afx_msg void OnNcXButtonDblClk(short, UINT, CPoint);
    afx_msg void OnNcXButtonDown(short, UINT, CPoint);
    afx_msg void OnNcXButtonUp(short, UINT, CPoint);
    afx_msg void OnNextMenu(UINT, LPMDINEXTMENU);
    afx_msg UINT OnNotifyFormat(CWnd*, UINT);
    afx_msg void OnPaintClipboard(CWnd*, HGLOBAL);
    afx_msg void OnPaletteIsChanging(CWnd*);
    afx_msg UINT OnPowerBroadcast(UINT, UINT);
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg BOOL OnQueryOpen();
    afx_msg UINT OnQueryUIState();
    afx_msg void OnRawInput(UINT, HRAWINPUT);
    afx_msg void OnRenderAllFormats();
    afx_msg void OnRenderFormat(UINT);
    afx_msg void OnSessionChange(UINT, UINT);
    afx_msg void OnSizeClipboard(CWnd*, HGLOBAL);
    afx_msg void OnSpoolerStatus(UINT, UINT);
    afx_msg void OnSysDeadChar(UINT, UINT, UINT);
    afx_msg void OnTCard(UINT, DWORD);
    afx_msg void OnUniChar(UINT, UINT, UINT);
    afx_msg void OnUpdateUIState(UINT, UINT);
    afx_msg void OnUserChanged();
    afx_msg void OnVScrollClipboard(CWnd*, UINT, UINT);
    afx_msg void OnWindowMaximizedChanged(BOOL);
    afx_msg void OnXButtonDblClk(UINT, UINT, CPoint);
    afx_msg void OnXButtonDown(UINT, UINT, CPoint);
    afx_msg void OnXButtonUp(UINT, UINT, CPoint);
    DECLARE_MESSAGE_MAP()

    WNDPROC m_pfnSuper = nullptr; ///< the procedure of before subclassing
    int m_nModalResult = 0;

private:
    explicit CWnd(HWND wnd); // for the constants above, and temporary objects

    BOOL callHandler(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    bool takeOverProcedure();
    void forgetRoles();
    void forgetTools();
    bool tooltipsEnabled() const;

    friend struct afxdetail::WndAccess;
};

OVOMFC_API LRESULT CALLBACK AfxWndProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam);
/// Calls an object's WindowProc for a message. No C++ exception leaves it.
OVOMFC_API LRESULT AFXAPI AfxCallWndProc(CWnd* object, HWND wnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
/// Has the next window that this thread creates attached to an object before its first message.
OVOMFC_API void AFXAPI AfxHookWindowCreate(CWnd* wnd);
/// TRUE when the hook was still waiting: no window was created.
OVOMFC_API BOOL AFXAPI AfxUnhookWindowCreate();
