// A slider button that is pressed, dragged and let go in one movement.
#include "SliderButtonScene.h"

#include <ovoui/frame/Geometry.h>

#include <algorithm>

using namespace ovo::testkit;

TEST_F(SliderButton, PressDragReleaseIsOneMovement)
{
    setBuddyText(L"50");
    show();
    int before = 0;
    user.press(Spot{*button})
        .waitFor("the popup", &isOpen)
        .then([&] { before = sliderPos(); })
        .moveBy(30, 0)
        .waitFor("the value", [&] { return buddyText() != L"50"; })
        .release()
        .waitFor("the popup to go", &isClosed);
    EXPECT_EQ(before, 50);
    EXPECT_GT(std::stoi(buddyText()), 50);
    const std::vector<UINT> messages = told();
    ASSERT_GE(messages.size(), 2u);
    EXPECT_EQ(messages.back(), kReleased);
    EXPECT_EQ(std::count(messages.begin(), messages.end(), kChanged), static_cast<long>(messages.size()) - 1);
    EXPECT_EQ(::GetFocus(), buddy.m_hWnd);
}

TEST_F(SliderButton, ADragBeyondTheEndsStopsThere)
{
    setBuddyText(L"50");
    show();
    user.press(Spot{*button}).waitFor("the popup", &isOpen).moveBy(600, 0).then([&] {
        EXPECT_EQ(buddyText(), L"100");
    });
    EXPECT_TRUE(isClosed()) << "the story let the button go";
    user.press(Spot{*button}).waitFor("the popup", &isOpen).moveBy(-299, 0).moveBy(-299, 0).then([&] {
        EXPECT_EQ(buddyText(), L"0");
    });
}

TEST_F(SliderButton, ASmallMovementIsAClick)
{
    setBuddyText(L"50");
    show();
    user.press(Spot{*button}).waitFor("the popup", &isOpen).moveBy(2, 1).release();
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(buddyText(), L"50");
    EXPECT_TRUE(told().empty());
}

TEST_F(SliderButton, ADragThatNeverReachesTheThumbIsAClick)
{
    setBuddyText(L"90");
    show({-60, 200});
    user.press(Spot{*button}).waitFor("the popup", &isOpen).moveBy(8, -8).moveBy(0, -20).release();
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(buddyText(), L"90");
    EXPECT_TRUE(told().empty());
    EXPECT_NE(::GetCapture(), button->m_hWnd);
    user.moveBy(60, 20);
    EXPECT_EQ(buddyText(), L"90") << "let go, the pointer takes nothing along";
}

TEST_F(SliderButton, AThumbToTheRightWaitsUntilThePointerIsThere)
{
    setBuddyText(L"90");
    show({-60, 200}); // the popup cannot go as far to the left as the thumb would have it
    CPoint press;
    int thumb = 0;
    user.press(Spot{*button}).waitFor("the popup", &isOpen).then([&] {
        ::GetCursorPos(&press);
        thumb = thumbX() - press.x;
    });
    ASSERT_GT(thumb, 20);
    user.click(Spot{other}).waitFor("the popup to go", &isClosed);
    setBuddyText(L"90");
    user.press(Spot{*button})
        .waitFor("the popup", &isOpen)
        .moveBy(thumb - 8, 0)
        .then([&] { EXPECT_EQ(buddyText(), L"90") << "not there yet"; })
        .moveBy(30, 0)
        .waitFor("the value", [&] { return buddyText() != L"90"; })
        .release();
    EXPECT_GT(std::stoi(buddyText()), 95);
    EXPECT_TRUE(isClosed());
}

TEST_F(SliderButton, AThumbToTheLeftWaitsUntilThePointerIsThere)
{
    setBuddyText(L"10");
    const CRect work(GetWorkArea(CRect(0, 0, 10, 10)));
    show({work.right - 125, 200});
    int thumb = 0;
    user.press(Spot{*button}).waitFor("the popup", &isOpen).then([&] {
        CPoint press;
        ::GetCursorPos(&press);
        thumb = press.x - thumbX();
    });
    ASSERT_GT(thumb, 20);
    user.click(Spot{other}).waitFor("the popup to go", &isClosed);
    user.press(Spot{*button})
        .waitFor("the popup", &isOpen)
        .moveBy(8 - thumb, 0)
        .then([&] { EXPECT_EQ(buddyText(), L"10") << "not there yet"; })
        .moveBy(-30, 0)
        .waitFor("the value", [&] { return buddyText() != L"10"; })
        .release();
    EXPECT_EQ(buddyText(), L"0");
}

TEST_F(SliderButton, InsideThePopupTheThumbComesToThePointer)
{
    setBuddyText(L"90");
    show({-60, 200});
    user.press(Spot{*button})
        .waitFor("the popup", &isOpen)
        .moveBy(0, 24)
        .waitFor("the value", [&] { return buddyText() != L"90"; })
        .release();
    EXPECT_LT(std::stoi(buddyText()), 90);
}

TEST_F(SliderButton, LosingTheCaptureEndsTheDragOnly)
{
    setBuddyText(L"50");
    show();
    user.press(Spot{*button})
        .waitFor("the popup", &isOpen)
        .moveBy(30, 0)
        .waitFor("the value", [&] { return buddyText() != L"50"; })
        .then([&] {
            ::ReleaseCapture();
            parent.log().clear();
        })
        .moveBy(20, 0)
        .release();
    EXPECT_TRUE(told().empty());
    EXPECT_TRUE(isOpen());
}

TEST_F(SliderButton, WithoutTheCaptureMovementsMeanNothing)
{
    setBuddyText(L"50");
    show();
    const auto send = [&](UINT message, int x) {
        button->SendMessage(message, MK_LBUTTON, MAKELPARAM(x, 5));
    };
    send(WM_LBUTTONDOWN, 5);
    send(WM_MOUSEMOVE, 30);
    const std::wstring dragged = buddyText();
    EXPECT_NE(dragged, L"50");
    ::ReleaseCapture();
    send(WM_MOUSEMOVE, 60);
    EXPECT_EQ(buddyText(), dragged);
    send(WM_LBUTTONUP, 60);
    EXPECT_TRUE(isOpen());
}
