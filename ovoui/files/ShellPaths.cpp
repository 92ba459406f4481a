#include <ovoui/files/ShellPaths.h>

#include <ovoui/files/core/NearestFolder.h>
#include <ovoui/frame/EntryPoint.h>

#include <shlwapi.h>

namespace ovoui
{

namespace
{

bool isFolder(const std::wstring& path)
{
    return ::PathIsDirectoryW(path.c_str()) != FALSE;
}

/// Makes the activation context that this library was loaded with the current one.
class LibraryContext
{
public:
    LibraryContext()
    {
        ACTIVATION_CONTEXT_BASIC_INFORMATION information{};
        constexpr DWORD kOfAddress = QUERY_ACTCTX_FLAG_ACTCTX_IS_ADDRESS | QUERY_ACTCTX_FLAG_NO_ADDREF;
        const bool known =
            ::QueryActCtxW(kOfAddress, reinterpret_cast<void*>(&isFolder), nullptr,
                           ActivationContextBasicInformation, &information, sizeof information, nullptr);
        m_active = ::ActivateActCtx(known ? information.hActCtx : nullptr, &m_cookie);
    }
    ~LibraryContext()
    {
        if (m_active)
            ::DeactivateActCtx(0, m_cookie);
    }
    LibraryContext(const LibraryContext&) = delete;
    LibraryContext& operator=(const LibraryContext&) = delete;

private:
    ULONG_PTR m_cookie = 0;
    bool m_active = false;
};

/// Loaded when it is first asked for, and kept.
HMODULE shell()
{
    static HMODULE s_shell = nullptr;
    if (s_shell)
        return s_shell;
    DWORD error = 0;
    {
        const LibraryContext context;
        s_shell = ::LoadLibraryW(L"Shell32.dll");
        error = ::GetLastError();
    }
    if (!s_shell)
        ::SetLastError(error);
    return s_shell;
}

} // namespace

std::wstring existingFolderNear(const std::wstring& path)
{
    return nearestFolder(path, &isFolder);
}

std::wstring existingFolderNear(const std::vector<std::wstring>& paths)
{
    return nearestFolder(paths, &isFolder);
}

std::wstring folderToBeginIn(const std::wstring& path)
{
    return climbToFolder(path, &isFolder);
}

std::unique_ptr<IShellItem, ReleaseItem> shellItemOf(const std::wstring& path)
{
    // Wine's shell reads what is not there for a path that begins with a slash, and Windows has no item for it.
    const bool hasItem = !path.empty() && path.front() != L'/';
    const HMODULE library = hasItem ? shell() : nullptr;
    if (!library)
        return nullptr;
    using Create = HRESULT(WINAPI*)(PCWSTR, IBindCtx*, REFIID, void**);
    const auto create = frame::entryPoint<Create>(library, "SHCreateItemFromParsingName");
    void* item = nullptr;
    if (!create || FAILED(create(path.c_str(), nullptr, IID_IShellItem, &item)))
        return nullptr;
    return std::unique_ptr<IShellItem, ReleaseItem>(static_cast<IShellItem*>(item));
}

} // namespace ovoui
