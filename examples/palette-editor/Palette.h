// A palette: named colours in order, as texts with a line for each, "#FFBF00 Amber", in UTF-16.
#pragma once

#include <ovocor/ovocor.h>
#include <ovoui/ovoui.h>

#include <filesystem>
#include <fstream>

struct NamedColour
{
    std::wstring name;
    Colour colour;

    std::wstring line() const { return ovoui::colour::textOfColour(colour) + L' ' + name + L"\r\n"; }
    bool operator==(const NamedColour& other) const { return line() == other.line(); }
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

/// Lines without a colour are left out. As the other one it throws an OvoError when the file refuses.
inline Palette readPalette(const std::filesystem::path& path)
{
    Palette palette;
    OVO::TextReader file(path.wstring());
    for (std::wstring line; file.readLine(line);) {
        const std::size_t blank = std::min(line.find(L' '), line.size());
        if (const auto colour = ovoui::colour::colourFromText(std::wstring_view(line).substr(0, blank)))
            palette.push_back({line.substr(std::min(blank + 1, line.size())), *colour});
    }
    return palette;
}

inline void writePalette(const std::filesystem::path& path, const Palette& palette)
{
    std::wstring text = L"\xFEFF"; // the mark
    for (const NamedColour& entry : palette)
        text += entry.line();
    const auto* const bytes = reinterpret_cast<const char*>(text.data());
    if (!std::ofstream(path, std::ios::binary).write(bytes, 2 * text.size()).flush())
        throw OvoError(L"The file \"" + path.wstring() + L"\" cannot be written.");
}
