#pragma once

#include <string>

namespace ovo::testkit
{

/// The Unicode text on the clipboard; empty when there is none, or while another program has it open.
std::wstring clipboardText();

/// Takes everything off the clipboard.
void emptyClipboard();

} // namespace ovo::testkit
