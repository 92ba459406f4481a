#include <ovocor/CacheFile.h>

#include <ovocor/Text.h>
#include <ovocor/WinError.h>
#include <ovomsg/ovomsg.h>

#include <utility>

namespace OVO
{

CacheFile::CacheFile(const std::wstring& url)
    : m_url(url)
{
    wchar_t path[MAX_PATH]{};
    if (!WinInet::get().createCacheEntry(url.c_str(), 0, nullptr, path, 0))
        fail();
    m_path = path;
    m_file = ::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (m_file == INVALID_HANDLE_VALUE) {
        const DWORD code = ::GetLastError();
        ::DeleteFileW(path); // the cache has made it, and the destructor is not called
        ::SetLastError(code);
        fail();
    }
}

CacheFile::~CacheFile()
{
    close();
    if (!m_committed)
        ::DeleteFileW(m_path.c_str());
}

void CacheFile::write(const char* bytes, std::size_t size)
{
    DWORD written = 0;
    if (!::WriteFile(m_file, bytes, static_cast<DWORD>(size), &written, nullptr))
        fail();
}

void CacheFile::commit()
{
    close(); // the cache moves and measures the file
    const FILETIME unknown{};
    if (!WinInet::get().commitCacheEntry(m_url.c_str(), m_path.c_str(), unknown, unknown, NORMAL_CACHE_ENTRY,
                                         nullptr, 0, nullptr, nullptr))
        fail();
    m_committed = true;
}

void CacheFile::close()
{
    if (m_file != INVALID_HANDLE_VALUE)
        ::CloseHandle(std::exchange(m_file, INVALID_HANDLE_VALUE));
}

void CacheFile::fail() const
{
    const DWORD code = ::GetLastError();
    throw WinError(stringPrintf(ovoMsg(OVOMSG_CACHE_NOT_WRITTEN).c_str(), m_url.c_str()), code);
}

} // namespace OVO
