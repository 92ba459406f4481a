#include <ovosvg/DrawingSource.h>

#include <ovosvg/core/Limits.h>

#include <ovocor/Text.h>
#include <ovocor/WinError.h>
#include <ovomsg/ovomsg.h>

#include <afxwin.h>

namespace ovosvg
{

namespace
{

/// A file that is open for reading.
class File
{
public:
    explicit File(const std::wstring& path)
        : m_path(path)
        , m_file(::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                               OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr))
    {
        if (m_file == INVALID_HANDLE_VALUE)
            fail(OVOMSG_FILE_NOT_OPENED);
    }
    ~File() { ::CloseHandle(m_file); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    /// The bytes from the beginning, at most `most`.
    std::string read(std::size_t most) const
    {
        std::string text(most, '\0');
        DWORD got = 0;
        if (!::ReadFile(m_file, text.data(), static_cast<DWORD>(most), &got, nullptr))
            fail(OVOMSG_FILE_NOT_READ);
        text.resize(got);
        return text;
    }

private:
    [[noreturn]] void fail(OvoMessageId message) const
    {
        const DWORD code = ::GetLastError();
        throw WinError(stringPrintf(ovoMsg(message).c_str(), m_path.c_str()), code);
    }

    const std::wstring& m_path;
    HANDLE m_file;
};

/// As resource scripts write it.
std::wstring nameOf(const wchar_t* type)
{
    return IS_INTRESOURCE(type) ? std::to_wstring(reinterpret_cast<ULONG_PTR>(type)) : type;
}

} // namespace

std::string textOfFile(const std::wstring& path)
{
    return File(path).read(kMostBytes + 1);
}

std::string_view textOfResource(UINT id, const wchar_t* type)
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCEW(id), type);
    const HRSRC found = ::FindResourceW(module, MAKEINTRESOURCEW(id), type);
    const HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    const void* const bytes = loaded ? ::LockResource(loaded) : nullptr;
    if (!bytes) {
        const DWORD code = ::GetLastError();
        throw WinError(stringPrintf(L"%u %s", id, nameOf(type).c_str()), code);
    }
    return {static_cast<const char*>(bytes), ::SizeofResource(module, found)};
}

} // namespace ovosvg
