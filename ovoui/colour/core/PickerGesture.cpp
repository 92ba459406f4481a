#include <ovoui/colour/core/PickerGesture.h>

#include <array>

namespace ovoui::colour
{
namespace
{

struct Row
{
    PickerAction onTriangle, onRing, onPatch, onSwatches, elsewhere;
};

// In the order of PickerInput
constexpr std::array kRows = {
    Row{PickerAction::Take, PickerAction::Take, PickerAction::DragPatch, PickerAction::TakeSwatch,
        PickerAction::Pass},
    Row{PickerAction::Follow, PickerAction::Follow, PickerAction::ShowTarget, PickerAction::Pass,
        PickerAction::Pass},
    Row{PickerAction::Keep, PickerAction::Keep, PickerAction::DropPatch, PickerAction::Pass,
        PickerAction::Pass},
    Row{PickerAction::Nothing, PickerAction::TakePureHue, PickerAction::Nothing, PickerAction::Nothing,
        PickerAction::Pass},
};

} // namespace

PickerAction pickerAction(PickerInput input, PickerPart part, bool onSwatches)
{
    const Row& row = kRows[static_cast<std::size_t>(input)];
    switch (part) {
    case PickerPart::Triangle:
        return row.onTriangle;
    case PickerPart::Ring:
        return row.onRing;
    case PickerPart::Patch:
        return row.onPatch;
    case PickerPart::None:
        break;
    }
    return onSwatches ? row.onSwatches : row.elsewhere;
}

} // namespace ovoui::colour
