// Whatever is typed or stands in the profile: a colour that is read is written and read again, a list keeps
// the places of its colours, and the recent ones are each there once.
#include "Check.h"

#include <ovoui/colour/ColourText.h>
#include <ovoui/colour/RecentColours.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

using namespace ovoui::colour;

namespace
{

void comesBack(const Colour& colour)
{
    const auto again = colourFromText(textOfColour(colour));
    demand(again && again->colorref() == colour.colorref(), "the code is read again");
    demand((again->a() >= 0) == (colour.a() >= 0), "with alpha where there was one");
    const std::wstring name = nameOfColour(colour);
    if (name.empty())
        return;
    const auto named = colourFromText(name);
    demand(named && named->colorref() == colour.colorref(), "the name is read again");
}

std::size_t wordsOf(const std::wstring& text)
{
    std::size_t words = 0;
    bool inside = false;
    for (const wchar_t letter : text) {
        words += letter != L' ' && !inside;
        inside = letter != L' ';
    }
    return words;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::wstring text(data, data + size);
    if (const auto colour = colourFromText(text))
        comesBack(*colour);
    const auto colours = coloursFromText(text);
    demand(colours.size() == wordsOf(text), "one place for each word");

    constexpr std::size_t kRoom = 4;
    RecentColours recent(kRoom);
    recent.setText(text);
    const auto& kept = recent.colours();
    demand(kept.size() <= kRoom, "no more than there is room for");
    for (std::size_t i = 0; i < kept.size(); ++i)
        for (std::size_t other = 0; other < i; ++other)
            demand(kept[i].colorref() != kept[other].colorref(), "each once");
    RecentColours copy(kRoom);
    copy.setText(recent.text());
    demand(copy.text() == recent.text(), "there and back");
    const auto first = std::ranges::find_if(colours, [](const auto& colour) { return colour.has_value(); });
    demand(kept.empty() == (first == colours.end()), "as soon as there is one");
    demand(kept.empty() || kept[0].colorref() == (*first)->colorref(), "the first is in front");
    return 0;
}
