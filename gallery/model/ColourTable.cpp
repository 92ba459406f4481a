#include "ColourTable.h"

#include <ovocor/Colour.h>

#include <cstdio>

namespace
{

struct Shade
{
    const wchar_t* name;
    double lightness;
    double saturation;
    DWORD alpha;
};

constexpr Shade kShades[] = {{L"Pale", 0.88, 0.8, 255},   {L"Light", 0.75, 0.9, 255},
                             {L"Bright", 0.6, 1, 255},    {L"Vivid", 0.5, 1, 255},
                             {L"Glassy", 0.5, 1, 96},     {L"Misty", 0.7, 0.4, 160},
                             {L"Dusky", 0.45, 0.35, 255}, {L"Deep", 0.35, 1, 255},
                             {L"Smoky", 0.3, 0.5, 208},   {L"Dark", 0.2, 0.9, 255}};

// 18 degrees apart, from red on.
constexpr const wchar_t* kHues[] = {L"red",    L"vermilion", L"orange",  L"amber",     L"lemon",
                                    L"lime",   L"leaf",      L"green",   L"malachite", L"emerald",
                                    L"cyan",   L"sky",       L"azure",   L"cobalt",    L"blue",
                                    L"indigo", L"violet",    L"magenta", L"pink",      L"rose"};

DWORD entryOf(int hue, const Shade& shade)
{
    const Colour colour = Colour::hls(Angle::degrees(18.0 * hue), shade.lightness, shade.saturation);
    return static_cast<DWORD>(colour.colorref()) | shade.alpha << 24;
}

} // namespace

std::vector<NamedColour> namedColours()
{
    std::vector<NamedColour> colours;
    for (const Shade& shade : kShades)
        for (int hue = 0; hue < static_cast<int>(std::size(kHues)); ++hue)
            colours.push_back({std::wstring(shade.name) + L" " + kHues[hue], entryOf(hue, shade)});
    return colours;
}

std::wstring hexOf(DWORD entry)
{
    wchar_t text[8];
    std::swprintf(text, std::size(text), L"#%02X%02X%02X", GetRValue(entry), GetGValue(entry),
                  GetBValue(entry));
    return text;
}
