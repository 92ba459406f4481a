// Floating bars: where they come back, how they are sized.
#include "mfc/src/frame/core/floatrules.h"

#include <gtest/gtest.h>

#include <limits>

using namespace afxdetail;

namespace
{

const Area kMain{0, 0, 1000, 700};
const Area kSecond{1000, 100, 1800, 700}; // to the right

constexpr Extent kSize{200, 60};

Place back(Place at, std::vector<Area> areas)
{
    return bringBack(at, kSize, areas);
}

} // namespace

TEST(FloatRules, StaysWhereItCanBeReached)
{
    EXPECT_EQ(back({300, 200}, {kMain}), (Place{300, 200}));
    EXPECT_EQ(back({-176, 0}, {kMain}), (Place{-176, 0})) << "a piece of the title is enough";
    EXPECT_EQ(back({976, 676}, {kMain}), (Place{976, 676}));
    EXPECT_EQ(back({1500, 300}, {kMain, kSecond}), (Place{1500, 300}));
    EXPECT_EQ(back({900, 200}, {kMain, kSecond}), (Place{900, 200})) << "on both";
}

TEST(FloatRules, ComesBackFromAMonitorThatIsGone)
{
    EXPECT_EQ(back({1500, 300}, {kMain}), (Place{800, 300}));
    EXPECT_EQ(back({-900, -500}, {kMain}), (Place{0, 0}));
    EXPECT_EQ(back({300, 2000}, {kMain}), (Place{300, 640}));
    EXPECT_EQ(back({300, -10}, {kMain}), (Place{300, 0})) << "a title above the screen cannot be reached";
    EXPECT_EQ(back({300, 690}, {kMain}), (Place{300, 640}));
    EXPECT_EQ(back({977, 300}, {kMain}), (Place{800, 300}));
}

TEST(FloatRules, ComesBackToTheNearestArea)
{
    EXPECT_EQ(back({1900, 300}, {kMain, kSecond}), (Place{1600, 300}));
    EXPECT_EQ(back({-300, 300}, {kSecond, kMain}), (Place{0, 300}));
}

TEST(FloatRules, ComesBackFromTheEndsOfAllNumbers)
{
    constexpr int kLeast = std::numeric_limits<int>::min();
    constexpr int kMost = std::numeric_limits<int>::max();
    EXPECT_EQ(back({kMost, 300}, {kMain}), (Place{800, 300}));
    EXPECT_EQ(back({kLeast, 300}, {kSecond}), (Place{1000, 300}));
    EXPECT_EQ(back({300, kMost}, {kMain}), (Place{300, 640}));
    EXPECT_EQ(back({300, kLeast}, {kMain}), (Place{300, 0}));
    EXPECT_EQ(back({kMost, 300}, {kMain, kSecond}), (Place{1600, 300})) << "the nearest area";
    EXPECT_EQ(back({kLeast, 300}, {kMain, kSecond}), (Place{0, 300})) << "the nearest area";
}

TEST(FloatRules, OneThatIsTooLargeBeginsAtTheCorner)
{
    const Area small{0, 0, 100, 40};
    EXPECT_EQ(bringBack({500, 500}, kSize, std::vector<Area>{small}), (Place{0, 0}));
}

TEST(FloatRules, NoMonitorMeansNoChange)
{
    EXPECT_EQ(back({5, 6}, {}), (Place{5, 6}));
}

TEST(FloatRules, OnlyTheMovedEdgesGiveWay)
{
    const Area wanted{100, 100, 300, 200};
    EXPECT_EQ(snapped(wanted, {.right = true}, {150, 80}), (Area{100, 100, 250, 180}));
    EXPECT_EQ(snapped(wanted, {.left = true}, {150, 80}), (Area{150, 100, 300, 180}));
    EXPECT_EQ(snapped(wanted, {.top = true}, {150, 80}), (Area{100, 120, 250, 200}));
    EXPECT_EQ(snapped(wanted, {.left = true, .top = true}, {150, 80}), (Area{150, 120, 300, 200}));
}

TEST(FloatRules, MovedEdgesLieAtThePointer)
{
    const Area window{100, 100, 300, 200};
    EXPECT_EQ(edgesAt(window, {.right = true}, {270, 5}), (Area{100, 100, 270, 200}));
    EXPECT_EQ(edgesAt(window, {.left = true, .top = true}, {90, 80}), (Area{90, 80, 300, 200}));
    EXPECT_EQ(edgesAt(window, {.bottom = true}, {5, 260}), (Area{100, 100, 300, 260}));
}
