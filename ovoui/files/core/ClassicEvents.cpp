#include <ovoui/files/core/ClassicEvents.h>

#include <limits>

namespace ovoui
{
namespace
{

// The platform's codes
constexpr unsigned kClicked = 0;
constexpr unsigned kSelectionChanged = 1;
constexpr unsigned kTextChanged = 0x0300;

ClassicEvent clickEvent(Click::Meaning clicked)
{
    switch (clicked) {
    case Click::Meaning::CheckButton:
        return ClassicEvent::CheckButtonToggled;
    case Click::Meaning::PushButton:
        return ClassicEvent::ButtonClicked;
    case Click::Meaning::Menu:
        return ClassicEvent::MenuOpens;
    case Click::Meaning::RadioButton:
        break;
    }
    return ClassicEvent::RadioSelected;
}

} // namespace

ClassicEvent classicEvent(unsigned code, bool fromControl, Click::Meaning clicked)
{
    switch (code) {
    case kClicked:
        return clickEvent(clicked);
    case kSelectionChanged: // an accelerator has the same code
        return fromControl ? ClassicEvent::ItemSelected : ClassicEvent::None;
    case kTextChanged:
        return ClassicEvent::TextChanged;
    default:
        return ClassicEvent::None;
    }
}

std::optional<std::uint32_t> itemOf(std::int64_t selection)
{
    if (selection < 0 || selection > std::numeric_limits<std::uint32_t>::max())
        return std::nullopt;
    return static_cast<std::uint32_t>(selection);
}

} // namespace ovoui
