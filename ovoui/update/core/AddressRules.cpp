#include <ovoui/update/core/AddressRules.h>

#include <algorithm>

namespace ovoui::update
{
namespace
{

// WinINet's numbers
constexpr int kFtp = 1;
constexpr int kHttp = 3;
constexpr int kHttps = 4;

wchar_t lower(wchar_t c)
{
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

} // namespace

bool isSeenWhole(std::wstring_view address)
{
    return address.find(L'\0') == std::wstring_view::npos;
}

bool mayBeOpened(int scheme)
{
    return scheme == kFtp || scheme == kHttp || scheme == kHttps;
}

bool isSecure(std::wstring_view canonical)
{
    constexpr std::wstring_view kSecure = L"https:";
    return std::ranges::equal(canonical.substr(0, kSecure.size()), kSecure, {}, lower);
}

std::wstring signatureAddress(const std::wstring& list)
{
    return list + L".sig";
}

} // namespace ovoui::update
