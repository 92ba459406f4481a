#include <ovoui/sliders/core/SliderMapping.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace ovoui::sliders
{
namespace
{

double mapped(double fraction, Mapping mapping, const RealRange& range)
{
    switch (mapping) {
    case Mapping::Linear:
        return range.low + fraction * (range.high - range.low);
    case Mapping::Logarithmic:
        return range.low * std::exp(std::log(range.high / range.low) * fraction);
    case Mapping::SquareRoot:
        return range.low + (range.high - range.low) * fraction * fraction;
    }
    return range.low;
}

std::int64_t extent(const Positions& positions)
{
    return std::int64_t{positions.maximum} - positions.minimum;
}

int saturated(std::int64_t number)
{
    return static_cast<int>(
        std::clamp<std::int64_t>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

} // namespace

double fractionOf(double value, Mapping mapping, const RealRange& range)
{
    if (mapping != Mapping::Linear && value <= 0)
        value = range.low;
    switch (mapping) {
    case Mapping::Linear:
        return (value - range.low) / (range.high - range.low);
    case Mapping::Logarithmic:
        return std::log(value / range.low) / std::log(range.high / range.low);
    case Mapping::SquareRoot:
        return (std::sqrt(value) - std::sqrt(range.low)) / (std::sqrt(range.high) - std::sqrt(range.low));
    }
    return std::numeric_limits<double>::quiet_NaN();
}

double valueAtShare(double share, Mapping mapping, const RealRange& range)
{
    const double value = mapped(share, mapping, range);
    if (!std::isfinite(value))
        return range.low;
    return share == 1 ? range.high : value; // what is worked out for the end may lie beside it
}

int positionOf(double value, Mapping mapping, const RealRange& range, const Positions& positions)
{
    const double fraction = fractionOf(value, mapping, range);
    if (std::isnan(fraction))
        return positions.minimum;
    const double within = std::clamp(fraction, 0.0, 1.0);
    // The bounds hold every int exactly, and so does the sum between them.
    return static_cast<int>(std::round(positions.minimum + within * static_cast<double>(extent(positions))));
}

double valueAt(int position, Mapping mapping, const RealRange& range, const Positions& positions)
{
    if (extent(positions) == 0)
        return range.low;
    const double fraction =
        (static_cast<double>(position) - positions.minimum) / static_cast<double>(extent(positions));
    return valueAtShare(fraction, mapping, range);
}

int pageSize(const Positions& positions, int pages)
{
    return saturated(pages == 0 ? extent(positions) : extent(positions) / pages);
}

} // namespace ovoui::sliders
