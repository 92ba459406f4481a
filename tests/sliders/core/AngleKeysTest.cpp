#include <ovoui/sliders/core/AngleKeys.h>
#include <ovoui/sliders/core/CylinderDrag.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

using namespace ovoui::sliders;

TEST(AngleKeys, EachKeyHasItsStep)
{
    const struct
    {
        AngleKey key;
        bool ctrl;
        double to;
    } rows[] = {
        {AngleKey::More, false, 11},    {AngleKey::Less, false, 9},      {AngleKey::More, true, 15},
        {AngleKey::Less, true, 5},      {AngleKey::PageMore, false, 25}, {AngleKey::PageLess, false, -5},
        {AngleKey::PageMore, true, 25}, {AngleKey::Zero, false, 0},      {AngleKey::Zero, true, 0}};
    for (const auto& [key, ctrl, to] : rows)
        EXPECT_EQ(angleAfter(key, ctrl, 10), to);
}

TEST(AngleKeys, SnappingGivesTheNearestMultiple)
{
    EXPECT_EQ(snapped(22.4, 15), 15);
    EXPECT_EQ(snapped(22.5, 15), 30);
    EXPECT_EQ(snapped(-22.5, 15), -30);
    EXPECT_EQ(snapped(22.4, 0), 22.4);
    EXPECT_EQ(snapped(22.4, -5), 22.4);
}

TEST(AngleKeys, ADragSnapsAndTheWheelStillHasItsLimits)
{
    CylinderDrag drag(Turn::Half);
    drag.press(0);
    EXPECT_EQ(drag.move(14, 15), 15);
    drag.track(15);
    EXPECT_FALSE(drag.move(16, 15)) << "the same multiple";
    EXPECT_EQ(drag.release(88, 40), 80);
    drag.turnTo(200);
    EXPECT_EQ(drag.position(), 90);
}

TEST(AngleKeys, WhatEveryKeyIsToTheSlider)
{
    for (unsigned key = 0; key <= 0xFF; ++key) {
        std::optional<AngleKey> expected;
        if (key == 0x25 || key == 0x28) // left, down
            expected = AngleKey::Less;
        if (key == 0x26 || key == 0x27) // up, right
            expected = AngleKey::More;
        if (key == 0x21)
            expected = AngleKey::PageMore;
        if (key == 0x22)
            expected = AngleKey::PageLess;
        if (key == 0x24)
            expected = AngleKey::Zero;
        EXPECT_EQ(angleKeyOf(key), expected) << key;
    }
}

TEST(AngleKeys, ADigitASignOrAPointBeginsAnAngle)
{
    const std::wstring beginnings = L"0123456789-.";
    for (unsigned character = 0; character <= 0xFFFF; ++character)
        EXPECT_EQ(beginsAngle(character),
                  beginnings.find(static_cast<wchar_t>(character)) != std::wstring::npos)
            << character;
}

namespace
{

/// How a slider may stand, for both ways of each condition.
std::vector<AngleInput> allInputs()
{
    std::vector<AngleInput> all;
    for (const bool keyboard : {false, true})
        for (const bool dragging : {false, true})
            for (const bool ctrl : {false, true})
                all.push_back({keyboard, dragging, ctrl, 10});
    return all;
}

} // namespace

TEST(AngleKeys, AKeyTurnsTheSliderWhereTheHostHasAskedForItAndNoDragGoesOn)
{
    for (const AngleInput& input : allInputs())
        for (unsigned key = 0; key <= 0xFF; ++key) {
            const std::optional<AngleKey> meaning = angleKeyOf(key);
            const bool taken = meaning && input.keyboard && !input.dragging;
            const auto expected =
                taken ? std::optional(angleAfter(*meaning, input.ctrl, input.degrees)) : std::nullopt;
            EXPECT_EQ(angleByKey(key, input), expected) << key;
        }
}

TEST(AngleKeys, TheWheelTurnsByDegreesAndWithCtrlByFive)
{
    for (const AngleInput& input : allInputs()) {
        EXPECT_EQ(takesWheel(input), input.keyboard && !input.dragging);
        for (int notches = -3; notches <= 3; ++notches)
            EXPECT_EQ(angleByWheel(notches, input), 10 + notches * (input.ctrl ? 5 : 1));
    }
}

TEST(AngleKeys, WhatBeginsAnAngleOpensTheEditAndGoesThereWhenItIsOpen)
{
    for (const AngleInput& input : allInputs())
        for (const bool editing : {false, true})
            for (unsigned character = 0; character <= 0xFF; ++character) {
                AngleCharacter expected = editing ? AngleCharacter::ToEdit : AngleCharacter::Open;
                if (!input.keyboard || input.dragging || !beginsAngle(character))
                    expected = AngleCharacter::PassOn;
                EXPECT_EQ(angleCharacter(character, input, editing), expected) << character;
            }
}

TEST(AngleKeys, EnterAcceptsWhatIsTypedAndEscapeDoesNot)
{
    for (unsigned key = 0; key <= 0xFF; ++key) {
        EditEnd expected = EditEnd::GoesOn;
        if (key == 0x0D)
            expected = EditEnd::Accept;
        if (key == 0x1B)
            expected = EditEnd::Discard;
        EXPECT_EQ(editEndOf(key), expected) << key;
    }
    EXPECT_EQ(typedAngle(EditEnd::Accept, L"-12.5"), -12.5);
    EXPECT_EQ(typedAngle(EditEnd::Discard, L"-12.5"), std::nullopt);
    EXPECT_EQ(typedAngle(EditEnd::GoesOn, L"-12.5"), std::nullopt);
    for (const wchar_t* const text : {L"", L"-", L"abc", L"inf", L"-inf", L"nan", L"1e999"})
        EXPECT_EQ(typedAngle(EditEnd::Accept, text), std::nullopt);
}

TEST(AngleKeys, DragsSnapWhileShiftIsHeldAndTheHostHasAskedForIt)
{
    for (const double snap : {-15.0, 0.0, 15.0})
        for (const bool shift : {false, true})
            EXPECT_EQ(snapFor(snap, shift), shift && snap > 0 ? snap : 0);
}
