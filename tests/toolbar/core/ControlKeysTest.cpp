// Every virtual key, with and without Ctrl, pressed and released, to every kind of target.
#include <ovoui/toolbar/core/ControlKeys.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

using namespace ovoui::toolbar;

namespace
{

constexpr unsigned kEnter = 0x0D;
constexpr unsigned kEscape = 0x1B;
constexpr unsigned kTab = 0x09;
constexpr unsigned kF1 = 0x70;
constexpr unsigned kF4 = 0x73;
constexpr unsigned kF24 = 0x87;

const std::set<unsigned> kEnding{kEnter, kEscape, kTab};

std::vector<ControlKey> everyKey()
{
    std::vector<ControlKey> keys;
    for (unsigned key = 0; key <= 0xFF; ++key)
        for (const bool down : {false, true})
            for (const bool ctrl : {false, true})
                for (const bool wantsKeys : {false, true})
                    for (const bool toTheBar : {false, true})
                        keys.push_back({key, down, ctrl, wantsKeys, toTheBar});
    return keys;
}

std::string nameOf(const ControlKey& key)
{
    return std::to_string(key.key) + (key.down ? " down" : " up") + (key.ctrl ? " ctrl" : "") +
           (key.wantsKeys ? " wants" : "") + (key.toTheBar ? " bar" : "");
}

/// Keys that go to the control with Ctrl held: Ctrl+C, V, X, Y, Z, 3 on the keypad, and what deletes or
/// inserts.
bool goesWithCtrl(unsigned key)
{
    return std::set<unsigned>{'C', 'V', 'X', 'Y', 'Z', 99, 0x08, 0x2D, 0x2E}.contains(key);
}

} // namespace

TEST(ControlKeys, ATargetWithoutKeysOfItsOwnLeavesThemToTheFramework)
{
    for (const ControlKey& key : everyKey()) {
        if (key.wantsKeys)
            continue;
        EXPECT_EQ(decideKey(key), KeyDecision{}) << nameOf(key);
    }
}

TEST(ControlKeys, EnterEscapeAndTabPressedInTheBarItselfAreLeftToTheLoop)
{
    for (const ControlKey& key : everyKey()) {
        if (!key.wantsKeys)
            continue;
        const bool left = key.toTheBar && key.down && kEnding.contains(key.key);
        EXPECT_EQ(decideKey(key).route == KeyRoute::Loop, left) << nameOf(key);
    }
}

TEST(ControlKeys, EnterEscapeAndTabPressedInAControlPostItsCommand)
{
    for (const ControlKey& key : everyKey()) {
        const bool posts = key.wantsKeys && !key.toTheBar && key.down && kEnding.contains(key.key);
        EXPECT_EQ(decideKey(key).postsCommand, posts) << nameOf(key);
    }
}

TEST(ControlKeys, WithoutCtrlEveryKeyButTheFunctionKeysGoesToTheControl)
{
    for (const ControlKey& key : everyKey()) {
        if (!key.wantsKeys || key.ctrl || decideKey(key).route == KeyRoute::Loop)
            continue;
        const bool forHost = key.key >= kF1 && key.key <= kF24 && key.key != kF4;
        EXPECT_EQ(decideKey(key).route, forHost ? KeyRoute::Framework : KeyRoute::Control) << nameOf(key);
    }
}

TEST(ControlKeys, WithCtrlOnlyTheEditingKeysGoToTheControl)
{
    for (const ControlKey& key : everyKey()) {
        if (!key.wantsKeys || !key.ctrl || decideKey(key).route == KeyRoute::Loop)
            continue;
        EXPECT_EQ(decideKey(key).route, goesWithCtrl(key.key) ? KeyRoute::Control : KeyRoute::Framework)
            << nameOf(key);
    }
}

TEST(ControlKeys, TheCodesOfSmallLettersAreFunctionKeysAndStayWithTheHost)
{
    for (const unsigned key : {118u, 120u, 121u, 122u})
        EXPECT_EQ(decideKey({key, true, true, true, false}).route, KeyRoute::Framework) << key;
    EXPECT_EQ(decideKey({99, true, true, true, false}).route, KeyRoute::Control);
}

TEST(ControlKeys, F4OpensAListAndCtrlF4IsTheHosts)
{
    EXPECT_EQ(decideKey({kF4, true, false, true, false}).route, KeyRoute::Control);
    EXPECT_EQ(decideKey({kF4, true, true, true, false}).route, KeyRoute::Framework);
}
