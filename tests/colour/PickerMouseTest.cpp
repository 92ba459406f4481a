// The picker's ring, triangle, patch and swatches under the mouse.
#include "PickerScene.h"

#include <ovoui/colour/core/WheelGeometry.h>

#include <cmath>

using namespace ovo::testkit;

namespace
{

using Told = std::vector<bool>;

class PickerMouse : public PickerScene
{
protected:
    ovoui::colour::HueRing ring() const { return ring(picker->m_wheelRect); }
    static ovoui::colour::HueRing ring(const CRect& wheel)
    {
        return ovoui::colour::ringIn({wheel.left, wheel.top, wheel.right, wheel.bottom});
    }

    /// A point of the ring.
    CPoint hue(double degrees) const
    {
        const Vector<2> point = ring().marker(Angle::degrees(degrees));
        return {static_cast<int>(std::lround(point.x())), static_cast<int>(std::lround(point.y()))};
    }

    /// A point of the triangle.
    CPoint shade(double lightness, double saturation) const
    {
        const Vector<2> point = ovoui::colour::triangleIn(ring()).marker(lightness, saturation);
        return {static_cast<int>(std::lround(point.x())), static_cast<int>(std::lround(point.y()))};
    }

    Spot at(CPoint point) const { return Spot{*picker, point}; }
    Spot atHost(CPoint point) const { return Spot{*host, point}; }
    double hueNow() const { return picker->GetColour().h_hls().degrees(); }

    /// All but the last are false.
    static void expectDragTold(const Told& told)
    {
        ASSERT_FALSE(told.empty());
        for (std::size_t i = 0; i + 1 < told.size(); ++i)
            EXPECT_FALSE(told[i]) << i;
        EXPECT_TRUE(told.back());
    }
};

} // namespace

// The triangle

TEST_F(PickerMouse, APressInTheTrianglePicksLightnessAndSaturation)
{
    open(ColPickerModeHLS, Colour::hlsa(Angle::degrees(200), 0.5, 1, 0.25));
    user.press(at(shade(0.25, 0.5))).then([this] {
        EXPECT_EQ(picker->told, (Told{false}));
        EXPECT_EQ(::GetCapture(), picker->m_hWnd);
    });
    EXPECT_NEAR(picker->GetColour().l_hls(), 0.25, 0.01);
    EXPECT_NEAR(picker->GetColour().s_hls(), 0.5, 0.03);
    EXPECT_NEAR(hueNow(), 200, 1e-9) << "the hue stays";
    EXPECT_EQ(picker->GetColour().a(), 0.25) << "and so does alpha";
    EXPECT_EQ(picker->told, (Told{false, true})) << "the release told once, as final";
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(PickerMouse, ADragInTheTriangleFollowsThePointerAndIsFinalAtItsEnd)
{
    open();
    user.drag(at(shade(0.3, 0.5)), at(shade(0.7, 0.4)));
    EXPECT_NEAR(picker->GetColour().l_hls(), 0.7, 0.01);
    EXPECT_NEAR(picker->GetColour().s_hls(), 0.4, 0.03);
    EXPECT_GT(picker->told.size(), 3u);
    expectDragTold(picker->told);
}

TEST_F(PickerMouse, BeyondTheTriangleTheNearestSideCounts)
{
    open();
    user.press(at(shade(0.5, 0.5))).moveTo(at(shade(0.5, 0) + CPoint(0, 60))).then([this] {
        EXPECT_NEAR(picker->GetColour().s_hls(), 0, 1e-6);
        EXPECT_NEAR(picker->GetColour().l_hls(), 0.5, 0.01);
        EXPECT_NEAR(hueNow(), 30, 1e-9);
    });
    user.press(at(shade(0.5, 0.5))).moveTo(Spot{CPoint(2, 2)}).then([this] { // of the screen
        EXPECT_NEAR(picker->GetColour().s_hls(), 1, 1e-6);
        EXPECT_LE(picker->GetColour().l_hls(), 0.5 + 1e-9);
    });
    expectDragTold(Told(picker->told.end() - 2, picker->told.end()));
    EXPECT_EQ(::GetCapture(), nullptr) << "released outside of the window";
}

TEST_F(PickerMouse, ThreePixelsBesideTheTriangleStillCount)
{
    open();
    user.click(at(shade(0.5, 0) + CPoint(0, 3)));
    EXPECT_NEAR(picker->GetColour().s_hls(), 0, 1e-6);
    const std::size_t before = picker->told.size();
    user.click(at(shade(0.25, 0) + CPoint(0, 4)));
    EXPECT_EQ(picker->told.size(), before);
}

// The ring

TEST_F(PickerMouse, APressOnTheRingPicksTheHue)
{
    open(ColPickerModeRGB, Colour::hlsa(Angle::degrees(30), 0.25, 0.5, 0.75));
    user.click(at(hue(200)));
    EXPECT_NEAR(hueNow(), 200, 0.7);
    EXPECT_NEAR(picker->GetColour().l_hls(), 0.25, 1e-9);
    EXPECT_NEAR(picker->GetColour().s_hls(), 0.5, 1e-9);
    EXPECT_EQ(picker->GetColour().a(), 0.75);
    EXPECT_EQ(picker->told, (Told{false, true}));
}

TEST_F(PickerMouse, ADragRoundTheRingGoesThroughAllHuesAndAnywhere)
{
    open();
    std::vector<double> seen;
    const auto look = [&] { seen.push_back(hueNow()); };
    const CPoint centre = picker->centre();
    user.press(at(hue(0)))
        .moveTo(at(hue(90)))
        .then(look)
        .moveTo(at(hue(180)))
        .then(look)
        .moveTo(at({centre.x + 3 * picker->outer(), centre.y})) // far outside
        .then(look)
        .moveTo(at(centre + CPoint(-4, 0))) // near the centre, across it
        .then(look)
        .moveTo(at(hue(330)));
    ASSERT_EQ(seen.size(), 4u);
    EXPECT_NEAR(seen[0], 90, 0.7);
    EXPECT_NEAR(seen[1], 180, 0.7);
    EXPECT_NEAR(seen[2], 270, 0.7);
    EXPECT_NEAR(seen[3], 90, 3);
    EXPECT_NEAR(hueNow(), 330, 0.7);
    expectDragTold(picker->told);
}

TEST_F(PickerMouse, TheHueOfAGreyIsPickedThoughItLooksTheSame)
{
    open(ColPickerModeHLS, Colour::hlsa(Angle::degrees(0), 0.5, 0, 1));
    user.click(at(hue(120)));
    EXPECT_NEAR(hueNow(), 120, 0.7);
    EXPECT_EQ(picker->text(kValue1), std::to_wstring(std::lround(hueNow())));
    expectColour(picker->GetColour(), 0.5, 0.5, 0.5);
}

TEST_F(PickerMouse, ADoubleClickOnTheRingGivesThePureHue)
{
    open(ColPickerModeRGB, Colour::hls(Angle::degrees(30), 0.25, 0.5));
    user.doubleClick(at(hue(240)));
    EXPECT_NEAR(hueNow(), 240, 0.7);
    EXPECT_NEAR(picker->GetColour().l_hls(), 0.5, 1e-9);
    EXPECT_NEAR(picker->GetColour().s_hls(), 1, 1e-9);
    EXPECT_EQ(picker->told, (Told{false, true, true}));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(PickerMouse, OtherDoubleClicksDoNothingMore)
{
    openSwatches();
    const auto doubleClick = [this](CPoint point) { return host->DoLButtonDblClk(host.get(), 0, point); };
    EXPECT_TRUE(doubleClick(host->centre()));
    EXPECT_TRUE(doubleClick(host->m_patchRect.CenterPoint()));
    EXPECT_TRUE(doubleClick(host->m_customRect.CenterPoint()));
    EXPECT_FALSE(doubleClick({1, 1}));
    EXPECT_TRUE(host->told.empty());
}

TEST_F(PickerMouse, BesideEverythingMessagesAreTheWindows)
{
    open();
    EXPECT_FALSE(picker->DoLButtonDown(picker.get(), 0, {1, 1}));
    EXPECT_FALSE(picker->DoMouseMove(picker.get(), 0, picker->centre()));
    EXPECT_FALSE(picker->DoLButtonUp(picker.get(), 0, picker->centre()));
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_TRUE(picker->told.empty());
}

// The patch

TEST_F(PickerMouse, ThePatchIsDraggedToEverySwatch)
{
    openSwatches();
    const COLORREF orange = RGB(255, 128, 0);
    for (std::size_t i = 0; i < 18; ++i) {
        const COLORREF before = host->custom[i];
        ASSERT_NE(before, orange);
        user.drag(atHost(host->m_patchRect.CenterPoint()), atHost(host->m_swatches[i].CenterPoint()));
        EXPECT_EQ(host->custom[i], orange) << i;
        for (std::size_t other = i + 1; other < 18; ++other)
            EXPECT_NE(host->custom[other], orange);
    }
    EXPECT_TRUE(host->told.empty()) << "the colour is the same";
    host->UpdateWindow();
    const Picture shown = Picture::ofClient(host->m_hWnd);
    EXPECT_EQ(shown.at(host->m_swatches[17].CenterPoint()), orange);
}

TEST_F(PickerMouse, ThePatchDroppedElsewhereChangesNothing)
{
    openSwatches();
    const auto before = host->custom;
    user.drag(atHost(host->m_patchRect.CenterPoint()), atHost(host->centre()));
    user.drag(atHost(host->m_patchRect.CenterPoint()), Spot{CPoint(3, 3)});
    user.click(atHost(host->m_patchRect.CenterPoint()));
    EXPECT_EQ(host->custom, before);
    EXPECT_TRUE(host->told.empty());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(PickerMouse, TheCursorTellsWhereThePatchMayBeDropped)
{
    openSwatches();
    const HCURSOR arrow = ::LoadCursorW(nullptr, IDC_ARROW);
    const HCURSOR no = ::LoadCursorW(nullptr, IDC_NO);
    const LPCTSTR name = MAKEINTRESOURCE(kDragCursor);
    const HCURSOR drag = ::LoadCursorW(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
    ASSERT_TRUE(drag);
    const CPoint patch = host->m_patchRect.CenterPoint();
    const CPoint swatch = host->m_swatches[5].CenterPoint();
    ::SetCursor(arrow);
    EXPECT_TRUE(host->DoLButtonDown(host.get(), MK_LBUTTON, patch));
    EXPECT_EQ(::GetCursor(), drag);
    EXPECT_TRUE(host->DoMouseMove(host.get(), MK_LBUTTON, host->centre()));
    EXPECT_EQ(::GetCursor(), no);
    host->DoMouseMove(host.get(), MK_LBUTTON, swatch);
    EXPECT_EQ(::GetCursor(), drag);
    host->DoMouseMove(host.get(), MK_LBUTTON, {1, 1});
    host->DoMouseMove(host.get(), MK_LBUTTON, patch);
    EXPECT_EQ(::GetCursor(), drag);
    EXPECT_TRUE(host->DoLButtonUp(host.get(), 0, {1, 1}));
    EXPECT_EQ(::GetCursor(), arrow);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(PickerMouse, EscapeEndsADragAndLeavesTheDialogOpen)
{
    open();
    const auto orange = picker->GetColour();
    user.press(at(picker->m_patchRect.CenterPoint())).moveBy(5, 5).key(VK_ESCAPE).then([this] {
        EXPECT_EQ(picker->m_drag, Picker::Drag::None);
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_TRUE(picker->IsWindowVisible());
    });
    user.press(at(shade(0.25, 0.5))).key(VK_ESCAPE).moveTo(at(shade(0.75, 0.5)));
    EXPECT_NEAR(picker->GetColour().l_hls(), 0.25, 0.01) << "moves after it count no more";
    EXPECT_EQ(picker->told, (Told{false})) << "and the release tells nothing";
    EXPECT_EQ(picker->GetColour().a(), orange.a());
    EXPECT_TRUE(picker->m_hWnd);
}

// Swatches

TEST_F(PickerMouse, AClickOnASwatchTakesItsColour)
{
    openSwatches();
    user.click(atHost(host->m_swatches[11].CenterPoint()));
    EXPECT_EQ(host->GetColour().colorref(), host->custom[11]);
    EXPECT_EQ(host->told, (Told{true}));
}

TEST_F(PickerMouse, BetweenSwatchesAClickDoesNothingButIsConsumed)
{
    openSwatches();
    const CPoint between(host->m_swatches[0].right + 1, host->m_swatches[0].CenterPoint().y);
    int index = 99;
    EXPECT_FALSE(host->PtInCustomColour(between, index));
    EXPECT_EQ(index, 99);
    EXPECT_TRUE(host->DoLButtonDown(host.get(), MK_LBUTTON, between));
    EXPECT_TRUE(host->told.empty());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(PickerMouse, WithoutAnAreaThereAreNoSwatches)
{
    open();
    int index = 99;
    EXPECT_FALSE(picker->PtInCustomColour({0, 0}, index));
    EXPECT_EQ(index, 99);
}

// Interruptions

TEST_F(PickerMouse, LosingTheCaptureEndsEveryDrag)
{
    open();
    const HCURSOR arrow = ::LoadCursorW(nullptr, IDC_ARROW);
    for (const CPoint from : {shade(0.5, 0.5), hue(100), picker->m_patchRect.CenterPoint()}) {
        ::SetCursor(arrow);
        picker->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
        ASSERT_NE(picker->m_drag, Picker::Drag::None);
        picker->told.clear();
        ::SetCapture(picker->m_space);
        EXPECT_EQ(picker->m_drag, Picker::Drag::None);
        EXPECT_EQ(::GetCursor(), arrow);
        ::ReleaseCapture();
        EXPECT_FALSE(picker->DoMouseMove(picker.get(), MK_LBUTTON, hue(200)));
        EXPECT_FALSE(picker->DoLButtonUp(picker.get(), 0, hue(200)));
        EXPECT_TRUE(picker->told.empty());
    }
}

TEST_F(PickerMouse, AHostThatShowsAMessageDuringThePressLeavesNoDragBehind)
{
    open();
    picker->onChange = [this](bool) {
        picker->onChange = nullptr;
        picker->MessageBox(L"Really?", L"Host");
    };
    user.press(at(hue(100)))
        .release()
        .waitFor("the message", [] { return shownWindow(L"Host") != nullptr; })
        .key(VK_RETURN)
        .waitFor("its end", [] { return shownWindow(L"Host") == nullptr; });
    EXPECT_EQ(picker->m_drag, Picker::Drag::None);
    EXPECT_NE(::GetCapture(), picker->m_hWnd);
}

// The host's code may do anything.

TEST_F(PickerMouse, TheHostMayCloseTheDialogInEveryCall)
{
    const std::function<void()> deeds[] = {
        [this] {
            const CPoint p = shade(0.5, 0.5);
            picker->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(p.x, p.y));
        },
        [this] {
            const CPoint p = hue(50);
            picker->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(p.x, p.y));
        },
        [this] {
            picker->SendMessage(WM_HSCROLL, SB_THUMBPOSITION,
                                reinterpret_cast<LPARAM>(picker->m_slider1.m_hWnd));
        },
        [this] {
            picker->m_value1.SetWindowText(L"7");
            picker->DoKillfocusColpickerValues(picker.get());
        },
    };
    for (const auto& deed : deeds) {
        open();
        picker->onChange = [this](bool) { picker->DestroyWindow(); };
        deed();
        EXPECT_FALSE(picker->m_hWnd);
        EXPECT_EQ(::GetCapture(), nullptr);

        open();
        picker->onChange = [this](bool) {
            picker->onChange = nullptr;
            picker.reset();
        };
        deed();
        EXPECT_FALSE(picker);
        EXPECT_EQ(::GetCapture(), nullptr);
    }
}

TEST_F(PickerMouse, TheHostMayCloseTheDialogAtTheReleaseAndInMoves)
{
    for (const bool release : {false, true}) {
        open();
        const CPoint p = hue(50);
        picker->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(p.x, p.y));
        picker->onChange = [this](bool) {
            picker->onChange = nullptr;
            picker.reset();
        };
        picker->SendMessage(release ? WM_LBUTTONUP : WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(p.x, p.y));
        EXPECT_FALSE(picker);
        EXPECT_EQ(::GetCapture(), nullptr);
    }
}

TEST_F(PickerMouse, AnErrorOfTheHostEndsTheDragAndIsShown)
{
    open();
    const CPoint p = hue(50);
    picker->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(p.x, p.y));
    picker->onChange = [](bool) { throw OvoError(L"No such colour"); };
    picker->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(p.x, p.y));
    ASSERT_EQ(TestApp::instance().boxes().size(), 1u);
    EXPECT_EQ(TestApp::instance().boxes()[0].text, L"No such colour");
    EXPECT_EQ(picker->m_drag, Picker::Drag::None);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(PickerMouse, AnErrorOfTheHostInAMoveEndsTheDragBeforeItIsShown)
{
    open();
    const auto send = [this](UINT message, CPoint p) {
        picker->SendMessage(message, MK_LBUTTON, MAKELPARAM(p.x, p.y));
    };
    send(WM_LBUTTONDOWN, hue(50));
    ASSERT_EQ(::GetCapture(), picker->m_hWnd);
    picker->onChange = [](bool) { throw OvoError(L"No such colour"); };
    send(WM_MOUSEMOVE, hue(100));
    ASSERT_EQ(TestApp::instance().boxes().size(), 1u);
    EXPECT_EQ(picker->m_drag, Picker::Drag::None);
    EXPECT_EQ(::GetCapture(), nullptr);
    picker->told.clear();
    send(WM_MOUSEMOVE, hue(150));
    send(WM_LBUTTONUP, hue(150));
    EXPECT_TRUE(picker->told.empty()) << "the moves after it and the release count no more";
    EXPECT_NEAR(hueNow(), 100, 0.7);
}

TEST_F(PickerMouse, TheHostMayCloseTheDialogAndRaiseInAMove)
{
    std::size_t boxes = 0;
    for (const bool deletes : {false, true}) {
        open();
        const CPoint p = hue(50);
        picker->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(p.x, p.y));
        picker->onChange = [this, deletes](bool) {
            picker->onChange = nullptr;
            if (deletes)
                picker.reset();
            else
                picker->DestroyWindow();
            throw OvoError(L"No such colour");
        };
        picker->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(p.x, p.y + 1));
        EXPECT_EQ(TestApp::instance().boxes().size(), ++boxes);
        EXPECT_EQ(picker == nullptr, deletes);
        EXPECT_EQ(::GetCapture(), nullptr);
    }
}

TEST_F(PickerMouse, CustomColoursMayCloseTheDialog)
{
    for (const bool drop : {false, true}) {
        openSwatches();
        const CPoint patch = host->m_patchRect.CenterPoint();
        const CPoint swatch = host->m_swatches[3].CenterPoint();
        if (drop)
            host->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(patch.x, patch.y));
        host->onCustom = [this] {
            host->onCustom = nullptr;
            host->DestroyWindow();
        };
        host->SendMessage(drop ? WM_LBUTTONUP : WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(swatch.x, swatch.y));
        EXPECT_FALSE(host->m_hWnd);
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_TRUE(host->told.empty());
    }
}
