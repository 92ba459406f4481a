#include <ovoui/toolbar/AccessibleBar.h>

#include <ovoui/frame/LoadedText.h>
#include <ovoui/frame/WindowText.h>
#include <ovoui/toolbar/BarButtons.h>
#include <ovoui/toolbar/ButtonNames.h>
#include <ovoui/toolbar/core/ButtonRules.h>

#include <ovouires/resource.h>

#include <oleacc.h>

namespace ovoui::toolbar
{

HWND AccessibleBar::window() const
{
    const CToolBar* const shown = bar();
    return shown ? shown->m_hWnd : nullptr;
}

int AccessibleBar::partCount() const
{
    return static_cast<int>(::SendMessageW(window(), TB_BUTTONCOUNT, 0, 0));
}

// What they are

LONG AccessibleBar::role(int part) const
{
    if (part == kSelf)
        return ROLE_SYSTEM_TOOLBAR;
    switch (roleOf(fieldsOf(window(), part), opensFlyout(part))) {
    case ButtonRole::Separator:
        return ROLE_SYSTEM_SEPARATOR;
    case ButtonRole::FlyoutButton:
        return ROLE_SYSTEM_BUTTONDROPDOWN;
    case ButtonRole::CheckButton:
        return ROLE_SYSTEM_CHECKBUTTON;
    case ButtonRole::PushButton:
        break;
    }
    return ROLE_SYSTEM_PUSHBUTTON;
}

std::wstring AccessibleBar::name(int part) const
{
    if (part != kSelf)
        return isSeparator(part) ? std::wstring() : nameOfButton(part);
    return frame::windowText(*bar());
}

std::wstring AccessibleBar::description(int part) const
{
    return part == kSelf ? std::wstring() : promptOfCommand(button(part).idCommand);
}

std::wstring AccessibleBar::action(int part) const
{
    return canPress(part) ? frame::loadedText(IDS_ACTION_PRESS) : std::wstring();
}

std::optional<LONG> AccessibleBar::state(int part) const
{
    return part == kSelf ? std::nullopt : std::optional(stateOf(part));
}

LONG AccessibleBar::stateOf(int index) const
{
    const BYTE shown = button(index).fsState;
    const auto when = [](bool holds, LONG state) { return holds ? state : 0; };
    return when(!(shown & TBSTATE_ENABLED), STATE_SYSTEM_UNAVAILABLE) |
           when((shown & TBSTATE_HIDDEN) != 0, STATE_SYSTEM_INVISIBLE) |
           when((shown & TBSTATE_CHECKED) != 0, STATE_SYSTEM_CHECKED) |
           when((shown & TBSTATE_INDETERMINATE) != 0, STATE_SYSTEM_MIXED) |
           when((shown & TBSTATE_PRESSED) != 0, STATE_SYSTEM_PRESSED) |
           when(!isSeparator(index), STATE_SYSTEM_FOCUSABLE) |
           when(opensFlyout(index), STATE_SYSTEM_HASPOPUP) |
           when(focusedButton() == index, STATE_SYSTEM_FOCUSED | STATE_SYSTEM_HOTTRACKED);
}

// Where they are

std::optional<CRect> AccessibleBar::place(int part) const
{
    if (part == kSelf)
        return std::nullopt;
    CRect place(0, 0, 0, 0);
    ::SendMessageW(window(), TB_GETITEMRECT, static_cast<WPARAM>(part),
                   reinterpret_cast<LPARAM>(static_cast<RECT*>(&place)));
    bar()->ClientToScreen(&place);
    return place;
}

/// A separator keeps the place of a control that has its command for an id.
HWND AccessibleBar::windowOf(int part) const
{
    const ButtonFields place = fieldsOf(window(), part);
    return keepsControl(place) ? ::GetDlgItem(window(), place.command) : nullptr;
}

std::optional<int> AccessibleBar::focused() const
{
    return focusedButton();
}

// Buttons

void AccessibleBar::act(int part)
{
    ::PostMessageW(window(), pressMessage(), static_cast<WPARAM>(part), 0);
}

TBBUTTON AccessibleBar::button(int index) const
{
    return buttonOf(window(), index);
}

bool AccessibleBar::isSeparator(int index) const
{
    return toolbar::isSeparator(fieldsOf(window(), index));
}

bool AccessibleBar::canPress(int index) const
{
    return index != kSelf && canBePressed(fieldsOf(window(), index));
}

UINT pressMessage()
{
    static const UINT message = ::RegisterWindowMessageW(L"OVO_TOOLBAR_PRESS");
    return message;
}

void announceButton(HWND bar, int index)
{
    frame::announce(EVENT_OBJECT_FOCUS, bar, index);
}

} // namespace ovoui::toolbar
