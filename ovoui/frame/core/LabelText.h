/// Labels of controls and lines of menus as plain texts, and back. Plain values, no windows.
#pragma once

#include <string>
#include <string_view>

namespace ovoui::frame
{

/// Without the ampersands that underline a letter; two of them stand for one that is shown.
std::wstring withoutMnemonic(std::wstring_view label);

/// A text as a label or a menu shows it whole, where a single ampersand would underline what follows.
std::wstring asLabel(std::wstring_view text);

/// What accessibility calls a control that stands behind a label: without the colon at its end, too, and the
/// blank that some languages have before it.
std::wstring nameFromLabel(std::wstring_view label);

} // namespace ovoui::frame
