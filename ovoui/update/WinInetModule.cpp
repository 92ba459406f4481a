#include <ovoui/update/WinInetModule.h>

#include <ovocor/Library.h>

namespace ovoui::update
{

HMODULE winInet()
{
    constexpr wchar_t kName[] = L"wininet.dll";
    const HMODULE loaded = ::GetModuleHandleW(kName);
    return loaded ? loaded : OVO::LoadSystemLibrary(kName);
}

} // namespace ovoui::update
