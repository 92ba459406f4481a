#include <ovoui/sysinfo/core/StretchRule.h>

#include <gtest/gtest.h>

using ovoui::frame::Box;
using ovoui::sysinfo::Stretch;
using ovoui::sysinfo::stretched;

namespace
{

constexpr Stretch kAll[] = {Stretch::Grow, Stretch::GrowWide, Stretch::MoveRight, Stretch::MoveDown,
                            Stretch::MoveBoth};
constexpr Box kPlace{10, 20, 60, 35};

} // namespace

TEST(StretchRule, EveryWayForEveryGrowth)
{
    for (const int wider : {-7, 0, 1, 300})
        for (const int taller : {-3, 0, 2, 200})
            for (const Stretch how : kAll) {
                const Box place = stretched(kPlace, how, wider, taller);
                const bool grows = how == Stretch::Grow || how == Stretch::GrowWide;
                const bool movesRight = how == Stretch::MoveRight || how == Stretch::MoveBoth;
                const bool movesDown = how == Stretch::MoveDown || how == Stretch::MoveBoth;
                EXPECT_EQ(place.left, movesRight ? 10 + wider : 10);
                EXPECT_EQ(place.top, movesDown ? 20 + taller : 20);
                EXPECT_EQ(place.width(), grows ? 50 + wider : 50);
                EXPECT_EQ(place.height(), how == Stretch::Grow ? 15 + taller : 15);
            }
}

TEST(StretchRule, ThereAndBackEndsWhereItBegan)
{
    for (const Stretch how : kAll)
        EXPECT_EQ(stretched(stretched(kPlace, how, 31, -5), how, -31, 5), kPlace) << static_cast<int>(how);
}
