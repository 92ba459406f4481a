/// Not exported. A file fetched from the web into the system's cache, for the time of a scope.
#pragma once

#include <ovocor/DownloadControl.h>

#include <string>

namespace ovoui::update
{

/// The copy is deleted at the end of the scope. An older copy goes too, also when the download fails.
class CachedCopy
{
public:
    /// Throws what `downloadUrlToCache` throws.
    CachedCopy(const std::wstring& address, DownloadControl& control);
    CachedCopy(const CachedCopy&) = delete;
    CachedCopy& operator=(const CachedCopy&) = delete;

    const std::wstring& path() const { return m_path; }

private:
    /// Deletes what the cache has for an address.
    struct Entry
    {
        const std::wstring address;
        ~Entry();
    };

    const Entry m_entry; // goes also when the download throws
    const std::wstring m_path;
};

} // namespace ovoui::update
