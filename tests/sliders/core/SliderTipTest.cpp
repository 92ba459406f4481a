#include <ovoui/sliders/core/SliderTip.h>

#include <gtest/gtest.h>

using namespace ovoui::sliders;

namespace
{

struct Loader
{
    std::wstring text;
    int asked = 0;

    std::optional<std::wstring> enter(SliderTip& tip)
    {
        return tip.enter([this] {
            ++asked;
            return text;
        });
    }
};

} // namespace

TEST(SliderTip, ItIsShownOnceForEachVisitOfThePointer)
{
    SliderTip tip;
    Loader loader{L"Size"};
    EXPECT_EQ(loader.enter(tip), L"Size");
    EXPECT_EQ(loader.enter(tip), std::nullopt);
    tip.leave();
    EXPECT_EQ(loader.enter(tip), L"Size");
    EXPECT_EQ(loader.asked, 1);
}

TEST(SliderTip, WithoutATextThereIsNoneForGood)
{
    for (const wchar_t* const text : {L"", L"\nSize"}) {
        SliderTip tip;
        Loader loader{text};
        EXPECT_EQ(loader.enter(tip), std::nullopt);
        tip.leave();
        loader.text = L"Size";
        EXPECT_EQ(loader.enter(tip), std::nullopt);
        EXPECT_EQ(loader.asked, 1);
    }
}

TEST(SliderTip, WhatFollowsTheFirstLineFeedIsNoTip)
{
    SliderTip tip;
    Loader loader{L"Size\nof the paper\nin millimetres"};
    EXPECT_EQ(loader.enter(tip), L"Size");
}
