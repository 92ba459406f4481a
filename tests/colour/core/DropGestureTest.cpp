#include <ovoui/colour/core/DropGesture.h>

#include <gtest/gtest.h>

using namespace ovoui::colour;

TEST(DropGesture, WhatTheMouseLeadsToInADroppedPalette)
{
    for (const bool moved : {false, true})
        for (const bool inside : {false, true})
            for (const bool onCell : {false, true}) {
                EXPECT_EQ(dropAction(DropInput::Move, moved, inside, onCell),
                          moved && onCell ? DropAction::Point : DropAction::Nothing);
                EXPECT_EQ(dropAction(DropInput::Press, moved, inside, onCell),
                          inside ? DropAction::Nothing : DropAction::Close);
                EXPECT_EQ(dropAction(DropInput::Release, moved, inside, onCell),
                          onCell ? DropAction::Choose : DropAction::Nothing);
            }
}

TEST(DropGesture, AGridsCellIsChosenWhereItWasPressedIfItIsStillThere)
{
    for (int pressed = -1; pressed < 4; ++pressed)
        for (int released = -1; released < 4; ++released)
            for (int count = 0; count < 4; ++count)
                EXPECT_EQ(choosesPressed(pressed, released, count),
                          pressed >= 0 && released == pressed && pressed < count);
}
