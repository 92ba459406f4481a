#include "Absence.h"

#include "Imports.h"

#include <cstring>
#include <cwchar>
#include <map>

namespace
{

const wchar_t* g_library = nullptr;
const char* g_function = nullptr;
int g_asked = 0;

/// Whether a file name, with or without a folder, is that of the library that is absent as a whole.
bool isAbsent(const wchar_t* file)
{
    if (!file || g_function)
        return false;
    const wchar_t* const slash = std::wcsrchr(file, L'\\');
    if (::_wcsicmp(slash ? slash + 1 : file, g_library) != 0)
        return false;
    ++g_asked;
    ::SetLastError(ERROR_MOD_NOT_FOUND);
    return true;
}

HMODULE WINAPI loadLibrary(LPCWSTR file)
{
    return isAbsent(file) ? nullptr : ::LoadLibraryW(file);
}

HMODULE WINAPI loadLibraryEx(LPCWSTR file, HANDLE reserved, DWORD flags)
{
    return isAbsent(file) ? nullptr : ::LoadLibraryExW(file, reserved, flags);
}

HMODULE WINAPI getModuleHandle(LPCWSTR file)
{
    return isAbsent(file) ? nullptr : ::GetModuleHandleW(file);
}

FARPROC WINAPI getProcAddress(HMODULE module, LPCSTR name)
{
    const bool byNumber = IS_INTRESOURCE(name);
    if (!g_function || byNumber || std::strcmp(name, g_function) != 0 ||
        module != ::GetModuleHandleW(g_library))
        return ::GetProcAddress(module, name);
    ++g_asked;
    ::SetLastError(ERROR_PROC_NOT_FOUND);
    return nullptr;
}

} // namespace

Absence::Absence(const wchar_t* library, const char* function)
{
    g_library = library;
    g_function = function;
    g_asked = 0;
    const std::map<std::string, void*> replaced{
        {"LoadLibraryW", reinterpret_cast<void*>(&loadLibrary)},
        {"LoadLibraryExW", reinterpret_cast<void*>(&loadLibraryEx)},
        {"GetModuleHandleW", reinterpret_cast<void*>(&getModuleHandle)},
        {"GetProcAddress", reinterpret_cast<void*>(&getProcAddress)}};
    for (const wchar_t* module : {L"ovoui.dll", L"ovocor11.dll", L"ovomfc.dll"})
        for (const Import& import : importsOf(::GetModuleHandleW(module)))
            if (const auto found = replaced.find(import.function); found != replaced.end()) {
                m_slots.push_back({import.slot, *import.slot});
                writeSlot(import.slot, found->second);
            }
}

Absence::~Absence()
{
    for (const Slot& slot : m_slots)
        writeSlot(slot.place, slot.original);
}

int Absence::asked() const
{
    return g_asked;
}
