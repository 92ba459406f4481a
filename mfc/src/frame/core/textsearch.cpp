#include "textsearch.h"

#include <algorithm>
#include <cwctype>

namespace afxdetail
{
namespace
{

std::wint_t lower(wchar_t character)
{
    return std::towlower(static_cast<std::wint_t>(character));
}

} // namespace

bool sameText(std::wstring_view left, std::wstring_view right, bool matchCase)
{
    if (matchCase)
        return left == right;
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](wchar_t one, wchar_t other) { return lower(one) == lower(other); });
}

std::optional<std::size_t> findText(std::wstring_view text, std::wstring_view what,
                                    std::size_t selectionStart, std::size_t selectionEnd, bool next,
                                    bool matchCase)
{
    if (what.empty() || what.size() > text.size())
        return std::nullopt;
    selectionEnd = std::min(selectionEnd, text.size());
    selectionStart = std::min(selectionStart, selectionEnd);
    const auto isAt = [&](std::size_t at) { return sameText(text.substr(at, what.size()), what, matchCase); };

    if (next) {
        const bool onIt = selectionEnd - selectionStart == what.size() && isAt(selectionStart);
        for (std::size_t at = onIt ? selectionEnd : selectionStart; at + what.size() <= text.size(); ++at)
            if (isAt(at))
                return at;
        return std::nullopt;
    }
    for (std::size_t end = selectionStart; end >= what.size(); --end)
        if (isAt(end - what.size()))
            return end - what.size();
    return std::nullopt;
}

} // namespace afxdetail
