#include <ovoui/update/BrowseUrl.h>

#include <ovoui/update/core/AddressRules.h>

#include <ovocor/IntCast.h>
#include <ovocor/OvoError.h>
#include <ovocor/Text.h>
#include <ovocor/Url.h>
#include <ovocor/WinError.h>
#include <ovomsg/ovomsg.h>

#include <windows.h>
#include <shellapi.h>
#include <wininet.h>

#include <limits>

namespace
{

[[noreturn]] void refuse(unsigned message, const std::wstring& address)
{
    throw OvoError(stringPrintf(ovoMsg(message).c_str(), address.c_str()));
}

[[noreturn]] void refuse(unsigned message, const std::wstring& address, const std::wstring& reason)
{
    throw OvoError(stringPrintf(ovoMsg(message).c_str(), address.c_str(), reason.c_str()));
}

INTERNET_SCHEME schemeOf(const std::wstring& canonical, const std::wstring& address)
{
    if (canonical.size() > std::numeric_limits<DWORD>::max())
        throwIntCast();
    URL_COMPONENTSW parts{};
    parts.dwStructSize = sizeof parts;
    if (!::InternetCrackUrlW(canonical.c_str(), static_cast<DWORD>(canonical.size()), 0, &parts))
        refuse(OVOMSG_URL_INVALID, address,
               formatMessage(::GetLastError(), ::GetModuleHandleW(L"wininet.dll")));
    return parts.nScheme;
}

} // namespace

void browseUrl(const std::wstring& address)
{
    if (!ovoui::update::isSeenWhole(address))
        refuse(OVOMSG_URL_INVALID, address,
               formatMessage(ERROR_INTERNET_INVALID_URL, ::GetModuleHandleW(L"wininet.dll")));
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
