#include <ovoui/update/CachedCopy.h>

#include <ovocor/Url.h>

#include <windows.h>
#include <wininet.h>

namespace ovoui::update
{

CachedCopy::CachedCopy(const std::wstring& address, DownloadControl& control)
    : m_address(address)
    , m_path(downloadUrlToCache(address, control))
{
}

CachedCopy::~CachedCopy()
{
    ::DeleteUrlCacheEntryW(m_address.c_str());
}

} // namespace ovoui::update
