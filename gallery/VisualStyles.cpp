#include "VisualStyles.h"

#include <windows.h>
#include <uxtheme.h>

namespace
{

BOOL CALLBACK tell(HWND window, LPARAM)
{
    ::SendMessageW(window, WM_THEMECHANGED, 0, 0);
    ::InvalidateRect(window, nullptr, TRUE);
    return TRUE;
}

BOOL CALLBACK tellAll(HWND window, LPARAM)
{
    tell(window, 0);
    ::EnumChildWindows(window, &tell, 0);
    return TRUE;
}

} // namespace

void setVisualStyles(bool on)
{
    constexpr DWORD kAll = STAP_ALLOW_NONCLIENT | STAP_ALLOW_CONTROLS | STAP_ALLOW_WEBCONTENT;
    ::SetThemeAppProperties(on ? kAll : STAP_ALLOW_NONCLIENT);
    ::EnumThreadWindows(::GetCurrentThreadId(), &tellAll, 0);
}
