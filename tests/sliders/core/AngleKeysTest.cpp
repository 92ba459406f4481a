#include <ovoui/sliders/core/AngleKeys.h>
#include <ovoui/sliders/core/CylinderDrag.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>

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
