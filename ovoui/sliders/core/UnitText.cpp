#include <ovoui/sliders/core/UnitText.h>

#include <algorithm>
#include <cwctype>

namespace ovoui::sliders
{
namespace
{

constexpr std::size_t kGroup = 3;
constexpr std::size_t kPercentDigits = 2; // a hundred times is two digits further

bool isDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

bool isBlank(wchar_t c)
{
    return c == L' ' || c == L'\t' || c == 0x00A0 || c == 0x202F;
}

std::wstring_view trimmed(std::wstring_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// A decimal number in its parts.
struct Parts
{
    std::wstring sign;
    std::wstring whole;
    std::wstring part; ///< digits behind the point
    bool hasPoint = false;
    bool good = false;
};

Parts partsOf(std::wstring_view machine)
{
    Parts parts;
    if (machine.starts_with(L'-') || machine.starts_with(L'+')) {
        parts.sign = machine.front();
        machine.remove_prefix(1);
    }
    const std::size_t point = std::min(machine.find(L'.'), machine.size());
    parts.whole = machine.substr(0, point);
    parts.hasPoint = point < machine.size();
    parts.part = parts.hasPoint ? machine.substr(point + 1) : L"";
    parts.good = !(parts.whole.empty() && parts.part.empty()) && std::ranges::all_of(parts.whole, isDigit) &&
                 std::ranges::all_of(parts.part, isDigit);
    return parts;
}

std::wstring withoutNeedlessZeros(const std::wstring& digits)
{
    return digits.substr(std::min(digits.find_first_not_of(L'0'), digits.size() - 1));
}

/// The point moves to the right, as far as digits are there or zeros are put.
void multiplyByHundred(Parts& parts)
{
    parts.part.resize(std::max(parts.part.size(), kPercentDigits), L'0');
    parts.whole = withoutNeedlessZeros(parts.whole + parts.part.substr(0, kPercentDigits));
    parts.part.erase(0, kPercentDigits);
    parts.hasPoint = !parts.part.empty();
}

void divideByHundred(Parts& parts)
{
    if (parts.whole.size() <= kPercentDigits)
        parts.whole.insert(0, kPercentDigits + 1 - parts.whole.size(), L'0');
    parts.part = parts.whole.substr(parts.whole.size() - kPercentDigits) + parts.part;
    parts.whole.resize(parts.whole.size() - kPercentDigits);
    parts.hasPoint = true;
}

std::wstring grouped(const std::wstring& digits, const std::wstring& separator)
{
    std::wstring result;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % kGroup == 0)
            result += separator;
        result += digits[i];
    }
    return result;
}

std::wstring_view unitOf(const UnitStyle& style)
{
    return style.percent ? L"%" : std::wstring_view(style.unit);
}

bool sameLetters(std::wstring_view a, std::wstring_view b)
{
    return std::ranges::equal(a, b,
                              [](wchar_t x, wchar_t y) { return std::towlower(x) == std::towlower(y); });
}

std::wstring_view withoutEnd(std::wstring_view text, std::wstring_view unit)
{
    if (unit.empty() || text.size() < unit.size() ||
        !sameLetters(text.substr(text.size() - unit.size()), unit))
        return text;
    text.remove_suffix(unit.size());
    return trimmed(text);
}

/// A group separator is left out only between digits before the decimal sign.
std::wstring machineDigits(std::wstring_view text, const UnitStyle& style)
{
    std::wstring result;
    bool behindPoint = false;
    for (std::size_t i = 0; i < text.size();) {
        const std::wstring_view rest = text.substr(i);
        if (!behindPoint && !style.decimal.empty() && rest.starts_with(style.decimal)) {
            result += L'.';
            behindPoint = true;
            i += style.decimal.size();
        } else if (!behindPoint && !style.group.empty() && rest.starts_with(style.group) && i > 0 &&
                   isDigit(text[i - 1]) && rest.size() > style.group.size() &&
                   isDigit(rest[style.group.size()])) {
            i += style.group.size();
        } else {
            result += text[i++];
        }
    }
    return result;
}

} // namespace

std::wstring withUnit(std::wstring_view machine, const UnitStyle& style)
{
    Parts parts = partsOf(machine);
    if (!parts.good)
        return std::wstring(machine);
    if (style.percent)
        multiplyByHundred(parts);
    std::wstring shown = parts.sign + grouped(parts.whole, style.group);
    if (parts.hasPoint)
        shown += style.decimal + parts.part;
    const std::wstring_view unit = unitOf(style);
    return unit.empty() ? shown : shown + L' ' + std::wstring(unit);
}

std::wstring withoutUnit(std::wstring_view shown, const UnitStyle& style)
{
    const std::wstring number = machineDigits(withoutEnd(trimmed(shown), unitOf(style)), style);
    Parts parts = partsOf(number);
    if (!style.percent || !parts.good)
        return number;
    divideByHundred(parts);
    return parts.sign + parts.whole + L'.' + parts.part;
}

} // namespace ovoui::sliders
