/// Not exported: which entry of a filter stands for a default extension.
#pragma once

#include <string_view>

namespace ovoui
{

/// How the extension is compared with what follows the asterisk of a pattern.
struct FilterRules
{
    bool patternMayEndTheText;                              ///< whether a pattern counts that nothing follows
    bool (*same)(std::wstring_view a, std::wstring_view b); ///< of texts of the same length
};

/// The number, from 1, of the first entry of a filter ("Text|*.txt|Pictures|*.png;*.jpg|") that has "*" and
/// the extension as a pattern; 0 when there is none, and without an extension.
int filterEntryOf(std::wstring_view filter, std::wstring_view extension, const FilterRules& rules);

} // namespace ovoui
