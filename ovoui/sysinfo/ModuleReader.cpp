#include <ovoui/sysinfo/ModuleReader.h>

#include <ovoui/sysinfo/LoadedModules.h>
#include <ovoui/sysinfo/VersionRecord.h>
#include <ovoui/sysinfo/core/ModuleText.h>
#include <ovoui/sysinfo/core/ModuleView.h>
#include <ovoui/sysinfo/core/VersionWords.h>

#include <ovocor/Text.h>
#include <ovocor/WinError.h>

#include <afx.h>

#include <dbghelp.h>
#include <tlhelp32.h>

#include <ctime>
#include <iterator>
#include <utility>

namespace ovoui::sysinfo
{
namespace
{

constexpr wchar_t kNoList[] = L"Cannot get loaded module list";
constexpr int kSnapshotTries = 16;

/// The system refuses while another thread loads or frees a module, and is then to be asked again.
HANDLE takenSnapshot()
{
    HANDLE taken = INVALID_HANDLE_VALUE;
    for (int left = kSnapshotTries; left > 0; --left) {
        taken = ::CreateToolhelp32Snapshot(TH32CS_SNAPMODULE | TH32CS_SNAPMODULE32, ::GetCurrentProcessId());
        if (taken != INVALID_HANDLE_VALUE || ::GetLastError() != ERROR_BAD_LENGTH)
            break;
    }
    return taken;
}

/// The modules of this process at one moment.
class ModuleSnapshot
{
public:
    ModuleSnapshot()
        : m_handle(takenSnapshot())
    {
        if (m_handle == INVALID_HANDLE_VALUE)
            throw WinError(L"CreateToolhelp32Snapshot failed", ::GetLastError());
    }
    ~ModuleSnapshot() { ::CloseHandle(m_handle); }
    ModuleSnapshot(const ModuleSnapshot&) = delete;
    ModuleSnapshot& operator=(const ModuleSnapshot&) = delete;

    /// Puts the first or next module into `entry`.
    void first(MODULEENTRY32W& entry) const
    {
        if (!::Module32FirstW(m_handle, &entry))
            throw WinError(L"Module32First failed", ::GetLastError());
    }
    bool next(MODULEENTRY32W& entry) const { return ::Module32NextW(m_handle, &entry) != FALSE; }

private:
    const HANDLE m_handle;
};

std::wstring listSeparator()
{
    wchar_t text[11]{};
    ::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SLIST, text, static_cast<int>(std::size(text)));
    return text;
}

/// The time at which the linker made the module, in local time.
std::wstring linkTimeOf(HMODULE module)
{
    const std::time_t time = ::GetTimestampForLoadedLibrary(module);
    std::tm local{};
    wchar_t text[50]{};
    if (::localtime_s(&local, &time) != 0 ||
        std::wcsftime(text, std::size(text), L"%#d %B %Y %H:%M:%S", &local) == 0)
        return {};
    return text;
}

std::wstring folderFrom(UINT(WINAPI* get)(LPWSTR, UINT))
{
    wchar_t path[MAX_PATH]{};
    return get(path, MAX_PATH) < MAX_PATH ? path : L"";
}

/// What all modules of one list are described with.
class ModuleDescriber
{
public:
    LoadedModule describe(const MODULEENTRY32W& entry) const
    {
        LoadedModule module;
        module.name = entry.szModule;
        module.path = entry.szExePath;
        module.hasAddress = true;
        module.baseAddress = reinterpret_cast<std::uintptr_t>(entry.modBaseAddr);
        module.size = entry.modBaseSize;
        module.linkTime = linkTimeOf(entry.hModule);
        module.place = placeOf(module.path, m_programFolder, m_systemFolders);
        readVersion(module);
        return module;
    }

private:
    void readVersion(LoadedModule& module) const
    {
        const VersionRecord version(module.path.c_str());
        if (version.empty())
            return;
        module.hasVersionRecord = true;
        if (const VS_FIXEDFILEINFO* const info = version.fixedInfo()) {
            module.fileVersion = versionText(info->dwFileVersionMS, info->dwFileVersionLS);
            module.productVersion = versionText(info->dwProductVersionMS, info->dwProductVersionLS);
            module.flags = flagWords(info->dwFileFlags & info->dwFileFlagsMask, m_separator);
            module.system = systemWords(info->dwFileOS, m_separator);
            module.type = typeWords(info->dwFileType, info->dwFileSubtype);
        }
        module.fileDescription = version.descriptions();
    }

    static std::wstring programFolder()
    {
        wchar_t path[MAX_PATH]{};
        ::GetModuleFileNameW(nullptr, path, MAX_PATH);
        return getDirectory(path);
    }

    const std::wstring m_separator = listSeparator();
    const std::wstring m_programFolder = programFolder();
    const std::vector<std::wstring> m_systemFolders{folderFrom(&::GetSystemDirectoryW),
                                                    folderFrom(&::GetSystemWow64DirectoryW),
                                                    folderFrom(&::GetSystemWindowsDirectoryW) + L"\\WinSxS"};
};

} // namespace

std::wstring loadedModulesText()
{
    try {
        return textOf(loadedModules());
    } catch ([[maybe_unused]] const WinError& error) {
        TRACE(L"%s\n", error.wwhat());
        return kNoList;
    }
}

} // namespace ovoui::sysinfo

using namespace ovoui::sysinfo;

std::vector<LoadedModule> loadedModules()
{
    const ModuleSnapshot snapshot;
    MODULEENTRY32W entry{};
    entry.dwSize = sizeof entry;
    snapshot.first(entry);
    const ModuleDescriber describer;
    std::vector<LoadedModule> modules;
    do {
        modules.push_back(describer.describe(entry));
    } while (snapshot.next(entry));
    return modules;
}

std::wstring modulesAsText(const std::vector<LoadedModule>& modules)
{
    return textOf(modules);
}

std::wstring modulesAsMarkdown(const std::vector<LoadedModule>& modules)
{
    return markdownOf(modules);
}

std::wstring modulesAsJson(const std::vector<LoadedModule>& modules)
{
    return jsonOf(modules);
}
