// The number that a slider button's buddy shows, the host's conversions of it, and the tip.
#include "SliderButtonScene.h"

#include <ovoui/sliders/Separators.h>

using namespace ovo::testkit;

TEST_F(SliderButton, WholeNumbersGoRoundTheHostsConversions)
{
    button->SetRange(-20, 20);
    setBuddyText(L" 5 apples");
    show();
    button->SetFocus();
    user.key(VK_DOWN).waitFor("the popup", &isOpen);
    EXPECT_EQ(sliderPos(), 5);
    EXPECT_EQ(::SendMessageW(slider(), TBM_GETRANGEMIN, 0, 0), -20);
    EXPECT_EQ(::SendMessageW(slider(), TBM_GETRANGEMAX, 0, 0), 20);
    user.key(VK_RIGHT).waitFor("the value", [&] { return buddyText() == L"6"; });
    EXPECT_TRUE(utils.calls.empty());
}

TEST_F(SliderButton, RealNumbersPassTheHostsConversions)
{
    button->SetType(CSliderButton::SliderLinear);
    button->SetRange(0.0, 10.0, 2);
    setBuddyText(L"2,5");
    show();
    button->SetFocus();
    user.key(VK_DOWN).waitFor("the popup", &isOpen);
    EXPECT_EQ(sliderPos(), 25);
    user.key(VK_RIGHT).waitFor("the value", [&] { return buddyText() == L"2,60 mm"; });
    EXPECT_EQ(utils.calls, (std::vector<std::wstring>{L"from 2,5", L"to 2.60"}));
}

TEST_F(SliderButton, EveryTypePlacesTheSliderByItsMapping)
{
    const struct
    {
        CSliderButton::SliderType type;
        const wchar_t* text;
        int position;
        const wchar_t* next;
    } rows[] = {{CSliderButton::SliderLinear, L"50.5", 50, L"51,490 mm"},
                {CSliderButton::SliderLogarithmic, L"10", 50, L"10,471 mm"},
                {CSliderButton::SliderLogarithmic, L"-3", 0, L"1,047 mm"},
                {CSliderButton::SliderSquareRoot, L"30.25", 50, L"26,750 mm"}};
    for (const auto& row : rows) {
        button->SetType(row.type);
        button->SetRange(1.0, 100.0, 3);
        setBuddyText(row.text);
        show();
        button->SetFocus();
        user.key(VK_DOWN).waitFor("the popup", &isOpen);
        EXPECT_EQ(sliderPos(), row.position) << row.type;
        user.key(VK_RIGHT).waitFor("the value", [&] { return buddyText() == row.next; });
        user.key(VK_SPACE).waitFor("the popup to go", &isClosed);
    }
}

TEST_F(SliderButton, ASquareRootSliderThatIsNotMovedMayChangeTheNumber)
{
    button->SetType(CSliderButton::SliderSquareRoot);
    button->SetRange(1.0, 100.0, 2);
    setBuddyText(L"30,25");
    show();
    open();
    button->SetValue();
    EXPECT_EQ(buddyText(), L"25,75 mm") << "the two directions undo each other only where the low end is 0";
    button->SetRange(0.0, 100.0, 2);
    setBuddyText(L"25");
    user.key(VK_ESCAPE).waitFor("the popup to go", &isClosed);
    setBuddyText(L"25");
    open();
    button->SetValue();
    EXPECT_EQ(buddyText(), L"25,00 mm");
}

TEST_F(SliderButton, ATextWithoutANumberIsTheLowEnd)
{
    button->SetRange(3, 9);
    show();
    for (const wchar_t* text : {L"none", L""}) {
        setBuddyText(text);
        open();
        EXPECT_EQ(sliderPos(), 3);
        user.click(Spot{*button}).waitFor("the popup to go", &isClosed);
        EXPECT_EQ(buddyText(), text);
    }
    button->SetType(CSliderButton::SliderLinear);
    button->SetRange(5.0, 1.0, 0);
    open();
    EXPECT_EQ(sliderPos(), 0);
    user.click(Spot{*button}).waitFor("the popup to go", &isClosed);
}

TEST_F(SliderButton, AHundredCharactersAreRead)
{
    for (const size_t length : {size_t{99}, size_t{100}, size_t{101}, size_t{5000}}) {
        const std::wstring number = std::wstring(length - 2, L' ') + L"42";
        setBuddyText(number.c_str());
        show();
        open();
        EXPECT_EQ(sliderPos(), length <= 100 ? 42 : length == 101 ? 4 : 0) << length;
        user.key(VK_ESCAPE).waitFor("the popup to go", &isClosed);
        EXPECT_EQ(buddyText(), number) << "put back whole";
    }
}

TEST_F(SliderButton, PagesArePartsOfTheRange)
{
    button->SetPages(4);
    show();
    open();
    EXPECT_EQ(::SendMessageW(slider(), TBM_GETPAGESIZE, 0, 0), 25);
}

TEST_F(SliderButton, UntoldTheRangesEndAtAHundred)
{
    CSliderButton untold(utils);
    EXPECT_EQ(untold.Limits(), std::pair(0.0, 100.0));
    for (const auto type :
         {CSliderButton::SliderLinear, CSliderButton::SliderLogarithmic, CSliderButton::SliderSquareRoot}) {
        untold.SetType(type);
        EXPECT_EQ(untold.Limits(), std::pair(1.0, 100.0)) << type;
    }
}

TEST_F(SliderButton, WithoutABuddyNothingIsWritten)
{
    button->SetBuddy(nullptr);
    setBuddyText(L"7");
    show();
    button->SetFocus();
    user.key(VK_DOWN)
        .waitFor("the popup", &isOpen)
        .key(VK_END)
        .key(VK_SPACE)
        .waitFor("the popup to go", &isClosed);
    EXPECT_EQ(buddyText(), L"7");
    EXPECT_TRUE(told().empty());
}

TEST_F(SliderButton, TheNumberIsReadAndShownBeforeTheButtonHasAWindow)
{
    CSliderButton early(utils);
    early.SetBuddy(buddy);
    early.SetType(CSliderButton::SliderLinear);
    setBuddyText(L"2,5");
    EXPECT_EQ(early.Number().value_or(0), 2.5);
    early.ShowNumber(7);
    EXPECT_EQ(buddyText(), L"7,00 mm");
}

// What hosts convert with

TEST(Separators, TheUsersSignsBecomeTheMachinesAndBack)
{
    EXPECT_EQ(change_from_intl_seps(L"1,5;'2,5'", L";", L','), L"1.5,'2,5'");
    EXPECT_EQ(change_to_intl_seps(L"1.5,'2.5'", L";", L','), L"1,5;'2.5'");
}

TEST(Separators, NullStandsForNoSeparator)
{
    for (const wchar_t* const none : {static_cast<const wchar_t*>(nullptr), L""}) {
        EXPECT_EQ(change_from_intl_seps(L"1,5;2", none, L','), L"1.5;2");
        EXPECT_EQ(change_to_intl_seps(L"1.5,2", none, L','), L"1,52");
    }
}

// The tip

TEST_F(SliderButton, TheTipIsTheStringOfTheBuddysNumberUpToTheLineFeed)
{
    show();
    user.moveTo(Spot{*button}).waitFor("the tip", [&] { return utils.calls.size() == 1; });
    EXPECT_EQ(utils.calls[0], L"show Width of the pen");
    user.moveBy(2, 2).moveTo(Spot{other}).waitFor("the end of the tip", [&] {
        return utils.calls.size() == 2;
    });
    EXPECT_EQ(utils.calls[1], L"hide");
    user.moveTo(Spot{*button}).waitFor("the tip again", [&] { return utils.calls.size() == 3; });
    EXPECT_EQ(utils.calls[2], L"show Width of the pen");
    user.moveTo(Spot{other}).waitFor("the end of the tip", [&] { return utils.calls.size() == 4; });
    button->SetBuddy(other);
    user.moveTo(Spot{*button}).waitFor("the tip again", [&] { return utils.calls.size() == 5; });
    EXPECT_EQ(utils.calls[4], L"show Width of the pen") << "it is loaded once";
}

TEST_F(SliderButton, AfterAWindowThatWentWithItsTipTheNextOneHasATipToo)
{
    const std::vector<std::wstring> tip{L"show Width of the pen"};
    show();
    button->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    ASSERT_EQ(utils.calls, tip);
    button->DestroyWindow(); // as by Enter or Escape in a dialog that is opened again
    utils.calls.clear();
    button->SubclassWindow(::CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE, 102, 10, 16, 22,
                                             parent, reinterpret_cast<HMENU>(9), nullptr, nullptr));
    button->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(utils.calls, tip);
}

TEST_F(SliderButton, WhileItIsPressedThereIsNoTip)
{
    const auto send = [this](UINT message) { button->SendMessage(message, 0, MAKELPARAM(5, 5)); };
    show();
    send(WM_LBUTTONDOWN);
    send(WM_MOUSEMOVE);
    EXPECT_TRUE(utils.calls.empty());
    send(WM_LBUTTONUP);
    send(WM_MOUSEMOVE);
    EXPECT_EQ(utils.calls, (std::vector<std::wstring>{L"show Width of the pen"}));
}

TEST_F(SliderButton, WithoutATextThereIsNoTipForGood)
{
    button->SetBuddy(other);
    show();
    user.moveTo(Spot{*button}).moveBy(2, 2);
    button->SetBuddy(buddy);
    user.moveTo(Spot{other}).moveTo(Spot{*button}).moveBy(2, 2);
    EXPECT_TRUE(utils.calls.empty());
}
