#include <ovocor/Library.h>

#include <ovocor/Text.h>

#include <string>

namespace OVO
{

namespace
{

std::wstring programDirectory()
{
    std::wstring path(MAX_PATH, L'\0');
    while (true) {
        const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return getDirectory(path);
        }
        path.resize(path.size() * 2);
    }
}

std::wstring systemDirectory()
{
    std::wstring path(MAX_PATH, L'\0');
    path.resize(::GetSystemDirectoryW(path.data(), static_cast<UINT>(path.size())));
    return path;
}

HMODULE loadFrom(const std::wstring& directory, const wchar_t* name)
{
    const std::wstring file = name ? name : L"";
    if (directory.empty() || file.empty() || file.find_first_of(L"\\/:") != file.npos) {
        ::SetLastError(ERROR_INVALID_NAME);
        return nullptr;
    }
    // A full path is looked for nowhere else, and what that library needs is looked for beside it first.
    return ::LoadLibraryExW((directory + L'\\' + file).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

} // namespace

HMODULE LoadProgramLibrary(const wchar_t* name)
{
    return loadFrom(programDirectory(), name);
}

HMODULE LoadSystemLibrary(const wchar_t* name)
{
    return loadFrom(systemDirectory(), name);
}

} // namespace OVO
