/// Lengths that are given in pixels at the usual resolution. Plain values, no windows.
#pragma once

namespace ovoui::frame
{

inline constexpr int kUsualDotsPerInch = 96;

/// In pixels at another resolution, rounded half away from zero.
constexpr int scaledTo(int dotsPerInch, int length)
{
    const int half = length < 0 ? -kUsualDotsPerInch / 2 : kUsualDotsPerInch / 2;
    return (length * dotsPerInch + half) / kUsualDotsPerInch;
}

} // namespace ovoui::frame
