// Internal: finding text.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace afxdetail
{

/// Whether two texts are the same, with or without regard to case.
bool sameText(std::wstring_view left, std::wstring_view right, bool matchCase);

/// Where the next place of `what` begins: after the selection, which is left out if it is such a place
/// itself, or before its start. Nothing when there is none, or nothing to look for.
std::optional<std::size_t> findText(std::wstring_view text, std::wstring_view what,
                                    std::size_t selectionStart, std::size_t selectionEnd, bool next,
                                    bool matchCase);

} // namespace afxdetail
