/// Numbers of the controls that message boxes make by code. Those of the library's dialog items lie around
/// them.
#pragma once

namespace ovoui::frame
{

/// The check box that keeps the answer.
inline constexpr int kNotAgainId = 20511;
/// The button that shows and hides the details.
inline constexpr int kDetailsButtonId = 20512;
/// The details.
inline constexpr int kDetailsId = 20513;
/// The bar of a progress box.
inline constexpr int kProgressId = 20514;

} // namespace ovoui::frame
