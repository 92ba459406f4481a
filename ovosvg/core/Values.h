/// Values of attributes: lengths, colours, transforms, lists. Plain values, no windows.
#pragma once

#include <ovosvg/core/Geometry.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace ovosvg
{

std::string_view trimmed(std::string_view text);

/// Whether a text is a word of CSS, in capitals or not; `word` has none.
bool isWord(std::string_view text, std::string_view word);

/// A length as it is written.
struct Length
{
    double value = 0;     ///< in user units, or a share of 1
    bool isShare = false; ///< written as a percentage

    /// In user units, where a share is one of `whole`.
    double of(double whole) const { return isShare ? value * whole : value; }
};

/// A number with px, pt, pc, mm, cm, in or %, at 96 user units an inch, or without a unit. None for anything
/// else.
std::optional<Length> lengthFrom(std::string_view text);

/// A number from 0 to 1, or a percentage, limited to that range.
std::optional<double> shareFrom(std::string_view text);

/// Numbers apart by blanks or commas.
std::optional<std::vector<double>> numbersFrom(std::string_view text);

/// Lengths apart by blanks or commas.
std::optional<std::vector<Length>> lengthsFrom(std::string_view text);

/// 0xAARRGGBB of a name, #rgb, #rgba, #rrggbb, #rrggbbaa, rgb(), rgba(), hsl() or hsla(), or transparent. Not
/// of currentColor, which is no colour by itself.
std::optional<std::uint32_t> colourFrom(std::string_view text);

/// Whether it is currentColor, in capitals or not.
bool isCurrentColour(std::string_view text);

/// A list of matrix, translate, scale, rotate, skewX and skewY.
std::optional<Matrix> transformFrom(std::string_view text);

/// How a picture lies in its room.
struct Fit
{
    enum class How
    {
        Meet,  ///< as large as fits
        Slice, ///< as small as covers
        Stretch
    };
    double alignX = 0.5; ///< 0 left, 1 right
    double alignY = 0.5;
    How how = How::Meet;

    /// Maps what lies in `from` to `to`; both have lengths above 0.
    Matrix matrix(const Box& from, const Box& to) const;
};

/// The value of preserveAspectRatio.
std::optional<Fit> fitFrom(std::string_view text);

} // namespace ovosvg
