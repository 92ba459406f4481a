#include <ovoui/colour/core/DropGesture.h>

namespace ovoui::colour
{

DropAction dropAction(DropInput input, bool moved, bool inside, bool onCell)
{
    switch (input) {
    case DropInput::Move:
        return moved && onCell ? DropAction::Point : DropAction::Nothing; // beside cells the mark stays
    case DropInput::Press:
        return inside ? DropAction::Nothing : DropAction::Close;
    case DropInput::Release:
        break;
    }
    return onCell ? DropAction::Choose : DropAction::Nothing;
}

bool choosesPressed(int pressed, int released, int count)
{
    return pressed >= 0 && pressed < count && released == pressed;
}

} // namespace ovoui::colour
