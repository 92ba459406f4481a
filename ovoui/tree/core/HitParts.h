/// Which part of the tree a point hits, as the mouse rules see it. Plain values, no windows.
#pragma once

namespace ovoui::tree
{

// Flags of the platform's hit test.
inline constexpr unsigned kHitNowhere = 0x0001;
inline constexpr unsigned kHitIcon = 0x0002;
inline constexpr unsigned kHitLabel = 0x0004;
inline constexpr unsigned kHitIndent = 0x0008;
inline constexpr unsigned kHitButton = 0x0010;
inline constexpr unsigned kHitRight = 0x0020;
inline constexpr unsigned kHitStateIcon = 0x0040;
inline constexpr unsigned kHitAbove = 0x0100;
inline constexpr unsigned kHitBelow = 0x0200;

/// The item itself: a press there selects it, a press elsewhere is one on empty space.
constexpr bool hitsItem(unsigned flags)
{
    return (flags & (kHitIcon | kHitLabel | kHitStateIcon)) != 0;
}

/// Where the tree handles a press of a button; everywhere else, such as on the button that opens an item, the
/// platform's tree view does.
constexpr bool takesPress(unsigned flags)
{
    return (flags & (kHitNowhere | kHitIcon | kHitLabel | kHitIndent | kHitRight | kHitStateIcon | kHitAbove |
                     kHitBelow)) != 0;
}

/// Where the tree handles a release or a double click.
constexpr bool takesRelease(unsigned flags)
{
    return (flags & (kHitNowhere | kHitIcon | kHitLabel | kHitStateIcon | kHitAbove | kHitBelow)) != 0;
}

/// A part of the item that the node has claimed for itself: flags of its own in the upper half, none of the
/// platform's in the lower one.
constexpr bool isNodesOwnPart(unsigned flags)
{
    return flags != 0 && (flags & 0xFFFF) == 0;
}

/// Whether a second click edits the label: a press on the label of the caret, where labels can be edited.
constexpr bool editsLabel(unsigned flags, bool onCaret, bool labelsCanBeEdited)
{
    return labelsCanBeEdited && onCaret && (flags & kHitLabel) != 0;
}

/// What a press that hits no item stands for, where a range of items or an anchor is wanted.
enum class Beyond
{
    Nothing,
    FirstItem, ///< the press is above the tree
    LastItem   ///< the press is below the last item
};

constexpr Beyond beyond(unsigned flags)
{
    if (flags & (kHitNowhere | kHitBelow))
        return Beyond::LastItem;
    return (flags & kHitAbove) ? Beyond::FirstItem : Beyond::Nothing;
}

} // namespace ovoui::tree
