/// The conversions behind change_from_intl_seps and change_to_intl_seps. Plain values, no windows.
#pragma once

#include <string>
#include <string_view>

namespace ovoui::sliders
{

/// How a user writes numbers and lists of them.
struct Convention
{
    std::wstring_view separator; ///< between the items of a list; empty: none
    wchar_t decimal = L'.';

    bool isTheMachines() const { return separator == L"," && decimal == L'.'; }
};

std::wstring toMachine(std::wstring_view text, const Convention& user);
std::wstring fromMachine(std::wstring_view text, const Convention& user);

} // namespace ovoui::sliders
