#include <ovoui/toolbar/core/FlyoutPlacement.h>

namespace ovoui::toolbar
{

bool isHorizontal(const BarPosition& bar)
{
    return bar.floating ? bar.rows == 1 : !bar.atTheSide;
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
