/// Small rules of the bar. Plain values, no windows.
#pragma once

#include <cstdint>

namespace ovoui::toolbar
{

/// Whether the bar's callback is told of a notification code: those of buttons, combo boxes and edits in it.
bool reachesCallback(unsigned code);

/// Updates rest for a moment after the host has restarted its command interface. Both are tick counts in
/// milliseconds, which wrap round.
bool updatesRest(std::uint32_t now, std::uint32_t restarted);

/// A button of a bar as the platform keeps it.
struct ButtonFields
{
    int image = 0; ///< for a separator its width
    int command = 0;
    unsigned char state = 0; ///< TBSTATE_ bits
    unsigned char style = 0; ///< BTNS_ bits
    std::uintptr_t data = 0;
    std::intptr_t text = 0;
};

enum class ButtonChange
{
    None,  ///< enabled or disabled at most
    Look,  ///< its rectangle stays
    Layout ///< the buttons behind it may move
};

ButtonChange changeOf(const ButtonFields& before, const ButtonFields& after);

} // namespace ovoui::toolbar
