// What a click on a control of the classic file dialog means.
#include <ovoui/files/core/DeclaredControls.h>

#include <gtest/gtest.h>

using namespace ovoui;

TEST(DeclaredControls, AControlThatNothingWasSaidOfIsACheckButton)
{
    const DeclaredControls controls;
    EXPECT_EQ(controls.clickOn(7).meaning, Click::Meaning::CheckButton);
    EXPECT_TRUE(controls.menuItems(7).empty());
    EXPECT_TRUE(controls.radioButtons(7).empty());
}

TEST(DeclaredControls, KnowTheirKinds)
{
    DeclaredControls controls;
    controls.addPushButton(1);
    controls.addMenu(2);
    controls.addMenuItem(2, {21, L"First"});
    controls.addMenuItem(2, {22, L"Second"});
    controls.addRadioGroup(3, {31, 32});
    EXPECT_EQ(controls.clickOn(1).meaning, Click::Meaning::PushButton);
    EXPECT_EQ(controls.clickOn(2).meaning, Click::Meaning::Menu);
    for (const ControlId button : {31u, 32u}) {
        EXPECT_EQ(controls.clickOn(button).meaning, Click::Meaning::RadioButton);
        EXPECT_EQ(controls.clickOn(button).group, 3u);
    }
    EXPECT_EQ(controls.clickOn(3).meaning, Click::Meaning::CheckButton); // the group itself is no control
    EXPECT_EQ(controls.clickOn(21).meaning, Click::Meaning::CheckButton);
    ASSERT_EQ(controls.menuItems(2).size(), 2u);
    EXPECT_EQ(controls.menuItems(2)[1].id, 22u);
    EXPECT_EQ(controls.menuItems(2)[1].label, L"Second");
    EXPECT_EQ(controls.radioButtons(3), (std::vector<ControlId>{31, 32}));
}

TEST(DeclaredControls, WhatWasSaidLastCounts)
{
    DeclaredControls controls;
    controls.addPushButton(1);
    controls.addMenu(1);
    EXPECT_EQ(controls.clickOn(1).meaning, Click::Meaning::Menu);
}
