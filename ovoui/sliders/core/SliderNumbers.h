/// What the positions of a slider button's slider stand for, as text in machine form. Plain values, no
/// windows.
#pragma once

#include <ovoui/sliders/core/SliderMapping.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ovoui::sliders
{

/// A mapping of the host's: how far a number lies from the low end (0) to the high end (1), and the way back.
struct HostMapping
{
    std::function<double(double number)> shareOf;
    std::function<double(double share)> numberAt;

    explicit operator bool() const { return shareOf && numberAt; }
};

/// Whether data exchange takes what the user has typed: a number, and one from `low` to `high`.
bool isTaken(std::optional<double> typed, double low, double high);

/// What data exchange makes of it, none for what it does not take. An end stands for its own text, which may
/// lie beyond it, since it is rounded to `decimals`.
std::optional<double> takenNumber(std::optional<double> typed, double low, double high, int decimals);

/// What an int can hold of a range. Where it holds nothing of it, the first is greater than the second.
std::pair<double, double> limitsOfWhole(const std::pair<double, double>& limits);

/// Whether the numbers of all positions rise, or all fall, and `shareOf` leads each of them back to its
/// position.
bool isUsable(const HostMapping& mapping, const Positions& positions);

struct SliderNumbers
{
    bool whole = true; ///< the positions are the numbers
    int low = 0;
    int high = 100;
    // For the others
    Mapping mapping = Mapping::Linear;
    RealRange range;
    int decimals = 2;
    HostMapping host; ///< in place of `mapping`, when it is given

    Positions positions() const;
    /// The lesser and the greater of the numbers at the ends.
    std::pair<double, double> limits() const;

    /// The position that shows the number at the start of a text. Without a number it is that of the low end.
    int positionOf(std::wstring_view text) const;
    std::wstring textAt(int position) const;

    /// The number of a text, moved by some positions or parts of one, but not beyond the ends. It changes by
    /// one unit of the last decimal at least, unless it is at the end.
    std::wstring stepped(std::wstring_view text, double steps) const;

    /// The positions of some numbers, without those beyond the ends.
    std::vector<int> positionsOf(const std::vector<double>& numbers) const;

private:
    double numberIn(std::wstring_view text) const;
    int positionOf(double number) const;
    double shareOf(double number) const;
    double numberAt(double share) const;
};

} // namespace ovoui::sliders
