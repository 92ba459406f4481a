/// How well a text can be read.
#pragma once

#include <ovoui/colour/UnitExport.h>

#include <ovocor/Colour.h>

#include <string_view>

namespace ovoui::colour
{

/// The contrast ratio of `one` colour and the `other`, 1 to 21, after the Web Content Accessibility
/// Guidelines 2. Alpha is left out.
OVOUI_UNIT_API double contrast(const Colour& one, const Colour& other);

/// What the guidelines say of a text of ordinary size: "AAA" from 7, "AA" from 4.5, and for large text "AA
/// large" from 3; below that "-". Ends with a zero.
/// `contrast` is the ratio.
OVOUI_UNIT_API std::wstring_view gradeOf(double contrast);

/// The one grade that is not letters alone.
inline constexpr std::wstring_view kGradeOfLargeText = L"AA large";

} // namespace ovoui::colour
