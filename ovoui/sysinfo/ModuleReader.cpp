#include <ovoui/sysinfo/ModuleReader.h>

#include <ovoui/sysinfo/VersionRecord.h>
#include <ovoui/sysinfo/core/ModuleRecord.h>
#include <ovoui/sysinfo/core/VersionWords.h>

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
constexpr wchar_t kLineEnd[] = L"\r\n";

/// The modules of this process at one moment.
class ModuleSnapshot
{
public:
    ModuleSnapshot()
        : m_handle(
              ::CreateToolhelp32Snapshot(TH32CS_SNAPMODULE | TH32CS_SNAPMODULE32, ::GetCurrentProcessId()))
    {
    }
    ~ModuleSnapshot()
    {
        if (valid())
            ::CloseHandle(m_handle);
    }
    ModuleSnapshot(const ModuleSnapshot&) = delete;
    ModuleSnapshot& operator=(const ModuleSnapshot&) = delete;

    bool valid() const { return m_handle != INVALID_HANDLE_VALUE; }

    /// Puts the first or next module into `entry`.
    bool first(MODULEENTRY32W& entry) const { return ::Module32FirstW(m_handle, &entry) != FALSE; }
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

void readVersion(ModuleRecord& record, const std::wstring& separator)
{
    const VersionRecord version(record.path.c_str());
    if (version.empty())
        return;
    if (const VS_FIXEDFILEINFO* const info = version.fixedInfo()) {
        record.fileVersion = versionText(info->dwFileVersionMS, info->dwFileVersionLS);
        record.productVersion = versionText(info->dwProductVersionMS, info->dwProductVersionLS);
        record.flags = flagWords(info->dwFileFlags & info->dwFileFlagsMask, separator);
        record.system = systemWords(info->dwFileOS, separator);
        record.type = typeWords(info->dwFileType, info->dwFileSubtype);
    }
    record.fileDescription = version.descriptions();
}

ModuleRecord recordOf(const MODULEENTRY32W& entry, const std::wstring& separator)
{
    ModuleRecord record;
    record.name = entry.szModule;
    record.path = entry.szExePath;
    record.hasAddress = true;
    record.baseAddress = reinterpret_cast<std::uintptr_t>(entry.modBaseAddr);
    record.size = entry.modBaseSize;
    record.linkTime = linkTimeOf(entry.hModule);
    readVersion(record, separator);
    return record;
}

std::wstring without([[maybe_unused]] const char* call)
{
    TRACE(L"%S failed: %s\n", call, formatMessage(::GetLastError()).c_str());
    return kNoList;
}

} // namespace

std::wstring loadedModulesText()
{
    const ModuleSnapshot snapshot;
    if (!snapshot.valid())
        return without("CreateToolhelp32Snapshot");
    MODULEENTRY32W entry{};
    entry.dwSize = sizeof entry;
    if (!snapshot.first(entry))
        return without("Module32First");

    const std::wstring separator = listSeparator();
    std::wstring text = std::wstring(kModuleColumns) + kLineEnd;
    do {
        text += moduleLine(recordOf(entry, separator)) + kLineEnd;
    } while (snapshot.next(entry));
    return text;
}

} // namespace ovoui::sysinfo
