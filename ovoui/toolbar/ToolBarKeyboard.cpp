// CVantorToolBar: the keyboard in the bar itself.
#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/TellParent.h>
#include <ovoui/toolbar/BarButtons.h>
#include <ovoui/toolbar/FlyoutToolbar.h>
#include <ovoui/toolbar/ToolBarState.h>
#include <ovoui/toolbar/WithoutOwner.h>
#include <ovoui/toolbar/core/BarWalk.h>
#include <ovoui/toolbar/core/ButtonRules.h>
#include <ovoui/toolbar/core/FlyoutGesture.h>

#include <afxpriv.h>

#include <utility>

using namespace ovoui::toolbar;

namespace
{

bool isDown(int key)
{
    return ::GetKeyState(key) < 0;
}

/// Whether a window can be given the focus.
bool takesFocus(HWND wnd)
{
    return ::IsWindow(wnd) && ::IsWindowVisible(wnd) && ::IsWindowEnabled(wnd);
}

} // namespace

BOOL CVantorToolBar::FocusButtons()
{
    if (!m_hWnd || !IsWindowVisible())
        return FALSE;
    const int first = nextStop(stops(), kNoStop, WalkKey::First, false);
    if (first == kNoStop)
        return FALSE;
    const std::shared_ptr<State> state = m_state;
    if (::GetFocus() != m_hWnd)
        state->keyboard.before = ::GetFocus();
    state->keyboard.on = true;
    SetFocus();
    if (!state->usable())
        return FALSE;
    state->keyboard.on = ::GetFocus() == m_hWnd;
    if (state->keyboard.on)
        goToButton(first);
    return state->keyboard.on;
}

/// The buttons as stops.
std::vector<Stop> CVantorToolBar::stops() const
{
    std::vector<Stop> all;
    const int count = buttonCount();
    for (int i = 0; i < count; ++i) {
        CRect place;
        const bool shown = GetToolBarCtrl().GetItemRect(i, &place) != FALSE;
        all.push_back({ovoui::frame::toBox(place), isStop(fieldsOf(m_hWnd, i), shown, HasFlyout(i))});
    }
    return all;
}

HWND CVantorToolBar::promptFrame() const
{
    const CFrameWnd* const frame = GetDockingFrame();
    return frame ? frame->m_hWnd : GetTopLevelFrame()->GetSafeHwnd();
}

/// The keyboard is at this button now, or at none.
void CVantorToolBar::goToButton(int index)
{
    const std::shared_ptr<State> state = m_state;
    redrawButton(std::exchange(state->keyboard.button, index));
    redrawButton(index);
    const UINT prompt = hasButton(index) ? GetItemID(index) : AFX_IDS_IDLEMESSAGE;
    if (const HWND frame = promptFrame())
        ::PostMessageW(frame, WM_SETMESSAGESTRING, prompt, 0);
    makeHot(index);
    if (state->usable())
        awaitTip();
    if (state->usable() && index != kNoButton)
        announceFocus(index);
}

/// The owner is asked as the control asks it, and may forbid the change. It may also destroy the bar, which
/// the control would not stand in the middle of its change.
void CVantorToolBar::makeHot(int index)
{
    const std::shared_ptr<State> state = m_state;
    const auto before = static_cast<int>(SendMessage(TB_GETHOTITEM));
    if (before == index)
        return;
    NMTBHOTITEM change{};
    change.hdr.hwndFrom = m_hWnd;
    change.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID());
    change.hdr.code = TBN_HOTITEMCHANGE;
    change.idOld = hasButton(before) ? static_cast<int>(GetItemID(before)) : 0;
    change.idNew = hasButton(index) ? static_cast<int>(GetItemID(index)) : 0;
    change.dwFlags =
        HICF_OTHER | (hasButton(before) ? 0u : HICF_ENTERING) | (hasButton(index) ? 0u : HICF_LEAVING);
    const HWND owner = WithoutOwner(m_hWnd).owner();
    const bool forbidden =
        ovoui::frame::sendToHost(owner, WM_NOTIFY, change.hdr.idFrom, reinterpret_cast<LPARAM>(&change)) != 0;
    if (forbidden || !state->usable())
        return;
    const WithoutOwner quiet(m_hWnd);
    SendMessage(TB_SETHOTITEM, static_cast<WPARAM>(index));
}

void CVantorToolBar::redrawButton(int index)
{
    CRect rect;
    if (hasButton(index) && GetToolBarCtrl().GetItemRect(index, &rect))
        InvalidateRect(&rect);
}

// Keys

KeyView CVantorToolBar::keyView() const
{
    const int button = m_state->keyboard.button;
    KeyView view;
    view.flyoutOpen = ms_popupBar && ms_activeBar == this;
    view.hasFlyout = HasFlyout(button);
    view.horizontal = isHorizontal();
    view.oneColumn = isOneColumn(allFields(), GetToolBarCtrl().GetRows());
    view.mirrored = (GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    view.pressable = isEnabled(fieldsOf(m_hWnd, button));
    return view;
}

std::vector<ButtonFields> CVantorToolBar::allFields() const
{
    std::vector<ButtonFields> fields;
    for (const TBBUTTON& button : allButtons())
        fields.push_back(fieldsOf(button));
    return fields;
}

/// False when the bar has not got the keyboard.
bool CVantorToolBar::onOperatingKey(UINT key, bool alt)
{
    if (!m_state->keyboard.on)
        return false;
    const BarKeyOutcome outcome = onBarKey({key, alt, isDown(VK_SHIFT)}, keyView());
    switch (outcome.action) {
    case BarKeyAction::None:
        break;
    case BarKeyAction::WalkBar:
        walkBar(outcome.walk);
        break;
    case BarKeyAction::WalkFlyout:
        walkFlyout(outcome.walk);
        break;
    case BarKeyAction::Open:
        openByKey();
        break;
    case BarKeyAction::Close:
        endPress();
        break;
    case BarKeyAction::Press:
        pressByKey();
        break;
    case BarKeyAction::Choose:
        chooseEntry(ms_popupBar->hotEntry());
        break;
    case BarKeyAction::Leave:
        giveFocusBack();
        break;
    case BarKeyAction::NextControl:
    case BarKeyAction::PreviousControl:
        goToControl(outcome.action == BarKeyAction::PreviousControl);
        break;
    }
    return true;
}

void CVantorToolBar::walkBar(WalkKey key)
{
    const int next = nextStop(stops(), m_state->keyboard.button, key, keyView().mirrored);
    if (next != kNoStop)
        goToButton(next);
}

void CVantorToolBar::walkFlyout(WalkKey key)
{
    const std::shared_ptr<CFlyoutToolbar> flyout = ms_popupBar;
    const int next = nextStop(flyout->stops(), flyout->hotIndex(), key, keyView().mirrored);
    if (next != kNoStop)
        flyout->makeHot(next);
    if (next != kNoStop && m_state->accessible)
        flyout->announceFocus(next);
}

/// The first entry is hot at once, as in a menu.
void CVantorToolBar::openByKey()
{
    const std::shared_ptr<State> state = m_state;
    const int button = state->keyboard.button;
    CRect rect;
    GetItemRect(button, &rect);
    ClientToScreen(&rect);
    hideTip();
    CreatePopup(button, rect, 0); // asks the host how the entries stand
    if (!state->usable() || ms_activeBar != this || !ms_popupBar)
        return;
    ms_dragButton = button;
    walkFlyout(WalkKey::First);
}

void CVantorToolBar::pressByKey()
{
    const std::shared_ptr<State> state = m_state;
    const int button = state->keyboard.button;
    giveFocusBack();
    if (state->usable())
        clickButton(button);
}

/// As the mouse does it: the control presses the button, checks it if it is one to be checked, and tells the
/// owner. It lets go of the button whatever the owner raises at the press.
void CVantorToolBar::clickButton(int index)
{
    const std::shared_ptr<State> state = m_state;
    CRect rect;
    if (!hasButton(index) || !GetToolBarCtrl().GetItemRect(index, &rect))
        return;
    const LPARAM middle = MAKELPARAM(rect.CenterPoint().x, rect.CenterPoint().y);
    std::exception_ptr raised =
        ovoui::frame::keeping([&] { DefWindowProc(WM_LBUTTONDOWN, MK_LBUTTON, middle); });
    if (state->usable())
        ovoui::frame::keepFirst(raised, [&] { DefWindowProc(WM_LBUTTONUP, 0, middle); });
    ovoui::frame::raise(raised);
}

void CVantorToolBar::chooseEntry(const CFlyoutToolbar::Entry& entry)
{
    const std::shared_ptr<State> state = m_state;
    const bool chosen = takeEntry(Press{true, ms_dragButton, ms_popupBar != nullptr}, entry);
    if (!state->usable())
        return;
    endPress();
    if (chosen && state->keyboard.on)
        giveFocusBack();
}

/// The first, or the one before it, which is the last: without a control to begin at Wine finds none
/// backwards.
void CVantorToolBar::goToControl(bool previous)
{
    CWnd* const first = GetNextDlgTabItem(nullptr);
    if (CWnd* const control = first && previous ? GetNextDlgTabItem(first, TRUE) : first)
        control->SetFocus();
}

// The end

void CVantorToolBar::giveFocusBack()
{
    const std::shared_ptr<State> state = m_state;
    const HWND before = state->keyboard.before;
    leaveKeyboard(); // tells the owner of the hot button
    if (takesFocus(before))
        ::SetFocus(before);
    else if (CFrameWnd* const frame = state->usable() ? GetTopLevelFrame() : nullptr)
        frame->SetFocus();
}

void CVantorToolBar::leaveKeyboard()
{
    const std::shared_ptr<State> state = m_state;
    if (!std::exchange(state->keyboard.on, false))
        return;
    state->keyboard.before = nullptr;
    interrupt(Interruption::KeyboardLeft);
    goToButton(kNoButton);
}

// Messages

UINT CVantorToolBar::OnGetDlgCode()
{
    return m_state->keyboard.on ? DLGC_WANTALLKEYS : CToolBar::OnGetDlgCode();
}

void CVantorToolBar::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (!onOperatingKey(key, false))
        CToolBar::OnKeyDown(key, repeat, flags);
}

/// The system hears of the key, too: else it would take Alt for the only one, and open the menu when Alt is
/// let go of.
void CVantorToolBar::OnSysKeyDown(UINT key, UINT repeat, UINT flags)
{
    const std::shared_ptr<State> state = m_state;
    if (flags & KF_ALTDOWN) // without Alt it is F10, which is the menu's
        onOperatingKey(key, true);
    if (state->usable())
        CToolBar::OnSysKeyDown(key, repeat, flags);
}

void CVantorToolBar::OnKillFocus(CWnd* now)
{
    const std::shared_ptr<State> state = m_state;
    leaveKeyboard();
    if (state->usable())
        CToolBar::OnKillFocus(now);
}
