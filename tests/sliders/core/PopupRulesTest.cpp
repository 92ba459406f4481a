#include <ovoui/sliders/core/PopupRules.h>

#include <gtest/gtest.h>

#include <set>

using namespace ovoui::sliders;

TEST(PopupRules, APressOpensAndTheNextOneDismisses)
{
    EXPECT_EQ(meaningOfPress(false), PressMeaning::Open);
    EXPECT_EQ(meaningOfPress(true), PressMeaning::Dismiss);
}

TEST(PopupRules, OfAllMessagesPressesAndEscapeCount)
{
    const std::set<unsigned> presses = {0x201, 0x204, 0x207, 0x0A1, 0x0A4, 0x0A7};
    constexpr unsigned kDown = 0x100;
    for (unsigned message = 0; message <= 0x400; ++message)
        for (unsigned key = 0; key <= 0xFF; ++key) {
            PopupInput expected = presses.contains(message) ? PopupInput::Press : PopupInput::Other;
            if (message == kDown && key == 0x1B)
                expected = PopupInput::Escape;
            ASSERT_EQ(popupInputOf(message, key), expected) << message << ' ' << key;
        }
}

TEST(PopupRules, OnlyAPressElsewhereDismisses)
{
    EXPECT_FALSE(dismisses(pressedOn(true, false)));
    EXPECT_FALSE(dismisses(pressedOn(true, true)));
    EXPECT_FALSE(dismisses(pressedOn(false, true)));
    EXPECT_TRUE(dismisses(pressedOn(false, false)));
    EXPECT_EQ(pressedOn(true, true), PressedOn::Button);
    EXPECT_EQ(pressedOn(false, true), PressedOn::Popup);
}

TEST(PopupRules, SpaceAndTabHideThePopup)
{
    for (unsigned key = 0; key <= 0xFF; ++key)
        EXPECT_EQ(hidesPopup(key), key == 0x20 || key == 0x09) << key;
}

TEST(PopupRules, ALostActivationPutsThePopupAwayOnce)
{
    for (const bool visible : {false, true})
        for (const bool goingAway : {false, true}) {
            EXPECT_FALSE(putsAway(Activation::WindowGained, visible, goingAway));
            EXPECT_FALSE(putsAway(Activation::ProgramGained, visible, goingAway));
            EXPECT_EQ(putsAway(Activation::WindowLost, visible, goingAway), !goingAway);
            EXPECT_EQ(putsAway(Activation::ProgramLost, visible, goingAway), visible && !goingAway);
        }
}

TEST(PopupRules, TheBubbleIsThereWhereItIsWantedAndThePopupIsSeen)
{
    int shown = 0;
    for (const bool wanted : {false, true})
        for (const bool open : {false, true})
            for (const bool visible : {false, true})
                shown += showsBubble(wanted, open, visible);
    EXPECT_EQ(shown, 1);
    EXPECT_TRUE(showsBubble(true, true, true));
}
