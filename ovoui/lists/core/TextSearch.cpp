#include <ovoui/lists/core/TextSearch.h>

#include <ovoui/lists/core/ShortText.h>

#include <algorithm>

namespace ovoui::lists
{

std::vector<TextRange> placesOf(std::wstring_view part, std::wstring_view text)
{
    std::vector<TextRange> places;
    if (part.empty())
        return places;
    for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + part.size()))
        places.push_back({at, part.size()});
    return places;
}

std::vector<TextRange> shownOf(const std::vector<TextRange>& places, std::size_t kept, std::size_t dots)
{
    std::vector<TextRange> shown;
    for (const TextRange& place : places) {
        const std::size_t begin = std::min(place.begin, kept);
        const std::size_t placeEnd = place.begin + place.length;
        const std::size_t end = placeEnd > kept ? kept + dots : placeEnd;
        if (begin < end)
            shown.push_back({begin, end - begin});
        if (placeEnd > kept)
            break; // the dots stand for all that follow
    }
    return shown;
}

std::vector<TextRange> shownOf(const std::vector<TextRange>& places, std::wstring_view text,
                               std::wstring_view shown)
{
    if (shown == text)
        return places;
    const std::size_t dots = shown.ends_with(kDots) ? kDots.size() : 0;
    return shownOf(places, shown.size() - dots, dots);
}

Reach reachOf(const TextRange& range, std::span<const int> extents, bool mirrored)
{
    const auto before = [extents](std::size_t count) { return count == 0 ? 0 : extents[count - 1]; };
    const int from = before(range.begin);
    const int to = before(range.begin + range.length);
    const int whole = before(extents.size());
    return mirrored ? Reach{whole - to, whole - from} : Reach{from, to};
}

} // namespace ovoui::lists
