#include <ovosvg/core/Style.h>

#include <algorithm>
#include <iterator>
#include <optional>

namespace ovosvg
{

namespace
{

/// A paint without a reference.
std::optional<Paint> plainPaintFrom(std::string_view text)
{
    if (isWord(text, "none"))
        return Paint{};
    if (isCurrentColour(text))
        return Paint{Paint::Kind::Current, 0, {}};
    const std::optional<std::uint32_t> colour = colourFrom(text);
    return colour ? std::optional(Paint{Paint::Kind::Solid, *colour, {}}) : std::nullopt;
}

std::optional<Paint> paintFrom(std::string_view text)
{
    if (!text.starts_with("url("))
        return plainPaintFrom(text);
    const std::size_t end = text.find(')');
    if (end == std::string_view::npos)
        return std::nullopt;
    std::string_view address = trimmed(text.substr(4, end - 4));
    if (address.size() >= 2 && (address.front() == '"' || address.front() == '\''))
        address = address.substr(1, address.size() - 2);
    const std::string_view rest = trimmed(text.substr(end + 1));
    const std::optional<Paint> otherwise = rest.empty() ? Paint{} : plainPaintFrom(rest);
    if (!address.starts_with('#') || !otherwise)
        return std::nullopt;
    return Paint{Paint::Kind::Server, otherwise->colour, std::string(address.substr(1)), otherwise->kind};
}

template <class Value>
struct Word
{
    std::string_view name;
    Value value;
};

template <class Value, std::size_t count>
std::optional<Value> wordFrom(std::string_view text, const Word<Value> (&words)[count])
{
    for (const auto& [name, value] : words)
        if (isWord(text, name))
            return value;
    return std::nullopt;
}

constexpr Word<FillRule> kFillRules[] = {{"nonzero", FillRule::NonZero}, {"evenodd", FillRule::EvenOdd}};
constexpr Word<LineCap> kCaps[] = {
    {"butt", LineCap::Butt}, {"round", LineCap::Round}, {"square", LineCap::Square}};
constexpr Word<LineJoin> kJoins[] = {
    {"miter", LineJoin::Miter}, {"round", LineJoin::Round}, {"bevel", LineJoin::Bevel}};
constexpr Word<bool> kVisibility[] = {{"visible", true}, {"hidden", false}, {"collapse", false}};

std::optional<double> miterLimitFrom(std::string_view text)
{
    const auto limit = lengthFrom(text);
    return limit && !limit->isShare && limit->value >= 1 ? std::optional(limit->value) : std::nullopt;
}

std::optional<Length> widthFrom(std::string_view text)
{
    const auto width = lengthFrom(text);
    return width && width->value >= 0 ? width : std::nullopt;
}

std::optional<std::vector<Length>> dashesFrom(std::string_view text)
{
    if (isWord(text, "none"))
        return std::vector<Length>{};
    auto lengths = lengthsFrom(text);
    const auto isNegative = [](const Length& length) { return length.value < 0; };
    if (lengths && std::any_of(lengths->begin(), lengths->end(), isNegative))
        return std::nullopt;
    return lengths;
}

/// The color property, in which currentColor is inherit.
std::optional<std::uint32_t> colourProperty(std::string_view text, std::uint32_t parent)
{
    return isCurrentColour(text) ? parent : colourFrom(text);
}

template <class Value>
Setting put(Value& property, const std::optional<Value>& value)
{
    if (!value)
        return Setting::BadValue;
    property = *value;
    return Setting::Done;
}

/// Properties that change the looks and that nothing here draws, with the value under which they do nothing.
constexpr Word<std::string_view> kNotSupported[] = {
    {"clip-path", "none"},        {"mask", "none"},
    {"filter", "none"},           {"marker", "none"},
    {"marker-start", "none"},     {"marker-mid", "none"},
    {"marker-end", "none"},       {"mix-blend-mode", "normal"},
    {"vector-effect", "none"},    {"transform-origin", "0 0"},
    {"transform-box", "view-box"}};

/// Whether the fill is painted before the stroke, as it is here. What an order does not name follows in the
/// usual one.
bool isUsualOrder(std::string_view order)
{
    return order.find("fill") <= order.find("stroke");
}

Setting notSupported(std::string_view name, std::string_view value)
{
    if (name == "paint-order")
        return isUsualOrder(value) ? Setting::Done : Setting::NotSupported;
    const auto harmless = wordFrom(name, kNotSupported);
    if (!harmless)
        return Setting::Unknown;
    return isWord(value, *harmless) ? Setting::Done : Setting::NotSupported;
}

template <class Value>
Setting take(Style& style, const Style& parent, Value Style::*property)
{
    style.*property = parent.*property;
    return Setting::Done;
}

/// What inherit stands for, whatever an attribute has set before.
Setting inherit(Style& style, const Style& parent, std::string_view name)
{
    if (name == "fill")
        return take(style, parent, &Style::fill);
    if (name == "fill-opacity")
        return take(style, parent, &Style::fillOpacity);
    if (name == "fill-rule")
        return take(style, parent, &Style::fillRule);
    if (name == "stroke")
        return take(style, parent, &Style::stroke);
    if (name == "stroke-opacity")
        return take(style, parent, &Style::strokeOpacity);
    if (name == "stroke-width")
        return take(style, parent, &Style::strokeWidth);
    if (name == "stroke-linecap")
        return take(style, parent, &Style::cap);
    if (name == "stroke-linejoin")
        return take(style, parent, &Style::join);
    if (name == "stroke-miterlimit")
        return take(style, parent, &Style::miterLimit);
    if (name == "stroke-dasharray")
        return take(style, parent, &Style::dashes);
    if (name == "stroke-dashoffset")
        return take(style, parent, &Style::dashOffset);
    if (name == "color")
        return take(style, parent, &Style::colour);
    if (name == "visibility")
        return take(style, parent, &Style::visible);
    if (name == "opacity")
        return take(style, parent, &Style::opacity);
    if (name == "display")
        return take(style, parent, &Style::displayed);
    return notSupported(name, "none") == Setting::Unknown ? Setting::Unknown : Setting::NotSupported;
}

/// A value without the "!important" at its end.
std::string_view withoutImportance(std::string_view value)
{
    const std::size_t mark = value.rfind('!');
    return mark != std::string_view::npos && trimmed(value.substr(mark + 1)) == "important"
               ? trimmed(value.substr(0, mark))
               : value;
}

/// What follows the comments that a style attribute begins with.
std::string_view behindComments(std::string_view style)
{
    style = trimmed(style);
    while (style.starts_with("/*")) {
        const std::size_t end = style.find("*/", 2);
        style = end == std::string_view::npos ? std::string_view() : trimmed(style.substr(end + 2));
    }
    return style;
}

/// Each declaration that is important, or each other one.
void forEachOf(std::string_view style, bool important,
               const std::function<void(std::string_view name, std::string_view value)>& see)
{
    for (style = behindComments(style); !style.empty(); style = behindComments(style)) {
        const std::size_t end = std::min(style.find(';'), style.size());
        const std::string_view declaration = style.substr(0, end);
        const std::size_t colon = std::min(declaration.find(':'), end);
        const std::string_view whole = trimmed(declaration.substr(std::min(colon + 1, end)));
        const std::string_view value = withoutImportance(whole);
        if (colon < end && (value.size() < whole.size()) == important)
            see(trimmed(declaration.substr(0, colon)), value);
        style.remove_prefix(std::min(end + 1, style.size()));
    }
}

} // namespace

std::int64_t Style::cost() const
{
    return static_cast<std::int64_t>(fill.id.size() + stroke.id.size() + dashes.size() * sizeof(Length));
}

Setting setProperty(Style& style, const Style& parent, std::string_view name, std::string_view raw)
{
    const std::string_view value = trimmed(raw);
    if (isWord(value, "inherit"))
        return inherit(style, parent, name);
    if (name == "fill")
        return put(style.fill, paintFrom(value));
    if (name == "stroke")
        return put(style.stroke, paintFrom(value));
    if (name == "opacity")
        return put(style.opacity, shareFrom(value));
    if (name == "display") {
        style.displayed = !isWord(value, "none");
        return Setting::Done;
    }
    if (name == "fill-opacity")
        return put(style.fillOpacity, shareFrom(value));
    if (name == "fill-rule")
        return put(style.fillRule, wordFrom(value, kFillRules));
    if (name == "stroke-opacity")
        return put(style.strokeOpacity, shareFrom(value));
    if (name == "stroke-width")
        return put(style.strokeWidth, widthFrom(value));
    if (name == "stroke-linecap")
        return put(style.cap, wordFrom(value, kCaps));
    if (name == "stroke-linejoin")
        return put(style.join, wordFrom(value, kJoins));
    if (name == "stroke-miterlimit")
        return put(style.miterLimit, miterLimitFrom(value));
    if (name == "stroke-dasharray")
        return put(style.dashes, dashesFrom(value));
    if (name == "stroke-dashoffset")
        return put(style.dashOffset, lengthFrom(value));
    if (name == "color")
        return put(style.colour, colourProperty(value, parent.colour));
    if (name == "visibility")
        return put(style.visible, wordFrom(value, kVisibility));
    return notSupported(name, value);
}

void forEachDeclaration(std::string_view style,
                        const std::function<void(std::string_view name, std::string_view value)>& see)
{
    forEachOf(style, false, see);
    forEachOf(style, true, see);
}

Style styleOf(const XmlElement& element, const Style& parent, const Report& report)
{
    Style style = parent;
    style.opacity = 1;
    style.displayed = true;
    const auto set = [&](std::string_view name, std::string_view value, XmlPlace place) {
        const Setting setting = setProperty(style, parent, name, value);
        if (setting == Setting::BadValue || setting == Setting::NotSupported)
            report(std::string(name), setting, place);
    };
    for (const XmlAttribute& attribute : element.attributes)
        if (attribute.name != "style")
            set(attribute.name, attribute.value, attribute.place);
    for (const XmlAttribute& attribute : element.attributes)
        if (attribute.name == "style")
            forEachDeclaration(attribute.value, [&](std::string_view name, std::string_view value) {
                set(name, value, attribute.place);
            });
    return style;
}

std::string_view propertyOf(const XmlElement& element, std::string_view name)
{
    std::string_view result;
    if (const std::string* const attribute = element.find(name))
        result = trimmed(*attribute);
    if (const std::string* const style = element.find("style"))
        forEachDeclaration(*style, [&](std::string_view own, std::string_view value) {
            if (own == name)
                result = value;
        });
    return result;
}

} // namespace ovosvg
