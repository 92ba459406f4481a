/// Which tab comes next when a dialog is paged through by the keyboard.
#pragma once

#include <ovoui/frame/core/HeldKeys.h>

#include <cstdint>
#include <optional>

namespace ovoui::frame
{

enum class TabDirection
{
    Forward,
    Backward
};

/// Where a key that goes down pages to; none for a key that does not page. `key` is the platform's virtual
/// key.
std::optional<TabDirection> tabDirection(unsigned key, const HeldKeys& held);

/// Index of the tab beside `current` in a row of `count` tabs (at least 1), going round at both ends.
/// The arithmetic is signed and the remainder keeps the sign of the dividend, so a row without a current
/// tab (-1) answers 0 forward and, backward, `count - 2`, or 0 in a row of one.
std::int64_t nextTab(std::int64_t current, std::int64_t count, TabDirection direction);

} // namespace ovoui::frame
