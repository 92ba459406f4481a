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

/// The way back: the length at the usual resolution that these pixels stand for, rounded likewise. A
/// resolution that is not known, 0, counts as the usual one.
constexpr int scaledFrom(int dotsPerInch, int pixels)
{
    if (dotsPerInch <= 0)
        return pixels;
    const int half = pixels < 0 ? -dotsPerInch / 2 : dotsPerInch / 2;
    return (pixels * kUsualDotsPerInch + half) / dotsPerInch;
}

} // namespace ovoui::frame
