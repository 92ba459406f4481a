#include <ovoui/frame/TabKeys.h>

#include <ovoui/frame/core/TabStep.h>

#include <commctrl.h>

#include <optional>

using namespace ovoui::frame;

namespace
{

bool isDown(int key)
{
    return ::GetKeyState(key) < 0;
}

std::optional<TabDirection> directionOf(WPARAM key)
{
    if (!isDown(VK_CONTROL))
        return std::nullopt;
    switch (key) {
    case VK_TAB:
        return isDown(VK_SHIFT) ? TabDirection::Backward : TabDirection::Forward;
    case VK_PRIOR:
        return TabDirection::Backward;
    case VK_NEXT:
        return TabDirection::Forward;
    default:
        return std::nullopt;
    }
}

} // namespace

BOOL PreTranslateTabControl(const MSG& message, HWND tabControl)
{
    if (message.message != WM_KEYDOWN || !tabControl)
        return FALSE;
    const auto direction = directionOf(message.wParam);
    if (!direction)
        return FALSE;
    const LRESULT count = ::SendMessageW(tabControl, TCM_GETITEMCOUNT, 0, 0);
    if (count < 1)
        return FALSE;

    const LRESULT current = ::SendMessageW(tabControl, TCM_GETCURSEL, 0, 0);
    // Not TCM_SETCURSEL, which is silent: the parent has to switch the page.
    ::SendMessageW(tabControl, TCM_SETCURFOCUS, static_cast<WPARAM>(nextTab(current, count, *direction)), 0);
    return TRUE;
}
