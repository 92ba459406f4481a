// The round and the wheel slider with real input: what the parent is told, and what is drawn.
#include <testkit/Desktop.h>
#include <testkit/GdiCounter.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

#include <ovoui/sliders/RoundSlider.h>
#include <ovoui/sliders/WheelSlider.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>

using namespace ovo::testkit;

namespace
{

struct Told
{
    UINT message;
    UINT code;
    int angle; ///< as a signed number
    LPARAM from;

    friend bool operator==(const Told&, const Told&) = default;
};

void PrintTo(const Told& told, std::ostream* out)
{
    *out << "message " << told.message << " code " << told.code << " angle " << told.angle;
}

/// Takes down scroll messages, and does something in them.
class ScrollParent : public RecordingParent
{
public:
    ScrollParent()
        : RecordingParent(CSize(340, 340))
    {
    }
    std::vector<Told> told;
    std::function<void(const Told&)> react;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_HSCROLL || message == WM_VSCROLL) {
            told.push_back({message, LOWORD(wParam), static_cast<short>(HIWORD(wParam)), lParam});
            if (react)
                react(Told(told.back()));
        }
        return RecordingParent::WindowProc(message, wParam, lParam);
    }
};

/// 204 pixels long, so that the cylinder is 200 pixels from end to end.
constexpr RECT kSideways{10, 10, 214, 50};
constexpr RECT kUpright{250, 10, 290, 214};

class AngleSlider : public ::testing::Test
{
protected:
    AngleSlider()
    {
        round->Create(WS_CHILD | WS_VISIBLE, kSideways, &parent, 5);
        wheel->Create(WS_CHILD | WS_VISIBLE, kUpright, &parent, 6);
        present(parent);
    }

    /// A place of the round slider, counted from the cylinder's left end.
    Spot onRound(int x) const { return Spot{*round, CPoint(2 + x, 20)}; }
    /// A place of the wheel, counted from the top.
    Spot onWheel(int y) const { return Spot{*wheel, CPoint(20, 2 + y)}; }

    LPARAM roundWnd() const { return reinterpret_cast<LPARAM>(round->m_hWnd); }
    LPARAM wheelWnd() const { return reinterpret_cast<LPARAM>(wheel->m_hWnd); }

    std::vector<Told> released() const
    {
        std::vector<Told> ends;
        for (const Told& told : parent.told)
            if (told.code == SB_THUMBPOSITION)
                ends.push_back(told);
        return ends;
    }

    ScrollParent parent;
    std::unique_ptr<CRoundSlider> round = std::make_unique<CRoundSlider>(false);
    std::unique_ptr<CWheelSlider> wheel = std::make_unique<CWheelSlider>(false);
    Robot user;
};

int degrees(double sine)
{
    return static_cast<int>(std::lround(std::asin(sine) * 180 / 3.14159265358979));
}

} // namespace

TEST_F(AngleSlider, TheWindowsAreMadeAsStated)
{
    CString text;
    round->GetWindowText(text);
    EXPECT_EQ(text, L"RoundSlider");
    wheel->GetWindowText(text);
    EXPECT_EQ(text, L"WheelSlider");
    EXPECT_EQ(::GetClassLongPtrW(round->m_hWnd, GCL_STYLE), CS_DBLCLKS);
    EXPECT_EQ(::GetClassLongPtrW(wheel->m_hWnd, GCLP_HBRBACKGROUND), COLOR_BTNFACE + 1);
    EXPECT_EQ(::GetClassLongPtrW(wheel->m_hWnd, GCLP_HCURSOR),
              reinterpret_cast<LONG_PTR>(::LoadCursorW(nullptr, IDC_ARROW)));
    EXPECT_EQ(round->GetPos(), 0);
}

TEST_F(AngleSlider, TheyAreUpToThreeInchesLong)
{
    EXPECT_EQ(CRoundSlider::MaxWidth(nullptr), 288);
    EXPECT_EQ(CWheelSlider::MaxHeight(nullptr), 288);
    CClientDC dc(&parent);
    EXPECT_EQ(CRoundSlider::MaxWidth(&dc), 3 * dc.GetDeviceCaps(LOGPIXELSX));
    EXPECT_EQ(CWheelSlider::MaxHeight(&dc), 3 * dc.GetDeviceCaps(LOGPIXELSY));
}

TEST_F(AngleSlider, SettingThePositionSendsNoNotification)
{
    round->SetPos(123.5);
    wheel->SetPos(-500);
    EXPECT_EQ(round->GetPos(), 123.5);
    EXPECT_EQ(wheel->GetPos(), -500) << "only the user is limited";
    EXPECT_TRUE(parent.told.empty());
    CRoundSlider withoutWindow(false);
    withoutWindow.SetPos(7);
    EXPECT_EQ(withoutWindow.GetPos(), 7);
}

TEST_F(AngleSlider, ADragTurnsByTheAngleThatThePointerPasses)
{
    user.drag(onRound(100), onRound(50));
    ASSERT_FALSE(parent.told.empty());
    for (size_t i = 0; i + 1 < parent.told.size(); ++i) {
        EXPECT_EQ(parent.told[i].message, static_cast<UINT>(WM_HSCROLL));
        EXPECT_EQ(parent.told[i].code, static_cast<UINT>(SB_THUMBTRACK));
    }
    EXPECT_EQ(parent.told.back(), (Told{WM_HSCROLL, SB_THUMBPOSITION, 30, roundWnd()}));
    EXPECT_NEAR(round->GetPos(), 30, 1e-9);

    parent.told.clear();
    user.drag(onWheel(100), onWheel(150));
    EXPECT_EQ(parent.told.back(), (Told{WM_VSCROLL, SB_THUMBPOSITION, -30, wheelWnd()}));
    EXPECT_NEAR(wheel->GetPos(), -30, 1e-9);
}

TEST_F(AngleSlider, WhileItIsDraggedThePositionStays)
{
    round->SetPos(10);
    user.press(onRound(100))
        .moveBy(-50, 0)
        .waitFor("the angle", [&] { return !parent.told.empty() && parent.told.back().angle == 40; })
        .then([&] { EXPECT_EQ(round->GetPos(), 10); });
}

TEST_F(AngleSlider, BeyondTheEndsItIsARightAngle)
{
    user.press(onRound(100))
        .moveBy(-108, 0)
        .waitFor("the end", [&] { return !parent.told.empty() && parent.told.back().angle == 90; })
        .moveBy(0, 60)
        .release();
    EXPECT_EQ(round->GetPos(), 90);
    user.press(onRound(100)).moveBy(200, 0).release();
    EXPECT_EQ(round->GetPos(), 0);
}

TEST_F(AngleSlider, AClickNudgesByAThird)
{
    // The pointer rests before the press: a move in between would make it a drag.
    user.moveTo(onRound(50)).click(onRound(50));
    EXPECT_EQ(parent.told, (std::vector<Told>{{WM_HSCROLL, SB_THUMBPOSITION, 10, roundWnd()}}));
    EXPECT_NEAR(round->GetPos(), 10, 1e-9);
    user.moveTo(onRound(150)).click(onRound(150));
    EXPECT_NEAR(round->GetPos(), 0, 1e-9);
}

TEST_F(AngleSlider, ADoubleClickIsTwoClicks)
{
    user.moveTo(onRound(50)).doubleClick(onRound(50));
    EXPECT_EQ(released().size(), 2u);
    EXPECT_NEAR(round->GetPos(), 20, 1e-9);
}

TEST_F(AngleSlider, ReversedItTurnsTheOtherWay)
{
    CRoundSlider reversedRound(true);
    reversedRound.Create(WS_CHILD | WS_VISIBLE, CRect(10, 60, 214, 100), &parent, 7);
    CWheelSlider reversedWheel(true);
    reversedWheel.Create(WS_CHILD | WS_VISIBLE, CRect(295, 10, 335, 214), &parent, 8);
    user.drag(Spot{reversedRound, CPoint(102, 20)}, Spot{reversedRound, CPoint(52, 20)});
    EXPECT_NEAR(reversedRound.GetPos(), -30, 1e-9);
    user.drag(Spot{reversedWheel, CPoint(20, 102)}, Spot{reversedWheel, CPoint(20, 52)});
    EXPECT_NEAR(reversedWheel.GetPos(), -30, 1e-9);
}

TEST_F(AngleSlider, TheWheelNeverTellsOfMoreThanARightAngle)
{
    wheel->SetPos(80);
    user.press(onWheel(150)).moveBy(0, -148).moveBy(0, 40).release();
    for (const Told& told : parent.told)
        EXPECT_LE(std::abs(told.angle), 90);
    wheel->SetPos(85);
    parent.told.clear();
    user.moveTo(onWheel(20)).click(onWheel(20));
    EXPECT_EQ(parent.told, (std::vector<Told>{{WM_VSCROLL, SB_THUMBPOSITION, 90, wheelWnd()}}));
}

TEST_F(AngleSlider, AnglesFarAwayAreCutTo16Bits)
{
    for (const int distant : {40000, -40000}) {
        round->SetPos(distant);
        parent.told.clear();
        user.drag(onRound(100), onRound(50));
        EXPECT_NEAR(round->GetPos(), distant + 30, 1e-6);
        EXPECT_EQ(parent.told.back().angle, static_cast<short>(distant + 30));
    }
}

TEST_F(AngleSlider, LosingTheCaptureEndsTheDragWithoutAWord)
{
    round->SetPos(10);
    const Picture before = Picture::ofClient(round->m_hWnd);
    user.press(onRound(100))
        .moveBy(-50, 0)
        .then([&] {
            ::ReleaseCapture();
            parent.told.clear();
        })
        .moveBy(-10, 0)
        .release();
    EXPECT_TRUE(parent.told.empty());
    EXPECT_EQ(round->GetPos(), 10);
    EXPECT_EQ(Picture::ofClient(round->m_hWnd).differences(before), 0) << "the committed angle shows again";
}

TEST_F(AngleSlider, AWindowThatGoesInADragLeavesNoneToTheNext)
{
    const auto send = [this](UINT message, int x) { round->SendMessage(message, 0, MAKELPARAM(2 + x, 20)); };
    round->SetPos(10);
    send(WM_LBUTTONDOWN, 100);
    send(WM_MOUSEMOVE, 50);
    ASSERT_EQ(parent.told.size(), 1u);
    round->DestroyWindow(); // as by Escape in a dialog
    parent.told.clear();
    round->Create(WS_CHILD | WS_VISIBLE, kSideways, &parent, 5);
    send(WM_MOUSEMOVE, 150);
    send(WM_LBUTTONUP, 150);
    EXPECT_TRUE(parent.told.empty());
    EXPECT_EQ(round->GetPos(), 10);
}

TEST_F(AngleSlider, SetPosDuringADragShowsWhenTheDragIsOver)
{
    user.press(onRound(100)).moveBy(-50, 0).then([&] {
        const Picture dragged = Picture::ofClient(*round);
        round->SetPos(200);
        EXPECT_EQ(Picture::ofClient(*round).differences(dragged), 0) << "the drag's angle is shown";
        EXPECT_EQ(round->GetPos(), 200);
        ::ReleaseCapture();
        EXPECT_GT(Picture::ofClient(*round).differences(dragged), 0);
    });
    EXPECT_EQ(round->GetPos(), 200);

    user.press(onRound(100)).then([&] { round->SetPos(10); }).moveBy(-50, 0).release();
    EXPECT_NEAR(round->GetPos(), 230, 1e-9) << "the drag goes on from where it began";
}

TEST_F(AngleSlider, DisabledTheyHearNothing)
{
    round->EnableWindow(FALSE);
    wheel->EnableWindow(FALSE);
    user.drag(onRound(100), onRound(50)).click(onRound(50)).drag(onWheel(100), onWheel(50));
    EXPECT_TRUE(parent.told.empty());
    EXPECT_EQ(round->GetPos(), 0);
    EXPECT_EQ(wheel->GetPos(), 0);
}

TEST_F(AngleSlider, AParentThatSetsNothingKeepsWhatTheUserTurned)
{
    user.drag(onRound(100), onRound(50));
    EXPECT_NEAR(round->GetPos(), 30, 1e-9);
    user.drag(onRound(100), onRound(50));
    EXPECT_NEAR(round->GetPos(), 60, 1e-9) << "the next drag goes on from there";
}

TEST_F(AngleSlider, TheParentSetsWhatItAccepts)
{
    parent.react = [&](const Told& told) {
        if (told.code == SB_THUMBPOSITION)
            round->SetPos(told.angle / 15 * 15);
    };
    user.drag(onRound(100), onRound(40));
    EXPECT_EQ(round->GetPos(), degrees(0.6) / 15 * 15);
}

TEST_F(AngleSlider, TheReleaseItselfPaintsNothing)
{
    user.press(onRound(50));
    round->UpdateWindow();
    round->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(52, 20));
    round->ValidateRect(nullptr);
    round->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(52, 20));
    EXPECT_FALSE(round->GetUpdateRect(nullptr));
    round->SetPos(round->GetPos());
    EXPECT_TRUE(round->GetUpdateRect(nullptr));
}

TEST_F(AngleSlider, ADragPaintsItOnceAStepAndErasesNothing)
{
    round->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(102, 20));
    round->ValidateRect(nullptr);
    round->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(102, 20));
    EXPECT_FALSE(round->GetUpdateRect(nullptr)) << "no change";
    round->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(90, 20));
    CRect dirty;
    EXPECT_TRUE(round->GetUpdateRect(&dirty, FALSE));
    CRect client;
    round->GetClientRect(&client);
    EXPECT_EQ(dirty, client);
    const Picture before = Picture::ofWindow(parent.m_hWnd);
    CClientDC dc(round.get());
    EXPECT_TRUE(round->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC)));
    EXPECT_EQ(Picture::ofWindow(parent.m_hWnd).differences(before), 0) << "erasing draws nothing";
    round->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(90, 20));
}

TEST_F(AngleSlider, TheParentMayDestroyItWhenItIsTold)
{
    for (const UINT code : {SB_THUMBTRACK, SB_THUMBPOSITION})
        for (const bool deletes : {false, true}) {
            auto slider = std::make_unique<CRoundSlider>(false);
            slider->Create(WS_CHILD | WS_VISIBLE, CRect(10, 110, 214, 150), &parent, 9);
            parent.react = [&](const Told& told) {
                if (told.code != code || !slider || !slider->m_hWnd)
                    return;
                if (deletes)
                    slider.reset();
                else
                    slider->DestroyWindow();
            };
            user.drag(Spot{*slider, CPoint(100, 20)}, Spot{*slider, CPoint(60, 20)});
            EXPECT_TRUE(!slider || !slider->m_hWnd);
        }
}

TEST_F(AngleSlider, WhatTheParentThrowsLeavesItUsable)
{
    parent.react = [](const Told&) { throw 7; };
    round->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(102, 20));
    EXPECT_THROW(round->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(52, 20)), int);
    parent.react = nullptr;
    round->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(52, 20));
    EXPECT_NEAR(round->GetPos(), 30, 1e-9);
    EXPECT_NE(::GetCapture(), round->m_hWnd);
}

// Drawing

TEST_F(AngleSlider, TheAngleIsPrintedInTheMiddle)
{
    const Picture zero = Picture::ofClient(round->m_hWnd);
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    const COLORREF text = ::GetSysColor(COLOR_WINDOWTEXT);
    const CRect middle(92, 10, 112, 30);
    EXPECT_GT(zero.count(text, 0, middle), 3);
    EXPECT_GT(zero.count(window, 0, middle), 20);

    // The same digits look the same, whatever the turn behind them.
    const auto digits = [&](double degrees) {
        round->SetPos(degrees);
        return Picture::ofClient(round->m_hWnd);
    };
    const auto sameText = [&](const Picture& one, const Picture& two) {
        for (int y = 8; y < 32; ++y)
            for (int x = 80; x < 124; ++x)
                if ((one.at(x, y) == text) != (two.at(x, y) == text))
                    return false;
        return true;
    };
    EXPECT_TRUE(sameText(digits(360), zero));
    EXPECT_TRUE(sameText(digits(-1), digits(359)));
    EXPECT_TRUE(sameText(digits(12.4), digits(12)));
    EXPECT_FALSE(sameText(digits(12.5), digits(12)));
    EXPECT_FALSE(sameText(digits(725), digits(5))) << "one turn only: 365";
}

TEST_F(AngleSlider, TheNumberStandsInABoxAPixelWiderOnEitherSide)
{
    round->SetPos(47); // the quarters are far from the middle
    const Picture picture = Picture::ofClient(round->m_hWnd);
    CClientDC dc(round.get());
    CGdiObject* const old = dc.SelectStockObject(DEFAULT_GUI_FONT);
    const CSize size = dc.GetTextExtent(L"47", 2);
    dc.SelectObject(static_cast<CFont*>(old));
    const CRect box(CPoint((200 - size.cx) / 2 + 2 - 1, (36 - size.cy) / 2 + 2), CSize(size.cx + 2, size.cy));
    const COLORREF ground = ::GetSysColor(COLOR_WINDOW);
    for (const int x : {box.left, box.right - 1L})
        for (int y = box.top; y < box.bottom; ++y)
            EXPECT_EQ(picture.at(x, y), ground) << x << ", " << y;
    for (int x = box.left; x < box.right; ++x) {
        EXPECT_NE(picture.at(x, box.top - 1), ground) << "above, at " << x;
        EXPECT_NE(picture.at(x, box.bottom), ground) << "below, at " << x;
    }
    for (int y = box.top; y < box.bottom; ++y) {
        EXPECT_NE(picture.at(box.left - 1, y), ground) << "to the left";
        EXPECT_NE(picture.at(box.right, y), ground) << "to the right";
    }
}

TEST_F(AngleSlider, ADisabledOneIsGreyWithoutANumber)
{
    round->SetPos(12);
    round->EnableWindow(FALSE);
    const Picture picture = Picture::ofClient(round->m_hWnd);
    EXPECT_EQ(picture.count(::GetSysColor(COLOR_WINDOW), 0, CRect(3, 3, 201, 37)), 0) << "no bright bands";
    EXPECT_EQ(picture.count(::GetSysColor(COLOR_WINDOWTEXT), 0, CRect(80, 8, 124, 32)), 0);
    for (int x = 2; x < 202; ++x)
        EXPECT_GE(GetGValue(picture.at(x, 20)), GetGValue(::GetSysColor(COLOR_GRAYTEXT))) << "at " << x;
    round->SetPos(17); // a rib on
    EXPECT_EQ(Picture::ofClient(round->m_hWnd).differences(picture), 0) << "every rib is like the others";
    round->EnableWindow();
    EXPECT_GT(Picture::ofClient(round->m_hWnd).differences(picture), 0);
}

TEST_F(AngleSlider, NarrowOnesKeepTheirEdges)
{
    for (const int width : {1, 4, 5, 8, 12, 20}) {
        round->MoveWindow(10, 10, width, 14);
        round->SetPos(-40000);
        const Picture picture = Picture::ofClient(round->m_hWnd);
        for (int y = 0; y < 14; ++y) {
            EXPECT_THAT(picture.at(0, y), IsColour(::GetSysColor(COLOR_BTNFACE))) << width;
            EXPECT_THAT(picture.at(width - 1, y), IsColour(::GetSysColor(COLOR_BTNFACE))) << width;
        }
    }
}

TEST_F(AngleSlider, ItIsLightInTheMiddleAndDarkAtTheEdges)
{
    wheel->SetPos(45); // with the quarters at 29 and 171
    const Picture picture = Picture::ofClient(wheel->m_hWnd);
    const auto brightness = [&](int around) { // of a strip and its ribs
        int sum = 0;
        for (int y = around - 4; y <= around + 4; ++y)
            sum += GetGValue(picture.at(20, y));
        return sum;
    };
    EXPECT_GT(brightness(104), brightness(60));
    EXPECT_GT(brightness(60), brightness(10));
    EXPECT_GT(brightness(104), brightness(144));
    EXPECT_GT(brightness(144), brightness(192));
    for (int y = 2; y < 202; ++y)
        EXPECT_EQ(picture.at(3, y), picture.at(36, y)) << "level lines";
}

TEST_F(AngleSlider, AnEtchedEdgeGoesRoundTheCylinder)
{
    CRect client;
    round->GetClientRect(&client);
    const Picture seen = Picture::ofClient(*round);
    Picture expected(client.Width(), client.Height(), ::GetSysColor(COLOR_BTNFACE));
    CRect edge = client;
    edge.DeflateRect(1, 1);
    ::DrawEdge(expected.dc(), &edge, EDGE_ETCHED, BF_RECT);
    for (int x = 0; x < client.Width(); ++x)
        for (const int y : {0, 1, client.Height() - 2, client.Height() - 1})
            EXPECT_EQ(seen.at(x, y), expected.at(x, y)) << x << ", " << y;
}

TEST_F(AngleSlider, QuartersAreBrightBands)
{
    wheel->SetPos(0); // a quarter in the middle, at 101
    const Picture picture = Picture::ofClient(*wheel);
    const COLORREF face = ::GetSysColor(COLOR_WINDOW);
    EXPECT_GT(picture.count(face, 0, CRect(5, 94, 36, 110)), 0);
    EXPECT_EQ(picture.count(face, 0, CRect(5, 40, 36, 80)), 0) << "between the quarters";
}

TEST_F(AngleSlider, TheSurfaceTurnsAsThePointerPullsIt)
{
    CRoundSlider reversedRound(true);
    reversedRound.Create(WS_CHILD | WS_VISIBLE, CRect(10, 60, 214, 100), &parent, 7);
    CWheelSlider reversedWheel(true);
    reversedWheel.Create(WS_CHILD | WS_VISIBLE, CRect(295, 10, 335, 214), &parent, 8);
    const struct
    {
        CAngleSlider* slider;
        bool sideways;
        bool nearFirstEnd; ///< where the quarter of 0 degrees is seen when the slider stands at 30
    } rows[] = {{round.get(), true, true},
                {wheel.get(), false, true},
                {&reversedRound, true, false},
                {&reversedWheel, false, false}};
    for (const auto& row : rows) {
        row.slider->SetPos(30);
        const Picture picture = Picture::ofClient(*row.slider);
        const auto bright = [&](int from, int to) {
            const CRect place = row.sideways ? CRect(from, 5, to, 36) : CRect(5, from, 36, to);
            return picture.count(::GetSysColor(COLOR_WINDOW), 0, place) > 0;
        };
        EXPECT_EQ(bright(46, 58), row.nearFirstEnd) << row.sideways;
        EXPECT_EQ(bright(146, 158), !row.nearFirstEnd) << row.sideways;
    }
}

TEST_F(AngleSlider, SystemColoursAreFollowedLightOrDark)
{
    constexpr int kColours[] = {COLOR_3DDKSHADOW, COLOR_3DLIGHT, COLOR_WINDOW, COLOR_WINDOWTEXT,
                                COLOR_BTNFACE};
    COLORREF before[std::size(kColours)];
    std::transform(std::begin(kColours), std::end(kColours), before, &::GetSysColor);
    constexpr COLORREF kDark[] = {RGB(10, 12, 14), RGB(90, 96, 110), RGB(30, 30, 34), RGB(240, 240, 230),
                                  RGB(50, 52, 56)};
    ::SetSysColors(std::size(kColours), kColours, kDark);
    round->SetPos(45);
    const Picture picture = Picture::ofClient(*round);
    ::SetSysColors(std::size(kColours), kColours, before);
    EXPECT_EQ(picture.at(0, 0), kDark[4]);
    EXPECT_GT(picture.count(kDark[3]), 3) << "the number";
    EXPECT_GT(picture.count(kDark[2]), 20) << "on its ground";
    for (int x = 4; x < 200; ++x) {
        const COLORREF colour = picture.at(x, 5);
        EXPECT_LE(GetRValue(colour), 90);
        EXPECT_LE(GetBValue(colour), 110) << "nothing is lighter than the light that was set";
    }
    EXPECT_GT(Picture::ofClient(*round).differences(picture), 1000);
}

TEST_F(AngleSlider, TurningMovesTheRibs)
{
    wheel->SetPos(0);
    const Picture zero = Picture::ofClient(wheel->m_hWnd);
    wheel->SetPos(2);
    EXPECT_GT(Picture::ofClient(wheel->m_hWnd).differences(zero), 500);
    wheel->SetPos(360);
    EXPECT_EQ(Picture::ofClient(wheel->m_hWnd).differences(zero), 0);
}

TEST_F(AngleSlider, ResizingPaintsAllOfIt)
{
    round->UpdateWindow();
    round->SetWindowPos(nullptr, 0, 0, 150, 40, SWP_NOMOVE | SWP_NOZORDER);
    const Picture resized = Picture::ofClient(round->m_hWnd);
    round->Invalidate();
    EXPECT_EQ(Picture::ofClient(round->m_hWnd).differences(resized), 0);
}

TEST_F(AngleSlider, PaintingLeavesNothingBehind)
{
    round->UpdateWindow();
    const GdiCounter objects;
    for (int turn = 0; turn < 1000; ++turn) {
        round->SetPos(turn);
        round->UpdateWindow();
    }
    EXPECT_EQ(objects.grown(), 0);
}
