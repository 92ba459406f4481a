#include <ovoui/update/CachedCopy.h>

#include <ovocor/Url.h>

#include <windows.h>
#include <wininet.h>

namespace ovoui::update
{

CachedCopy::Entry::~Entry()
{
    ::DeleteUrlCacheEntryW(address.c_str());
}

CachedCopy::CachedCopy(const std::wstring& address, DownloadControl& control)
    : m_entry{address}
    , m_path(downloadUrlToCache(address, control))
{
}

} // namespace ovoui::update
