#include <ovoui/frame/core/ItemColours.h>

#include <gtest/gtest.h>

using namespace ovoui::frame;

TEST(ItemColours, EveryStateHasItsTextAndItsBackground)
{
    const struct
    {
        bool selected;
        bool disabled;
        ItemColours colours;
    } rows[] = {{false, false, {SystemColour::WindowText, SystemColour::Window}},
                {false, true, {SystemColour::GrayText, SystemColour::Window}},
                {true, false, {SystemColour::HighlightText, SystemColour::Highlight}},
                {true, true, {SystemColour::GrayText, SystemColour::Highlight}}};
    for (const auto& [selected, disabled, colours] : rows)
        EXPECT_EQ(itemColours(selected, disabled), colours) << selected << disabled;
}

TEST(ItemColours, AnItemIsEnabledUnlessSaidOtherwise)
{
    for (const bool selected : {false, true})
        EXPECT_EQ(itemColours(selected), itemColours(selected, false));
}
