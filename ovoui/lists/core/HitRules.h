/// Items that have a text anywhere in theirs, and what keys do while they are shown.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ovoui::lists
{

/// The items that have a part in their texts, in their order. `foldedTextOf(i)` gives an item's text, in
/// lower case as the part is. None for an empty part, nor when the only hit is exactly the part: there is
/// nothing to choose then.
template <class TextOf>
std::vector<int> hitsOf(std::wstring_view foldedPart, int count, const TextOf& foldedTextOf)
{
    std::vector<int> hits;
    if (foldedPart.empty())
        return hits;
    bool isExact = false;
    for (int item = 0; item < count; ++item) {
        const std::wstring text = foldedTextOf(item);
        if (text.find(foldedPart) == text.npos)
            continue;
        hits.push_back(item);
        isExact = text == foldedPart;
    }
    if (hits.size() == 1 && isExact)
        hits.clear();
    return hits;
}

enum class HitKey
{
    Up,
    Down,
    PageUp,
    PageDown,
    Return,
    Escape,
    Other
};

struct HitEffect
{
    bool taken = false;  ///< else the key goes where it was going
    bool closes = false; ///< the hits are not shown any more
    int selected = -1;   ///< among the hits; -1 for what was typed

    friend bool operator==(const HitEffect&, const HitEffect&) = default;
};

/// While `count` hits are shown, of which `selected` is selected, or -1; `page` of them fit. The arrows go
/// round by way of what was typed.
HitEffect afterHitKey(HitKey key, int count, int selected, int page);

/// By the platform's virtual key.
HitKey hitKeyOf(unsigned virtualKey);

} // namespace ovoui::lists
