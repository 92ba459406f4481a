#include "VisualStyles.h"

#include <windows.h>
#include <uxtheme.h>

namespace
{

bool areOn()
{
    return (::GetThemeAppProperties() & STAP_ALLOW_CONTROLS) != 0;
}

/// Without a theme of its own the window would look as the program's choice says; not everywhere, though.
BOOL CALLBACK tell(HWND window, LPARAM)
{
    const wchar_t* const none = areOn() ? nullptr : L" ";
    ::SetWindowTheme(window, none, none); // sends WM_THEMECHANGED
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

void followVisualStyles(HWND window)
{
    if (!areOn())
        tellAll(window, 0);
}
