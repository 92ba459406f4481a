#include <ovoui/sysinfo/core/StretchRule.h>

namespace ovoui::sysinfo
{
namespace
{

/// Which edges of a control follow the dialog's right and bottom edge.
struct Edges
{
    bool left;
    bool top;
    bool right;
    bool bottom;
};

Edges edgesThatFollow(Stretch how)
{
    switch (how) {
    case Stretch::Grow:
        return {.left = false, .top = false, .right = true, .bottom = true};
    case Stretch::GrowWide:
        return {.left = false, .top = false, .right = true, .bottom = false};
    case Stretch::MoveRight:
        return {.left = true, .top = false, .right = true, .bottom = false};
    case Stretch::MoveDown:
        return {.left = false, .top = true, .right = false, .bottom = true};
    case Stretch::MoveBoth:
        break;
    }
    return {.left = true, .top = true, .right = true, .bottom = true};
}

} // namespace

frame::Box stretched(const frame::Box& place, Stretch how, int wider, int taller)
{
    const Edges edges = edgesThatFollow(how);
    return {place.left + edges.left * wider, place.top + edges.top * taller,
            place.right + edges.right * wider, place.bottom + edges.bottom * taller};
}

} // namespace ovoui::sysinfo
