#include <ovoui/frame/Module.h>
#include <ovoui/frame/ResourceVersion.h>

#include <afxdllx.h>
#include <ovocor/ovocor.h>

#include <new>

namespace
{

HINSTANCE s_ownInstance = nullptr;
HINSTANCE s_resourceModule = nullptr;
AFX_EXTENSION_MODULE s_extension{};

bool attach(HINSTANCE instance)
{
    if (!AfxInitExtensionModule(s_extension, instance))
        return false;
    const HMODULE resources = OVO::LoadProgramLibrary(L"ovouires.dll");
    if (!resources || !ovoui::isOfOwnVersion(resources))
        return false;

    s_resourceModule = resources;
    // Set before the chain entry is made, which copies it: the framework's search then finds the resource
    // module where it would otherwise look in ovoui itself.
    s_extension.hResource = resources;
    // Without memory for the entry the library still loads; only the search by id misses its resources. The
    // framework keeps and deletes the entry.
    new (std::nothrow) CDynLinkLibrary(s_extension);
    s_ownInstance = instance;
    return true;
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        return attach(instance);
    case DLL_PROCESS_DETACH:
        AfxTermExtensionModule(s_extension);
        break;
    }
    return TRUE;
}

namespace ovoui
{

HINSTANCE ownInstance()
{
    return s_ownInstance;
}

HINSTANCE resourceModule()
{
    return s_resourceModule;
}

std::wstring resourceString(UINT id)
{
    wchar_t buffer[256];
    const int length = ::LoadStringW(s_resourceModule, id, buffer, static_cast<int>(std::size(buffer)));
    return {buffer, static_cast<std::size_t>(length)};
}

} // namespace ovoui
