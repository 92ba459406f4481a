// Window classes.
#include <afxwin.h>

#include <detail/modulestate.h>
#include <detail/threadstate.h>

#include <cstdio>

BOOL AFXAPI AfxRegisterClass(WNDCLASS* wndClass)
{
    AFX_MODULE_STATE* const state = AfxGetModuleState();
    const std::lock_guard lock(state->wndClassesLock);
    WNDCLASSW present{};
    if (::GetClassInfoW(wndClass->hInstance, wndClass->lpszClassName, &present))
        return TRUE;
    if (!::RegisterClassW(wndClass))
        return FALSE;
    state->wndClasses.emplace(wndClass->hInstance, wndClass->lpszClassName);
    return TRUE;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT style, HCURSOR cursor, HBRUSH background, HICON icon)
{
    const HINSTANCE instance = AfxGetInstanceHandle();
    auto& name = afxdetail::threadState().wndClassName;
    if (!cursor && !background && !icon)
        ::_snwprintf(name, std::size(name), L"Afx:%p:%x", static_cast<void*>(instance), style);
    else
        ::_snwprintf(name, std::size(name), L"Afx:%p:%x:%p:%p:%p", static_cast<void*>(instance), style,
                     static_cast<void*>(cursor), static_cast<void*>(background), static_cast<void*>(icon));

    WNDCLASSW wndClass{};
    wndClass.style = style ? style : CS_DBLCLKS;
    wndClass.lpfnWndProc = &AfxWndProc;
    wndClass.hInstance = instance;
    wndClass.hCursor = cursor ? cursor : ::LoadCursorW(nullptr, IDC_ARROW);
    wndClass.hbrBackground = background;
    wndClass.hIcon = icon ? icon : ::LoadIconW(nullptr, IDI_APPLICATION);
    wndClass.lpszClassName = name;
    if (!AfxRegisterClass(&wndClass))
        AfxThrowResourceException();
    return name;
}
