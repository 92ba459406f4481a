#include <ovoui/toolbar/core/FlyoutPlacement.h>

#include <algorithm>

namespace ovoui::toolbar
{

bool isHorizontal(const BarPosition& bar)
{
    return bar.floating ? bar.rows == 1 : !bar.atTheSide;
}

CornerMark cornerMark(const frame::Box& button)
{
    constexpr int kLeast = 3;
    const int size = std::max(kLeast, button.height() / 6);
    const int margin = 1 + button.height() / 24;
    return {button.right - margin, button.bottom - margin, size};
}

frame::Box flyoutPlace(const frame::Box& button, int width, int height, bool horizontal, bool mirrored)
{
    int left = horizontal ? button.left : button.right;
    if (mirrored)
        left = (horizontal ? button.right : button.left) - width;
    const int top = horizontal ? button.bottom : button.top;
    return {left, top, left + width, top + height};
}

} // namespace ovoui::toolbar
