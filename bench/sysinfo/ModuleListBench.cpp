// The module list against the calls of the system that it cannot do without.
#include <ovoui/sysinfo/LoadedModules.h>

#include <catch2/catch.hpp>

#include <windows.h>
#include <dbghelp.h>
#include <tlhelp32.h>

#include <vector>

namespace
{

/// More modules, until there are sixty.
void loadSixty()
{
    for (const wchar_t* name :
         {L"wininet.dll", L"winmm.dll",    L"crypt32.dll",  L"wintrust.dll", L"setupapi.dll", L"iphlpapi.dll",
          L"urlmon.dll",  L"mpr.dll",      L"netapi32.dll", L"winspool.drv", L"userenv.dll",  L"wtsapi32.dll",
          L"propsys.dll", L"avifil32.dll", L"msvfw32.dll",  L"oleacc.dll",   L"riched20.dll", L"secur32.dll",
          L"cabinet.dll", L"winhttp.dll",  L"dnsapi.dll",   L"hid.dll",      L"msacm32.dll",  L"rasapi32.dll",
          L"tapi32.dll",  L"wldap32.dll",  L"xmllite.dll",  L"psapi.dll",    L"dwmapi.dll",   L"d3d9.dll",
          L"dinput8.dll", L"dsound.dll"}) {
        if (loadedModules().size() >= 60)
            return;
        ::LoadLibraryW(name);
    }
}

/// Everything that is asked for a module, with nothing made of it.
std::size_t bareCalls()
{
    const HANDLE snapshot =
        ::CreateToolhelp32Snapshot(TH32CS_SNAPMODULE | TH32CS_SNAPMODULE32, ::GetCurrentProcessId());
    MODULEENTRY32W entry{};
    entry.dwSize = sizeof entry;
    std::size_t seen = 0;
    std::vector<BYTE> record;
    for (BOOL more = ::Module32FirstW(snapshot, &entry); more; more = ::Module32NextW(snapshot, &entry)) {
        seen += ::GetTimestampForLoadedLibrary(entry.hModule);
        DWORD ignored = 0;
        const DWORD size = ::GetFileVersionInfoSizeW(entry.szExePath, &ignored);
        if (size == 0)
            continue;
        record.resize(std::size_t{size} * 2);
        if (!::GetFileVersionInfoW(entry.szExePath, 0, size * 2, record.data()))
            continue;
        void* block = nullptr;
        UINT length = 0;
        for (const wchar_t* path :
             {L"\\", L"\\VarFileInfo\\Translation", L"\\StringFileInfo\\040904b0\\FileDescription"})
            seen += ::VerQueryValueW(record.data(), path, &block, &length) ? length : 0;
    }
    ::CloseHandle(snapshot);
    return seen;
}

} // namespace

TEST_CASE("the list of sixty modules")
{
    loadSixty();
    const std::size_t count = loadedModules().size();
    CAPTURE(count);
    REQUIRE(count >= 60);

    BENCHMARK("the calls of the system")
    {
        return bareCalls();
    };
    BENCHMARK("loadedModules and modulesAsText [at most 1.2]")
    {
        return modulesAsText(loadedModules());
    };
}
