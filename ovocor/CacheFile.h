/// Not exported. A file on its way into the system's URL cache.
#pragma once

#include <ovocor/WinInet.h>

#include <cstddef>
#include <string>

namespace OVO
{

/// A new file of the URL cache. Unless it is committed, it is deleted with this object.
class CacheFile
{
public:
    /// Throws WinError, here and below, when the cache or the disk refuses.
    explicit CacheFile(const std::wstring& url);
    CacheFile(const CacheFile&) = delete;
    CacheFile& operator=(const CacheFile&) = delete;
    ~CacheFile();

    void write(const char* bytes, std::size_t size);

    /// Enters the file into the cache, in place of what was there under its address.
    void commit();

    const std::wstring& path() const { return m_path; }

private:
    void close();
    [[noreturn]] void fail() const;

    std::wstring m_url;
    std::wstring m_path;
    HANDLE m_file = INVALID_HANDLE_VALUE;
    bool m_committed = false;
};

} // namespace OVO
