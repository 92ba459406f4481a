/// Which of the host's handlers hears of a command in the classic file dialog. Plain values, no windows.
#pragma once

#include <ovoui/files/core/DeclaredControls.h>

#include <cstdint>
#include <optional>

namespace ovoui
{

enum class ClassicEvent
{
    None,
    CheckButtonToggled,
    ButtonClicked,
    MenuOpens,     ///< the control is activated, and its menu shown
    RadioSelected, ///< an item of the button's group
    ItemSelected,
    TextChanged
};

/// For WM_COMMAND with this code, from a control or not; menus and accelerators send codes as well.
/// `clicked` is what a click on the control means.
ClassicEvent classicEvent(unsigned code, bool fromControl, Click::Meaning clicked);

/// The item that the answer to CB_GETCURSEL stands for; none for an answer that is no index.
std::optional<std::uint32_t> itemOf(std::int64_t selection);

} // namespace ovoui
