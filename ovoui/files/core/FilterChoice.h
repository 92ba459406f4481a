/// Not exported: which entry of a filter stands for a default extension.
#pragma once

#include <string_view>

namespace ovoui
{

/// How the extension is compared with what follows the asterisk of a pattern.
struct FilterRules
{
    bool patternMayEndTheText;          ///< whether a pattern counts that nothing follows
    bool (*same)(wchar_t a, wchar_t b); ///< asked for characters that are not equal
};

/// The number, from 1, of the first entry of a filter ("Text|*.txt|Pictures|*.png;*.jpg|") that has "*" and
/// the extension as a pattern; 0 when there is none, and without an extension.
int filterEntryOf(std::wstring_view filter, std::wstring_view extension, const FilterRules& rules);

/// Where one file is asked for, case counts, and the end of the filter may end a pattern.
inline constexpr FilterRules kForOneFile{true, [](wchar_t, wchar_t) { return false; }};

/// Where several are asked for, "|" or ";" must follow a pattern. Case does not count, by what `same` says.
constexpr FilterRules forFiles(bool (*same)(wchar_t a, wchar_t b))
{
    return {false, same};
}

} // namespace ovoui
