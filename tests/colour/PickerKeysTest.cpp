// The picker's ring, triangle and swatches under the keyboard, and as accessibility sees them.
#include "PickerScene.h"

#include <testkit/AccessibleView.h>
#include <testkit/WinEvents.h>

#include <ovoui/colour/core/WheelGeometry.h>

#include <cmath>
#include <utility>

using namespace ovo::testkit;

namespace
{

constexpr int kRing = 20565;
constexpr int kTriangle = 20566;
constexpr int kSwatchStop = 20567;

using Told = std::vector<bool>;

class PickerKeys : public PickerScene
{
protected:
    PickerKeys()
    {
        ::CoInitialize(nullptr);
        keyboard = true;
    }
    ~PickerKeys() override { ::CoUninitialize(); }

    CWnd& ring() { return *picker->GetDlgItem(kRing); }
    CWnd& triangle() { return *picker->GetDlgItem(kTriangle); }
    CWnd& swatches() { return *host->GetDlgItem(kSwatchStop); }
    int focus() const { return ::GetDlgCtrlID(::GetFocus()); }

    long hue() { return std::lround(picker->GetColour().h_hls().degrees()); }
    long lightness() { return std::lround(picker->GetColour().l_hls() * 100); }
    long saturation() { return std::lround(picker->GetColour().s_hls() * 100); }

    void openOnRing(double degrees)
    {
        open(ColPickerModeHLS, Colour::hlsa(Angle::degrees(degrees), 0.25, 0.5, 0.75));
        ring().SetFocus();
    }
    void openInTriangle(double light, double pure)
    {
        open(ColPickerModeHLS, Colour::hlsa(Angle::degrees(200), light, pure, 0.75));
        triangle().SetFocus();
    }

    /// A point of the screen in the ring.
    Spot onRing(double degrees)
    {
        const CRect wheel = picker->m_wheelRect;
        const Vector<2> point = ovoui::colour::ringIn({wheel.left, wheel.top, wheel.right, wheel.bottom})
                                    .marker(Angle::degrees(degrees));
        return {*picker,
                {static_cast<int>(std::lround(point.x())), static_cast<int>(std::lround(point.y()))}};
    }

    static int differences(const Picture& one, const Picture& other, const CRect& part)
    {
        int count = 0;
        for (int y = part.top; y < part.bottom; ++y)
            for (int x = part.left; x < part.right; ++x)
                count += one.at(x, y) != other.at(x, y);
        return count;
    }
};

} // namespace

TEST_F(PickerKeys, OnlyWhereTheHostAsksForThem)
{
    keyboard = false;
    openSwatches();
    EXPECT_FALSE(host->GetDlgItem(kRing));
    EXPECT_FALSE(host->GetDlgItem(kSwatchStop));
    open();
    EXPECT_FALSE(picker->GetDlgItem(kRing));
    EXPECT_FALSE(picker->GetDlgItem(kTriangle));
    picker->m_value2.SetFocus();
    user.click(onRing(200));
    EXPECT_EQ(::GetFocus(), picker->m_value2.m_hWnd) << "the focus stays where it is";
}

TEST_F(PickerKeys, TabLeadsFromTheEndToRingTriangleAndModel)
{
    open();
    picker->GetDlgItem(IDCANCEL)->SetFocus();
    user.key(VK_TAB);
    EXPECT_EQ(focus(), kRing);
    user.key(VK_TAB);
    EXPECT_EQ(focus(), kTriangle);
    user.key(VK_TAB);
    EXPECT_EQ(focus(), kSpace);
    user.holding(VK_SHIFT).key(VK_TAB);
    EXPECT_EQ(focus(), kTriangle);
}

TEST_F(PickerKeys, TabLeadsToTheSwatchesWhereTheyStand)
{
    openSwatches();
    host->m_value3.SetFocus();
    user.key(VK_TAB);
    EXPECT_EQ(focus(), kSwatchStop);
    user.key(VK_TAB);
    EXPECT_EQ(focus(), IDOK);
}

// The ring

TEST_F(PickerKeys, ArrowsMoveTheHueByOneAndWithShiftByTen)
{
    openOnRing(30);
    user.key(VK_RIGHT);
    EXPECT_EQ(hue(), 31);
    EXPECT_EQ(picker->text(kValue1), L"31") << "at once";
    EXPECT_EQ(picker->told, (Told{true}));
    user.key(VK_UP).key(VK_UP);
    EXPECT_EQ(hue(), 33);
    user.key(VK_LEFT).key(VK_DOWN);
    EXPECT_EQ(hue(), 31);
    user.holding(VK_SHIFT).key(VK_RIGHT);
    EXPECT_EQ(hue(), 41);
    user.holding(VK_SHIFT).key(VK_DOWN, 2);
    EXPECT_EQ(hue(), 21);
    user.key(VK_NEXT);
    EXPECT_EQ(hue(), 11);
    EXPECT_EQ(lightness(), 25) << "the rest stays";
    EXPECT_EQ(saturation(), 50);
    EXPECT_EQ(picker->GetColour().a(), 0.75);
    EXPECT_EQ(picker->m_slider1.GetPos(), 11);
}

TEST_F(PickerKeys, HomeAndEndGoToTheEndsAndArrowsGoRound)
{
    openOnRing(100);
    user.key(VK_END);
    EXPECT_EQ(hue(), 359);
    user.key(VK_RIGHT);
    EXPECT_EQ(hue(), 0);
    user.holding(VK_SHIFT).key(VK_LEFT);
    EXPECT_EQ(hue(), 350);
    user.key(VK_HOME);
    EXPECT_EQ(hue(), 0);
    EXPECT_EQ(picker->told, (Told{true, true, true, true}));
}

TEST_F(PickerKeys, AHueJustBelowTheFullTurnCountsAsNone)
{
    openOnRing(359.6);
    user.key(VK_RIGHT);
    EXPECT_EQ(hue(), 1);
}

TEST_F(PickerKeys, TheHueOfAGreyIsMovedThoughItLooksTheSame)
{
    open(ColPickerModeHLS, Colour::hls(Angle::degrees(10), 0.5, 0));
    ring().SetFocus();
    user.key(VK_RIGHT, 5);
    EXPECT_EQ(hue(), 15);
    triangle().SetFocus();
    user.holding(VK_CONTROL).key(VK_END);
    EXPECT_EQ(hue(), 15);
    EXPECT_EQ(saturation(), 100);
}

// The triangle

TEST_F(PickerKeys, ArrowsMoveLightnessAndSaturation)
{
    openInTriangle(0.5, 0.5);
    user.key(VK_RIGHT);
    EXPECT_EQ(lightness(), 51);
    EXPECT_EQ(picker->told, (Told{true}));
    EXPECT_EQ(picker->text(kValue2), L"51");
    user.key(VK_UP, 3);
    EXPECT_EQ(saturation(), 53);
    user.holding(VK_SHIFT).key(VK_LEFT).key(VK_DOWN);
    EXPECT_EQ(lightness(), 41);
    EXPECT_EQ(saturation(), 43);
    user.key(VK_PRIOR);
    EXPECT_EQ(saturation(), 53);
    EXPECT_EQ(hue(), 200) << "the rest stays";
    EXPECT_EQ(picker->GetColour().a(), 0.75);
}

TEST_F(PickerKeys, HomeAndEndGoToTheEndsOfLightnessAndWithCtrlOfSaturation)
{
    openInTriangle(0.5, 0.5);
    user.key(VK_END);
    EXPECT_EQ(lightness(), 100);
    user.key(VK_HOME);
    EXPECT_EQ(lightness(), 0);
    user.holding(VK_SHIFT).key(VK_RIGHT, 5);
    EXPECT_EQ(lightness(), 50);
    EXPECT_EQ(saturation(), 50) << "kept, although black and white have none";
    user.holding(VK_CONTROL).key(VK_END);
    EXPECT_EQ(saturation(), 100);
    user.holding(VK_CONTROL).key(VK_HOME);
    EXPECT_EQ(saturation(), 0);
    EXPECT_EQ(hue(), 200);
}

TEST_F(PickerKeys, AnotherColourIsWhereTheKeysGoOnFrom)
{
    openInTriangle(0.5, 0.5);
    user.key(VK_HOME);
    picker->SetColour(picker.get(), Colour::hls(Angle::degrees(200), 0.3, 0.2), true);
    user.key(VK_RIGHT);
    EXPECT_EQ(lightness(), 31);
    EXPECT_EQ(saturation(), 20);
}

// Focus

TEST_F(PickerKeys, APressOfTheMouseTakesTheFocusAlong)
{
    open(ColPickerModeHLS);
    picker->m_value2.SetFocus();
    user.click(onRing(120));
    EXPECT_EQ(focus(), kRing);
    EXPECT_NEAR(picker->GetColour().h_hls().degrees(), 120, 0.7);
    user.click(Spot{*picker, picker->centre()});
    EXPECT_EQ(focus(), kTriangle);
    EXPECT_EQ(picker->told, (Told{false, true, false, true}));
}

TEST_F(PickerKeys, WhatIsBeingTypedCountsBeforeThePress)
{
    open(ColPickerModeHLS, Colour::hls(Angle::degrees(30), 0.5, 1));
    picker->m_value2.SetFocus();
    picker->m_value2.SetWindowText(L"20");
    user.click(onRing(120));
    EXPECT_EQ(lightness(), 20);
    EXPECT_NEAR(picker->GetColour().h_hls().degrees(), 120, 0.7);
}

TEST_F(PickerKeys, AHostThatShowsAMessageWhenTheFocusComesLeavesNoDragBehind)
{
    open(ColPickerModeHLS, Colour::hls(Angle::degrees(30), 0.5, 1));
    picker->m_value2.SetFocus();
    picker->m_value2.SetWindowText(L"20");
    bool asked = false;
    picker->onChange = [&](bool) {
        if (!std::exchange(asked, true))
            picker->MessageBox(L"Really?", L"Host");
    };
    user.press(onRing(120))
        .release()
        .waitFor("the message", [] { return shownWindow(L"Host") != nullptr; })
        .key(VK_RETURN)
        .waitFor("its end", [] { return shownWindow(L"Host") == nullptr; });
    EXPECT_TRUE(asked);
    EXPECT_EQ(picker->m_drag, Picker::Drag::None);
    EXPECT_NE(::GetCapture(), picker->m_hWnd);
    EXPECT_NEAR(picker->GetColour().h_hls().degrees(), 30, 1e-6) << "the press is over with the message";
}

TEST_F(PickerKeys, TheFocusMarkIsShownAndLeavesNoTrace)
{
    open();
    picker->GetDlgItem(IDOK)->SetFocus();
    picker->UpdateWindow();
    const CRect wheel = picker->m_wheelRect;
    const Picture without = Picture::ofClient(picker->m_hWnd);
    for (CWnd* const stop : {&ring(), &triangle()}) {
        stop->SetFocus();
        picker->UpdateWindow();
        const Picture with = Picture::ofClient(picker->m_hWnd);
        EXPECT_GT(differences(without, with, wheel), 100);
        picker->InvalidateRect(&wheel, FALSE); // once more on what is there
        picker->UpdateWindow();
        EXPECT_EQ(differences(with, Picture::ofClient(picker->m_hWnd), wheel), 0);
        user.key(VK_HOME).key(VK_END).key(VK_LEFT, 30);
        picker->SetColour(picker.get(), kOrange, true);
        picker->UpdateWindow();
        EXPECT_EQ(differences(with, Picture::ofClient(picker->m_hWnd), wheel), 0) << "markers leave no trace";
        picker->GetDlgItem(IDOK)->SetFocus();
        picker->UpdateWindow();
        EXPECT_EQ(differences(without, Picture::ofClient(picker->m_hWnd), wheel), 0);
    }
}

TEST_F(PickerKeys, DuringADragKeysDoNothing)
{
    open(ColPickerModeHLS);
    user.press(onRing(100)).key(VK_END).then([this] { EXPECT_NEAR(hue(), 100, 1); });
    EXPECT_EQ(picker->told, (Told{false, true}));
}

// Swatches

TEST_F(PickerKeys, SpaceTakesASwatchAndInsertKeepsTheColour)
{
    openSwatches();
    swatches().SetFocus();
    user.key(VK_RIGHT, 2).key(VK_DOWN).key(VK_SPACE);
    EXPECT_EQ(host->GetColour().colorref(), host->custom[11]);
    EXPECT_EQ(host->told, (Told{true}));
    user.key(VK_HOME).key(VK_INSERT);
    EXPECT_EQ(host->custom[0], host->custom[11]);
    host->UpdateWindow();
    EXPECT_EQ(Picture::ofClient(host->m_hWnd).at(host->m_swatches[0].CenterPoint()), host->custom[11]);
    EXPECT_EQ(host->told, (Told{true})) << "the colour is the same";
    user.key(VK_END).key(VK_SPACE);
    EXPECT_EQ(host->GetColour().colorref(), host->custom[17]);
}

TEST_F(PickerKeys, TheSwatchWithTheMarkIsTheOneThatWasClicked)
{
    openSwatches();
    const CRect area = host->m_customRect;
    const Picture without = Picture::ofClient(host->m_hWnd);
    user.click(Spot{*host, host->m_swatches[4].CenterPoint()});
    EXPECT_EQ(focus(), kSwatchStop);
    EXPECT_EQ(host->GetColour().colorref(), host->custom[4]);
    host->UpdateWindow();
    EXPECT_GT(differences(without, Picture::ofClient(host->m_hWnd), host->m_swatches[4]), 10);
    user.key(VK_RIGHT);
    host->UpdateWindow();
    const Picture next = Picture::ofClient(host->m_hWnd);
    EXPECT_EQ(differences(without, next, host->m_swatches[4]), 0) << "the mark has gone on";
    EXPECT_GT(differences(without, next, host->m_swatches[5]), 10);
    host->GetDlgItem(IDOK)->SetFocus();
    host->UpdateWindow();
    EXPECT_EQ(differences(without, Picture::ofClient(host->m_hWnd), area), 0);
}

// Accessibility

TEST_F(PickerKeys, AccessibilitySeesTwoSlidersWithNamesAndValues)
{
    openInTriangle(0.25, 0.5);
    const AccessibleView hue(ring());
    const AccessibleView shade(triangle());
    ASSERT_TRUE(hue && shade);
    EXPECT_EQ(hue.role(), ROLE_SYSTEM_SLIDER);
    EXPECT_EQ(hue.name(), L"Hue");
    EXPECT_EQ(hue.value(), L"200");
    EXPECT_EQ(shade.role(), ROLE_SYSTEM_SLIDER);
    EXPECT_EQ(shade.name(), L"Lightness and saturation");
    EXPECT_EQ(shade.value(), L"lightness 25, saturation 50");
    EXPECT_TRUE(shade.state() & STATE_SYSTEM_FOCUSED);
    EXPECT_FALSE(hue.state() & STATE_SYSTEM_FOCUSED);
    EXPECT_TRUE(hue.state() & STATE_SYSTEM_FOCUSABLE);
    CRect wheel = picker->m_wheelRect;
    picker->ClientToScreen(&wheel);
    EXPECT_EQ(hue.place(), wheel);
    CRect inner = picker->m_wheelRect;
    const ovoui::frame::Box triangleBox =
        ovoui::colour::triangleIn(ovoui::colour::ringIn({inner.left, inner.top, inner.right, inner.bottom}))
            .rect();
    inner = CRect(triangleBox.left, triangleBox.top, triangleBox.right, triangleBox.bottom);
    picker->ClientToScreen(&inner);
    EXPECT_EQ(shade.place(), inner);
    user.key(VK_HOME);
    EXPECT_EQ(shade.value(), L"lightness 0, saturation 50");
    picker->DestroyWindow();
    BSTR text = nullptr;
    EXPECT_EQ(hue->get_accValue(AccessibleView::numbered(CHILDID_SELF), &text), CO_E_OBJNOTCONNECTED);
}

TEST_F(PickerKeys, AccessibilityHearsOfChangedValues)
{
    openOnRing(30);
    const HWND ringStop = ring();
    const HWND shadeStop = triangle();
    WinEvents changes(EVENT_OBJECT_VALUECHANGE);
    user.key(VK_RIGHT);
    EXPECT_EQ(changes.of(ringStop), 1);
    EXPECT_EQ(changes.of(shadeStop), 0) << "the shade is the same";
    picker->SetColour(picker.get(), Colour::hlsa(Angle::degrees(31), 0.5, 0.5, 0.75), true);
    EXPECT_EQ(changes.of(ringStop), 1);
    EXPECT_EQ(changes.of(shadeStop), 1) << "by code, too";
}

TEST_F(PickerKeys, AccessibilitySeesAListOfSwatches)
{
    openSwatches();
    host->custom[2] = RGB(255, 0, 0);
    swatches().SetFocus();
    const AccessibleView list(swatches());
    ASSERT_TRUE(list);
    EXPECT_EQ(list.role(), ROLE_SYSTEM_LIST);
    EXPECT_EQ(list.name(), L"Custom colours");
    EXPECT_EQ(list.childCount(), 18);
    EXPECT_EQ(list.role(3), ROLE_SYSTEM_LISTITEM);
    EXPECT_EQ(list.name(3), L"red");
    EXPECT_EQ(list.name(1), L"#00FF4D");
    EXPECT_EQ(list.focused(), 1);
    WinEvents moves(EVENT_OBJECT_FOCUS);
    user.key(VK_RIGHT, 2);
    EXPECT_EQ(list.focused(), 3);
    EXPECT_EQ(moves.of(swatches(), 2), 1);
    EXPECT_EQ(moves.of(swatches(), 3), 1);
    EXPECT_TRUE(list.state(3) & STATE_SYSTEM_FOCUSED);
    EXPECT_FALSE(list.state(1) & STATE_SYSTEM_FOCUSED);
    CRect third = host->m_swatches[2];
    host->ClientToScreen(&third);
    EXPECT_EQ(list.place(3), third);
    EXPECT_EQ(list.action(3), L"Take");
    EXPECT_EQ(list->accDoDefaultAction(AccessibleView::numbered(3)), S_OK);
    EXPECT_NE(host->GetColour().colorref(), RGB(255, 0, 0)) << "the client has its answer first";
    user.waitFor("the colour", [this] { return host->GetColour().colorref() == RGB(255, 0, 0); });
}

// The host's code may do anything.

TEST_F(PickerKeys, TheHostMayCloseOrDeleteTheDialogInEveryKey)
{
    const auto press = [](CWnd& stop, WPARAM key) { stop.SendMessage(WM_KEYDOWN, key); };
    const std::function<void()> deeds[] = {[&] { press(ring(), VK_RIGHT); },
                                           [&] { press(triangle(), VK_UP); }};
    for (const auto& deed : deeds) {
        open();
        picker->onChange = [this](bool) { picker->DestroyWindow(); };
        deed();
        EXPECT_FALSE(picker->m_hWnd);
        open();
        picker->onChange = [this](bool) {
            picker->onChange = nullptr;
            picker.reset();
        };
        deed();
        EXPECT_FALSE(picker);
    }
    for (const WPARAM key : {VK_SPACE, VK_INSERT}) {
        openSwatches();
        host->onCustom = [this] {
            host->onCustom = nullptr;
            host->DestroyWindow();
        };
        press(swatches(), key);
        EXPECT_FALSE(host->m_hWnd);
        EXPECT_TRUE(host->told.empty());
    }
}

TEST_F(PickerKeys, TheHostMayCloseTheDialogWhenTheFocusComes)
{
    open(ColPickerModeHLS);
    picker->m_value2.SetFocus();
    picker->m_value2.SetWindowText(L"20");
    picker->onChange = [this](bool) { picker->DestroyWindow(); };
    user.click(onRing(120));
    EXPECT_FALSE(picker->m_hWnd);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(PickerKeys, AnErrorOfTheHostIsShownAndTheKeysGoOn)
{
    openOnRing(30);
    picker->onChange = [](bool) { throw OvoError(L"No such colour"); };
    user.key(VK_RIGHT);
    ASSERT_EQ(TestApp::instance().boxes().size(), 1u);
    EXPECT_EQ(TestApp::instance().boxes()[0].text, L"No such colour");
    picker->onChange = nullptr;
    user.key(VK_RIGHT);
    EXPECT_EQ(hue(), 32);
}
