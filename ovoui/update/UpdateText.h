/// Not exported. What the dialogs of the update check say.
#pragma once

#include <string>

namespace ovoui::update
{

/// That there is a newer version, with the line ends of edit controls.
std::wstring availableText(const std::wstring& product, const std::wstring& description,
                           const std::wstring& page);
/// That there is none.
std::wstring upToDateText(const std::wstring& product);

} // namespace ovoui::update
