/// Numbers of the controls that message boxes make by code. Those of the library's dialog items lie around them.
#pragma once

namespace ovoui::frame
{

inline constexpr int kNotAgainId = 20511;
inline constexpr int kDetailsButtonId = 20512;
inline constexpr int kDetailsId = 20513;
inline constexpr int kProgressId = 20514;

} // namespace ovoui::frame
