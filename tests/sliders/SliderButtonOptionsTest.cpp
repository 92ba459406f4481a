// What a slider button does when its host asks for it: mappings, ticks, the bubble, the wheel, fine steps;
// and what accessibility sees.
#include "SliderButtonScene.h"

#include <support/EmptyDialog.h>
#include <testkit/AccessibleView.h>
#include <testkit/ImportPatch.h>
#include <testkit/TestApp.h>
#include <testkit/WinEvents.h>

#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/ModalDialog.h>
#include <ovoui/sliders/UnitNumbers.h>

#include <cmath>
#include <stdexcept>

using namespace ovo::testkit;

namespace
{

class SliderButtonOptions : public SliderButtonScene
{
protected:
    void open() { user.click(Spot{*button}).waitFor("the popup", &isOpen); }
    void useLinear(double low, double high, int decimals)
    {
        button->SetType(CSliderButton::SliderLinear);
        button->SetRange(low, high, decimals);
    }
    static HWND bubble()
    {
        const HWND owned = ::FindWindowExW(nullptr, nullptr, nullptr, nullptr);
        for (HWND window = owned; window; window = ::GetWindow(window, GW_HWNDNEXT)) {
            const LONG_PTR style = ::GetWindowLongPtrW(window, GWL_EXSTYLE);
            if ((style & WS_EX_NOACTIVATE) && ::IsWindowVisible(window) &&
                ::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId())
                return window;
        }
        return nullptr;
    }
};

} // namespace

// Mappings

TEST_F(SliderButtonOptions, TheHostMapsNumbersByFunctions)
{
    useLinear(1, 2, 0);
    EXPECT_TRUE(button->SetMapping([](double number) { return std::cbrt(number) / 10; },
                                   [](double share) { return std::pow(share * 10, 3); }));
    setBuddyText(L"125");
    show();
    open();
    EXPECT_EQ(sliderPos(), 50);
    ::SendMessageW(slider(), TBM_SETPOS, TRUE, 20);
    button->SetValue();
    EXPECT_EQ(buddyText(), L"8 mm");
}

TEST_F(SliderButtonOptions, AMappingThatIsNoneIsRefused)
{
    useLinear(0, 100, 0);
    EXPECT_FALSE(button->SetMapping([](double n) { return n; }, [](double) { return 1.0; }));
    setBuddyText(L"70");
    show();
    open();
    EXPECT_EQ(sliderPos(), 70) << "the type's mapping stays";
    EXPECT_TRUE(button->SetMapping(nullptr, nullptr));
}

TEST_F(SliderButtonOptions, TicksStandAtTheHostsNumbers)
{
    button->SetType(CSliderButton::SliderLogarithmic);
    button->SetRange(0.1, 1000.0, 1);
    show();
    open();
    EXPECT_EQ(::SendMessageW(slider(), TBM_GETNUMTICS, 0, 0), 0) << "none at first";
    const auto thumb = [] {
        CRect rect;
        ::SendMessageW(slider(), TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(static_cast<RECT*>(&rect)));
        return rect;
    };
    const int height = thumb().Height();
    user.click(Spot{*button}).waitFor("the popup to go", &isClosed);
    button->SetTicks({1, 10, 100, 5000});
    open();
    EXPECT_NEAR(thumb().Height(), height, 3) << "the thumb keeps its size";
    CRect place;
    ::GetClientRect(slider(), &place);
    EXPECT_GT(place.bottom - thumb().bottom, 4) << "there is room below it";
    ::MapWindowPoints(slider(), popup(), reinterpret_cast<POINT*>(&place), 2);
    CRect client;
    ::GetClientRect(popup(), &client);
    EXPECT_EQ(CRect(client & place), place) << "and the popup has room for the slider";
    const auto ticks = reinterpret_cast<const DWORD*>(::SendMessageW(slider(), TBM_GETPTICS, 0, 0));
    const auto count = ::SendMessageW(slider(), TBM_GETNUMTICS, 0, 0) - 2; // without the two ends
    ASSERT_EQ(count, 3);
    EXPECT_EQ(std::vector<DWORD>(ticks, ticks + count), (std::vector<DWORD>{25, 50, 75}));

    CRect before;
    ::GetWindowRect(popup(), &before);
    user.click(Spot{*button}).waitFor("the popup to go", &isClosed);
    open();
    CRect after;
    ::GetWindowRect(popup(), &after);
    EXPECT_EQ(after.Size(), before.Size()) << "the room is made once";
}

// The bubble

TEST_F(SliderButtonOptions, TheBubbleFollowsTheThumb)
{
    button->ShowBubble(true);
    setBuddyText(L"10");
    show();
    EXPECT_EQ(bubble(), nullptr);
    user.press(Spot{*button}).waitFor("the bubble", [] { return bubble() != nullptr; });
    EXPECT_EQ(::GetFocus(), other.m_hWnd);
    user.key(VK_ESCAPE).waitFor("the bubble to go", [] { return bubble() == nullptr; });

    CRect before;
    CRect after;
    user.press(Spot{*button})
        .waitFor("the bubble", [] { return bubble() != nullptr; })
        .then([&] { ::GetWindowRect(bubble(), &before); })
        .moveBy(30, 0)
        .then([&] {
            ::GetWindowRect(bubble(), &after);
            EXPECT_LE(std::abs(after.CenterPoint().x - thumbX()), 2);
            CRect thumb;
            ::GetWindowRect(slider(), &thumb);
            EXPECT_LE(after.bottom, thumb.bottom);
        })
        .release()
        .waitFor("the bubble to go", [] { return bubble() == nullptr; });
    EXPECT_GT(after.left, before.left);
}

/// Before any other message: the thumb is followed while the mouse is dragged.
TEST_F(SliderButtonOptions, TheBubbleShowsTheNumberAtOnce)
{
    button->ShowBubble(true);
    setBuddyText(L"50");
    show();
    button->SetFocus();
    button->SendMessage(WM_KEYDOWN, VK_SPACE);
    ASSERT_NE(bubble(), nullptr);
    EXPECT_FALSE(::GetUpdateRect(bubble(), nullptr, FALSE)) << "it is painted";
    const Picture shown = Picture::ofClient(bubble());
    CRect inside(0, 0, shown.width(), shown.height());
    inside.DeflateRect(2, 2);   // its border
    constexpr int kSmooth = 60; // of the edges of letters
    EXPECT_GT(shown.count(::GetSysColor(COLOR_INFOTEXT), kSmooth, inside), 5);
    button->SendMessage(WM_KEYDOWN, VK_SPACE);
}

TEST_F(SliderButtonOptions, TheBubbleGoesWithThePopupThatAnotherProgramCloses)
{
    button->ShowBubble(true);
    show();
    open();
    ASSERT_NE(bubble(), nullptr);
    ::SendMessageW(popup(), WM_ACTIVATEAPP, FALSE, 0);
    user.waitFor("the bubble to go", [] { return bubble() == nullptr; });
    EXPECT_TRUE(isClosed());
}

TEST_F(SliderButtonOptions, TheBubbleStaysOnTheScreen)
{
    const CRect work(GetWorkArea(CRect(0, 0, 10, 10)));
    button->ShowBubble(true);
    setBuddyText(L"50");
    show({300, work.top - 120}); // the popup opens at the upper edge, where there is no room above its thumb
    button->SetFocus();
    button->SendMessage(WM_KEYDOWN, VK_SPACE);
    ASSERT_NE(bubble(), nullptr);
    CRect place;
    ::GetWindowRect(bubble(), &place);
    EXPECT_EQ(CRect(place & work), place);
    button->SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(bubble(), nullptr);
}

TEST_F(SliderButtonOptions, WithoutBeingAskedThereIsNoBubble)
{
    show();
    open();
    EXPECT_EQ(bubble(), nullptr);
}

// The wheel

TEST_F(SliderButtonOptions, TheWheelStepsOverButtonAndBuddy)
{
    button->StepByWheel(true);
    setBuddyText(L"50");
    show();
    button->SetFocus();
    user.moveTo(Spot{*button}).turnWheel(1).waitFor("a step", [&] { return buddyText() == L"51"; });
    user.turnWheel(-3).waitFor("three steps", [&] { return buddyText() == L"48"; });
    buddy.SetFocus();
    user.moveTo(Spot{buddy}).turnWheel(2).waitFor("two steps", [&] { return buddyText() == L"50"; });
    const std::vector<UINT> messages = told();
    EXPECT_GE(messages.size(), 3u);
    for (const UINT message : messages)
        EXPECT_EQ(message, kChanged);
    EXPECT_TRUE(isClosed());
}

TEST_F(SliderButtonOptions, TheWheelDoesNothingUnasked)
{
    setBuddyText(L"50");
    show();
    button->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    buddy.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    EXPECT_EQ(buddyText(), L"50");
    EXPECT_TRUE(told().empty());
}

TEST_F(SliderButtonOptions, WhenItIsNoLongerAskedForTheWheelDoesNothing)
{
    button->StepByWheel(true);
    button->StepByWheel(false);
    setBuddyText(L"50");
    show();
    button->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    buddy.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    EXPECT_EQ(buddyText(), L"50");
    EXPECT_TRUE(told().empty());
}

TEST_F(SliderButtonOptions, PartsOfANotchAddUp)
{
    button->StepByWheel(true);
    setBuddyText(L"50");
    show();
    for (int i = 0; i < 3; ++i)
        button->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 50), 0);
    EXPECT_EQ(buddyText(), L"51");
    button->EnableWindow(FALSE);
    button->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    EXPECT_EQ(buddyText(), L"51") << "disabled";
}

TEST_F(SliderButtonOptions, TheWheelTakesTheOpenSliderAlong)
{
    button->StepByWheel(true);
    setBuddyText(L"50");
    show();
    open();
    button->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 240), 0);
    EXPECT_EQ(sliderPos(), 52);
}

TEST_F(SliderButtonOptions, ButtonAndBuddyMayGoInAnyOrder)
{
    button->StepByWheel(true);
    show();
    CEdit second;
    second.Create(WS_CHILD | WS_VISIBLE, CRect(10, 90, 100, 112), &parent, 20);
    button->SetBuddy(second);
    second.SetWindowText(L"7");
    second.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    CString text;
    second.GetWindowText(text);
    EXPECT_EQ(text, L"8");
    second.DestroyWindow();
    button->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    button->SetBuddy(buddy);
    button.reset();
    buddy.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
}

TEST_F(SliderButtonOptions, AHostMayDeleteTheButtonInAStep)
{
    useLinear(0, 10, 1);
    button->StepByWheel(true);
    show();
    utils.misdeed = [&] { button.reset(); };
    buddy.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    EXPECT_EQ(button, nullptr);
    utils.misdeed = nullptr;
}

// Fine steps

TEST_F(SliderButtonOptions, ShiftMakesStepsFiner)
{
    useLinear(0, 100, 1);
    button->StepByWheel(true);
    button->StepFinelyByShift(true);
    setBuddyText(L"50");
    show();
    button->SetFocus();
    user.moveTo(Spot{*button}).holding(VK_SHIFT).turnWheel(1).waitFor("a fine step", [&] {
        return buddyText() == L"50,1 mm";
    });
    user.key(VK_DOWN).waitFor("the popup", &isOpen);
    user.holding(VK_SHIFT).key(VK_RIGHT, 2).waitFor("two fine steps", [&] {
        return buddyText() == L"50,3 mm";
    });
    user.holding(VK_SHIFT).key(VK_LEFT).waitFor("one back", [&] { return buddyText() == L"50,2 mm"; });
    user.key(VK_RIGHT).waitFor("a step", [&] { return buddyText() == L"51,0 mm"; });
    user.key(VK_ESCAPE).waitFor("the text from before", [&] { return buddyText() == L"50,1 mm"; });
}

// Units

TEST_F(SliderButtonOptions, NumbersWithUnitsAreReadyToUse)
{
    CUnitNumbers millimetres(L"mm");
    CSliderButton slider(millimetres);
    CStatic plain;
    plain.Create(L"", WS_CHILD | WS_VISIBLE, CRect(122, 10, 138, 32), &parent, 30);
    slider.SubclassWindow(plain.Detach());
    slider.SetBuddy(buddy);
    slider.SetType(CSliderButton::SliderLinear);
    slider.SetRange(0.0, 10000.0, 1);
    slider.StepByWheel(true);
    std::wstring shown;
    millimetres.toDisplay(shown, L"5000.0");
    setBuddyText(shown.c_str());
    slider.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    std::wstring machine;
    millimetres.fromDisplay(machine, buddyText());
    EXPECT_EQ(machine, L"5100.0");
    EXPECT_TRUE(buddyText().ends_with(L" mm"));

    CUnitNumbers percent(CUnitNumbers::Percent);
    percent.toDisplay(shown, L"0.5");
    EXPECT_EQ(shown, L"50 %");
}

namespace
{

int WINAPI signsOfTheTest(LCID locale, LCTYPE type, LPWSTR text, int room)
{
    if (type != LOCALE_SDECIMAL && type != LOCALE_STHOUSAND)
        return ::GetLocaleInfoW(locale, type, text, room);
    ::lstrcpynW(text, type == LOCALE_SDECIMAL ? L"," : L"'", room);
    return 2;
}

} // namespace

TEST_F(SliderButtonOptions, NumbersWithUnitsHaveTheUsersSigns)
{
    const ImportPatch patch(L"ovoui.dll", "GetLocaleInfoW", reinterpret_cast<void*>(&signsOfTheTest));
    CUnitNumbers grouped(L"mm");
    CUnitNumbers plain(L"mm", false);
    CUnitNumbers percent(CUnitNumbers::Percent);
    std::wstring shown;
    grouped.toDisplay(shown, L"12345.5");
    EXPECT_EQ(shown, L"12'345,5 mm");
    plain.toDisplay(shown, L"12345.5");
    EXPECT_EQ(shown, L"12345,5 mm");
    percent.toDisplay(shown, L"123.456");
    EXPECT_EQ(shown, L"12'345,6 %");
    std::wstring machine;
    grouped.fromDisplay(machine, L"12'345,5 mm");
    EXPECT_EQ(machine, L"12345.5");
}

// Accessibility

TEST_F(SliderButtonOptions, AccessibilitySeesASliderWithTheBuddysText)
{
    CStatic label;
    label.Create(L"&Width:", WS_CHILD | WS_VISIBLE, CRect(10, 90, 60, 110), &parent, 40);
    label.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    buddy.SetWindowPos(&label, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    setBuddyText(L"12");
    show();
    const AccessibleView seen(*button);
    EXPECT_EQ(seen.role(), ROLE_SYSTEM_SLIDER);
    EXPECT_EQ(seen.name(), L"Width");
    EXPECT_EQ(seen.value(), L"12");
    EXPECT_EQ(seen.childCount(), 0);
    button.reset();
    BSTR text = nullptr;
    EXPECT_EQ(seen->get_accValue(AccessibleView::numbered(CHILDID_SELF), &text), CO_E_OBJNOTCONNECTED);
}

TEST_F(SliderButtonOptions, AccessibilityPressesIt)
{
    show();
    const AccessibleView seen(*button);
    EXPECT_EQ(seen.action(), L"Press");
    ASSERT_EQ(seen->accDoDefaultAction(AccessibleView::numbered(CHILDID_SELF)), S_OK);
    user.waitFor("the popup", &isOpen);
    ASSERT_EQ(seen->accDoDefaultAction(AccessibleView::numbered(CHILDID_SELF)), S_OK);
    user.waitFor("the popup to go", &isClosed);
    button->EnableWindow(FALSE);
    EXPECT_EQ(seen.action(), L"") << "disabled";
    EXPECT_TRUE(seen.state() & STATE_SYSTEM_UNAVAILABLE);
    EXPECT_EQ(seen->accDoDefaultAction(AccessibleView::numbered(CHILDID_SELF)), DISP_E_MEMBERNOTFOUND);
}

TEST_F(SliderButtonOptions, AccessibilityHearsOfEveryChangeOfTheValue)
{
    useLinear(0, 100, 0);
    setBuddyText(L"50");
    show();
    WinEvents changes(EVENT_OBJECT_VALUECHANGE);
    open();
    EXPECT_EQ(changes.of(*button), 0) << "opening changes nothing";

    ::SendMessageW(slider(), TBM_SETPOS, TRUE, 60);
    button->SetValue();
    EXPECT_EQ(changes.of(*button), 1);
    button->SetValue();
    EXPECT_EQ(changes.of(*button), 1) << "the same number again";
    user.key(VK_ESCAPE).waitFor("the popup to go", &isClosed);
    EXPECT_EQ(changes.of(*button), 2) << "the text from before";
    open();
    user.key(VK_ESCAPE).waitFor("the popup to go", &isClosed);
    EXPECT_EQ(changes.of(*button), 2) << "there was nothing to put back";

    changes.forget();
    button->StepByWheel(true);
    button->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    EXPECT_EQ(buddyText(), L"51 mm");
    EXPECT_EQ(changes.of(*button), 1);
    button->ShowNumber(7);
    EXPECT_EQ(changes.of(*button), 2);
    button->ShowNumber(7);
    EXPECT_EQ(changes.of(*button), 2);
    button->SetBuddy(nullptr);
    button->ShowNumber(8);
    button->SetValue();
    EXPECT_EQ(changes.of(*button), 2) << "without a buddy there is no value";
}

TEST_F(SliderButtonOptions, AccessibilityHearsOfANumberThatTakesThePlaceOfWhatWasTyped)
{
    show();
    button->ShowNumber(7);
    WinEvents changes(EVENT_OBJECT_VALUECHANGE);
    setBuddyText(L"8");
    button->ShowNumber(7);
    EXPECT_EQ(buddyText(), L"7");
    EXPECT_EQ(changes.of(*button), 1);
}

// In a dialog

namespace
{

constexpr UINT kPress = WM_APP + 1;

/// A dialog whose handler presses a slider button.
class PressingDialog : public EmptyDialog<COVOModalDialog>
{
public:
    explicit PressingDialog(SliderButtonUtils& utils)
        : EmptyDialog(0, nullptr)
        , slider(utils)
    {
    }

    void fill()
    {
        edit.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 100, 32), this, kBuddyId);
        CStatic plain;
        plain.Create(L"", WS_CHILD | WS_VISIBLE, CRect(102, 10, 118, 32), this, 9);
        slider.SubclassWindow(plain.Detach());
        slider.SetBuddy(edit);
        slider.SetType(CSliderButton::SliderLinear);
    }

    CEdit edit;
    CSliderButton slider;

protected:
    afx_msg LRESULT OnPress(WPARAM, LPARAM)
    {
        slider.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PressingDialog, COVOModalDialog)
    ON_MESSAGE(kPress, &PressingDialog::OnPress)
END_MESSAGE_MAP()

} // namespace

TEST_F(SliderButtonOptions, WhatAConversionThrowsIsShownByTheDialog)
{
    PressingDialog dialog(utils);
    ASSERT_TRUE(dialog.create({20, 20}, {120, 60}));
    dialog.fill();
    utils.misdeed = [] { throw std::runtime_error("no such unit"); };
    dialog.SendMessage(kPress);
    ASSERT_EQ(TestApp::instance().boxes().size(), 1u);
    EXPECT_EQ(TestApp::instance().boxes()[0].text, L"no such unit");
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_NE(::GetCapture(), dialog.slider.m_hWnd);

    utils.misdeed = nullptr;
    dialog.SendMessage(kPress);
    EXPECT_EQ(TestApp::instance().boxes().size(), 1u) << "it works again";
    EXPECT_EQ(::GetCapture(), dialog.slider.m_hWnd);
    ::ReleaseCapture();
}
