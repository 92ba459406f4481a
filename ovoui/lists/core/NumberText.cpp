#include <ovoui/lists/core/NumberText.h>

namespace ovoui::lists
{

namespace
{

bool isDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

bool isSpace(wchar_t c)
{
    return c == L' ' || c == L'\u00A0' || c == L'\u202F';
}

} // namespace

std::optional<double> numberIn(std::wstring_view text, wchar_t decimal, wchar_t group)
{
    std::size_t at = 0;
    const auto has = [&](std::size_t place, auto is) { return place < text.size() && is(text[place]); };
    while (has(at, isSpace))
        ++at;
    const bool negative = has(at, [](wchar_t c) { return c == L'-' || c == L'\u2212'; });
    if (negative)
        ++at;
    if (!has(at, isDigit) &&
        !(has(at, [decimal](wchar_t c) { return c == decimal; }) && has(at + 1, isDigit)))
        return std::nullopt;
    const auto parts = [group](wchar_t c) {
        return isSpace(c) || c == L'\'' || c == L'\u2019' || c == group;
    };
    double value = 0;
    while (has(at, isDigit) || (has(at, parts) && has(at + 1, isDigit))) {
        if (isDigit(text[at]))
            value = value * 10 + (text[at] - L'0');
        ++at;
    }
    if (has(at, [decimal](wchar_t c) { return c == decimal; }))
        for (double place = 0.1; has(++at, isDigit); place /= 10)
            value += place * (text[at] - L'0');
    return negative ? -value : value;
}

} // namespace ovoui::lists
