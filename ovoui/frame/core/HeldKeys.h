/// Keys that are held while another goes down. Plain values, no windows.
#pragma once

namespace ovoui::frame
{

struct HeldKeys
{
    bool ctrl = false;
    bool shift = false;
    bool alt = false;
};

} // namespace ovoui::frame
