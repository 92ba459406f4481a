#include <ovoui/colour/ColourText.h>

#include <algorithm>
#include <cstdint>

namespace ovoui::colour
{

namespace
{

struct Named
{
    std::wstring_view name;
    std::uint32_t value; ///< 0xrrggbb
};

/// The names of CSS Color Module Level 4, in the order of the alphabet.
constexpr Named kNames[] = {{L"aliceblue", 0xF0F8FF},
                            {L"antiquewhite", 0xFAEBD7},
                            {L"aqua", 0x00FFFF},
                            {L"aquamarine", 0x7FFFD4},
                            {L"azure", 0xF0FFFF},
                            {L"beige", 0xF5F5DC},
                            {L"bisque", 0xFFE4C4},
                            {L"black", 0x000000},
                            {L"blanchedalmond", 0xFFEBCD},
                            {L"blue", 0x0000FF},
                            {L"blueviolet", 0x8A2BE2},
                            {L"brown", 0xA52A2A},
                            {L"burlywood", 0xDEB887},
                            {L"cadetblue", 0x5F9EA0},
                            {L"chartreuse", 0x7FFF00},
                            {L"chocolate", 0xD2691E},
                            {L"coral", 0xFF7F50},
                            {L"cornflowerblue", 0x6495ED},
                            {L"cornsilk", 0xFFF8DC},
                            {L"crimson", 0xDC143C},
                            {L"cyan", 0x00FFFF},
                            {L"darkblue", 0x00008B},
                            {L"darkcyan", 0x008B8B},
                            {L"darkgoldenrod", 0xB8860B},
                            {L"darkgray", 0xA9A9A9},
                            {L"darkgreen", 0x006400},
                            {L"darkgrey", 0xA9A9A9},
                            {L"darkkhaki", 0xBDB76B},
                            {L"darkmagenta", 0x8B008B},
                            {L"darkolivegreen", 0x556B2F},
                            {L"darkorange", 0xFF8C00},
                            {L"darkorchid", 0x9932CC},
                            {L"darkred", 0x8B0000},
                            {L"darksalmon", 0xE9967A},
                            {L"darkseagreen", 0x8FBC8F},
                            {L"darkslateblue", 0x483D8B},
                            {L"darkslategray", 0x2F4F4F},
                            {L"darkslategrey", 0x2F4F4F},
                            {L"darkturquoise", 0x00CED1},
                            {L"darkviolet", 0x9400D3},
                            {L"deeppink", 0xFF1493},
                            {L"deepskyblue", 0x00BFFF},
                            {L"dimgray", 0x696969},
                            {L"dimgrey", 0x696969},
                            {L"dodgerblue", 0x1E90FF},
                            {L"firebrick", 0xB22222},
                            {L"floralwhite", 0xFFFAF0},
                            {L"forestgreen", 0x228B22},
                            {L"fuchsia", 0xFF00FF},
                            {L"gainsboro", 0xDCDCDC},
                            {L"ghostwhite", 0xF8F8FF},
                            {L"gold", 0xFFD700},
                            {L"goldenrod", 0xDAA520},
                            {L"gray", 0x808080},
                            {L"green", 0x008000},
                            {L"greenyellow", 0xADFF2F},
                            {L"grey", 0x808080},
                            {L"honeydew", 0xF0FFF0},
                            {L"hotpink", 0xFF69B4},
                            {L"indianred", 0xCD5C5C},
                            {L"indigo", 0x4B0082},
                            {L"ivory", 0xFFFFF0},
                            {L"khaki", 0xF0E68C},
                            {L"lavender", 0xE6E6FA},
                            {L"lavenderblush", 0xFFF0F5},
                            {L"lawngreen", 0x7CFC00},
                            {L"lemonchiffon", 0xFFFACD},
                            {L"lightblue", 0xADD8E6},
                            {L"lightcoral", 0xF08080},
                            {L"lightcyan", 0xE0FFFF},
                            {L"lightgoldenrodyellow", 0xFAFAD2},
                            {L"lightgray", 0xD3D3D3},
                            {L"lightgreen", 0x90EE90},
                            {L"lightgrey", 0xD3D3D3},
                            {L"lightpink", 0xFFB6C1},
                            {L"lightsalmon", 0xFFA07A},
                            {L"lightseagreen", 0x20B2AA},
                            {L"lightskyblue", 0x87CEFA},
                            {L"lightslategray", 0x778899},
                            {L"lightslategrey", 0x778899},
                            {L"lightsteelblue", 0xB0C4DE},
                            {L"lightyellow", 0xFFFFE0},
                            {L"lime", 0x00FF00},
                            {L"limegreen", 0x32CD32},
                            {L"linen", 0xFAF0E6},
                            {L"magenta", 0xFF00FF},
                            {L"maroon", 0x800000},
                            {L"mediumaquamarine", 0x66CDAA},
                            {L"mediumblue", 0x0000CD},
                            {L"mediumorchid", 0xBA55D3},
                            {L"mediumpurple", 0x9370DB},
                            {L"mediumseagreen", 0x3CB371},
                            {L"mediumslateblue", 0x7B68EE},
                            {L"mediumspringgreen", 0x00FA9A},
                            {L"mediumturquoise", 0x48D1CC},
                            {L"mediumvioletred", 0xC71585},
                            {L"midnightblue", 0x191970},
                            {L"mintcream", 0xF5FFFA},
                            {L"mistyrose", 0xFFE4E1},
                            {L"moccasin", 0xFFE4B5},
                            {L"navajowhite", 0xFFDEAD},
                            {L"navy", 0x000080},
                            {L"oldlace", 0xFDF5E6},
                            {L"olive", 0x808000},
                            {L"olivedrab", 0x6B8E23},
                            {L"orange", 0xFFA500},
                            {L"orangered", 0xFF4500},
                            {L"orchid", 0xDA70D6},
                            {L"palegoldenrod", 0xEEE8AA},
                            {L"palegreen", 0x98FB98},
                            {L"paleturquoise", 0xAFEEEE},
                            {L"palevioletred", 0xDB7093},
                            {L"papayawhip", 0xFFEFD5},
                            {L"peachpuff", 0xFFDAB9},
                            {L"peru", 0xCD853F},
                            {L"pink", 0xFFC0CB},
                            {L"plum", 0xDDA0DD},
                            {L"powderblue", 0xB0E0E6},
                            {L"purple", 0x800080},
                            {L"rebeccapurple", 0x663399},
                            {L"red", 0xFF0000},
                            {L"rosybrown", 0xBC8F8F},
                            {L"royalblue", 0x4169E1},
                            {L"saddlebrown", 0x8B4513},
                            {L"salmon", 0xFA8072},
                            {L"sandybrown", 0xF4A460},
                            {L"seagreen", 0x2E8B57},
                            {L"seashell", 0xFFF5EE},
                            {L"sienna", 0xA0522D},
                            {L"silver", 0xC0C0C0},
                            {L"skyblue", 0x87CEEB},
                            {L"slateblue", 0x6A5ACD},
                            {L"slategray", 0x708090},
                            {L"slategrey", 0x708090},
                            {L"snow", 0xFFFAFA},
                            {L"springgreen", 0x00FF7F},
                            {L"steelblue", 0x4682B4},
                            {L"tan", 0xD2B48C},
                            {L"teal", 0x008080},
                            {L"thistle", 0xD8BFD8},
                            {L"tomato", 0xFF6347},
                            {L"turquoise", 0x40E0D0},
                            {L"violet", 0xEE82EE},
                            {L"wheat", 0xF5DEB3},
                            {L"white", 0xFFFFFF},
                            {L"whitesmoke", 0xF5F5F5},
                            {L"yellow", 0xFFFF00},
                            {L"yellowgreen", 0x9ACD32}};

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
    const auto* const named = std::ranges::lower_bound(kNames, std::wstring_view(name), {}, &Named::name);
    if (named != std::end(kNames) && named->name == name)
        return opaque(named->value);

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
    const auto* const named = std::ranges::find(kNames, valueOf(colour), &Named::value);
    return named == std::end(kNames) ? std::wstring() : std::wstring(named->name);
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
