// The filter's entry for a default extension: how it grows with the filter, and against a scan for its bars.
#include <ovoui/files/core/FilterChoice.h>

#include <catch2/catch.hpp>

#include <string>

namespace
{

bool sameButForCase(wchar_t a, wchar_t b)
{
    return (a | 0x20) == (b | 0x20) && (a | 0x20) >= L'a' && (a | 0x20) <= L'z';
}

constexpr ovoui::FilterRules kRules{false, &sameButForCase};

/// Entries of the usual kind, of which none has the extension, so that all are looked at.
std::wstring filterOf(std::size_t characters)
{
    std::wstring filter;
    for (int i = 0; filter.size() < characters; ++i)
        filter += L"Drawings of kind " + std::to_wstring(i) + L" (*.dr" + std::to_wstring(i % 10) +
                  L")|*.dr" + std::to_wstring(i % 10) + L";*.dwg|";
    return filter;
}

std::size_t barsOf(const std::wstring& filter)
{
    std::size_t bars = 0;
    for (std::size_t at = filter.find(L'|'); at != std::wstring::npos; at = filter.find(L'|', at + 1))
        ++bars;
    return bars;
}

} // namespace

TEST_CASE("filter: ten times the length")
{
    const std::wstring small = filterOf(50000); // 100 KB
    const std::wstring large = filterOf(500000);
    REQUIRE(ovoui::filterEntryOf(large, L".txt", kRules) == 0);
    BENCHMARK("100 KB")
    {
        return ovoui::filterEntryOf(small, L".txt", kRules);
    };
    BENCHMARK("1 MB [at most 12]")
    {
        return ovoui::filterEntryOf(large, L".txt", kRules);
    };
}

TEST_CASE("filter: against a scan for the bars")
{
    const std::wstring filter = filterOf(500000);
    REQUIRE(barsOf(filter) > 1000);
    BENCHMARK("scan for the bars")
    {
        return barsOf(filter);
    };
    BENCHMARK("filterEntryOf [at most 3]")
    {
        return ovoui::filterEntryOf(filter, L".txt", kRules);
    };
}
