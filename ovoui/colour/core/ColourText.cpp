#include <ovoui/colour/ColourText.h>

#include <ovocor/core/ColourNames.h>

#include <algorithm>
#include <cstdint>

namespace ovoui::colour
{

namespace
{

using OVO::kColourNames;
constexpr std::wstring_view kBlanks = L" \t\r\n";

std::wstring_view trimmed(std::wstring_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    text.remove_suffix(text.size() - std::min(text.find_last_not_of(kBlanks) + 1, text.size()));
    return text;
}

wchar_t small(wchar_t letter)
{
    return letter >= L'A' && letter <= L'Z' ? static_cast<wchar_t>(letter - L'A' + L'a') : letter;
}

/// -1 for what is no digit.
int digitOf(wchar_t letter)
{
    const wchar_t c = small(letter);
    if (c >= L'0' && c <= L'9')
        return c - L'0';
    return c >= L'a' && c <= L'f' ? c - L'a' + 10 : -1;
}

double part(std::uint32_t value, int shift)
{
    return (value >> shift & 0xFF) / 255.0;
}

Colour opaque(std::uint32_t value)
{
    return Colour::rgb(part(value, 16), part(value, 8), part(value, 0));
}

std::uint32_t valueOf(const Colour& colour)
{
    unsigned char bytes[3];
    colour.getDib24(bytes);
    return static_cast<std::uint32_t>(bytes[2]) << 16 | static_cast<std::uint32_t>(bytes[1]) << 8 | bytes[0];
}

void appendHex(std::wstring& text, std::uint32_t byte)
{
    constexpr wchar_t kDigits[] = L"0123456789ABCDEF";
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
}

} // namespace

std::optional<Colour> colourFromText(std::wstring_view text)
{
    text = trimmed(text);
    std::wstring name;
    for (const wchar_t letter : text)
        name += small(letter);
    const auto* const named =
        std::ranges::lower_bound(kColourNames, std::wstring_view(name), {}, &OVO::ColourName::name);
    if (named != std::end(kColourNames) && named->name == name)
        return opaque(named->rgb);

    if (text.starts_with(L'#'))
        text.remove_prefix(1);
    if (text.size() != 6 && text.size() != 8)
        return std::nullopt;
    std::uint32_t value = 0;
    for (const wchar_t letter : text) {
        const int digit = digitOf(letter);
        if (digit < 0)
            return std::nullopt;
        value = value << 4 | static_cast<std::uint32_t>(digit);
    }
    if (text.size() == 6)
        return opaque(value);
    return Colour::rgba(part(value, 24), part(value, 16), part(value, 8), part(value, 0));
}

std::wstring textOfColour(const Colour& colour)
{
    const std::uint32_t value = valueOf(colour);
    std::wstring text = L"#";
    for (const int shift : {16, 8, 0})
        appendHex(text, value >> shift & 0xFF);
    if (colour.a() >= 0)
        appendHex(text, valueOf(Colour::rgb(0, 0, colour.a())));
    return text;
}

std::wstring nameOfColour(const Colour& colour)
{
    if (colour.a() >= 0 && colour.a() < 1)
        return {};
    const auto* const named = std::ranges::find(kColourNames, valueOf(colour), &OVO::ColourName::rgb);
    return named == std::end(kColourNames) ? std::wstring() : std::wstring(named->name);
}

std::wstring nameOrCodeOfColour(const Colour& colour)
{
    const std::wstring name = nameOfColour(colour);
    return name.empty() ? textOfColour(colour) : name;
}

std::wstring textOfColours(const std::vector<Colour>& colours)
{
    std::wstring text;
    for (const Colour& colour : colours)
        text += (text.empty() ? L"" : L" ") + textOfColour(colour);
    return text;
}

std::vector<std::optional<Colour>> coloursFromText(std::wstring_view text)
{
    std::vector<std::optional<Colour>> colours;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(L' '), text.size());
        if (end > 0)
            colours.push_back(colourFromText(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return colours;
}

} // namespace ovoui::colour
