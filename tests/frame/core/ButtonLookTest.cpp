// Which look a push button has.
#include <ovoui/frame/core/ButtonLook.h>

#include <gtest/gtest.h>

using namespace ovoui::frame;

TEST(ButtonLook, ADisabledButtonLooksDisabledAndAPressedOnePressed)
{
    for (const bool pressed : {false, true})
        for (const bool hot : {false, true}) {
            EXPECT_EQ(buttonLook(false, pressed, hot), ButtonLook::Disabled);
            const ButtonLook up = hot ? ButtonLook::Hot : ButtonLook::Normal;
            EXPECT_EQ(buttonLook(true, pressed, hot), pressed ? ButtonLook::Pressed : up);
        }
}
