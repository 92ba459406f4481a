/// What a progress box shows, and how often it lets messages through. Plain values, no windows.
#pragma once

#include <cstdint>
#include <optional>

namespace ovoui::frame
{

/// The bar's position at its end.
inline constexpr int kBarSteps = 1000;

/// How far the bar is, from 0 to kBarSteps, when so much of `total` is done; none when the total is 0, which
/// stands for work whose length is not known. More than all is all.
std::optional<int> barPosition(std::uint64_t done, std::uint64_t total);

/// Whether messages are let through again, at a time in milliseconds and after the last time.
bool letsMessagesThrough(std::uint64_t now, std::uint64_t last);

/// Whether one more waiting message is let through, at a time in milliseconds, when the first one was at
/// `begin`. A window that keeps sending itself messages must not keep the work waiting for ever.
bool goesOnWithMessages(std::uint64_t now, std::uint64_t begin);

} // namespace ovoui::frame
