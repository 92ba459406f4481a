#include <ovoui/update/BrowseUrl.h>

#include <ovoui/frame/EntryPoint.h>
#include <ovoui/update/Refusal.h>
#include <ovoui/update/WinInetModule.h>
#include <ovoui/update/core/AddressRules.h>

#include <ovocor/IntCast.h>
#include <ovocor/Url.h>
#include <ovocor/WinError.h>

#include <windows.h>
#include <shellapi.h>
#include <wininet.h>

#include <limits>

using ovoui::update::refuse;
using ovoui::update::winInet;

namespace
{

/// What one of WinINet's errors means.
std::wstring reasonOf(DWORD error)
{
    return formatMessage(error, winInet());
}

INTERNET_SCHEME schemeOf(const std::wstring& canonical, const std::wstring& address)
{
    if (canonical.size() > std::numeric_limits<DWORD>::max())
        throwIntCast();
    const auto crack =
        ovoui::frame::entryPoint<decltype(&::InternetCrackUrlW)>(winInet(), "InternetCrackUrlW");
    URL_COMPONENTSW parts{};
    parts.dwStructSize = sizeof parts;
    if (!crack || !crack(canonical.c_str(), static_cast<DWORD>(canonical.size()), 0, &parts))
        refuse(OVOMSG_URL_INVALID, address, reasonOf(::GetLastError()));
    return parts.nScheme;
}

} // namespace

void browseUrl(const std::wstring& address)
{
    if (!ovoui::update::isSeenWhole(address))
        refuse(OVOMSG_URL_INVALID, address, reasonOf(ERROR_INTERNET_INVALID_URL));
    const std::wstring canonical = canonicalizeUrl(address);
    if (!ovoui::update::mayBeOpened(schemeOf(canonical, address)))
        refuse(OVOMSG_URL_SCHEME, address);
    SHELLEXECUTEINFOW execute{};
    execute.cbSize = sizeof execute;
    execute.lpVerb = L"open";
    execute.lpFile = canonical.c_str();
    execute.nShow = SW_SHOWNORMAL;
    if (!::ShellExecuteExW(&execute))
        refuse(OVOMSG_URL_NOT_OPENED, address, formatMessage(::GetLastError()));
}
