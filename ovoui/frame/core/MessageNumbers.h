/// The platform's messages, for rules that take them as plain numbers.
#pragma once

namespace ovoui::messages
{

inline constexpr unsigned kFramePressLeft = 0x00A1; ///< a button goes down on a window's frame
inline constexpr unsigned kFramePressRight = 0x00A4;
inline constexpr unsigned kFramePressMiddle = 0x00A7;
inline constexpr unsigned kFramePressOther = 0x00AB;
inline constexpr unsigned kKeyDown = 0x0100;
inline constexpr unsigned kSystemKeyDown = 0x0104;
inline constexpr unsigned kFirstOfMouse = 0x0200; ///< the mouse in a window's client area, to kLastOfMouse
inline constexpr unsigned kMouseMove = 0x0200;
inline constexpr unsigned kPressLeft = 0x0201;
inline constexpr unsigned kReleaseLeft = 0x0202;
inline constexpr unsigned kPressRight = 0x0204;
inline constexpr unsigned kPressMiddle = 0x0207;
inline constexpr unsigned kWheel = 0x020A;
inline constexpr unsigned kPressOther = 0x020B; ///< a button beside the three usual ones goes down
inline constexpr unsigned kSidewaysWheel = 0x020E;
inline constexpr unsigned kLastOfMouse = 0x020E;

} // namespace ovoui::messages
