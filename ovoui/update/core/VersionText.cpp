#include <ovoui/update/core/VersionText.h>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace ovoui::update
{
namespace
{

constexpr int kAny = -1;

std::optional<int> parseNumber(std::wstring_view text)
{
    std::int64_t number = 0;
    for (const wchar_t c : text) {
        if (c < L'0' || c > L'9')
            return std::nullopt;
        number = number * 10 + (c - L'0');
        if (number > std::numeric_limits<int>::max())
            return std::nullopt;
    }
    return static_cast<int>(number);
}

} // namespace

std::optional<Version> parseVersion(std::wstring_view text)
{
    Version version;
    version.fill(kAny);
    for (int& component : version) {
        const std::size_t dot = text.find(L'.');
        const std::wstring_view piece = text.substr(0, dot);
        if (piece != L"*") {
            const std::optional<int> number = parseNumber(piece);
            if (!number)
                return std::nullopt;
            component = *number;
        }
        if (dot == std::wstring_view::npos)
            return version;
        text.remove_prefix(dot + 1);
    }
    return std::nullopt; // a fifth number
}

bool matches(const Version& pattern, const Version& version)
{
    for (std::size_t i = 0; i < pattern.size(); ++i)
        if (pattern[i] != kAny && pattern[i] != version[i])
            return false;
    return true;
}

bool isNewer(const Version& offered, const Version& installed)
{
    for (std::size_t i = 0; i < offered.size(); ++i)
        if (offered[i] != kAny && offered[i] != installed[i])
            return offered[i] > installed[i];
    return false;
}

bool wasIssuedBefore(std::wstring_view issue, std::wstring_view seen)
{
    constexpr Version kFirst{};
    const Version last = parseVersion(seen).value_or(kFirst);
    Version own = parseVersion(issue).value_or(kFirst);
    std::ranges::replace(own, kAny, 0);
    return isNewer(last, own);
}

} // namespace ovoui::update
