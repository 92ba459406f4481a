#include <ovoui/colour/core/ScreenPick.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using namespace ovoui::colour;

namespace
{

using Act = ScreenPick::Act;

struct Deed
{
    std::string name;
    std::function<Act(ScreenPick&)> act;
};

const std::vector<Deed> kDeeds{
    {"press", [](ScreenPick& pick) { return pick.press(); }},
    {"move on", [](ScreenPick& pick) { return pick.move(true); }},
    {"move off", [](ScreenPick& pick) { return pick.move(false); }},
    {"release", [](ScreenPick& pick) { return pick.release(); }},
    {"start", [](ScreenPick& pick) { return pick.start(); }},
    {"accept", [](ScreenPick& pick) { return pick.accept(); }},
    {"arrow", [](ScreenPick& pick) { return pick.arrow(); }},
    {"interrupt", [](ScreenPick& pick) { return pick.interrupt(); }},
};

struct Row
{
    std::string state;
    std::function<void(ScreenPick&)> prepare;
    std::vector<Act> acts; // of the deeds in order
};

} // namespace

TEST(ScreenPick, EveryDeedInEveryState)
{
    const Row rows[] = {
        {"idle",
         [](ScreenPick&) {},
         {Act::Begin, Act::None, Act::None, Act::None, Act::Begin, Act::None, Act::None, Act::None}},
        {"pressed",
         [](ScreenPick& pick) { pick.press(); },
         {Act::None, Act::None, Act::Follow, Act::GiveUp, Act::None, Act::None, Act::None, Act::GiveUp}},
        {"dragging",
         [](ScreenPick& pick) {
             pick.press();
             pick.move(false);
         },
         {Act::None, Act::Follow, Act::Follow, Act::Take, Act::None, Act::None, Act::None, Act::GiveUp}},
        {"by keys",
         [](ScreenPick& pick) { pick.start(); },
         {Act::Take, Act::Follow, Act::Follow, Act::None, Act::None, Act::Take, Act::Follow, Act::GiveUp}},
    };
    for (const Row& row : rows)
        for (std::size_t i = 0; i < kDeeds.size(); ++i) {
            ScreenPick pick;
            row.prepare(pick);
            const bool before = pick.goesOn();
            const Act act = kDeeds[i].act(pick);
            EXPECT_EQ(act, row.acts[i]) << row.state << ", " << kDeeds[i].name;
            const bool ends = act == Act::Take || act == Act::GiveUp;
            EXPECT_EQ(pick.goesOn(), !ends && (before || act == Act::Begin))
                << row.state << ", " << kDeeds[i].name;
        }
}

TEST(Magnifier, LiesToTheRightOfThePointerAndBelowIt)
{
    EXPECT_EQ(magnifierPlace(100, 100, 80, 90, 20, {0, 0, 1000, 700}),
              (ovoui::frame::Box{120, 120, 200, 210}));
}

TEST(Magnifier, GoesToTheOtherSideAtTheEndsOfTheScreen)
{
    EXPECT_EQ(magnifierPlace(950, 100, 80, 90, 20, {0, 0, 1000, 700}),
              (ovoui::frame::Box{850, 120, 930, 210}));
    EXPECT_EQ(magnifierPlace(100, 650, 80, 90, 20, {0, 0, 1000, 700}),
              (ovoui::frame::Box{120, 540, 200, 630}));
}

TEST(Magnifier, IsOnTheScreenAndNeverUnderThePointer)
{
    const ovoui::frame::Box screen{-400, 0, 400, 300};
    constexpr int kGap = 20;
    for (int x = screen.left; x < screen.right; ++x)
        for (int y = screen.top; y < screen.bottom; y += 3) {
            const ovoui::frame::Box place = magnifierPlace(x, y, 80, 90, kGap, screen);
            ASSERT_GE(place.left, screen.left);
            ASSERT_GE(place.top, screen.top);
            ASSERT_LE(place.right, screen.right);
            ASSERT_LE(place.bottom, screen.bottom);
            const ovoui::frame::Box near{x - kGap + 1, y - kGap + 1, x + kGap - 1, y + kGap - 1};
            ASSERT_TRUE(place.left >= near.right || place.right <= near.left || place.top >= near.bottom ||
                        place.bottom <= near.top)
                << x << ' ' << y;
        }
}

TEST(Magnifier, StaysOnAScreenThatIsTooSmallForIt)
{
    for (int x = 0; x < 100; x += 9) {
        const ovoui::frame::Box place = magnifierPlace(x, 50, 80, 90, 20, {0, 0, 100, 100});
        EXPECT_GE(place.left, 0) << x;
        EXPECT_LE(place.right, 100) << x;
        EXPECT_GE(place.top, 0) << x;
        EXPECT_LE(place.bottom, 100) << x;
    }
}
