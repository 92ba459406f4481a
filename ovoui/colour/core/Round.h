/// Rounding for pixels and shown numbers.
#pragma once

#include <algorithm>
#include <cmath>

namespace ovoui::colour
{

/// Half away from zero, limited to a thousand millions either way. What is no number counts as 0.
inline int rounded(double value)
{
    constexpr double kLimit = 1e9;
    return std::isnan(value) ? 0 : static_cast<int>(std::lround(std::clamp(value, -kLimit, kLimit)));
}

} // namespace ovoui::colour
