#include <ovoui/sliders/core/ButtonKeys.h>

namespace ovoui::sliders
{

KeyMeaning meaningOf(ButtonKey key, bool pressed, bool fine)
{
    if (!pressed)
        return key == ButtonKey::Down ? KeyMeaning::Open : KeyMeaning::Nothing;
    switch (key) {
    case ButtonKey::Right:
    case ButtonKey::Down:
        return fine ? KeyMeaning::FineMore : KeyMeaning::Slider;
    case ButtonKey::Left:
    case ButtonKey::Up:
        return fine ? KeyMeaning::FineLess : KeyMeaning::Slider;
    case ButtonKey::Travel:
        return KeyMeaning::Slider;
    case ButtonKey::Escape:
        return KeyMeaning::Cancel;
    case ButtonKey::Other:
        break;
    }
    return KeyMeaning::Nothing;
}

} // namespace ovoui::sliders
