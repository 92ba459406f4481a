#include <ovoui/files/core/FilterChoice.h>

#include <algorithm>

namespace ovoui
{

namespace
{

constexpr std::size_t kNone = std::wstring_view::npos;

/// Whether the extension stands at a place of the filter and ends a pattern there.
bool standsAt(std::size_t place, std::wstring_view filter, std::wstring_view extension,
              const FilterRules& rules)
{
    const std::size_t room = filter.size() - place;
    if (extension.size() > room)
        return false;
    if (extension.size() == room) {
        if (!rules.patternMayEndTheText)
            return false;
    } else {
        const wchar_t next = filter[place + extension.size()];
        if (next != L'|' && next != L';')
            return false;
    }
    const auto same = [&](wchar_t a, wchar_t b) { return a == b || rules.same(a, b); };
    return std::equal(extension.begin(), extension.end(), filter.begin() + static_cast<std::ptrdiff_t>(place),
                      same);
}

} // namespace

int filterEntryOf(std::wstring_view filter, std::wstring_view extension, const FilterRules& rules)
{
    if (extension.empty())
        return 0;
    std::size_t begin = 0;
    for (int bars = 0; begin < filter.size(); ++bars) {
        const std::size_t end = std::min(filter.find(L'|', begin), filter.size());
        if (bars % 2 == 1) {
            const std::wstring_view patterns = filter.substr(begin, end - begin);
            for (std::size_t star = patterns.find(L'*'); star != kNone && star + 1 < patterns.size();
                 star = patterns.find(L'*', star + 1))
                if (standsAt(begin + star + 1, filter, extension, rules))
                    return bars / 2 + 1;
        }
        begin = end + 1;
    }
    return 0;
}

} // namespace ovoui
