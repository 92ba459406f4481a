// Window classes.
#include <afxwin.h>

#include <detail/modulestate.h>

BOOL AFXAPI AfxRegisterClass(WNDCLASS* wndClass)
{
    WNDCLASSW present{};
    if (::GetClassInfoW(wndClass->hInstance, wndClass->lpszClassName, &present))
        return TRUE;
    if (!::RegisterClassW(wndClass))
        return FALSE;
    AfxGetModuleState()->wndClasses.insert(wndClass->lpszClassName);
    return TRUE;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT style, HCURSOR cursor, HBRUSH background, HICON icon)
{
    thread_local CString name;
    const HINSTANCE instance = AfxGetInstanceHandle();
    if (!cursor && !background && !icon)
        name.Format(L"Afx:%p:%x", static_cast<void*>(instance), style);
    else
        name.Format(L"Afx:%p:%x:%p:%p:%p", static_cast<void*>(instance), style, static_cast<void*>(cursor),
                    static_cast<void*>(background), static_cast<void*>(icon));

    WNDCLASSW wndClass{};
    wndClass.style = style;
    wndClass.lpfnWndProc = &::DefWindowProcW; // replaced for each window as it is created
    wndClass.hInstance = instance;
    wndClass.hCursor = cursor;
    wndClass.hbrBackground = background;
    wndClass.hIcon = icon;
    wndClass.lpszClassName = name;
    if (!AfxRegisterClass(&wndClass))
        AfxThrowResourceException();
    return name;
}
