// Internal to the file dialog: the forms in which a list of file types is written.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace afxdetail
{

/// From "Text|*.txt|All|*.*||" to texts that each end with a zero, and an empty one at the end.
std::wstring zeroTerminatedFilter(std::wstring_view filter);

struct FilterPair
{
    const wchar_t* description;
    const wchar_t* patterns;
};

/// The pairs of a list of the second form; they point into it. A description without patterns is left out.
std::vector<FilterPair> filterPairs(const wchar_t* filter);

} // namespace afxdetail
