// The macros that fill message maps. Each takes a member function of exactly the documented signature, as
// `&Class::Handler`; g++ also compiles the older form, the bare name.
#ifndef __AFXMSG_H__
#define __AFXMSG_H__
#pragma once

#include <afx/MessageMap.h>
#include <detail/msgsig.h>

// Codes of commands that are not notifications.
#define CN_COMMAND 0
#define CN_UPDATE_COMMAND_UI (static_cast<UINT>(-1))

/// What a window message is to the control that it is reflected to.
#define WM_REFLECT_BASE 0xBC00

/// Stands for the seven WM_CTLCOLOR... messages.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif
#ifndef WM_HELPINFO
#define WM_HELPINFO WM_HELP
#endif

namespace afxdetail
{

// The kinds of handlers of window messages.
using OnCreateHandler = WindowHandler<int(LPCREATESTRUCT), L<LPCREATESTRUCT>>;
using OnDestroyHandler = WindowHandler<void()>;
using OnNcCreateHandler = WindowHandler<BOOL(LPCREATESTRUCT), L<LPCREATESTRUCT>>;
using OnQueryEndSessionHandler = WindowHandler<BOOL()>;
using OnEndSessionHandler = WindowHandler<void(BOOL), W<BOOL>>;
using OnMoveHandler = WindowHandler<void(int, int), SignedLowL, SignedHighL>;
using OnMovingHandler = WindowHandler<void(UINT, LPRECT), W<UINT>, L<LPRECT>>;
using OnSizeHandler = WindowHandler<void(UINT, int, int), W<UINT>, LowL<int>, HighL<int>>;
using OnWindowPosChangingHandler = WindowHandler<void(WINDOWPOS*), L<WINDOWPOS*>>;
using OnGetMinMaxInfoHandler = WindowHandler<void(MINMAXINFO*), L<MINMAXINFO*>>;
using OnNcCalcSizeHandler = WindowHandler<void(BOOL, NCCALCSIZE_PARAMS*), W<BOOL>, L<NCCALCSIZE_PARAMS*>>;
using OnStyleChangedHandler = WindowHandler<void(int, LPSTYLESTRUCT), W<int>, L<LPSTYLESTRUCT>>;
using OnShowWindowHandler = WindowHandler<void(BOOL, UINT), W<BOOL>, L<UINT>>;
using OnActivateHandler = WindowHandler<void(UINT, CWnd*, BOOL), LowW<UINT>, WndL, HighW<BOOL>>;
using OnActivateAppHandler = WindowHandler<void(BOOL, DWORD), W<BOOL>, L<DWORD>>;
using OnNcActivateHandler = WindowHandler<BOOL(BOOL), W<BOOL>>;
using OnMouseActivateHandler = WindowHandler<int(CWnd*, UINT, UINT), WndW, LowL<UINT>, HighL<UINT>>;
using OnSetFocusHandler = WindowHandler<void(CWnd*), WndW>;
using OnCaptureChangedHandler = WindowHandler<void(CWnd*), WndL>;
using OnEraseBkgndHandler = WindowHandler<BOOL(CDC*), DcW>;
using OnCtlColorHandler = WindowHandler<HBRUSH(CDC*, CWnd*, UINT), DcW, WndL, ColourKind>;
using OnMouseMoveHandler = WindowHandler<void(UINT, CPoint), W<UINT>, PointL>;
using OnMouseWheelHandler = DecliningHandler<BOOL(UINT, short, CPoint), LowW<UINT>, HighW<short>, PointL>;
using OnSetCursorHandler = WindowHandler<BOOL(CWnd*, UINT, UINT), WndW, LowL<UINT>, HighL<UINT>>;
using OnNcHitTestHandler = WindowHandler<LRESULT(CPoint), PointL>;
using OnKeyDownHandler = WindowHandler<void(UINT, UINT, UINT), W<UINT>, LowL<UINT>, HighL<UINT>>;
using OnGetDlgCodeHandler = WindowHandler<UINT()>;
using OnHelpInfoHandler = WindowHandler<BOOL(HELPINFO*), L<HELPINFO*>>;
using OnSysCommandHandler = WindowHandler<void(UINT, LPARAM), W<UINT>, L<LPARAM>>;
using OnContextMenuHandler = WindowHandler<void(CWnd*, CPoint), WndW, PointL>;
using OnInitMenuHandler = WindowHandler<void(CMenu*), MenuW>;
using OnInitMenuPopupHandler = WindowHandler<void(CMenu*, UINT, BOOL), MenuW, LowL<UINT>, HighL<BOOL>>;
using OnUnInitMenuPopupHandler = WindowHandler<void(CMenu*, UINT), MenuW, HighL<UINT>>;
using OnMenuSelectHandler = WindowHandler<void(UINT, UINT, HMENU), LowW<UINT>, HighW<UINT>, L<HMENU>>;
using OnMenuCharHandler = WindowHandler<LRESULT(UINT, UINT, CMenu*), LowW<UINT>, HighW<UINT>, MenuL>;
using OnEnterIdleHandler = WindowHandler<void(UINT, CWnd*), W<UINT>, WndL>;
using OnHScrollHandler =
    WindowHandler<void(UINT, UINT, CScrollBar*), LowW<UINT>, HighW<UINT>, ControlL<CScrollBar>>;
using OnDrawItemHandler = WindowHandler<void(int, LPDRAWITEMSTRUCT), W<int>, L<LPDRAWITEMSTRUCT>>;
using OnMeasureItemHandler = WindowHandler<void(int, LPMEASUREITEMSTRUCT), W<int>, L<LPMEASUREITEMSTRUCT>>;
using OnCompareItemHandler = WindowHandler<int(int, LPCOMPAREITEMSTRUCT), W<int>, L<LPCOMPAREITEMSTRUCT>>;
using OnDeleteItemHandler = WindowHandler<void(int, LPDELETEITEMSTRUCT), W<int>, L<LPDELETEITEMSTRUCT>>;
using OnCharToItemHandler =
    WindowHandler<int(UINT, CListBox*, UINT), LowW<UINT>, ControlL<CListBox>, HighW<UINT>>;
using OnTimerHandler = WindowHandler<void(UINT_PTR), W<UINT_PTR>>;
using OnDropFilesHandler = WindowHandler<void(HDROP), W<HDROP>>;
using OnCopyDataHandler = WindowHandler<BOOL(CWnd*, COPYDATASTRUCT*), WndW, L<COPYDATASTRUCT*>>;
using OnSettingChangeHandler = WindowHandler<void(UINT, LPCTSTR), W<UINT>, L<LPCTSTR>>;
using OnWinIniChangeHandler = WindowHandler<void(LPCTSTR), L<LPCTSTR>>;
using OnDevModeChangeHandler = WindowHandler<void(LPTSTR), L<LPTSTR>>;
using OnThemeChangedHandler = WindowHandler<LRESULT()>;
using OnAppCommandHandler =
    WindowHandler<void(CWnd*, UINT, UINT, UINT), WndW, AppCommand, AppCommandDevice, LowL<UINT>>;
using OnAskCbFormatNameHandler = WindowHandler<void(UINT, LPTSTR), W<UINT>, L<LPTSTR>>;
using OnChangeCbChainHandler = WindowHandler<void(HWND, HWND), W<HWND>, L<HWND>>;
using OnUIStateHandler = WindowHandler<void(UINT, UINT), LowW<UINT>, HighW<UINT>>;
using OnColorizationHandler = WindowHandler<void(DWORD, BOOL), W<DWORD>, L<BOOL>>;
using OnRenderFormatHandler = WindowHandler<void(UINT), W<UINT>>;
using OnDeviceChangeHandler = WindowHandler<BOOL(UINT, DWORD_PTR), W<UINT>, L<DWORD_PTR>>;
using OnHotKeyHandler = WindowHandler<void(UINT, UINT, UINT), W<UINT>, LowL<UINT>, HighL<UINT>>;
using OnClipboardScrollHandler = WindowHandler<void(CWnd*, UINT, UINT), WndW, LowL<UINT>, HighL<UINT>>;
using OnPaintClipboardHandler = WindowHandler<void(CWnd*, HGLOBAL), WndW, L<HGLOBAL>>;
using OnIconEraseBkgndHandler = WindowHandler<void(CDC*), DcW>;
using OnInputDeviceChangeHandler = WindowHandler<void(unsigned short), W<unsigned short>>;
using OnTwoNumbersHandler = WindowHandler<void(UINT, UINT), W<UINT>, L<UINT>>;
using OnSpoolerStatusHandler = WindowHandler<void(UINT, UINT), W<UINT>, LowL<UINT>>;
using OnPowerBroadcastHandler = WindowHandler<UINT(UINT, UINT), W<UINT>, L<UINT>>;
using OnTCardHandler = WindowHandler<void(UINT, DWORD), W<UINT>, L<DWORD>>;
using OnMenuDragHandler = WindowHandler<UINT(UINT, CMenu*), W<UINT>, MenuL>;
using OnMenuRButtonUpHandler = WindowHandler<void(UINT, CMenu*), W<UINT>, MenuL>;
using OnMenuGetObjectHandler = WindowHandler<UINT(MENUGETOBJECTINFO*), L<MENUGETOBJECTINFO*>>;
using OnMouseHWheelHandler = WindowHandler<void(UINT, short, CPoint), LowW<UINT>, HighW<short>, PointL>;
using OnXButtonHandler = WindowHandler<void(UINT, UINT, CPoint), LowW<UINT>, HighW<UINT>, PointL>;
using OnNcXButtonHandler = WindowHandler<void(short, UINT, CPoint), LowW<short>, HighW<UINT>, PointL>;
using OnNextMenuHandler = WindowHandler<void(UINT, LPMDINEXTMENU), W<UINT>, L<LPMDINEXTMENU>>;
using OnNotifyFormatHandler = WindowHandler<UINT(CWnd*, UINT), WndW, L<UINT>>;
using OnQueryDragIconHandler = WindowHandler<HCURSOR()>;
using OnRawInputHandler = WindowHandler<void(UINT, HRAWINPUT), RawInputCode, L<HRAWINPUT>>;
using ReflectedCtlColorHandler = WindowHandler<HBRUSH(CDC*, UINT), DcW, ReflectedColourKind>;
using ReflectedDrawItemHandler = WindowHandler<void(LPDRAWITEMSTRUCT), L<LPDRAWITEMSTRUCT>>;
using ReflectedMeasureItemHandler = WindowHandler<void(LPMEASUREITEMSTRUCT), L<LPMEASUREITEMSTRUCT>>;
using ReflectedDeleteItemHandler = WindowHandler<void(LPDELETEITEMSTRUCT), L<LPDELETEITEMSTRUCT>>;
using ReflectedCompareItemHandler = WindowHandler<int(LPCOMPAREITEMSTRUCT), L<LPCOMPAREITEMSTRUCT>>;
using ReflectedCharToItemHandler = WindowHandler<int(UINT, UINT), LowW<UINT>, HighW<UINT>>;
using ReflectedHScrollHandler = WindowHandler<void(UINT, UINT), LowW<UINT>, HighW<UINT>>;
using ReflectedParentNotifyHandler = WindowHandler<void(UINT, LPARAM), W<UINT>, L<LPARAM>>;
using MessageHandler = WindowHandler<LRESULT(WPARAM, LPARAM), W<WPARAM>, L<LPARAM>>;
using ThreadMessageHandler = WindowHandler<void(WPARAM, LPARAM), W<WPARAM>, L<LPARAM>>;

} // namespace afxdetail

#define AFX_MESSAGE_(message, Kind, memberFxn)                                                               \
    AFX_ENTRY_(message, 0, 0, 0, nullptr, afxdetail::Kind, memberFxn)
/// For a message whose handler has one name in every class.
#define AFX_WM_(message, Kind, name) AFX_MESSAGE_(message, Kind, &ThisClass::name)

// Windows: creation and destruction
#define ON_WM_CREATE() AFX_WM_(WM_CREATE, OnCreateHandler, OnCreate)
#define ON_WM_DESTROY() AFX_WM_(WM_DESTROY, OnDestroyHandler, OnDestroy)
#define ON_WM_NCCREATE() AFX_WM_(WM_NCCREATE, OnNcCreateHandler, OnNcCreate)
#define ON_WM_NCDESTROY() AFX_WM_(WM_NCDESTROY, OnDestroyHandler, OnNcDestroy)
#define ON_WM_CLOSE() AFX_WM_(WM_CLOSE, OnDestroyHandler, OnClose)
#define ON_WM_QUERYENDSESSION() AFX_WM_(WM_QUERYENDSESSION, OnQueryEndSessionHandler, OnQueryEndSession)
#define ON_WM_ENDSESSION() AFX_WM_(WM_ENDSESSION, OnEndSessionHandler, OnEndSession)

// Position and size
#define ON_WM_MOVE() AFX_WM_(WM_MOVE, OnMoveHandler, OnMove)
#define ON_WM_MOVING() AFX_WM_(WM_MOVING, OnMovingHandler, OnMoving)
#define ON_WM_SIZE() AFX_WM_(WM_SIZE, OnSizeHandler, OnSize)
#define ON_WM_SIZING() AFX_WM_(WM_SIZING, OnMovingHandler, OnSizing)
#define ON_WM_WINDOWPOSCHANGING()                                                                            \
    AFX_WM_(WM_WINDOWPOSCHANGING, OnWindowPosChangingHandler, OnWindowPosChanging)
#define ON_WM_WINDOWPOSCHANGED() AFX_WM_(WM_WINDOWPOSCHANGED, OnWindowPosChangingHandler, OnWindowPosChanged)
#define ON_WM_GETMINMAXINFO() AFX_WM_(WM_GETMINMAXINFO, OnGetMinMaxInfoHandler, OnGetMinMaxInfo)
#define ON_WM_NCCALCSIZE() AFX_WM_(WM_NCCALCSIZE, OnNcCalcSizeHandler, OnNcCalcSize)
#define ON_WM_STYLECHANGED() AFX_WM_(WM_STYLECHANGED, OnStyleChangedHandler, OnStyleChanged)
#define ON_WM_STYLECHANGING() AFX_WM_(WM_STYLECHANGING, OnStyleChangedHandler, OnStyleChanging)
#define ON_WM_ENTERSIZEMOVE() AFX_WM_(WM_ENTERSIZEMOVE, OnDestroyHandler, OnEnterSizeMove)
#define ON_WM_EXITSIZEMOVE() AFX_WM_(WM_EXITSIZEMOVE, OnDestroyHandler, OnExitSizeMove)
#define ON_WM_QUERYOPEN() AFX_WM_(WM_QUERYOPEN, OnQueryEndSessionHandler, OnQueryOpen)

// State
#define ON_WM_ENABLE() AFX_WM_(WM_ENABLE, OnEndSessionHandler, OnEnable)
#define ON_WM_SHOWWINDOW() AFX_WM_(WM_SHOWWINDOW, OnShowWindowHandler, OnShowWindow)
#define ON_WM_ACTIVATE() AFX_WM_(WM_ACTIVATE, OnActivateHandler, OnActivate)
#define ON_WM_ACTIVATEAPP() AFX_WM_(WM_ACTIVATEAPP, OnActivateAppHandler, OnActivateApp)
#define ON_WM_NCACTIVATE() AFX_WM_(WM_NCACTIVATE, OnNcActivateHandler, OnNcActivate)
#define ON_WM_MOUSEACTIVATE() AFX_WM_(WM_MOUSEACTIVATE, OnMouseActivateHandler, OnMouseActivate)
#define ON_WM_SETFOCUS() AFX_WM_(WM_SETFOCUS, OnSetFocusHandler, OnSetFocus)
#define ON_WM_KILLFOCUS() AFX_WM_(WM_KILLFOCUS, OnSetFocusHandler, OnKillFocus)
#define ON_WM_CAPTURECHANGED() AFX_WM_(WM_CAPTURECHANGED, OnCaptureChangedHandler, OnCaptureChanged)
#define ON_WM_CANCELMODE() AFX_WM_(WM_CANCELMODE, OnDestroyHandler, OnCancelMode)
#define ON_WM_CHILDACTIVATE() AFX_WM_(WM_CHILDACTIVATE, OnDestroyHandler, OnChildActivate)
#define ON_WM_CHANGEUISTATE() AFX_WM_(WM_CHANGEUISTATE, OnUIStateHandler, OnChangeUIState)
#define ON_WM_UPDATEUISTATE() AFX_WM_(WM_UPDATEUISTATE, OnUIStateHandler, OnUpdateUIState)
#define ON_WM_QUERYUISTATE() AFX_WM_(WM_QUERYUISTATE, OnGetDlgCodeHandler, OnQueryUIState)

// Painting
#define ON_WM_PAINT() AFX_WM_(WM_PAINT, OnDestroyHandler, OnPaint)
#define ON_WM_ERASEBKGND() AFX_WM_(WM_ERASEBKGND, OnEraseBkgndHandler, OnEraseBkgnd)
#define ON_WM_NCPAINT() AFX_WM_(WM_NCPAINT, OnDestroyHandler, OnNcPaint)
#define ON_WM_CTLCOLOR() AFX_WM_(WM_CTLCOLOR, OnCtlColorHandler, OnCtlColor)
#define ON_WM_QUERYNEWPALETTE() AFX_WM_(WM_QUERYNEWPALETTE, OnQueryEndSessionHandler, OnQueryNewPalette)
#define ON_WM_PALETTECHANGED() AFX_WM_(WM_PALETTECHANGED, OnSetFocusHandler, OnPaletteChanged)
#define ON_WM_PALETTEISCHANGING() AFX_WM_(WM_PALETTEISCHANGING, OnSetFocusHandler, OnPaletteIsChanging)
#define ON_WM_ICONERASEBKGND() AFX_WM_(WM_ICONERASEBKGND, OnIconEraseBkgndHandler, OnIconEraseBkgnd)
#define ON_WM_QUERYDRAGICON() AFX_WM_(WM_QUERYDRAGICON, OnQueryDragIconHandler, OnQueryDragIcon)
#define ON_WM_DWMCOMPOSITIONCHANGED()                                                                        \
    AFX_WM_(WM_DWMCOMPOSITIONCHANGED, OnDestroyHandler, OnCompositionChanged)
#define ON_WM_DWMNCRENDERINGCHANGED()                                                                        \
    AFX_WM_(WM_DWMNCRENDERINGCHANGED, OnEndSessionHandler, OnNcRenderingChanged)
#define ON_WM_DWMCOLORIZATIONCOLORCHANGED()                                                                  \
    AFX_WM_(WM_DWMCOLORIZATIONCOLORCHANGED, OnColorizationHandler, OnColorizationColorChanged)
#define ON_WM_DWMWINDOWMAXIMIZEDCHANGE()                                                                     \
    AFX_WM_(WM_DWMWINDOWMAXIMIZEDCHANGE, OnEndSessionHandler, OnWindowMaximizedChanged)

// Mouse
#define ON_WM_MOUSEMOVE() AFX_WM_(WM_MOUSEMOVE, OnMouseMoveHandler, OnMouseMove)
#define ON_WM_MOUSELEAVE() AFX_WM_(WM_MOUSELEAVE, OnDestroyHandler, OnMouseLeave)
#define ON_WM_MOUSEHOVER() AFX_WM_(WM_MOUSEHOVER, OnMouseMoveHandler, OnMouseHover)
#define ON_WM_LBUTTONDOWN() AFX_WM_(WM_LBUTTONDOWN, OnMouseMoveHandler, OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_WM_(WM_LBUTTONUP, OnMouseMoveHandler, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_WM_(WM_LBUTTONDBLCLK, OnMouseMoveHandler, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_WM_(WM_RBUTTONDOWN, OnMouseMoveHandler, OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_WM_(WM_RBUTTONUP, OnMouseMoveHandler, OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() AFX_WM_(WM_RBUTTONDBLCLK, OnMouseMoveHandler, OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN() AFX_WM_(WM_MBUTTONDOWN, OnMouseMoveHandler, OnMButtonDown)
#define ON_WM_MBUTTONUP() AFX_WM_(WM_MBUTTONUP, OnMouseMoveHandler, OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK() AFX_WM_(WM_MBUTTONDBLCLK, OnMouseMoveHandler, OnMButtonDblClk)
#define ON_WM_MOUSEWHEEL() AFX_WM_(WM_MOUSEWHEEL, OnMouseWheelHandler, OnMouseWheel)
#define ON_WM_MOUSEHWHEEL() AFX_WM_(WM_MOUSEHWHEEL, OnMouseHWheelHandler, OnMouseHWheel)
#define ON_WM_XBUTTONDOWN() AFX_WM_(WM_XBUTTONDOWN, OnXButtonHandler, OnXButtonDown)
#define ON_WM_XBUTTONUP() AFX_WM_(WM_XBUTTONUP, OnXButtonHandler, OnXButtonUp)
#define ON_WM_XBUTTONDBLCLK() AFX_WM_(WM_XBUTTONDBLCLK, OnXButtonHandler, OnXButtonDblClk)
#define ON_WM_SETCURSOR() AFX_WM_(WM_SETCURSOR, OnSetCursorHandler, OnSetCursor)
#define ON_WM_NCHITTEST() AFX_WM_(WM_NCHITTEST, OnNcHitTestHandler, OnNcHitTest)
#define ON_WM_NCMOUSEMOVE() AFX_WM_(WM_NCMOUSEMOVE, OnMouseMoveHandler, OnNcMouseMove)
#define ON_WM_NCLBUTTONDOWN() AFX_WM_(WM_NCLBUTTONDOWN, OnMouseMoveHandler, OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() AFX_WM_(WM_NCLBUTTONUP, OnMouseMoveHandler, OnNcLButtonUp)
#define ON_WM_NCLBUTTONDBLCLK() AFX_WM_(WM_NCLBUTTONDBLCLK, OnMouseMoveHandler, OnNcLButtonDblClk)
#define ON_WM_NCRBUTTONDOWN() AFX_WM_(WM_NCRBUTTONDOWN, OnMouseMoveHandler, OnNcRButtonDown)
#define ON_WM_NCRBUTTONUP() AFX_WM_(WM_NCRBUTTONUP, OnMouseMoveHandler, OnNcRButtonUp)
#define ON_WM_NCRBUTTONDBLCLK() AFX_WM_(WM_NCRBUTTONDBLCLK, OnMouseMoveHandler, OnNcRButtonDblClk)
#define ON_WM_NCMBUTTONDOWN() AFX_WM_(WM_NCMBUTTONDOWN, OnMouseMoveHandler, OnNcMButtonDown)
#define ON_WM_NCMBUTTONUP() AFX_WM_(WM_NCMBUTTONUP, OnMouseMoveHandler, OnNcMButtonUp)
#define ON_WM_NCMBUTTONDBLCLK() AFX_WM_(WM_NCMBUTTONDBLCLK, OnMouseMoveHandler, OnNcMButtonDblClk)
#define ON_WM_NCXBUTTONDOWN() AFX_WM_(WM_NCXBUTTONDOWN, OnNcXButtonHandler, OnNcXButtonDown)
#define ON_WM_NCXBUTTONUP() AFX_WM_(WM_NCXBUTTONUP, OnNcXButtonHandler, OnNcXButtonUp)
#define ON_WM_NCXBUTTONDBLCLK() AFX_WM_(WM_NCXBUTTONDBLCLK, OnNcXButtonHandler, OnNcXButtonDblClk)
#define ON_WM_NCMOUSEHOVER() AFX_WM_(WM_NCMOUSEHOVER, OnMouseMoveHandler, OnNcMouseHover)
#define ON_WM_NCMOUSELEAVE() AFX_WM_(WM_NCMOUSELEAVE, OnDestroyHandler, OnNcMouseLeave)
#define ON_WM_APPCOMMAND() AFX_WM_(WM_APPCOMMAND, OnAppCommandHandler, OnAppCommand)
#define ON_WM_INPUT() AFX_WM_(WM_INPUT, OnRawInputHandler, OnRawInput)
#define ON_WM_INPUT_DEVICE_CHANGE()                                                                          \
    AFX_WM_(WM_INPUT_DEVICE_CHANGE, OnInputDeviceChangeHandler, OnInputDeviceChange)

// Keyboard
#define ON_WM_KEYDOWN() AFX_WM_(WM_KEYDOWN, OnKeyDownHandler, OnKeyDown)
#define ON_WM_KEYUP() AFX_WM_(WM_KEYUP, OnKeyDownHandler, OnKeyUp)
#define ON_WM_CHAR() AFX_WM_(WM_CHAR, OnKeyDownHandler, OnChar)
#define ON_WM_DEADCHAR() AFX_WM_(WM_DEADCHAR, OnKeyDownHandler, OnDeadChar)
#define ON_WM_SYSKEYDOWN() AFX_WM_(WM_SYSKEYDOWN, OnKeyDownHandler, OnSysKeyDown)
#define ON_WM_SYSKEYUP() AFX_WM_(WM_SYSKEYUP, OnKeyDownHandler, OnSysKeyUp)
#define ON_WM_SYSCHAR() AFX_WM_(WM_SYSCHAR, OnKeyDownHandler, OnSysChar)
#define ON_WM_SYSDEADCHAR() AFX_WM_(WM_SYSDEADCHAR, OnKeyDownHandler, OnSysDeadChar)
#define ON_WM_UNICHAR() AFX_WM_(WM_UNICHAR, OnKeyDownHandler, OnUniChar)
#define ON_WM_HOTKEY() AFX_WM_(WM_HOTKEY, OnHotKeyHandler, OnHotKey)
#define ON_WM_INPUTLANGCHANGE() AFX_WM_(WM_INPUTLANGCHANGE, OnTwoNumbersHandler, OnInputLangChange)
#define ON_WM_INPUTLANGCHANGEREQUEST()                                                                       \
    AFX_WM_(WM_INPUTLANGCHANGEREQUEST, OnTwoNumbersHandler, OnInputLangChangeRequest)
#define ON_WM_GETDLGCODE() AFX_WM_(WM_GETDLGCODE, OnGetDlgCodeHandler, OnGetDlgCode)
#define ON_WM_HELPINFO() AFX_WM_(WM_HELPINFO, OnHelpInfoHandler, OnHelpInfo)

// Menus and commands
#define ON_WM_SYSCOMMAND() AFX_WM_(WM_SYSCOMMAND, OnSysCommandHandler, OnSysCommand)
#define ON_WM_CONTEXTMENU() AFX_WM_(WM_CONTEXTMENU, OnContextMenuHandler, OnContextMenu)
#define ON_WM_INITMENU() AFX_WM_(WM_INITMENU, OnInitMenuHandler, OnInitMenu)
#define ON_WM_INITMENUPOPUP() AFX_WM_(WM_INITMENUPOPUP, OnInitMenuPopupHandler, OnInitMenuPopup)
#define ON_WM_UNINITMENUPOPUP() AFX_WM_(WM_UNINITMENUPOPUP, OnUnInitMenuPopupHandler, OnUnInitMenuPopup)
#define ON_WM_MENUSELECT() AFX_WM_(WM_MENUSELECT, OnMenuSelectHandler, OnMenuSelect)
#define ON_WM_MENUCHAR() AFX_WM_(WM_MENUCHAR, OnMenuCharHandler, OnMenuChar)
#define ON_WM_ENTERMENULOOP() AFX_WM_(WM_ENTERMENULOOP, OnEndSessionHandler, OnEnterMenuLoop)
#define ON_WM_EXITMENULOOP() AFX_WM_(WM_EXITMENULOOP, OnEndSessionHandler, OnExitMenuLoop)
#define ON_WM_ENTERIDLE() AFX_WM_(WM_ENTERIDLE, OnEnterIdleHandler, OnEnterIdle)
#define ON_WM_NEXTMENU() AFX_WM_(WM_NEXTMENU, OnNextMenuHandler, OnNextMenu)
#define ON_WM_MENUDRAG() AFX_WM_(WM_MENUDRAG, OnMenuDragHandler, OnMenuDrag)
#define ON_WM_MENURBUTTONUP() AFX_WM_(WM_MENURBUTTONUP, OnMenuRButtonUpHandler, OnMenuRButtonUp)
#define ON_WM_MENUGETOBJECT() AFX_WM_(WM_MENUGETOBJECT, OnMenuGetObjectHandler, OnMenuGetObject)

// Scroll bars and owner-drawn controls
#define ON_WM_HSCROLL() AFX_WM_(WM_HSCROLL, OnHScrollHandler, OnHScroll)
#define ON_WM_VSCROLL() AFX_WM_(WM_VSCROLL, OnHScrollHandler, OnVScroll)
#define ON_WM_DRAWITEM() AFX_WM_(WM_DRAWITEM, OnDrawItemHandler, OnDrawItem)
#define ON_WM_MEASUREITEM() AFX_WM_(WM_MEASUREITEM, OnMeasureItemHandler, OnMeasureItem)
#define ON_WM_COMPAREITEM() AFX_WM_(WM_COMPAREITEM, OnCompareItemHandler, OnCompareItem)
#define ON_WM_DELETEITEM() AFX_WM_(WM_DELETEITEM, OnDeleteItemHandler, OnDeleteItem)
#define ON_WM_CHARTOITEM() AFX_WM_(WM_CHARTOITEM, OnCharToItemHandler, OnCharToItem)
#define ON_WM_VKEYTOITEM() AFX_WM_(WM_VKEYTOITEM, OnCharToItemHandler, OnVKeyToItem)
#define ON_WM_PARENTNOTIFY() AFX_WM_(WM_PARENTNOTIFY, OnSysCommandHandler, OnParentNotify)

// The system
#define ON_WM_TIMER() AFX_WM_(WM_TIMER, OnTimerHandler, OnTimer)
#define ON_WM_DROPFILES() AFX_WM_(WM_DROPFILES, OnDropFilesHandler, OnDropFiles)
#define ON_WM_COPYDATA() AFX_WM_(WM_COPYDATA, OnCopyDataHandler, OnCopyData)
#define ON_WM_SYSCOLORCHANGE() AFX_WM_(WM_SYSCOLORCHANGE, OnDestroyHandler, OnSysColorChange)
#define ON_WM_SETTINGCHANGE() AFX_WM_(WM_SETTINGCHANGE, OnSettingChangeHandler, OnSettingChange)
#define ON_WM_WININICHANGE() AFX_WM_(WM_WININICHANGE, OnWinIniChangeHandler, OnWinIniChange)
#define ON_WM_DEVMODECHANGE() AFX_WM_(WM_DEVMODECHANGE, OnDevModeChangeHandler, OnDevModeChange)
#define ON_WM_FONTCHANGE() AFX_WM_(WM_FONTCHANGE, OnDestroyHandler, OnFontChange)
#define ON_WM_TIMECHANGE() AFX_WM_(WM_TIMECHANGE, OnDestroyHandler, OnTimeChange)
#define ON_WM_THEMECHANGED() AFX_WM_(WM_THEMECHANGED, OnThemeChangedHandler, OnThemeChanged)
#define ON_WM_COMPACTING() AFX_WM_(WM_COMPACTING, OnRenderFormatHandler, OnCompacting)
#define ON_WM_DEVICECHANGE() AFX_WM_(WM_DEVICECHANGE, OnDeviceChangeHandler, OnDeviceChange)
#define ON_WM_POWERBROADCAST() AFX_WM_(WM_POWERBROADCAST, OnPowerBroadcastHandler, OnPowerBroadcast)
#define ON_WM_SPOOLERSTATUS() AFX_WM_(WM_SPOOLERSTATUS, OnSpoolerStatusHandler, OnSpoolerStatus)
#define ON_WM_TCARD() AFX_WM_(WM_TCARD, OnTCardHandler, OnTCard)
#define ON_WM_USERCHANGED() AFX_WM_(WM_USERCHANGED, OnDestroyHandler, OnUserChanged)
#define ON_WM_WTSSESSION_CHANGE() AFX_WM_(WM_WTSSESSION_CHANGE, OnTwoNumbersHandler, OnSessionChange)
#define ON_WM_NOTIFYFORMAT() AFX_WM_(WM_NOTIFYFORMAT, OnNotifyFormatHandler, OnNotifyFormat)

// The clipboard
#define ON_WM_CLIPBOARDUPDATE() AFX_WM_(WM_CLIPBOARDUPDATE, OnDestroyHandler, OnClipboardUpdate)
#define ON_WM_DRAWCLIPBOARD() AFX_WM_(WM_DRAWCLIPBOARD, OnDestroyHandler, OnDrawClipboard)
#define ON_WM_DESTROYCLIPBOARD() AFX_WM_(WM_DESTROYCLIPBOARD, OnDestroyHandler, OnDestroyClipboard)
#define ON_WM_CHANGECBCHAIN() AFX_WM_(WM_CHANGECBCHAIN, OnChangeCbChainHandler, OnChangeCbChain)
#define ON_WM_ASKCBFORMATNAME() AFX_WM_(WM_ASKCBFORMATNAME, OnAskCbFormatNameHandler, OnAskCbFormatName)
#define ON_WM_RENDERFORMAT() AFX_WM_(WM_RENDERFORMAT, OnRenderFormatHandler, OnRenderFormat)
#define ON_WM_RENDERALLFORMATS() AFX_WM_(WM_RENDERALLFORMATS, OnDestroyHandler, OnRenderAllFormats)
#define ON_WM_PAINTCLIPBOARD() AFX_WM_(WM_PAINTCLIPBOARD, OnPaintClipboardHandler, OnPaintClipboard)
#define ON_WM_SIZECLIPBOARD() AFX_WM_(WM_SIZECLIPBOARD, OnPaintClipboardHandler, OnSizeClipboard)
#define ON_WM_HSCROLLCLIPBOARD() AFX_WM_(WM_HSCROLLCLIPBOARD, OnClipboardScrollHandler, OnHScrollClipboard)
#define ON_WM_VSCROLLCLIPBOARD() AFX_WM_(WM_VSCROLLCLIPBOARD, OnClipboardScrollHandler, OnVScrollClipboard)

// Messages of controls that come back to the control itself
#define ON_WM_CTLCOLOR_REFLECT() AFX_WM_(WM_REFLECT_BASE + WM_CTLCOLOR, ReflectedCtlColorHandler, CtlColor)
#define ON_WM_DRAWITEM_REFLECT() AFX_WM_(WM_REFLECT_BASE + WM_DRAWITEM, ReflectedDrawItemHandler, DrawItem)
#define ON_WM_MEASUREITEM_REFLECT()                                                                          \
    AFX_WM_(WM_REFLECT_BASE + WM_MEASUREITEM, ReflectedMeasureItemHandler, MeasureItem)
#define ON_WM_DELETEITEM_REFLECT()                                                                           \
    AFX_WM_(WM_REFLECT_BASE + WM_DELETEITEM, ReflectedDeleteItemHandler, DeleteItem)
#define ON_WM_COMPAREITEM_REFLECT()                                                                          \
    AFX_WM_(WM_REFLECT_BASE + WM_COMPAREITEM, ReflectedCompareItemHandler, CompareItem)
#define ON_WM_CHARTOITEM_REFLECT()                                                                           \
    AFX_WM_(WM_REFLECT_BASE + WM_CHARTOITEM, ReflectedCharToItemHandler, CharToItem)
#define ON_WM_VKEYTOITEM_REFLECT()                                                                           \
    AFX_WM_(WM_REFLECT_BASE + WM_VKEYTOITEM, ReflectedCharToItemHandler, VKeyToItem)
#define ON_WM_HSCROLL_REFLECT() AFX_WM_(WM_REFLECT_BASE + WM_HSCROLL, ReflectedHScrollHandler, HScroll)
#define ON_WM_VSCROLL_REFLECT() AFX_WM_(WM_REFLECT_BASE + WM_VSCROLL, ReflectedHScrollHandler, VScroll)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                         \
    AFX_WM_(WM_REFLECT_BASE + WM_PARENTNOTIFY, ReflectedParentNotifyHandler, ParentNotify)

// Messages by number
#define ON_MESSAGE(message, memberFxn) AFX_MESSAGE_(message, MessageHandler, memberFxn)
#define ON_MESSAGE_VOID(message, memberFxn) AFX_MESSAGE_(message, OnDestroyHandler, memberFxn)
/// `variable` is a UINT that RegisterWindowMessage has filled, or will.
#define ON_REGISTERED_MESSAGE(variable, memberFxn)                                                           \
    AFX_ENTRY_(0xC000, 0, 0, 0, &variable, afxdetail::MessageHandler, memberFxn)
#define ON_THREAD_MESSAGE(message, memberFxn) AFX_MESSAGE_(message, ThreadMessageHandler, memberFxn)
#define ON_REGISTERED_THREAD_MESSAGE(variable, memberFxn)                                                    \
    AFX_ENTRY_(0xC000, 0, 0, 0, &variable, afxdetail::ThreadMessageHandler, memberFxn)

// Commands
#define AFX_COMMAND_(code, first, last, Kind, memberFxn)                                                     \
    AFX_ENTRY_(WM_COMMAND, code, first, last, nullptr, afxdetail::Kind, memberFxn)
#define ON_COMMAND(id, memberFxn) AFX_COMMAND_(CN_COMMAND, id, id, CommandHandler, memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                              \
    AFX_COMMAND_(CN_COMMAND, id, idLast, CommandRangeHandler, memberFxn)
/// The handler answers FALSE to let the command go on to other targets.
#define ON_COMMAND_EX(id, memberFxn) AFX_COMMAND_(CN_COMMAND, id, id, CommandExHandler, memberFxn)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                           \
    AFX_COMMAND_(CN_COMMAND, id, idLast, CommandExHandler, memberFxn)
#define ON_COMMAND_RANGE_EX ON_COMMAND_EX_RANGE
#define ON_UPDATE_COMMAND_UI(id, memberFxn)                                                                  \
    AFX_COMMAND_(CN_UPDATE_COMMAND_UI, id, id, UpdateHandler, memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                    \
    AFX_COMMAND_(CN_UPDATE_COMMAND_UI, id, idLast, UpdateHandler, memberFxn)
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                              \
    AFX_ENTRY_(WM_REFLECT_BASE + WM_COMMAND, CN_UPDATE_COMMAND_UI, 0, 0xFFFF, nullptr,                       \
               afxdetail::UpdateHandler, memberFxn)

// Notifications of standard controls
#define ON_CONTROL(code, id, memberFxn) AFX_COMMAND_(code, id, id, CommandHandler, memberFxn)
#define ON_CONTROL_RANGE(code, id, idLast, memberFxn)                                                        \
    AFX_COMMAND_(code, id, idLast, CommandRangeHandler, memberFxn)
#define ON_CONTROL_REFLECT(code, memberFxn)                                                                  \
    AFX_ENTRY_(WM_REFLECT_BASE + WM_COMMAND, code, 0, 0xFFFF, nullptr, afxdetail::CommandHandler, memberFxn)
/// The handler answers FALSE to let the parent have the notification too.
#define ON_CONTROL_REFLECT_EX(code, memberFxn)                                                               \
    AFX_ENTRY_(WM_REFLECT_BASE + WM_COMMAND, code, 0, 0xFFFF, nullptr, afxdetail::ReflectedControlExHandler, \
               memberFxn)

// Notifications of common controls
#define AFX_NOTIFY_(code, first, last, Kind, memberFxn)                                                      \
    AFX_ENTRY_(WM_NOTIFY, code, first, last, nullptr, afxdetail::Kind, memberFxn)
#define ON_NOTIFY(code, id, memberFxn) AFX_NOTIFY_(code, id, id, NotifyHandler, memberFxn)
#define ON_NOTIFY_RANGE(code, id, idLast, memberFxn)                                                         \
    AFX_NOTIFY_(code, id, idLast, NotifyRangeHandler, memberFxn)
#define ON_NOTIFY_EX(code, id, memberFxn) AFX_NOTIFY_(code, id, id, NotifyExHandler, memberFxn)
#define ON_NOTIFY_EX_RANGE(code, id, idLast, memberFxn)                                                      \
    AFX_NOTIFY_(code, id, idLast, NotifyExHandler, memberFxn)
#define ON_NOTIFY_REFLECT(code, memberFxn)                                                                   \
    AFX_ENTRY_(WM_REFLECT_BASE + WM_NOTIFY, code, 0, 0xFFFF, nullptr, afxdetail::NotifyHandler, memberFxn)
/// The handler answers FALSE to let the parent have the notification too.
#define ON_NOTIFY_REFLECT_EX(code, memberFxn)                                                                \
    AFX_ENTRY_(WM_REFLECT_BASE + WM_NOTIFY, code, 0, 0xFFFF, nullptr, afxdetail::ReflectedNotifyExHandler,   \
               memberFxn)

// Notifications by name
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)

#endif // __AFXMSG_H__
