/// The rule of opening and closing: what a notification of the tree view about it leads to. Plain values, no
/// windows.
#pragma once

namespace ovoui::tree
{

// The platform's ways of opening and closing
inline constexpr unsigned kCollapse = 0x1;
inline constexpr unsigned kExpand = 0x2;
inline constexpr unsigned kExpandPartial = 0x4000;
inline constexpr unsigned kCollapseReset = 0x8001;

enum class Moment
{
    Before, ///< the item is about to open or close
    After   ///< it has
};

enum class ExpansionStep
{
    PassOn,    ///< nothing to do with the node
    TakeState, ///< the node takes over the item's state
    Open, ///< the same, and the node inserts the children; the item opens exactly when it says that it did
    Show, ///< the node takes over the item's state, and the item shows what the node is now
    Empty ///< the same, the node is told that it is closed, and the children go
};

/// `action` is the platform's word for what is done, `isOpen` whether the item is open at this moment.
ExpansionStep expansionRule(Moment moment, unsigned action, bool isOpen);

} // namespace ovoui::tree
