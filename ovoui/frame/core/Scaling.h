/// Lengths that are given in pixels at the usual resolution. Plain values, no windows.
#pragma once

namespace ovoui::frame
{

inline constexpr int kUsualDotsPerInch = 96;

/// In pixels at another resolution, to the nearest one. No length is negative.
constexpr int scaledTo(int dotsPerInch, int length)
{
    return (length * dotsPerInch + kUsualDotsPerInch / 2) / kUsualDotsPerInch;
}

} // namespace ovoui::frame
