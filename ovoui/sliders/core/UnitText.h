/// Numbers as a user reads them: with a decimal sign, grouped digits and a unit. Plain values, no windows.
#pragma once

#include <string>
#include <string_view>

namespace ovoui::sliders
{

struct UnitStyle
{
    std::wstring unit;           ///< behind the number and a blank: "mm"; empty: none
    std::wstring decimal = L"."; ///< between whole and part
    std::wstring group;          ///< between groups of three digits; empty: no groups
    bool percent = false;        ///< a hundred times the number is shown, with "%" for its unit
};

/// A number in machine form as it is shown: "12345.5" as "12,345.5 mm". What is no number is left as it is.
std::wstring withUnit(std::wstring_view machine, const UnitStyle& style);

/// The way back. Blanks, groups and the unit are optional, and the unit may be in any case of letters; what
/// follows the number otherwise stays, so that it is seen that it does not belong there.
std::wstring withoutUnit(std::wstring_view shown, const UnitStyle& style);

} // namespace ovoui::sliders
