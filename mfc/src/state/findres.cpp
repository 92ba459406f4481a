// The resource chain.
#include <afxwin.h>
#include <afxdllx.h>

#include <detail/modulestate.h>

namespace
{

bool has(HINSTANCE module, LPCTSTR name, LPCTSTR type)
{
    return module && ::FindResourceW(module, name, type);
}

/// The first extension module, among the system's or the others, that has the resource.
HINSTANCE extensionWith(LPCTSTR name, LPCTSTR type, bool system)
{
    for (const CDynLinkLibrary* library = AfxGetModuleState()->libraries; library; library = library->m_pNextDLL)
        if ((library->m_bSystem != FALSE) == system && has(library->m_hResource, name, type))
            return library->m_hResource;
    return nullptr;
}

} // namespace

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR name, LPCTSTR type)
{
    const HINSTANCE current = AfxGetResourceHandle();
    if (has(current, name, type))
        return current;
    if (const HINSTANCE extension = extensionWith(name, type, false))
        return extension;
    if (const HINSTANCE framework = afxdetail::frameworkModule(); has(framework, name, type))
        return framework;
    if (const HINSTANCE extension = extensionWith(name, type, true))
        return extension;
    return current;
}

int AFXAPI AfxLoadString(UINT id, LPTSTR buffer, UINT maxLength)
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCEW(id / 16 + 1), RT_STRING);
    const int length = ::LoadStringW(module, id, buffer, static_cast<int>(maxLength));
    if (length == 0 && maxLength > 0)
        buffer[0] = 0;
    return length;
}
