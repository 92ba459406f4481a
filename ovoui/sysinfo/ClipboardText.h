/// Not exported. Text for the clipboard.
#pragma once

#include <string>

namespace ovoui::sysinfo
{

/// Puts `text` on the clipboard. Tries again for a moment while another program has it open, and throws
/// OvoError when that does not end.
void copyToClipboard(const std::wstring& text);

} // namespace ovoui::sysinfo
