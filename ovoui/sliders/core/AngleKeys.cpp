#include <ovoui/sliders/core/AngleKeys.h>

#include <ovoui/frame/core/VirtualKeys.h>
#include <ovoui/sliders/core/NumberText.h>

#include <cmath>

namespace ovoui::sliders
{

using namespace keys;

namespace
{

constexpr double kStep = 1;
constexpr double kLargeStep = 5;
constexpr double kPage = 15;

} // namespace

std::optional<AngleKey> angleKeyOf(unsigned virtualKey)
{
    switch (virtualKey) {
    case kVkLeft:
    case kVkDown:
        return AngleKey::Less;
    case kVkRight:
    case kVkUp:
        return AngleKey::More;
    case kVkPageDown:
        return AngleKey::PageLess;
    case kVkPageUp:
        return AngleKey::PageMore;
    case kVkHome:
        return AngleKey::Zero;
    default:
        return std::nullopt;
    }
}

bool beginsAngle(unsigned character)
{
    return (character >= L'0' && character <= L'9') || character == L'-' || character == L'.';
}

double angleAfter(AngleKey key, bool ctrl, double degrees)
{
    const double step = ctrl ? kLargeStep : kStep;
    switch (key) {
    case AngleKey::Less:
        return degrees - step;
    case AngleKey::More:
        return degrees + step;
    case AngleKey::PageLess:
        return degrees - kPage;
    case AngleKey::PageMore:
        return degrees + kPage;
    case AngleKey::Zero:
        return 0;
    }
    return degrees;
}

std::optional<double> angleByKey(unsigned virtualKey, const AngleInput& input)
{
    const std::optional<AngleKey> key = angleKeyOf(virtualKey);
    if (!key || !input.keyboard || input.dragging)
        return std::nullopt;
    return angleAfter(*key, input.ctrl, input.degrees);
}

bool takesWheel(const AngleInput& input)
{
    return input.keyboard && !input.dragging;
}

double angleByWheel(int notches, const AngleInput& input)
{
    return input.degrees + notches * angleAfter(AngleKey::More, input.ctrl, 0);
}

AngleCharacter angleCharacter(unsigned character, const AngleInput& input, bool editing)
{
    if (!input.keyboard || input.dragging || !beginsAngle(character))
        return AngleCharacter::PassOn;
    return editing ? AngleCharacter::ToEdit : AngleCharacter::Open;
}

EditEnd editEndOf(unsigned virtualKey)
{
    switch (virtualKey) {
    case kVkReturn:
        return EditEnd::Accept;
    case kVkEscape:
        return EditEnd::Discard;
    default:
        return EditEnd::GoesOn;
    }
}

std::optional<double> typedAngle(EditEnd end, std::wstring_view text)
{
    const std::optional<double> typed = end == EditEnd::Accept ? parseReal(text) : std::nullopt;
    return typed && std::isfinite(*typed) ? typed : std::nullopt;
}

double snapFor(double snap, bool shift)
{
    return snap > 0 && shift ? snap : 0;
}

double snapped(double degrees, double snap)
{
    return snap > 0 ? std::round(degrees / snap) * snap : degrees;
}

} // namespace ovoui::sliders
