// The keys of a bar that has the keyboard: where they lead, and what they do.
#include <ovoui/toolbar/core/BarWalk.h>

#include <gtest/gtest.h>

#include <vector>

using namespace ovoui::toolbar;

namespace
{

constexpr unsigned kTab = 0x09;
constexpr unsigned kEnter = 0x0D;
constexpr unsigned kEscape = 0x1B;
constexpr unsigned kSpace = 0x20;
constexpr unsigned kEnd = 0x23;
constexpr unsigned kHome = 0x24;
constexpr unsigned kLeft = 0x25;
constexpr unsigned kUp = 0x26;
constexpr unsigned kRight = 0x27;
constexpr unsigned kDown = 0x28;

/// Stops of 20 by 20 in rows of `width`; 'b' can be reached, '|' cannot.
std::vector<Stop> grid(const char* kinds, int width)
{
    std::vector<Stop> stops;
    for (int i = 0; kinds[i]; ++i) {
        const int x = i % width * 20;
        const int y = i / width * 20;
        stops.push_back({{x, y, x + 20, y + 20}, kinds[i] == 'b'});
    }
    return stops;
}

const std::vector<KeyView>& everyView()
{
    static const std::vector<KeyView> all = [] {
        std::vector<KeyView> views;
        for (int bits = 0; bits < 32; ++bits)
            views.push_back(
                {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0, (bits & 16) != 0});
        return views;
    }();
    return all;
}

} // namespace

TEST(BarWalk, LeftAndRightFollowTheOrderAndSkipSeparators)
{
    const auto row = grid("b|bb|", 5);
    EXPECT_EQ(nextStop(row, 0, WalkKey::Right, false), 2);
    EXPECT_EQ(nextStop(row, 2, WalkKey::Right, false), 3);
    EXPECT_EQ(nextStop(row, 3, WalkKey::Right, false), 0) << "round the end";
    EXPECT_EQ(nextStop(row, 0, WalkKey::Left, false), 3);
    EXPECT_EQ(nextStop(row, 2, WalkKey::Left, false), 0);
}

TEST(BarWalk, InAMirroredBarLeftIsForwards)
{
    const auto row = grid("bbb", 3);
    EXPECT_EQ(nextStop(row, 0, WalkKey::Left, true), 1);
    EXPECT_EQ(nextStop(row, 0, WalkKey::Right, true), 2);
}

TEST(BarWalk, UpAndDownGoToTheNearestOfTheNextRow)
{
    const auto rows = grid("bbb"
                           "b||"
                           "bbb",
                           3);
    EXPECT_EQ(nextStop(rows, 2, WalkKey::Down, false), 3) << "the only one of that row";
    EXPECT_EQ(nextStop(rows, 3, WalkKey::Down, false), 6);
    EXPECT_EQ(nextStop(rows, 8, WalkKey::Up, false), 3);
    const auto two = grid("bbbbbb", 3);
    EXPECT_EQ(nextStop(two, 1, WalkKey::Down, false), 4);
    EXPECT_EQ(nextStop(two, 5, WalkKey::Up, false), 2);
}

TEST(BarWalk, WithoutANextRowUpAndDownFollowTheOrder)
{
    const auto row = grid("bb|b", 4);
    EXPECT_EQ(nextStop(row, 1, WalkKey::Down, false), 3);
    EXPECT_EQ(nextStop(row, 3, WalkKey::Down, false), 0);
    EXPECT_EQ(nextStop(row, 0, WalkKey::Up, false), 3);
}

TEST(BarWalk, HomeAndEndAndTheFirstKeyOfAll)
{
    const auto row = grid("|bb|", 4);
    EXPECT_EQ(nextStop(row, 2, WalkKey::First, false), 1);
    EXPECT_EQ(nextStop(row, 1, WalkKey::Last, false), 2);
    EXPECT_EQ(nextStop(row, kNoStop, WalkKey::Right, false), 1);
    EXPECT_EQ(nextStop(row, kNoStop, WalkKey::Down, false), 1);
    EXPECT_EQ(nextStop(row, kNoStop, WalkKey::Left, false), 2);
    EXPECT_EQ(nextStop(row, 1, WalkKey::None, false), 1);
}

TEST(BarWalk, WhereNothingCanBeReachedThereIsNoStop)
{
    const std::vector<Stop> none;
    const auto separators = grid("||", 2);
    for (const WalkKey key :
         {WalkKey::Left, WalkKey::Right, WalkKey::Up, WalkKey::Down, WalkKey::First, WalkKey::Last}) {
        EXPECT_EQ(nextStop(none, kNoStop, key, false), kNoStop);
        EXPECT_EQ(nextStop(separators, kNoStop, key, false), kNoStop);
        EXPECT_EQ(nextStop(separators, 7, key, false), kNoStop) << "there is no such stop any more";
    }
}

TEST(BarWalk, FromAStopThatHasGoneTheKeysLeadOn)
{
    const auto row = grid("|bb|", 4);
    for (const int gone : {4, 9}) {
        EXPECT_EQ(nextStop(row, gone, WalkKey::Right, false), 1);
        EXPECT_EQ(nextStop(row, gone, WalkKey::Left, false), 2);
        EXPECT_EQ(nextStop(row, gone, WalkKey::Down, false), 1);
        EXPECT_EQ(nextStop(row, gone, WalkKey::Up, false), 2);
        EXPECT_EQ(nextStop(row, gone, WalkKey::First, false), 1);
        EXPECT_EQ(nextStop(row, gone, WalkKey::Last, false), 2);
    }
}

TEST(BarKey, EveryKeyInEveryState)
{
    for (const KeyView& view : everyView()) {
        const auto plain = [&](unsigned key) { return onBarKey({key, false, false}, view); };
        using Action = BarKeyAction;
        EXPECT_EQ(plain(kEscape).action, view.flyoutOpen ? Action::Close : Action::Leave);
        for (const unsigned key : {kEnter, kSpace})
            EXPECT_EQ(plain(key).action, view.flyoutOpen ? Action::Choose : Action::Press);
        EXPECT_EQ(plain(kTab).action, view.flyoutOpen ? Action::None : Action::NextControl);
        EXPECT_EQ(onBarKey({kTab, false, true}, view).action,
                  view.flyoutOpen ? Action::None : Action::PreviousControl);

        unsigned opening = view.horizontal ? kDown : 0;
        if (!view.horizontal && view.oneColumn)
            opening = view.mirrored ? kLeft : kRight;
        for (const auto& [key, walk] : {std::pair{kLeft, WalkKey::Left},
                                        {kRight, WalkKey::Right},
                                        {kUp, WalkKey::Up},
                                        {kDown, WalkKey::Down},
                                        {kHome, WalkKey::First},
                                        {kEnd, WalkKey::Last}}) {
            const BarKeyOutcome expected = view.flyoutOpen ? BarKeyOutcome{Action::WalkFlyout, walk}
                                           : view.hasFlyout && key == opening
                                               ? BarKeyOutcome{Action::Open, WalkKey::None}
                                               : BarKeyOutcome{Action::WalkBar, walk};
            EXPECT_EQ(plain(key), expected) << key;
        }
        for (unsigned key = 0; key <= 0xFF; ++key) {
            const bool opens = key == kDown && view.hasFlyout && !view.flyoutOpen;
            const bool closes = key == kUp && view.flyoutOpen;
            EXPECT_EQ(onBarKey({key, true, false}, view).action, opens    ? Action::Open
                                                                 : closes ? Action::Close
                                                                          : Action::None)
                << "Alt and " << key;
        }
    }
}

TEST(BarKey, OtherKeysDoNothing)
{
    for (const KeyView& view : everyView())
        for (const unsigned key : {0u, 0x41u, 0x70u, 0x21u, 0x22u, 0x2Eu})
            EXPECT_EQ(onBarKey({key, false, false}, view), BarKeyOutcome{});
}

TEST(BarKey, ADisabledButtonIsNotPressed)
{
    for (const KeyView& view : everyView()) {
        KeyView disabled = view;
        disabled.pressable = false;
        for (unsigned key = 0; key <= 0xFF; ++key)
            for (const bool alt : {false, true}) {
                const BarKeyOutcome usual = onBarKey({key, alt, false}, view);
                const BarKeyOutcome outcome = onBarKey({key, alt, false}, disabled);
                EXPECT_EQ(outcome, usual.action == BarKeyAction::Press ? BarKeyOutcome{} : usual);
            }
    }
}
