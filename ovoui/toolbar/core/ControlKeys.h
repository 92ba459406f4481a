/// Which keys a control inside a bar gets before the host's accelerators. Plain values, no windows.
#pragma once

namespace ovoui::toolbar
{

/// A key message to the bar or one of its controls.
struct ControlKey
{
    unsigned key = 0;       ///< virtual key
    bool down = true;       ///< WM_KEYDOWN, as against WM_KEYUP, WM_SYSKEYDOWN and WM_SYSKEYUP
    bool ctrl = false;      ///< is held
    bool wantsKeys = false; ///< the target's dialog code has DLGC_WANTCHARS or DLGC_WANTALLKEYS
    bool toTheBar = false;  ///< the target is the bar itself
};

enum class KeyRoute
{
    Framework, ///< accelerators and dialog keys first
    Control,   ///< translated and dispatched at once
    Loop       ///< left to the message loop
};

struct KeyDecision
{
    bool postsCommand = false; ///< Enter, Escape or Tab: the bar gets a command first
    KeyRoute route = KeyRoute::Framework;

    friend bool operator==(const KeyDecision&, const KeyDecision&) = default;
};

KeyDecision decideKey(const ControlKey& key);

} // namespace ovoui::toolbar
