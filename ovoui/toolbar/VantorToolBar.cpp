// CVantorToolBar: its life, updates and notifications.
#include <ovoui/toolbar/VantorToolBar.h>

#include <ovoui/toolbar/AccessibleBar.h>
#include <ovoui/toolbar/ButtonUpdate.h>
#include <ovoui/toolbar/FlyoutToolbar.h>
#include <ovoui/toolbar/ToolBarState.h>
#include <ovoui/toolbar/core/BarRules.h>
#include <ovoui/toolbar/core/FlyoutGesture.h>

#include <afxpriv.h>

#include <utility>

using namespace ovoui::toolbar;

IMPLEMENT_DYNAMIC(CVantorToolBar, CToolBar)

BEGIN_MESSAGE_MAP(CVantorToolBar, CToolBar)
    // mouse
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_CAPTURECHANGED()
    // keyboard in the bar itself
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_WM_SYSKEYDOWN()
    ON_WM_KILLFOCUS()
    // painting, controls that draw themselves
    ON_WM_PAINT()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    // the rest
    ON_WM_TIMER()
    ON_WM_SETTINGCHANGE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace
{

constexpr UINT_PTR kIdleTimer = 42;
constexpr UINT kIdleDelay = 250;                // milliseconds
constexpr UINT kDpiChangedAfterParent = 0x02E3; // what child windows get on Windows 10

} // namespace

std::shared_ptr<CFlyoutToolbar> CVantorToolBar::ms_popupBar;
bool CVantorToolBar::ms_dragging = false;
int CVantorToolBar::ms_dragButton = -1;
bool CVantorToolBar::ms_idleTimerPending = false;
DWORD CVantorToolBar::ms_apiRestartedTickCount = 0;
CVantorToolBar* CVantorToolBar::ms_activeBar = nullptr;

CVantorToolBar::CVantorToolBar()
    : m_state(std::make_shared<State>(*this))
{
}

CVantorToolBar::~CVantorToolBar()
{
    interrupt(Interruption::BarGone);
    ::DestroyWindow(m_hWnd); // while the handlers of this class still answer
    m_state->controlGoes();
}

void CVantorToolBar::OnDestroy()
{
    interrupt(Interruption::BarGone);
    m_state->keyboard.tip.reset();
    CToolBar::OnDestroy();
}

// Updates

HWND CVantorToolBar::commandTarget() const
{
    if (const CWnd* owner = GetOwner()) // its parent if no owner was set
        return owner->m_hWnd;
    return GetParentFrame()->GetSafeHwnd();
}

void CVantorToolBar::OnUpdateCmdUI(CFrameWnd*, BOOL disableIfNoHandler)
{
    const std::shared_ptr<State> state = m_state;
    if (CWnd* const target = CWnd::FromHandle(commandTarget()))
        updateButtons(*this, *target, disableIfNoHandler, [&] { return state->usable(); });
}

LRESULT CVantorToolBar::OnIdleUpdateCmdUI(WPARAM disableIfNoHandler, LPARAM lParam)
{
    if (updatesRest(::GetTickCount(), ms_apiRestartedTickCount)) {
        SetTimer(kIdleTimer, kIdleDelay, nullptr);
        ms_idleTimerPending = true;
        return 0;
    }
    if (std::exchange(ms_idleTimerPending, false))
        KillTimer(kIdleTimer);
    const std::shared_ptr<State> state = m_state;
    const LRESULT result = CToolBar::WindowProc(WM_IDLEUPDATECMDUI, disableIfNoHandler, lParam);
    // The flyout is a window of its own, which the framework's idle updates do not reach.
    if (state->usable() && ms_activeBar == this && ms_popupBar && ms_popupBar->IsWindowVisible())
        ms_popupBar->OnUpdateCmdUI(nullptr, static_cast<BOOL>(disableIfNoHandler));
    return result;
}

void CVantorToolBar::OnTimer(UINT_PTR id)
{
    if (id != kIdleTimer) {
        if (!onTipTimer(id))
            CToolBar::OnTimer(id);
        return;
    }
    KillTimer(kIdleTimer);
    ms_idleTimerPending = false;
    PostMessage(WM_IDLEUPDATECMDUI, TRUE);
}

// Messages, notifications of embedded controls

LRESULT CVantorToolBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == pressMessage()) {
        clickButton(static_cast<int>(wParam));
        return 0;
    }
    switch (message) {
    case WM_IDLEUPDATECMDUI:
        return OnIdleUpdateCmdUI(wParam, lParam);
    case WM_COMMAND:
        return onControlCommand(wParam, lParam);
    case WM_GETOBJECT:
        if (const LRESULT object = onGetObject(wParam, lParam))
            return object;
        break;
    case WM_DPICHANGED:
        if (!onResolutionChanged(LOWORD(wParam)))
            return 0;
        break;
    case kDpiChangedAfterParent:
        if (!onResolutionChanged(0))
            return 0;
        break;
    case WM_SYSCOLORCHANGE: {
        const std::shared_ptr<State> state = m_state;
        const LRESULT result = CToolBar::WindowProc(message, wParam, lParam); // shows its own images again
        if (state->usable())
            renewImages();
        return result;
    }
    }
    return CToolBar::WindowProc(message, wParam, lParam);
}

LRESULT CVantorToolBar::onControlCommand(WPARAM wParam, LPARAM lParam)
{
    const std::shared_ptr<State> state = m_state;
    const LRESULT result = CToolBar::WindowProc(WM_COMMAND, wParam, lParam);
    const UINT code = HIWORD(wParam);
    if (!state->usable() || !state->callback || !reachesCallback(code))
        return result;
    return state->callback(this, code, LOWORD(wParam), nullptr) ? result : 0;
}

void CVantorToolBar::SetControlCallback(ControlCallback callback)
{
    m_state->callback = callback;
}
