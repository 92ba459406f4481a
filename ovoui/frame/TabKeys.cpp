#include <ovoui/frame/TabKeys.h>

#include <ovoui/frame/HeldKeysNow.h>
#include <ovoui/frame/core/TabStep.h>

#include <commctrl.h>

using namespace ovoui::frame;

BOOL PreTranslateTabControl(const MSG& message, HWND tabControl)
{
    if (message.message != WM_KEYDOWN || !tabControl)
        return FALSE;
    const auto direction = tabDirection(static_cast<unsigned>(message.wParam), heldKeysNow());
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
