/// Angles by keyboard, wheel and snapping, in degrees. Plain values, no windows.
#pragma once

#include <optional>

namespace ovoui::sliders
{

enum class AngleKey
{
    Less,     ///< an arrow to the left or down
    More,     ///< to the right or up
    PageLess, ///< Page Down
    PageMore, ///< Page Up
    Zero,     ///< Home
};

/// By the platform's virtual key; nothing for the others.
std::optional<AngleKey> angleKeyOf(unsigned virtualKey);
/// Whether a character opens the edit control.
bool beginsAngle(unsigned character);

/// Where a key leads from `degrees`: by 1 degree, with Ctrl by 5, a page by 15.
double angleAfter(AngleKey key, bool ctrl, double degrees);

/// The nearest multiple of `snap`; the angle itself when `snap` is not positive.
double snapped(double degrees, double snap);

} // namespace ovoui::sliders
