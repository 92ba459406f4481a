#include <ovoui/sliders/core/SliderNumbers.h>

#include <ovoui/sliders/core/NumberText.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace ovoui::sliders
{
namespace
{

constexpr Positions kHundred{0, 100};

double extent(const Positions& positions)
{
    return static_cast<double>(positions.maximum) - positions.minimum;
}

double shareOfPosition(int position, const Positions& positions)
{
    return extent(positions) == 0 ? 0.0
                                  : (static_cast<double>(position) - positions.minimum) / extent(positions);
}

int positionAt(double share, const Positions& positions)
{
    if (std::isnan(share))
        return positions.minimum;
    return static_cast<int>(std::round(positions.minimum + std::clamp(share, 0.0, 1.0) * extent(positions)));
}

/// The whole number that lies `steps` from `from`, one at least, between the ends.
int steppedWhole(int from, double steps, int low, int high)
{
    const double way = std::abs(steps) < 1 ? std::copysign(1.0, steps) : std::round(steps);
    const auto [least, most] = std::minmax({low, high});
    return static_cast<int>(std::clamp(from + way, static_cast<double>(least), static_cast<double>(most)));
}

} // namespace

bool isTaken(std::optional<double> typed, double low, double high)
{
    return typed && *typed >= low && *typed <= high;
}

std::optional<double> takenNumber(std::optional<double> typed, double low, double high, int decimals)
{
    if (isTaken(typed, low, high))
        return typed;
    for (const double end : {low, high})
        if (typed && typed == parseReal(formatReal(end, decimals)))
            return end;
    return std::nullopt;
}

std::pair<double, double> limitsOfWhole(const std::pair<double, double>& limits)
{
    using Whole = std::numeric_limits<int>;
    return {std::max<double>(limits.first, Whole::min()), std::min<double>(limits.second, Whole::max())};
}

bool isUsable(const HostMapping& mapping, const Positions& positions)
{
    if (!mapping || positions.maximum <= positions.minimum)
        return false;
    double before = mapping.numberAt(0.0);
    double direction = 0;
    for (int position = positions.minimum; position <= positions.maximum; ++position) {
        const double number = mapping.numberAt(shareOfPosition(position, positions));
        if (!std::isfinite(number) || positionAt(mapping.shareOf(number), positions) != position)
            return false;
        if (position > positions.minimum) {
            const double step = number - before;
            if (step * direction < 0)
                return false;
            direction = step;
        }
        before = number;
    }
    return true;
}

Positions SliderNumbers::positions() const
{
    return whole ? Positions{low, high} : kHundred;
}

std::pair<double, double> SliderNumbers::limits() const
{
    return whole ? std::minmax({static_cast<double>(low), static_cast<double>(high)})
                 : std::minmax({numberAt(0.0), numberAt(1.0)});
}

int SliderNumbers::positionOf(std::wstring_view text) const
{
    return whole ? parseWhole(text).value_or(low) : positionOf(numberIn(text));
}

int SliderNumbers::positionOf(double number) const
{
    return host ? positionAt(host.shareOf(number), positions())
                : sliders::positionOf(number, mapping, range, positions());
}

std::wstring SliderNumbers::textAt(int position) const
{
    if (whole)
        return std::to_wstring(position);
    const double number = host ? host.numberAt(shareOfPosition(position, positions()))
                               : valueAt(position, mapping, range, positions());
    return formatReal(number, decimals);
}

double SliderNumbers::numberIn(std::wstring_view text) const
{
    return parseReal(text).value_or(host ? host.numberAt(0.0) : range.low);
}

double SliderNumbers::shareOf(double number) const
{
    return host ? host.shareOf(number) : fractionOf(number, mapping, range);
}

double SliderNumbers::numberAt(double share) const
{
    return host ? host.numberAt(share) : valueAtShare(share, mapping, range);
}

std::wstring SliderNumbers::stepped(std::wstring_view text, double steps) const
{
    if (whole)
        return std::to_wstring(steppedWhole(parseWhole(text).value_or(low), steps, low, high));
    const double number = numberIn(text);
    double share = shareOf(number);
    if (std::isnan(share))
        share = 0;
    // Only the linear mapping and the host's lead back to where they came from; the step is what counts.
    const double from = std::clamp(share, 0.0, 1.0);
    const double to = std::clamp(from + steps / extent(positions()), 0.0, 1.0);
    double moved =
        mapping == Mapping::SquareRoot && !host ? number + numberAt(to) - numberAt(from) : numberAt(to);
    const auto [least, most] = limits();
    const std::wstring before = formatReal(number, decimals);
    if (formatReal(moved, decimals) == before) {
        const bool rises = (steps > 0) == (numberAt(1.0) >= numberAt(0.0));
        moved = number + (rises ? 1 : -1) * std::pow(10.0, -std::max(decimals, 0));
    }
    return formatReal(std::clamp(moved, least, most), decimals);
}

std::vector<int> SliderNumbers::positionsOf(const std::vector<double>& numbers) const
{
    std::vector<int> found;
    for (const double number : numbers) {
        const double share = whole ? (number - low) / extent(positions()) : shareOf(number);
        if (share >= 0 && share <= 1)
            found.push_back(whole ? static_cast<int>(std::lround(number)) : positionOf(number));
    }
    return found;
}

} // namespace ovoui::sliders
