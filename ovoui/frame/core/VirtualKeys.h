/// The platform's virtual keys, for rules that take them as plain numbers.
#pragma once

namespace ovoui::keys
{

inline constexpr unsigned kVkBack = 0x08;
inline constexpr unsigned kVkTab = 0x09;
inline constexpr unsigned kVkReturn = 0x0D;
inline constexpr unsigned kVkEscape = 0x1B;
inline constexpr unsigned kVkSpace = 0x20;
inline constexpr unsigned kVkPageUp = 0x21;
inline constexpr unsigned kVkPageDown = 0x22;
inline constexpr unsigned kVkEnd = 0x23;
inline constexpr unsigned kVkHome = 0x24;
inline constexpr unsigned kVkLeft = 0x25;
inline constexpr unsigned kVkUp = 0x26;
inline constexpr unsigned kVkRight = 0x27;
inline constexpr unsigned kVkDown = 0x28;
inline constexpr unsigned kVkInsert = 0x2D;
inline constexpr unsigned kVkDelete = 0x2E;
inline constexpr unsigned kVkA = 'A';
inline constexpr unsigned kVkC = 'C';
inline constexpr unsigned kVkF1 = 0x70;
inline constexpr unsigned kVkF2 = 0x71;
inline constexpr unsigned kVkF3 = 0x72;
inline constexpr unsigned kVkF4 = 0x73;
inline constexpr unsigned kVkF5 = 0x74;
inline constexpr unsigned kVkF24 = 0x87;

} // namespace ovoui::keys
