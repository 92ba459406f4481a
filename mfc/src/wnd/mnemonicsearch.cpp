#include "mnemonicsearch.h"

namespace
{

/// A window that does not belong to the dialog is found, too.
bool isFoundBySearch(HWND dialog, HWND window)
{
    for (HWND around = ::GetParent(window); around && around != dialog; around = ::GetParent(around)) {
        const LONG style = ::GetWindowLongW(around, GWL_STYLE);
        if (!(style & WS_VISIBLE) || (style & WS_DISABLED))
            return !::IsChild(dialog, window);
    }
    return true;
}

} // namespace

bool afxdetail::isLostCharacter(HWND dialog, const MSG& message)
{
    const bool isCharacter = message.message == WM_CHAR || message.message == WM_SYSCHAR;
    return isCharacter && !isFoundBySearch(dialog, message.hwnd);
}
