// The eyedropper and its magnifier.
#include "ColourControlsScene.h"

#include <testkit/Picture.h>

#include <ovoui/colour/ColourDropper.h>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

using namespace ovo::testkit;

namespace
{

class ColourDropper : public ColourControls
{
protected:
    void show()
    {
        parent.SetWindowPos(nullptr, 100, 80, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        dropper = std::make_unique<CColourDropper>();
        dropper->Create(L"From screen", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(20, 20, 120, 46), &parent,
                        7);
        sky.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(), &parent, 8);
        target.CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0, nullptr, brush), L"", WS_POPUP | WS_VISIBLE,
                        CRect(720, 200, 780, 260), nullptr, 0);
        present(parent);
        target.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        target.UpdateWindow();
    }
    ~ColourDropper() override { target.DestroyWindow(); }

    static Spot inTarget() { return Spot{CPoint(750, 230)}; }

    CBrush brush{kSky};
    std::unique_ptr<CColourDropper> dropper;
    CButton sky;
    CWnd target;
};

} // namespace

TEST_F(ColourDropper, TheColourUnderThePointerIsTakenOnRelease)
{
    show();
    user.press(Spot{*dropper}).then([&] { EXPECT_TRUE(dropper->IsPicking()); }).moveTo(inTarget()).then([&] {
        EXPECT_TRUE(parent.codes().empty()) << "not before";
    });
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kTaken}));
    EXPECT_EQ(dropper->TakenColour(), kSky);
    EXPECT_FALSE(dropper->IsPicking());
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(shownPopup(), nullptr);
    EXPECT_EQ(parent.log().count(BN_CLICKED), 0);
}

TEST_F(ColourDropper, AMessageThatIsShownWhenTheFocusComesLeavesNoPickingBehind)
{
    show();
    CEdit field;
    field.Create(WS_CHILD | WS_VISIBLE, CRect(20, 60, 120, 82), &parent, 9);
    field.SetFocus();
    bool asked = false;
    parent.onMessage = [&](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
        if (message == WM_COMMAND && HIWORD(wParam) == EN_KILLFOCUS && !std::exchange(asked, true))
            parent.MessageBox(L"Really?", L"Host");
        return std::nullopt;
    };
    user.press(Spot{*dropper})
        .release()
        .waitFor("the message", [] { return shownWindow(L"Host") != nullptr; })
        .key(VK_RETURN)
        .waitFor("its end", [] { return shownWindow(L"Host") == nullptr; });
    EXPECT_TRUE(asked);
    EXPECT_FALSE(dropper->IsPicking());
    EXPECT_NE(::GetCapture(), dropper->m_hWnd);
    EXPECT_TRUE(parent.codes().empty());
}

TEST_F(ColourDropper, TheMagnifierFollowsThePointerAndStaysOnTheScreen)
{
    show();
    const CRect screen(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    std::vector<CRect> seen;
    const auto look = [&] { seen.push_back(placeOf(shownPopup())); };
    user.press(Spot{*dropper})
        .moveTo(inTarget())
        .then(look)
        .moveTo(Spot{CPoint(760, 240)})
        .then(look)
        .moveTo(Spot{CPoint(5, 5)})
        .then(look)
        .moveTo(Spot{CPoint(screen.right - 3, 5)})
        .then(look)
        .moveTo(Spot{CPoint(5, screen.bottom - 3)})
        .then(look)
        .moveTo(Spot{CPoint(screen.right - 1, screen.bottom - 1)})
        .then(look)
        .key(VK_ESCAPE);
    ASSERT_EQ(seen.size(), 6u);
    EXPECT_EQ(seen[1].TopLeft() - seen[0].TopLeft(), CSize(10, 10));
    for (const CRect& place : seen) {
        CRect visible;
        visible.IntersectRect(&place, &screen);
        EXPECT_EQ(visible, place);
        EXPECT_FALSE(place.IsRectEmpty());
    }
}

TEST_F(ColourDropper, TheMagnifierShowsThePixelsEnlarged)
{
    show();
    user.press(Spot{*dropper})
        .moveTo(Spot{CPoint(720, 230)}) // the first column of the target
        .then([] {
            const HWND magnifier = shownPopup();
            ASSERT_NE(magnifier, nullptr);
            const Picture picture = Picture::ofWindow(magnifier);
            const int side = picture.width();
            const int pixels = picture.count(kSky, 2);
            EXPECT_GT(pixels, side * side * 4 / 10) << "the right half";
            EXPECT_LT(pixels, side * side * 7 / 10);
            EXPECT_EQ(picture.at(side * 3 / 4, side / 4), kSky);
            EXPECT_NE(picture.at(side / 4, side / 4), kSky);
        })
        .key(VK_ESCAPE);
}

TEST_F(ColourDropper, AClickPicksNothing)
{
    show();
    user.click(Spot{*dropper});
    EXPECT_TRUE(parent.codes().empty());
    EXPECT_FALSE(dropper->IsPicking());
    EXPECT_EQ(shownPopup(), nullptr);
}

TEST_F(ColourDropper, EscapeGivesUp)
{
    show();
    user.press(Spot{*dropper})
        .moveTo(inTarget())
        .then([] { EXPECT_NE(shownPopup(), nullptr); })
        .key(VK_ESCAPE)
        .then([&] {
            EXPECT_FALSE(dropper->IsPicking());
            EXPECT_EQ(shownPopup(), nullptr);
            EXPECT_EQ(::GetCapture(), nullptr);
        });
    EXPECT_TRUE(parent.codes().empty());
}

TEST_F(ColourDropper, LosingCaptureOrFocusGivesUp)
{
    show();
    const std::function<void()> interruptions[] = {
        [&] { ::SetCapture(parent); }, [&] { ::ReleaseCapture(); }, [&] { ::SetFocus(parent); },
        [&] { dropper->SendMessage(WM_CANCELMODE); }, [&] { dropper->DestroyWindow(); }};
    for (const auto& interrupt : interruptions) {
        user.press(Spot{*dropper}).moveTo(inTarget()).then([&] {
            ASSERT_TRUE(dropper->IsPicking());
            interrupt();
            EXPECT_FALSE(dropper->IsPicking());
            EXPECT_EQ(shownPopup(), nullptr);
            ::ReleaseCapture();
        });
        EXPECT_TRUE(parent.codes().empty());
    }
}

TEST_F(ColourDropper, WithoutAMouseArrowsMoveThePointer)
{
    show();
    dropper->SetFocus();
    ::SetCursorPos(700, 230);
    user.key(VK_SPACE);
    EXPECT_TRUE(dropper->IsPicking());
    EXPECT_NE(shownPopup(), nullptr);
    user.key(VK_RIGHT, 3);
    CPoint at;
    ::GetCursorPos(&at);
    EXPECT_EQ(at, CPoint(703, 230));
    for (const WORD key : {VK_RIGHT, VK_RIGHT, VK_RIGHT, VK_RIGHT, VK_UP})
        user.holding(VK_SHIFT).key(key);
    ::GetCursorPos(&at);
    EXPECT_EQ(at, CPoint(743, 220));
    EXPECT_TRUE(parent.codes().empty());
    user.key(VK_RETURN);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kTaken}));
    EXPECT_EQ(dropper->TakenColour(), kSky);
    EXPECT_FALSE(dropper->IsPicking());
    user.key(VK_RETURN).key(VK_ESCAPE);
    EXPECT_EQ(parent.codes().size(), 1u) << "given up";
    EXPECT_FALSE(dropper->IsPicking());
}

TEST_F(ColourDropper, DisabledItDoesNothing)
{
    show();
    dropper->EnableWindow(FALSE);
    user.drag(Spot{*dropper}, inTarget());
    EXPECT_TRUE(parent.codes().empty());
}

TEST_F(ColourDropper, TheParentMayDestroyOrDeleteItWhenItIsTold)
{
    for (const bool erase : {false, true}) {
        show();
        parent.onCode = [&](UINT) { erase ? dropper.reset() : static_cast<void>(dropper->DestroyWindow()); };
        user.drag(Spot{*dropper}, inTarget());
        EXPECT_TRUE(!dropper || !dropper->m_hWnd);
        EXPECT_EQ(::GetCapture(), nullptr);
        parent.onCode = nullptr;
        target.DestroyWindow();
        sky.DestroyWindow();
    }
}

TEST_F(ColourDropper, ItIsPressedWithACrossForAPointerWhileTheUserPicks)
{
    show();
    const auto isPressed = [this] { return (dropper->SendMessage(BM_GETSTATE) & BST_PUSHED) != 0; };
    user.press(Spot{*dropper}).then([&] { EXPECT_TRUE(isPressed()); }).moveTo(inTarget()).then([&] {
        EXPECT_TRUE(isPressed());
        EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, IDC_CROSS));
    });
    EXPECT_FALSE(isPressed());
    user.click(Spot{*dropper});
    EXPECT_FALSE(isPressed()) << "a click picks nothing";
    EXPECT_EQ(::GetCapture(), nullptr);
    dropper->SetFocus();
    user.key(VK_SPACE);
    EXPECT_TRUE(isPressed()) << "though the key has been let go of";
    user.key(VK_ESCAPE);
    EXPECT_FALSE(isPressed());
    EXPECT_EQ(parent.log().count(BN_CLICKED), 0);
}

TEST_F(ColourDropper, AKeyThatIsHeldBeginsAndNoMore)
{
    show();
    dropper->SetFocus();
    constexpr LPARAM kPressed = 0x00000001;
    constexpr LPARAM kHeld = 0x40000001;
    for (const WPARAM key : {VK_SPACE, VK_RETURN}) {
        dropper->SendMessage(WM_KEYDOWN, key, kPressed);
        dropper->SendMessage(WM_KEYDOWN, key, kHeld);
        EXPECT_TRUE(dropper->IsPicking()) << key;
        EXPECT_TRUE(parent.codes().empty()) << key;
        dropper->SendMessage(WM_KEYDOWN, VK_ESCAPE, kPressed);
    }
}

TEST_F(ColourDropper, AQuickSecondPressPicksToo)
{
    show();
    ::SetCursorPos(750, 230); // in the target
    const auto send = [this](UINT message, CPoint at) {
        dropper->SendMessage(message, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    };
    send(WM_LBUTTONDBLCLK, {5, 5});
    EXPECT_TRUE(dropper->IsPicking());
    send(WM_MOUSEMOVE, {630, 130});
    send(WM_LBUTTONUP, {630, 130});
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kTaken}));
    EXPECT_EQ(dropper->TakenColour(), kSky);
}

TEST_F(ColourDropper, BelowThePixelsAreTheColourOfThePointAndItsCode)
{
    show();
    const auto look = [](bool onTarget) {
        const Picture picture = Picture::ofWindow(shownPopup());
        const int side = picture.width();
        const CRect below(1, side - 1, side - 1, picture.height() - 1);
        EXPECT_GT(picture.count(kSky, 2, CRect(0, 0, side, side - 1)), 100) << "among the pixels it is";
        const int swatch = picture.count(kSky, 2, below);
        EXPECT_EQ(swatch > 50, onTarget);
        EXPECT_EQ(swatch == 0, !onTarget);
        const CRect beside(below.left + below.Height() + 6, below.top + 1, below.right, below.bottom);
        EXPECT_GT(picture.count(::GetSysColor(COLOR_INFOTEXT), 60, beside), 5) << "the code";
    };
    user.press(Spot{*dropper})
        .moveTo(Spot{CPoint(720, 230)}) // the first column of the target
        .then([&] { look(true); })
        .moveTo(Spot{CPoint(719, 230)})
        .then([&] { look(false); })
        .key(VK_ESCAPE);
}
