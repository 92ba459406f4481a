/// Not exported: commands that a combo box posts to itself, so that what is going on ends first.
#pragma once

#include <windows.h>

namespace ovoui::lists
{

constexpr WPARAM kReturn = 0x0400;
constexpr WPARAM kEscape = 0x0401;
constexpr WPARAM kUp = 0x0402;
constexpr WPARAM kDown = 0x0403;
constexpr WPARAM kRemember = 0x0404; ///< the history learns of what was accepted
constexpr WPARAM kHit = 0x0405;      ///< an item with the text was clicked
constexpr WPARAM kFindHits = 0x0406; ///< the items have changed while some of them were shown as hits

} // namespace ovoui::lists
