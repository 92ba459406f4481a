#include <ovoui/frame/Platform.h>

#include <windows.h>

namespace ovoui
{

Platform& platform()
{
    static const bool wine =
        ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    static Platform current{wine, wine, wine, wine, wine, wine, wine, wine};
    return current;
}

} // namespace ovoui
