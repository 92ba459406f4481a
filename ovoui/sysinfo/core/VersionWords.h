/// What the numbers of a version record mean, in words. Plain values, no windows.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ovoui::sysinfo
{

/// The four numbers of a version, from the record's two 32-bit halves: "11.0.2.7".
std::wstring versionText(std::uint32_t high, std::uint32_t low);

/// The flags of a file (VS_FF_), those with a name first, the rest in hexadecimal; between two of them
/// `separator`.
std::wstring flagWords(std::uint32_t flags, std::wstring_view separator);

/// The operating system of a file (VOS_) and the interface on top of it; between the two `separator`.
std::wstring systemWords(std::uint32_t system, std::wstring_view separator);

/// The type of a file (VFT_), for drivers and fonts by their subtype (VFT2_).
std::wstring typeWords(std::uint32_t type, std::uint32_t subtype);

} // namespace ovoui::sysinfo
