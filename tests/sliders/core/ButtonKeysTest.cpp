#include <ovoui/sliders/core/ButtonKeys.h>

#include <gtest/gtest.h>

using namespace ovoui::sliders;

TEST(ButtonKeys, WhileThePopupIsClosedDownAloneMeansSomething)
{
    for (const ButtonKey key :
         {ButtonKey::Left, ButtonKey::Right, ButtonKey::Up, ButtonKey::Down, ButtonKey::Travel,
          ButtonKey::Escape, ButtonKey::Space, ButtonKey::Done, ButtonKey::Other})
        for (const bool fine : {false, true})
            EXPECT_EQ(meaningOf(key, false, fine),
                      key == ButtonKey::Down ? KeyMeaning::Open : KeyMeaning::Nothing);
}

TEST(ButtonKeys, WhileItIsOpenTheyMoveTheSlider)
{
    const struct
    {
        ButtonKey key;
        KeyMeaning plain;
        KeyMeaning fine;
    } rows[] = {{ButtonKey::Left, KeyMeaning::Slider, KeyMeaning::FineLess},
                {ButtonKey::Up, KeyMeaning::Slider, KeyMeaning::FineLess},
                {ButtonKey::Right, KeyMeaning::Slider, KeyMeaning::FineMore},
                {ButtonKey::Down, KeyMeaning::Slider, KeyMeaning::FineMore},
                {ButtonKey::Travel, KeyMeaning::Slider, KeyMeaning::Slider},
                {ButtonKey::Escape, KeyMeaning::Cancel, KeyMeaning::Cancel},
                {ButtonKey::Space, KeyMeaning::Nothing, KeyMeaning::Nothing},
                {ButtonKey::Done, KeyMeaning::Close, KeyMeaning::Close},
                {ButtonKey::Other, KeyMeaning::Nothing, KeyMeaning::Nothing}};
    for (const auto& [key, plain, fine] : rows) {
        EXPECT_EQ(meaningOf(key, true, false), plain);
        EXPECT_EQ(meaningOf(key, true, true), fine);
    }
}

TEST(ButtonKeys, WhatEveryKeyIsToTheButton)
{
    for (unsigned key = 0; key <= 0xFF; ++key) {
        ButtonKey expected = ButtonKey::Other;
        if (key >= 0x21 && key <= 0x24) // page keys, End, Home
            expected = ButtonKey::Travel;
        if (key == 0x25)
            expected = ButtonKey::Left;
        if (key == 0x26)
            expected = ButtonKey::Up;
        if (key == 0x27)
            expected = ButtonKey::Right;
        if (key == 0x28)
            expected = ButtonKey::Down;
        if (key == 0x1B)
            expected = ButtonKey::Escape;
        if (key == 0x20)
            expected = ButtonKey::Space;
        if (key == 0x09 || key == 0x0D) // Tab, Enter
            expected = ButtonKey::Done;
        EXPECT_EQ(buttonKeyOf(key), expected) << key;
    }
}

TEST(ButtonKeys, FineStepsAreATenthAndOpposite)
{
    for (const KeyMeaning meaning :
         {KeyMeaning::Nothing, KeyMeaning::Open, KeyMeaning::Close, KeyMeaning::Cancel, KeyMeaning::Slider,
          KeyMeaning::FineMore, KeyMeaning::FineLess}) {
        double expected = 0;
        if (meaning == KeyMeaning::FineMore)
            expected = 0.1;
        if (meaning == KeyMeaning::FineLess)
            expected = -0.1;
        EXPECT_EQ(stepsOfKey(meaning), expected);
    }
}

TEST(ButtonKeys, EachNotchOfTheWheelIsAPositionOrATenthOfOne)
{
    for (int notches = -5; notches <= 5; ++notches) {
        EXPECT_EQ(stepsOfWheel(notches, false), notches);
        EXPECT_DOUBLE_EQ(stepsOfWheel(notches, true), notches * 0.1);
    }
}
