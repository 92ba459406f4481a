#include <ovoui/toolbar/core/GripperDots.h>

namespace ovoui::toolbar
{

std::vector<frame::Point> gripperDots(const frame::Box& gripper, bool horizontalBar)
{
    constexpr int kStep = 4; // from dot to dot
    constexpr int kMargin = 3;
    const int begin = (horizontalBar ? gripper.top : gripper.left) + kMargin;
    const int end = (horizontalBar ? gripper.bottom : gripper.right) - kMargin;
    std::vector<frame::Point> dots;
    for (int at = begin; at + kDotSize < end; at += kStep)
        dots.push_back(horizontalBar ? frame::Point{gripper.left + kMargin, at}
                                     : frame::Point{at, gripper.top + kMargin});
    return dots;
}

} // namespace ovoui::toolbar
