#include <ovosvg/core/Values.h>

#include <ovosvg/core/Scanner.h>

#include <ovocor/core/ColourNames.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <utility>

namespace ovosvg
{

namespace
{

constexpr std::uint32_t kOpaque = 0xFF000000;

std::string lowercase(std::string_view text)
{
    std::string result(text);
    for (char& c : result)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c + ('a' - 'A'));
    return result;
}

std::uint32_t byteOf(double value)
{
    return static_cast<std::uint32_t>(std::clamp(value, 0.0, 255.0) + 0.5);
}

std::uint32_t packed(double red, double green, double blue, double alpha)
{
    return byteOf(alpha * 255) << 24 | byteOf(red) << 16 | byteOf(green) << 8 | byteOf(blue);
}

/// "#" and 3, 4, 6 or 8 digits.
std::optional<std::uint32_t> hexColour(std::string_view digits)
{
    std::array<std::uint32_t, 8> values{};
    if (digits.size() != 3 && digits.size() != 4 && digits.size() != 6 && digits.size() != 8)
        return std::nullopt;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        const std::size_t value = std::string_view("0123456789abcdef").find(digits[i]);
        if (value == std::string_view::npos)
            return std::nullopt;
        values[i] = static_cast<std::uint32_t>(value);
    }
    const std::size_t each = digits.size() <= 4 ? 1 : 2;
    const auto channel = [&](std::size_t i) {
        return each == 1 ? values[i] * 17 : values[2 * i] * 16 + values[2 * i + 1];
    };
    const std::uint32_t alpha = digits.size() == 4 * each ? channel(3) : 255;
    return alpha << 24 | channel(0) << 16 | channel(1) << 8 | channel(2);
}

/// A number of a colour function, in units of `whole` if it is a percentage.
std::optional<double> component(Scanner& scanner, double whole)
{
    const std::optional<double> value = scanner.number();
    if (!value)
        return std::nullopt;
    return scanner.take('%') ? *value / 100 * whole : *value;
}

/// The hue of a colour function, in degrees.
std::optional<double> hueFrom(Scanner& scanner)
{
    constexpr std::pair<std::string_view, double> kWholeTurns[] = {
        {"", 360}, {"deg", 360}, {"grad", 400}, {"rad", 2 * kPi}, {"turn", 1}};
    const std::optional<double> value = scanner.number();
    const std::string_view unit = scanner.word();
    for (const auto& [name, turn] : kWholeTurns)
        if (value && unit == name)
            return std::fmod(*value, turn) * (360 / turn);
    return std::nullopt;
}

/// What stands between the numbers of a colour function.
void skipSeparator(Scanner& scanner)
{
    scanner.skipBlanks();
    if (!scanner.take(','))
        scanner.take('/');
    scanner.skipBlanks();
}

/// Red, green and blue from 0 to 255, of a hue in degrees and shares of 1.
std::uint32_t fromHsl(double hue, double saturation, double lightness, double alpha)
{
    saturation = std::clamp(saturation, 0.0, 1.0);
    lightness = std::clamp(lightness, 0.0, 1.0);
    const double reach = saturation * std::min(lightness, 1 - lightness);
    const auto channel = [&](double offset) {
        double k = std::fmod(offset + hue / 30, 12);
        k = k < 0 ? k + 12 : k;
        return 255 * (lightness - reach * std::max(-1.0, std::min({k - 3, 9 - k, 1.0})));
    };
    return packed(channel(0), channel(8), channel(4), alpha);
}

std::optional<std::uint32_t> functionColour(std::string_view name, std::string_view arguments)
{
    const bool isHsl = name == "hsl" || name == "hsla";
    if (!isHsl && name != "rgb" && name != "rgba")
        return std::nullopt;
    Scanner scanner(arguments);
    scanner.skipBlanks();
    std::array<double, 4> values{0, 0, 0, 1};
    for (std::size_t i = 0; i < 4; ++i) {
        if (i == 3 && scanner.atEnd())
            break;
        const double whole = i == 3 ? 1 : isHsl ? 100 : 255;
        const std::optional<double> value = isHsl && i == 0 ? hueFrom(scanner) : component(scanner, whole);
        if (!value)
            return std::nullopt;
        skipSeparator(scanner);
        values[i] = *value;
    }
    if (!scanner.atEnd())
        return std::nullopt;
    const double alpha = std::clamp(values[3], 0.0, 1.0);
    return isHsl ? fromHsl(values[0], values[1] / 100, values[2] / 100, alpha)
                 : packed(values[0], values[1], values[2], alpha);
}

std::optional<std::uint32_t> namedColour(std::string_view name)
{
    const auto& all = OVO::kColourNames;
    const auto found = std::find_if(std::begin(all), std::end(all), [name](const auto& colour) {
        return std::equal(colour.name.begin(), colour.name.end(), name.begin(), name.end(),
                          [](wchar_t a, char b) { return a == static_cast<wchar_t>(b); });
    });
    if (found == std::end(all))
        return std::nullopt;
    return kOpaque | found->rgb;
}

std::optional<Matrix> oneTransform(std::string_view name, const std::vector<double>& n)
{
    const auto has = [&](std::size_t least, std::size_t most) {
        return n.size() >= least && n.size() <= most;
    };
    if (name == "matrix" && has(6, 6))
        return Matrix{n[0], n[1], n[2], n[3], n[4], n[5]};
    if (name == "translate" && has(1, 2))
        return Matrix::translation(n[0], n.size() > 1 ? n[1] : 0);
    if (name == "scale" && has(1, 2))
        return Matrix::scaling(n[0], n.size() > 1 ? n[1] : n[0]);
    if (name == "rotate" && has(1, 1))
        return Matrix::rotation(n[0]);
    if (name == "rotate" && has(3, 3))
        return Matrix::translation(n[1], n[2]) * Matrix::rotation(n[0]) * Matrix::translation(-n[1], -n[2]);
    if (name == "skewX" && has(1, 1))
        return Matrix{1, 0, std::tan(n[0] * kPi / 180), 1, 0, 0};
    if (name == "skewY" && has(1, 1))
        return Matrix{1, std::tan(n[0] * kPi / 180), 0, 1, 0, 0};
    return std::nullopt;
}

std::optional<Length> nextLength(Scanner& scanner)
{
    constexpr std::pair<std::string_view, double> kUnits[] = {
        {"", 1}, {"px", 1}, {"pt", 96.0 / 72}, {"pc", 16}, {"mm", 96 / 25.4}, {"cm", 96 / 2.54}, {"in", 96}};
    const std::optional<double> value = scanner.number();
    if (!value)
        return std::nullopt;
    if (scanner.take('%'))
        return Length{*value / 100, true};
    const std::string unit = lowercase(scanner.word());
    for (const auto& [name, factor] : kUnits)
        if (unit == name)
            return Length{*value * factor, false};
    return std::nullopt;
}

/// All that `next` finds, apart by blanks or commas.
template <class Item, class Next>
std::optional<std::vector<Item>> listFrom(std::string_view text, const Next& next)
{
    std::vector<Item> items;
    Scanner scanner(trimmed(text));
    while (!scanner.atEnd()) {
        const std::optional<Item> item = next(scanner);
        if (!item)
            return std::nullopt;
        items.push_back(*item);
        scanner.skipComma();
    }
    return items;
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r\n\f";
    const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
    return text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

bool isWord(std::string_view text, std::string_view word)
{
    return text.size() == word.size() && lowercase(text) == word;
}

std::optional<Length> lengthFrom(std::string_view text)
{
    Scanner scanner(trimmed(text));
    const std::optional<Length> length = nextLength(scanner);
    return scanner.atEnd() ? length : std::nullopt;
}

std::optional<double> shareFrom(std::string_view text)
{
    Scanner scanner(trimmed(text));
    const std::optional<double> value = scanner.number();
    const double share = value ? (scanner.take('%') ? *value / 100 : *value) : 0;
    if (!value || !scanner.atEnd())
        return std::nullopt;
    return std::clamp(share, 0.0, 1.0);
}

std::optional<std::vector<double>> numbersFrom(std::string_view text)
{
    return listFrom<double>(text, [](Scanner& scanner) { return scanner.number(); });
}

std::optional<std::vector<Length>> lengthsFrom(std::string_view text)
{
    return listFrom<Length>(text, nextLength);
}

std::optional<std::uint32_t> colourFrom(std::string_view text)
{
    const std::string lower = lowercase(trimmed(text));
    const std::string_view view = lower;
    if (view == "transparent")
        return 0;
    if (view.starts_with('#'))
        return hexColour(view.substr(1));
    const std::size_t open = view.find('(');
    if (open != std::string_view::npos && view.ends_with(')'))
        return functionColour(trimmed(view.substr(0, open)), view.substr(open + 1, view.size() - open - 2));
    return namedColour(view);
}

bool isCurrentColour(std::string_view text)
{
    return isWord(trimmed(text), "currentcolor");
}

std::optional<Matrix> transformFrom(std::string_view text)
{
    Matrix result;
    Scanner scanner(trimmed(text));
    if (scanner.rest() == "none")
        return result;
    while (!scanner.atEnd()) {
        const std::string_view name = scanner.word();
        scanner.skipBlanks();
        const std::size_t end = scanner.rest().find(')');
        if (!scanner.take('(') || end == std::string_view::npos)
            return std::nullopt;
        const std::optional<std::vector<double>> numbers = numbersFrom(scanner.rest().substr(0, end - 1));
        const std::optional<Matrix> one = numbers ? oneTransform(name, *numbers) : std::nullopt;
        if (!one)
            return std::nullopt;
        result = result * *one;
        scanner.skip(end);
        scanner.skipComma();
    }
    return result;
}

Matrix Fit::matrix(const Box& from, const Box& to) const
{
    double sx = to.width / from.width;
    double sy = to.height / from.height;
    if (how != How::Stretch)
        sx = sy = how == How::Meet ? std::min(sx, sy) : std::max(sx, sy);
    const double x = to.x + (to.width - from.width * sx) * (how == How::Stretch ? 0 : alignX);
    const double y = to.y + (to.height - from.height * sy) * (how == How::Stretch ? 0 : alignY);
    return {sx, 0, 0, sy, x - from.x * sx, y - from.y * sy};
}

std::optional<Fit> fitFrom(std::string_view text)
{
    Scanner scanner(trimmed(text));
    const std::string_view align = scanner.word();
    scanner.skipBlanks();
    const std::string_view how = scanner.word();
    if (!scanner.atEnd() || !(how.empty() || how == "meet" || how == "slice"))
        return std::nullopt;
    Fit fit;
    if (align == "none") {
        fit.how = Fit::How::Stretch;
        return fit;
    }
    const auto share = [](std::string_view word) -> std::optional<double> {
        return word == "Min" ? 0.0 : word == "Mid" ? 0.5 : word == "Max" ? std::optional(1.0) : std::nullopt;
    };
    if (align.size() != 8 || align[0] != 'x' || align[4] != 'Y' || !share(align.substr(1, 3)) ||
        !share(align.substr(5)))
        return std::nullopt;
    fit.alignX = *share(align.substr(1, 3));
    fit.alignY = *share(align.substr(5));
    fit.how = how == "slice" ? Fit::How::Slice : Fit::How::Meet;
    return fit;
}

} // namespace ovosvg
