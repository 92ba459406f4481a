/// What the type flags of a message box ask for: buttons, default button, icon. Plain values, no windows.
#pragma once

#include <ovoui/frame/MessageBoxFlags.h>

#include <string>
#include <vector>

namespace ovoui::frame
{

/// A button of the message box: its control id, which is also the box's result, its label's string id, and
/// the label shown when that string is missing. A text of the caller's goes before both.
struct MessageBoxButton
{
    int id;
    unsigned label;
    const wchar_t* fallback;
    std::wstring text{};
};

/// What a button is called; `loaded` is the string of its label, or empty when that is missing.
std::wstring labelOf(const MessageBoxButton& button, const std::wstring& loaded);

/// Every button there is, in the order of the label strings.
const std::vector<MessageBoxButton>& allMessageBoxButtons();

/// The buttons of a box and which of them is the default. Positions count from 0 at the left; Help, if it is
/// there, is the last.
struct MessageBoxButtons
{
    std::vector<MessageBoxButton> buttons;
    int defaultPosition = 0;

    int count() const { return static_cast<int>(buttons.size()); }
};

MessageBoxButtons messageBoxButtons(unsigned type);
/// With these buttons in place of the type's set.
MessageBoxButtons messageBoxButtons(unsigned type, std::vector<MessageBoxButton> buttons);

/// Name of the icon resource.
const wchar_t* messageBoxIcon(unsigned type);

} // namespace ovoui::frame
