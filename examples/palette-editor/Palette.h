// A palette: named colours in order, as texts with a line for each, "#FFBF00 Amber".
#pragma once

#include <ovocor/ovocor.h>
#include <ovoui/ovoui.h>

#include <filesystem>
#include <fstream>

struct NamedColour
{
    std::wstring name;
    Colour colour;
};

using Palette = std::vector<NamedColour>;

inline Palette firstPalette()
{
    return {
        {L"Moss", Colour::colorref(RGB(91, 123, 62))},     {L"Fern", Colour::colorref(RGB(140, 170, 92))},
        {L"Straw", Colour::colorref(RGB(228, 207, 138))},  {L"Clay", Colour::colorref(RGB(193, 116, 76))},
        {L"Brick", Colour::colorref(RGB(146, 62, 48))},    {L"Plum", Colour::colorref(RGB(104, 60, 92))},
        {L"Dusk", Colour::colorref(RGB(70, 84, 128))},     {L"Lake", Colour::colorref(RGB(74, 140, 166))},
        {L"Pebble", Colour::colorref(RGB(158, 154, 146))}, {L"Chalk", Colour::colorref(RGB(242, 238, 228))}};
}

/// Lines without a colour are left out.
inline Palette readPalette(const std::filesystem::path& path)
{
    Palette palette;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        const std::wstring text = getWCS(line);
        const std::size_t blank = std::min(text.find(L' '), text.size());
        if (const auto colour = ovoui::colour::colourFromText(std::wstring_view(text).substr(0, blank)))
            palette.push_back({text.substr(std::min(blank + 1, text.size())), *colour});
    }
    return palette;
}

inline void writePalette(const std::filesystem::path& path, const Palette& palette)
{
    std::ofstream file(path);
    for (const NamedColour& entry : palette)
        file << getMBS(ovoui::colour::textOfColour(entry.colour) + L' ' + entry.name) << '\n';
}
