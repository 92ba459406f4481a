#include <ovoui/update/CachedCopy.h>

#include <ovoui/frame/EntryPoint.h>
#include <ovoui/update/WinInetModule.h>

#include <ovocor/Url.h>

#include <windows.h>
#include <wininet.h>

namespace ovoui::update
{

CachedCopy::Entry::~Entry()
{
    const auto remove =
        frame::entryPoint<decltype(&::DeleteUrlCacheEntryW)>(winInet(), "DeleteUrlCacheEntryW");
    if (remove)
        remove(address.c_str());
}

CachedCopy::CachedCopy(const std::wstring& address, DownloadControl& control)
    : m_entry{address}
    , m_path(downloadUrlToCache(address, control))
{
}

} // namespace ovoui::update
