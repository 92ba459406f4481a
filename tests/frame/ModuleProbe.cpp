// Loads ovoui.dll from beside this program and says in the exit code how it went:
//   module_probe once      0 loaded, otherwise the system's error; boxes about errors are not shown
//   module_probe openly    the same with boxes
//   module_probe cycles    0 loaded and unloaded 200 times with no growth of handles, GDI objects and
//                          modules; 1 it did not load, 2 it stayed loaded, 3 something grew
//   module_probe leaving   0 while the library is loaded, and only then, the framework, which stays, finds
//                          its resources, and its resource module stays too; 1 it did not load, 2 they are
//                          not found, 3 it stayed loaded, 4 the resource module went, 5 they are still found
//   module_probe damaged   0 a resource module that is empty or cut at any multiple of 4 KiB was refused, and
//                          the whole one taken; 1 a cut one was taken, 2 another error, 3 the whole one was
//                          refused
//   module_probe unlinked  0 without any library that it is linked with each of our modules was refused, and
//                          taken with all of them; 1 one was taken, 2 another error, 3 refused with all
//   module_probe unthemed  0 the library was loaded without UxTheme, and has no themes; 1 it has, 2 it never
//                          asked for UxTheme, 3 it did not load
#include <testkit/ImportPatch.h>

#include <windows.h>
#include <tlhelp32.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace
{

constexpr UINT kNoBoxes = SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX;

int loadOnce(UINT errorMode)
{
    ::SetErrorMode(errorMode);
    if (::LoadLibraryW(L"ovoui.dll"))
        return 0;
    const DWORD error = ::GetLastError();
    return error ? static_cast<int>(error) : -1;
}

struct Usage
{
    DWORD handles = 0;
    int modules = 0;
    SIZE_T committed = 0;
};

int countModules()
{
    const HANDLE snapshot = ::CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, 0);
    MODULEENTRY32W entry{};
    entry.dwSize = sizeof entry;
    int count = 0;
    for (BOOL more = ::Module32FirstW(snapshot, &entry); more; more = ::Module32NextW(snapshot, &entry))
        ++count;
    ::CloseHandle(snapshot);
    return count;
}

SIZE_T committedMemory()
{
    SIZE_T total = 0;
    MEMORY_BASIC_INFORMATION region{};
    for (const char* at = nullptr; ::VirtualQuery(at, &region, sizeof region); at += region.RegionSize)
        if (region.State == MEM_COMMIT)
            total += region.RegionSize;
    return total;
}

Usage usage()
{
    Usage usage;
    ::GetProcessHandleCount(::GetCurrentProcess(), &usage.handles);
    usage.modules = countModules();
    usage.committed = committedMemory();
    return usage;
}

bool cycle()
{
    const HMODULE module = ::LoadLibraryW(L"ovoui.dll");
    return module && ::FreeLibrary(module);
}

int loadAndUnload()
{
    constexpr int kCycles = 200;
    constexpr int kWarmUp = 10; // lets the loader and the C runtime settle
    constexpr SIZE_T kSlack = 128 << 10;

    // As in every program in C++, the language's runtime stays loaded; it does not free all of its own.
    ::LoadLibraryW(L"libstdc++-6.dll");

    Usage before;
    for (int i = 0; i < kCycles; ++i) {
        if (i == kWarmUp)
            before = usage();
        if (!cycle())
            return 1;
    }
    if (::GetModuleHandleW(L"ovoui.dll"))
        return 2;
    const Usage after = usage();
    const bool grew = after.handles > before.handles + 2 || after.modules > before.modules ||
                      after.committed > before.committed + kSlack;
    std::printf("handles %lu to %lu, modules %d to %d, committed %llu to %llu\n", before.handles,
                after.handles, before.modules, after.modules,
                static_cast<unsigned long long>(before.committed),
                static_cast<unsigned long long>(after.committed));
    return grew ? 3 : 0;
}

/// Several times: what is left of one time could be in the way of the next.
int loadAndLeave()
{
    constexpr int kTimes = 3;
    constexpr int kMessageBox = 1505;
    const HMODULE framework = ::LoadLibraryW(L"ovomfc.dll"); // stays
    const auto search = reinterpret_cast<HINSTANCE (*)(LPCWSTR, LPCWSTR)>(
        reinterpret_cast<void*>(::GetProcAddress(framework, "_Z21AfxFindResourceHandlePKwS0_")));
    const auto finds = [search] {
        const HINSTANCE found = search(MAKEINTRESOURCEW(kMessageBox), RT_DIALOG);
        return found && found == ::GetModuleHandleW(L"ovouires.dll");
    };
    for (int i = 0; i < kTimes; ++i) {
        const HMODULE library = ::LoadLibraryW(L"ovoui.dll");
        if (!library)
            return 1;
        if (!finds())
            return 2;
        ::FreeLibrary(library);
        if (::GetModuleHandleW(L"ovoui.dll"))
            return 3;
        if (!::GetModuleHandleW(L"ovouires.dll"))
            return 4;
        if (finds())
            return 5;
    }
    return 0;
}

std::string contentOf(const wchar_t* path)
{
    std::ostringstream content;
    content << std::ifstream(std::filesystem::path(path), std::ios::binary).rdbuf();
    return content.str();
}

DWORD errorOfLoading(const wchar_t* name)
{
    const HMODULE module = ::LoadLibraryW(name);
    const DWORD error = module ? 0 : ::GetLastError();
    if (module)
        ::FreeLibrary(module);
    if (const HMODULE left = ::GetModuleHandleW(L"ovouires.dll"))
        ::FreeLibrary(left); // as it is documented, the library does not
    return error;
}

void write(const wchar_t* file, std::string_view content)
{
    std::ofstream(std::filesystem::path(file), std::ios::binary | std::ios::trunc) << content;
}

/// The error with which the library refuses a resource module of this content; 0 when it takes it.
DWORD refusalOf(std::string_view resources)
{
    write(L"ovouires.dll", resources);
    return errorOfLoading(L"ovoui.dll");
}

/// Where the last section of a module ends in its file; the linker may have written symbols behind it, which
/// no program needs.
std::size_t endOfSections(const std::string& module)
{
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(module.data());
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(module.data() + dos->e_lfanew);
    const IMAGE_SECTION_HEADER* const sections = IMAGE_FIRST_SECTION(headers);
    std::size_t end = 0;
    for (int i = 0; i < headers->FileHeader.NumberOfSections; ++i)
        end = std::max<std::size_t>(end, sections[i].PointerToRawData + sections[i].SizeOfRawData);
    return end;
}

/// In the folder of this program, which must be the current one.
int loadDamaged()
{
    constexpr std::size_t kPage = 4096;
    ::SetErrorMode(kNoBoxes);
    ::LoadLibraryW(L"ovomfc.dll"); // stays, as in a program that has it
    const std::string whole = contentOf(L"ovouires.dll");
    const std::size_t end = endOfSections(whole);
    for (std::size_t size = 0; size < end; size += kPage) {
        const DWORD error = refusalOf(std::string_view(whole).substr(0, size));
        if (error == ERROR_DLL_INIT_FAILED)
            continue;
        std::printf("cut after %zu of %zu bytes: %lu\n", size, whole.size(), error);
        return error ? 2 : 1;
    }
    return refusalOf(whole) == 0 ? 0 : 3;
}

/// Where the names of the libraries that a module is linked with stand in its file.
std::vector<std::size_t> namesOfLibraries(const std::string& module)
{
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(module.data());
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(module.data() + dos->e_lfanew);
    const auto inFile = [&](DWORD address) -> std::size_t {
        const IMAGE_SECTION_HEADER* section = IMAGE_FIRST_SECTION(headers);
        while (address >= section->VirtualAddress + section->Misc.VirtualSize)
            ++section;
        return address - section->VirtualAddress + section->PointerToRawData;
    };
    const std::size_t imports =
        inFile(headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
    std::vector<std::size_t> names;
    for (auto* import = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(module.data() + imports);
         import->Name; ++import)
        names.push_back(inFile(import->Name));
    return names;
}

/// Each library in turn is absent: the module that is linked with it asks for a file that there is not.
int loadUnlinked()
{
    ::SetErrorMode(kNoBoxes);
    ::LoadLibraryW(L"libstdc++-6.dll"); // stays, as in every program in C++
    int absent = 0;
    for (const wchar_t* file : {L"ovomsg11.dll", L"ovocor11.dll", L"ovomfc.dll", L"ovoui.dll"}) {
        const std::string whole = contentOf(file);
        for (const std::size_t name : namesOfLibraries(whole)) {
            std::string changed = whole;
            changed[name] = '_';
            // What could not be loaded may be in use for as long as the program runs; it makes room.
            std::filesystem::rename(file, L"used" + std::to_wstring(++absent));
            write(file, changed);
            const DWORD error = errorOfLoading(file);
            if (error == ERROR_MOD_NOT_FOUND)
                continue;
            std::printf("%ls without %s: %lu\n", file, &whole[name], error);
            return error ? 2 : 1;
        }
        std::filesystem::rename(file, std::wstring(L"used ") + file);
        write(file, whole);
    }
    std::printf("%d libraries were absent, one at a time\n", absent);
    return errorOfLoading(L"ovoui.dll") == 0 ? 0 : 3;
}

int g_refusals = 0;

HMODULE WINAPI loadAllButUxTheme(LPCWSTR file, HANDLE reserved, DWORD flags)
{
    const std::wstring name = std::filesystem::path(file).filename().wstring();
    if (::_wcsicmp(name.c_str(), L"uxtheme.dll") != 0)
        return ::LoadLibraryExW(file, reserved, flags);
    ++g_refusals;
    ::SetLastError(ERROR_MOD_NOT_FOUND);
    return nullptr;
}

/// The library asks for UxTheme while it is loaded, by the core library, which can be there before.
int loadUnthemed()
{
    ::LoadLibraryW(L"ovocor11.dll");
    const ovo::testkit::ImportPatch patch(L"ovocor11.dll", "LoadLibraryExW",
                                          reinterpret_cast<void*>(&loadAllButUxTheme));
    const HMODULE library = ::LoadLibraryW(L"ovoui.dll");
    if (!library)
        return 3;
    if (g_refusals == 0)
        return 2;
    const auto find = [&](const char* name) {
        return reinterpret_cast<void*>(::GetProcAddress(library, name));
    };
    const auto getThemeData = reinterpret_cast<void* (*)()>(find("_ZN10CThemeData12getThemeDataEv"));
    const auto isAppThemed = reinterpret_cast<bool (*)(void*)>(find("_ZN10CThemeData11IsAppThemedEv"));
    return isAppThemed(getThemeData()) ? 1 : 0;
}

} // namespace

int wmain(int argc, wchar_t** argv)
{
    const std::wstring_view how = argc > 1 ? argv[1] : L"once";
    if (how == L"cycles")
        return loadAndUnload();
    if (how == L"leaving")
        return loadAndLeave();
    if (how == L"damaged")
        return loadDamaged();
    if (how == L"unlinked")
        return loadUnlinked();
    if (how == L"unthemed")
        return loadUnthemed();
    return loadOnce(how == L"openly" ? 0 : kNoBoxes);
}
