// What the mouse leads to in a colour picker.
#include <ovoui/colour/core/PickerGesture.h>

#include <gtest/gtest.h>

using namespace ovoui::colour;

namespace
{

constexpr PickerPart kParts[] = {PickerPart::None, PickerPart::Triangle, PickerPart::Ring, PickerPart::Patch};

bool isOfWheel(PickerPart part)
{
    return part == PickerPart::Triangle || part == PickerPart::Ring;
}

/// What a user expects, said part by part.
PickerAction expected(PickerInput input, PickerPart part, bool onSwatches)
{
    if (part == PickerPart::None) {
        if (!onSwatches || input == PickerInput::Move || input == PickerInput::Release)
            return PickerAction::Pass;
        return input == PickerInput::Press ? PickerAction::TakeSwatch : PickerAction::Nothing;
    }
    if (input == PickerInput::Press)
        return isOfWheel(part) ? PickerAction::Take : PickerAction::DragPatch;
    if (input == PickerInput::Move)
        return isOfWheel(part) ? PickerAction::Follow : PickerAction::ShowTarget;
    if (input == PickerInput::Release)
        return isOfWheel(part) ? PickerAction::Keep : PickerAction::DropPatch;
    return part == PickerPart::Ring ? PickerAction::TakePureHue : PickerAction::Nothing;
}

} // namespace

TEST(PickerGesture, EachInputOnEachPart)
{
    for (const PickerInput input :
         {PickerInput::Press, PickerInput::Move, PickerInput::Release, PickerInput::DoubleClick})
        for (const PickerPart part : kParts)
            for (const bool onSwatches : {false, true})
                EXPECT_EQ(pickerAction(input, part, onSwatches), expected(input, part, onSwatches))
                    << static_cast<int>(input) << ", " << static_cast<int>(part) << ", " << onSwatches;
}

TEST(PickerGesture, OnlyTheRingChoosesAHue)
{
    for (const PickerPart part : kParts)
        EXPECT_EQ(choosesHue(part), part == PickerPart::Ring);
}

TEST(PickerGesture, ThePatchGoesToASwatchOrBack)
{
    EXPECT_TRUE(takesPatch(true, false));
    EXPECT_TRUE(takesPatch(false, true));
    EXPECT_FALSE(takesPatch(false, false));
}
