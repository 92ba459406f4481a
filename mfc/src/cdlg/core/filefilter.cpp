#include "filefilter.h"

#include <algorithm>

namespace afxdetail
{

namespace
{

const wchar_t* endOf(const wchar_t* text)
{
    while (*text)
        ++text;
    return text;
}

} // namespace

std::wstring zeroTerminatedFilter(std::wstring_view filter)
{
    std::wstring result(filter);
    std::replace(result.begin(), result.end(), L'|', L'\0');
    result.append(2, L'\0'); // also where the one "|" more was forgotten
    return result;
}

std::vector<FilterPair> filterPairs(const wchar_t* filter)
{
    std::vector<FilterPair> pairs;
    while (filter && *filter) {
        const wchar_t* const patterns = endOf(filter) + 1;
        if (!*patterns)
            break;
        pairs.push_back({filter, patterns});
        filter = endOf(patterns) + 1;
    }
    return pairs;
}

} // namespace afxdetail
