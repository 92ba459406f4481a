// Grid of colours, eyedropper and colour button, each in a window that takes down what it is told.
#include <testkit/AccessibleView.h>
#include <testkit/Desktop.h>
#include <testkit/GdiCounter.h>
#include <testkit/GdiPlusSession.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>
#include <testkit/TemporaryProfile.h>
#include <testkit/TestApp.h>
#include <testkit/WinEvents.h>

#include <ovoui/colour/ColourButton.h>
#include <ovoui/colour/ColourDropper.h>
#include <ovoui/colour/ColourGrid.h>
#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/Language.h>
#include <ovoui/frame/ThemeData.h>

#include <afxext.h>
#include <uxtheme.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace ovo::testkit;

namespace
{

constexpr UINT kGridChosen = 0x50;
constexpr UINT kGridPointed = 0x51;
constexpr UINT kTaken = 0x52;
constexpr UINT kDropped = 0x54;
constexpr UINT kClosed = 0x55;

const COLORREF kLeaf = RGB(84, 130, 53);
const COLORREF kRust = RGB(190, 49, 26);
const COLORREF kSky = RGB(90, 150, 220);

/// A parent that may do anything when it is told something.
class Host : public RecordingParent
{
public:
    using RecordingParent::RecordingParent;
    std::function<void(UINT code)> onCode;

    std::vector<UINT> codes()
    {
        std::vector<UINT> own;
        for (const UINT code : log().codes())
            if (code >= 0x50 && code <= 0x55)
                own.push_back(code);
        return own;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = RecordingParent::WindowProc(message, wParam, lParam);
        if (message == WM_COMMAND && HIWORD(wParam) >= 0x50)
            if (const auto act = onCode)
                act(HIWORD(wParam));
        return result;
    }
};

/// A popup of the library's own that is shown: what a colour button drops, or the magnifier.
HWND shownPopup()
{
    for (HWND wnd = ::GetTopWindow(nullptr); wnd; wnd = ::GetWindow(wnd, GW_HWNDNEXT))
        if (::IsWindowVisible(wnd) && (::GetWindowLongPtrW(wnd, GWL_EXSTYLE) & WS_EX_NOACTIVATE) &&
            ::GetWindowThreadProcessId(wnd, nullptr) == ::GetCurrentThreadId())
            return wnd;
    return nullptr;
}

CRect placeOf(HWND wnd)
{
    CRect rect;
    ::GetWindowRect(wnd, &rect);
    return rect;
}

class ColourControls : public ::testing::Test
{
protected:
    ColourControls() { ::CoInitialize(nullptr); }
    ~ColourControls() override { ::CoUninitialize(); }

    Host parent;
    Robot user;
};

} // namespace

// The grid

namespace
{

class ColourGrid : public ColourControls
{
protected:
    void show()
    {
        grid = std::make_unique<CColourGrid>();
        grid->Create(WS_VISIBLE | WS_TABSTOP, CRect(20, 20, 284, 60), &parent, 7);
        grid->SetWindowText(L"Leaves");
        grid->SetColours({kLeaf, kRust, kSky, RGB(255, 0, 0), RGB(0, 0, 255)}, 3);
        present(parent);
    }
    Spot cell(int index) const { return Spot{*grid, grid->CellRect(index).CenterPoint()}; }

    std::unique_ptr<CColourGrid> grid;
};

} // namespace

TEST_F(ColourGrid, ShowsItsColours)
{
    show();
    const Picture picture = Picture::ofClient(*grid);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(picture.at(grid->CellRect(i).CenterPoint()), grid->Colours()[static_cast<std::size_t>(i)]);
    EXPECT_EQ(grid->Current(), 0);
}

TEST_F(ColourGrid, AClickChooses)
{
    show();
    user.click(cell(3));
    EXPECT_EQ(grid->Current(), 3);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kGridPointed, kGridChosen}));
    user.click(cell(3));
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kGridPointed, kGridChosen, kGridChosen}));
}

TEST_F(ColourGrid, AReleaseOnAnotherColourChoosesNothing)
{
    show();
    user.drag(cell(3), cell(1));
    EXPECT_EQ(grid->Current(), 3);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kGridPointed}));
}

TEST_F(ColourGrid, KeysMoveTheMarkAndChoose)
{
    show();
    grid->SetFocus();
    user.key(VK_DOWN).key(VK_RIGHT);
    EXPECT_EQ(grid->Current(), 4);
    user.key(VK_SPACE);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kGridPointed, kGridPointed, kGridChosen}));
    user.key(VK_HOME).key(VK_RETURN);
    EXPECT_EQ(grid->Current(), 0);
    EXPECT_EQ(parent.codes().size(), 5u);
}

TEST_F(ColourGrid, TheMarkIsShownWithTheFocus)
{
    show();
    const Picture without = Picture::ofClient(*grid);
    grid->SetFocus();
    EXPECT_GT(without.differences(Picture::ofClient(*grid)), 20);
    parent.SetFocus();
    EXPECT_EQ(without.differences(Picture::ofClient(*grid)), 0);
}

TEST_F(ColourGrid, CodeTellsNoOne)
{
    show();
    grid->SetCurrent(2);
    EXPECT_EQ(grid->Current(), 2);
    grid->SetCurrent(5);
    grid->SetCurrent(-1);
    EXPECT_EQ(grid->Current(), 2) << "there are no such colours";
    grid->SetColours({}, 3);
    EXPECT_EQ(grid->Current(), -1);
    grid->SetFocus();
    user.key(VK_RIGHT).key(VK_SPACE);
    EXPECT_TRUE(parent.codes().empty());
}

TEST_F(ColourGrid, DisabledItIsPaleAndDeaf)
{
    show();
    grid->EnableWindow(FALSE);
    EXPECT_NE(Picture::ofClient(*grid).at(grid->CellRect(3).CenterPoint()), RGB(255, 0, 0));
    user.click(cell(3));
    EXPECT_TRUE(parent.codes().empty());
}

TEST_F(ColourGrid, TakesThePlaceOfAControl)
{
    CStatic place;
    place.Create(L"Leaves", WS_CHILD | WS_VISIBLE, CRect(30, 40, 130, 60), &parent, 9);
    grid = std::make_unique<CColourGrid>();
    CString before;
    parent.GetDlgItemText(9, before);
    ASSERT_TRUE(grid->createInPlace(parent, 9));
    CString text;
    grid->GetWindowText(text);
    EXPECT_FALSE(before.IsEmpty());
    EXPECT_EQ(text, before);
    EXPECT_FALSE(place.m_hWnd);
    EXPECT_EQ(parent.GetDlgItem(9), grid.get());
    CRect rect = placeOf(*grid);
    parent.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(30, 40, 130, 60));
    EXPECT_TRUE(grid->GetStyle() & WS_TABSTOP);
    EXPECT_FALSE(CColourGrid().createInPlace(parent, 10)) << "there is no such control";
}

TEST_F(ColourGrid, AccessibilitySeesAList)
{
    show();
    grid->SetFocus();
    const AccessibleView list(*grid);
    ASSERT_TRUE(list);
    EXPECT_EQ(list.role(), ROLE_SYSTEM_LIST);
    EXPECT_EQ(list.name(), L"Leaves");
    EXPECT_EQ(list.childCount(), 5);
    EXPECT_EQ(list.name(4), L"red");
    EXPECT_EQ(list.name(1), L"#548235");
    EXPECT_EQ(list.focused(), 1);
    WinEvents moves(EVENT_OBJECT_FOCUS);
    user.key(VK_RIGHT);
    EXPECT_EQ(moves.of(*grid, 2), 1);
    EXPECT_EQ(list->accDoDefaultAction(AccessibleView::numbered(4)), S_OK);
    EXPECT_EQ(grid->Current(), 3);
    EXPECT_EQ(parent.codes().back(), kGridChosen);
}

TEST_F(ColourGrid, TheParentMayDestroyOrDeleteItInEveryCall)
{
    for (const UINT code : {kGridPointed, kGridChosen})
        for (const bool erase : {false, true})
            for (const bool mouse : {false, true}) {
                show();
                parent.onCode = [&](UINT told) {
                    if (told == code)
                        erase ? grid.reset() : static_cast<void>(grid->DestroyWindow());
                };
                const CPoint point = grid->CellRect(2).CenterPoint();
                const LPARAM at = MAKELPARAM(point.x, point.y);
                const HWND wnd = *grid;
                if (mouse) {
                    ::SendMessageW(wnd, WM_LBUTTONDOWN, MK_LBUTTON, at);
                    ::SendMessageW(wnd, WM_LBUTTONUP, 0, at);
                } else {
                    ::SendMessageW(wnd, WM_KEYDOWN, VK_RIGHT, 0);
                    ::SendMessageW(wnd, WM_KEYDOWN, VK_SPACE, 0);
                }
                EXPECT_TRUE(!grid || !grid->m_hWnd) << code << erase << mouse;
                parent.onCode = nullptr;
                grid.reset();
            }
}

// The eyedropper

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

// The button

namespace
{

class PenButton : public CColourButton
{
public:
    int asked = 0;
    std::function<std::optional<Colour>(const Colour&)> onAsk;
    using CColourButton::askForColour;

    std::optional<Colour> askForColour(const Colour& colour) override
    {
        ++asked;
        const auto ask = onAsk;
        return ask ? ask(colour) : CColourButton::askForColour(colour);
    }
};

class ColourButton : public ColourControls
{
protected:
    void show(CPoint place = {100, 80})
    {
        parent.SetWindowPos(nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        button = std::make_unique<PenButton>();
        button->Create(L"&Pen", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(20, 20, 80, 44), &parent, 7);
        button->SetColour(Colour::colorref(kSky));
        button->SetPalette({kLeaf, kRust, kSky, RGB(255, 0, 0), RGB(0, 0, 255), RGB(0, 0, 0)}, 3);
        present(parent);
    }
    void open()
    {
        user.click(Spot{*button}).waitFor("the palette", [this] { return button->IsDropped(); });
    }
    /// A cell of the palette, or the line after the last one.
    Spot cell(int index) const
    {
        const AccessibleView list(shownPopup());
        return Spot{list.place(index + 1).CenterPoint()};
    }
    COLORREF now() const { return button->GetColour().colorref(); }

    std::unique_ptr<PenButton> button;
};

constexpr int kLine = 6;

} // namespace

TEST_F(ColourButton, ShowsItsColour)
{
    show();
    EXPECT_EQ(Picture::ofClient(*button).at(20, 12), kSky);
    button->SetColour(Colour::colorref(kLeaf));
    EXPECT_EQ(Picture::ofClient(*button).at(20, 12), kLeaf);
    EXPECT_TRUE(parent.codes().empty()) << "code tells no one";
    button->SetColour(Colour::rgba(1, 0, 0, 0.5));
    const Picture half = Picture::ofClient(*button);
    EXPECT_EQ(half.at(10, 12), RGB(255, 0, 0));
    EXPECT_GT(half.count(RGB(255, 128, 128)), 10) << "over white";
    EXPECT_GT(half.count(RGB(128, 0, 0)), 10) << "over black";
}

TEST_F(ColourButton, DisabledItIsPaleAndDeaf)
{
    show();
    button->EnableWindow(FALSE);
    EXPECT_NE(Picture::ofClient(*button).at(20, 12), kSky);
    user.click(Spot{*button});
    button->DropDown();
    EXPECT_FALSE(button->IsDropped());
    EXPECT_TRUE(parent.codes().empty());
}

TEST_F(ColourButton, AloneWithoutVisualStylesItHasTheClassicFrame)
{
    show();
    const Picture before = Picture::ofClient(*button);
    const auto expectFrame = [&](UINT state) {
        const Picture shown = Picture::ofClient(*button);
        const Picture classic(shown.width(), shown.height());
        CRect rect(0, 0, shown.width(), shown.height());
        ::DrawFrameControl(classic.dc(), &rect, DFC_BUTTON, DFCS_BUTTONPUSH | state);
        for (int x = 0; x < shown.width(); ++x) {
            EXPECT_EQ(shown.at(x, 0), classic.at(x, 0)) << x;
            EXPECT_EQ(shown.at(x, shown.height() - 1), classic.at(x, shown.height() - 1)) << x;
        }
        for (int y = 0; y < shown.height(); ++y)
            EXPECT_EQ(shown.at(0, y), classic.at(0, y)) << y;
    };
    ::SetWindowTheme(*button, L" ", L" "); // of no class that there is
    expectFrame(0);
    button->DropDown();
    expectFrame(DFCS_PUSHED);
    button->CloseUp();
    ::SetWindowTheme(*button, nullptr, nullptr);
    EXPECT_EQ(Picture::ofClient(*button).differences(before), 0) << "with them again";
}

/// A theme may have light buttons where the system's colours are dark.
TEST_F(ColourButton, WithVisualStylesItsArrowHasTheThemesColourOfTexts)
{
    show();
    constexpr COLORREF kSystems = RGB(1, 254, 2);
    const int element = COLOR_BTNTEXT;
    const COLORREF before = ::GetSysColor(element);
    ::SetSysColors(1, &element, &kSystems);
    const Picture themed = Picture::ofClient(*button);
    ::SetWindowTheme(*button, L" ", L" ");
    const Picture classic = Picture::ofClient(*button);
    ::SetSysColors(1, &element, &before);
    EXPECT_GT(classic.count(kSystems), 10);
    EXPECT_EQ(themed.count(kSystems), CThemeData::getThemeData().IsAppThemed() ? 0 : classic.count(kSystems));
}

TEST_F(ColourButton, TheFocusIsShown)
{
    show();
    parent.SetFocus();
    const Picture without = Picture::ofClient(*button);
    button->SetFocus();
    EXPECT_GT(without.differences(Picture::ofClient(*button)), 20);
}

TEST_F(ColourButton, AClickDropsThePaletteAndAnotherClosesIt)
{
    show();
    open();
    ASSERT_NE(shownPopup(), nullptr);
    EXPECT_EQ(placeOf(shownPopup()).top, placeOf(*button).bottom);
    EXPECT_EQ(placeOf(shownPopup()).left, placeOf(*button).left);
    EXPECT_EQ(::GetFocus(), button->m_hWnd);
    EXPECT_EQ(::GetActiveWindow(), parent.m_hWnd) << "the palette does not take the activation";
    user.click(Spot{*button});
    EXPECT_FALSE(button->IsDropped());
    EXPECT_EQ(shownPopup(), nullptr);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kDropped, kClosed}));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ColourButton, AClickInThePaletteChooses)
{
    show();
    open();
    user.click(cell(1));
    EXPECT_EQ(now(), kRust);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kDropped, kGridPointed, kClosed, kGridChosen}));
    EXPECT_EQ(Picture::ofClient(*button).at(20, 12), kRust);
}

TEST_F(ColourButton, ADragFromTheButtonIntoThePaletteChooses)
{
    show();
    user.press(Spot{*button})
        .waitFor("the palette", [this] { return button->IsDropped(); })
        .moveTo(Spot{[this] { return cell(4).find(); }})
        .release();
    EXPECT_EQ(now(), RGB(0, 0, 255));
}

TEST_F(ColourButton, AlphaIsKept)
{
    show();
    button->SetColour(Colour::rgba(1, 1, 0, 0.25));
    open();
    user.click(cell(0));
    EXPECT_EQ(now(), kLeaf);
    EXPECT_EQ(button->GetColour().a(), 0.25);
}

TEST_F(ColourButton, APressElsewhereCloses)
{
    show();
    open();
    user.click(Spot{parent, CPoint(400, 300)});
    EXPECT_FALSE(button->IsDropped());
    EXPECT_EQ(now(), kSky);
    EXPECT_EQ(parent.log().count(kClosed), 1);
    EXPECT_EQ(parent.log().count(kGridChosen), 0);
}

TEST_F(ColourButton, KeysOpenMoveAndChoose)
{
    show();
    for (const WORD key : {VK_SPACE, VK_DOWN, VK_F4}) {
        button->SetColour(Colour::colorref(kSky));
        button->SetFocus();
        parent.log().clear();
        user.key(key);
        ASSERT_TRUE(button->IsDropped()) << key;
        EXPECT_EQ(button->PointedColour()->colorref(), kSky) << "the present one is marked";
        user.key(VK_DOWN);
        EXPECT_EQ(button->PointedColour()->colorref(), RGB(0, 0, 0));
        user.key(VK_LEFT);
        EXPECT_EQ(now(), kSky) << "not before it is chosen";
        user.key(VK_RETURN);
        EXPECT_FALSE(button->IsDropped());
        EXPECT_EQ(now(), RGB(0, 0, 255));
        EXPECT_EQ(parent.codes(),
                  (std::vector<UINT>{kDropped, kGridPointed, kGridPointed, kClosed, kGridChosen}));
    }
    user.holding(VK_MENU).key(VK_DOWN);
    EXPECT_TRUE(button->IsDropped());
    user.key(VK_HOME).key(VK_SPACE);
    EXPECT_EQ(now(), kLeaf);
}

TEST_F(ColourButton, EscapeAndTheLossOfTheFocusClose)
{
    show();
    button->SetFocus();
    user.key(VK_DOWN).key(VK_LEFT).key(VK_ESCAPE);
    EXPECT_FALSE(button->IsDropped());
    EXPECT_EQ(now(), kSky);
    user.key(VK_DOWN);
    EXPECT_TRUE(button->IsDropped());
    parent.SetFocus();
    EXPECT_FALSE(button->IsDropped());
    EXPECT_EQ(shownPopup(), nullptr);
    EXPECT_EQ(now(), kSky);
    EXPECT_EQ(parent.log().count(kGridChosen), 0);
}

TEST_F(ColourButton, AtTheLowerEdgeOfTheScreenItOpensUpwards)
{
    const RECT work = GetWorkArea(RECT{0, 0, 10, 10});
    show({100, 80});
    CRect rect = placeOf(parent);
    rect.MoveToY(work.bottom - 60);
    parent.SetWindowPos(nullptr, rect.left, rect.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    CRect face = placeOf(*button);
    parent.SetWindowPos(nullptr, rect.left, rect.top - (face.bottom - (work.bottom - 4)), 0, 0,
                        SWP_NOSIZE | SWP_NOZORDER);
    open();
    EXPECT_EQ(placeOf(shownPopup()).bottom, placeOf(*button).top);
    EXPECT_LE(placeOf(shownPopup()).bottom, work.bottom);
}

TEST_F(ColourButton, TheLineOpensTheDialog)
{
    show();
    button->onAsk = [this](const Colour& colour) -> std::optional<Colour> {
        EXPECT_EQ(colour.colorref(), kSky);
        EXPECT_FALSE(button->IsDropped());
        return Colour::rgb(0, 1, 0);
    };
    open();
    user.click(cell(kLine));
    EXPECT_EQ(button->asked, 1);
    EXPECT_EQ(now(), RGB(0, 255, 0));
    EXPECT_EQ(parent.codes().back(), kGridChosen);
    button->onAsk = [](const Colour&) { return std::nullopt; };
    parent.log().clear();
    button->SetFocus();
    user.key(VK_DOWN).key(VK_END).key(VK_RETURN);
    EXPECT_EQ(button->asked, 2);
    EXPECT_EQ(now(), RGB(0, 255, 0));
    EXPECT_EQ(parent.log().count(kGridChosen), 0) << "given up";
}

TEST_F(ColourButton, ItsOwnDialogGivesTheColour)
{
    const GdiPlusSession gdiPlus;
    const TemporaryProfile profile;
    show();
    button->SetFocus();
    user.key(VK_DOWN)
        .key(VK_END)
        .key(VK_RETURN)
        .waitFor("the dialog", [] { return shownDialog() != nullptr; })
        .then([] {
            ::SetFocus(::GetDlgItem(shownDialog(), 20561));
            ::SetDlgItemTextW(shownDialog(), 20561, L"teal");
        })
        .key(VK_RETURN)
        .waitFor("its end", [this] { return parent.log().count(kGridChosen) == 1; });
    EXPECT_EQ(now(), RGB(0, 128, 128));
}

TEST_F(ColourButton, TheLineHasRoomForItsTextInEveryLanguage)
{
    show();
    for (const int columns : {1, 3, 8}) {
        button->SetPalette({kLeaf, kRust, kSky}, columns);
        for (const LANGID language : textLanguages()) {
            ASSERT_TRUE(setTextLanguage(language));
            button->DropDown();
            const AccessibleView list(shownPopup());
            const std::wstring text = list.name(4);
            CClientDC dc(button.get());
            CFont* const own = button->GetFont();
            CFont* const before = dc.SelectObject(
                own ? own : CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))));
            EXPECT_GE(list.place(4).Width(), dc.GetTextExtent(text.c_str(), static_cast<int>(text.size())).cx)
                << columns << " columns, language " << language;
            EXPECT_FALSE(text.empty());
            dc.SelectObject(before);
            button->CloseUp();
        }
    }
    setTextLanguage(0);
}

TEST_F(ColourButton, WithoutADialogThereAreOnlyColours)
{
    show();
    button->UseDialog(false);
    button->SetFocus();
    user.key(VK_DOWN).key(VK_END).key(VK_RETURN);
    EXPECT_EQ(button->asked, 0);
    EXPECT_EQ(now(), RGB(0, 0, 0));
}

TEST_F(ColourButton, AColourBesideThePaletteIsNotMarked)
{
    show();
    button->SetColour(Colour::rgb(0.1, 0.2, 0.3));
    button->SetFocus();
    user.key(VK_DOWN);
    EXPECT_FALSE(button->PointedColour());
    user.key(VK_DOWN);
    EXPECT_EQ(button->PointedColour()->colorref(), kLeaf);
    user.key(VK_END);
    EXPECT_FALSE(button->PointedColour()) << "the line is no colour";
}

TEST_F(ColourButton, APointerAtRestDoesNotMoveTheMark)
{
    show();
    open();
    const CPoint under = cell(4).find();
    user.key(VK_ESCAPE).moveTo(Spot{under});
    button->SetFocus();
    user.key(VK_DOWN);
    ASSERT_TRUE(button->IsDropped());
    EXPECT_EQ(button->PointedColour()->colorref(), kSky);
    user.moveBy(2, 0);
    EXPECT_EQ(button->PointedColour()->colorref(), RGB(0, 0, 255));
}

TEST_F(ColourButton, AccessibilitySeesAButtonWithItsColour)
{
    show();
    const AccessibleView seen(*button);
    ASSERT_TRUE(seen);
    EXPECT_EQ(seen.role(), ROLE_SYSTEM_BUTTONDROPDOWN);
    EXPECT_EQ(seen.name(), L"Pen");
    EXPECT_EQ(seen.value(), L"#5A96DC");
    EXPECT_EQ(seen.action(), L"Open");
    WinEvents changes(EVENT_OBJECT_VALUECHANGE);
    button->SetColour(Colour::rgb(1, 0, 0));
    EXPECT_EQ(changes.of(*button), 1);
    EXPECT_EQ(seen.value(), L"red");
    open();
    const AccessibleView list(shownPopup());
    EXPECT_EQ(list.childCount(), 7);
    EXPECT_EQ(list.name(4), L"red");
    EXPECT_EQ(list.name(7), L"More colours...");
    WinEvents moves(EVENT_OBJECT_FOCUS);
    user.key(VK_LEFT);
    EXPECT_EQ(moves.of(shownPopup(), 3), 1);
    EXPECT_EQ(list->accDoDefaultAction(AccessibleView::numbered(5)), S_OK);
    EXPECT_EQ(now(), RGB(0, 0, 255));
}

TEST_F(ColourButton, DataIsExchanged)
{
    show();
    CDataExchange fill(&parent, FALSE);
    CDataExchange read(&parent, TRUE);
    COLORREF code = kRust;
    DDX_Colour(&fill, *button, code);
    EXPECT_EQ(now(), kRust);
    Colour colour = Colour::rgba(0, 1, 0, 0.5);
    DDX_Colour(&fill, *button, colour);
    DDX_Colour(&read, *button, code);
    EXPECT_EQ(code, RGB(0, 255, 0));
    colour = {};
    DDX_Colour(&read, *button, colour);
    EXPECT_EQ(colour.a(), 0.5);
}

TEST_F(ColourButton, ThePushButtonOfATemplateBecomesOne)
{
    CButton plain;
    plain.Create(L"Pen", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, CRect(20, 20, 80, 44), &parent, 11);
    const HWND wnd = plain.UnsubclassWindow();
    CColourButton subclassed;
    ASSERT_TRUE(subclassed.SubclassDlgItem(11, &parent));
    subclassed.SetColour(Colour::colorref(kRust));
    present(parent);
    EXPECT_EQ(Picture::ofClient(wnd).at(20, 12), kRust);
}

TEST_F(ColourButton, TheParentMayDestroyOrDeleteItInEveryCall)
{
    for (const UINT code : {kDropped, kGridPointed, kClosed, kGridChosen})
        for (const bool erase : {false, true}) {
            show();
            parent.onCode = [&](UINT told) {
                if (told == code)
                    erase ? button.reset() : static_cast<void>(button->DestroyWindow());
            };
            const HWND wnd = *button;
            for (const WPARAM key : {VK_DOWN, VK_RIGHT, VK_RETURN})
                if (::IsWindow(wnd))
                    ::SendMessageW(wnd, WM_KEYDOWN, key, 0);
            EXPECT_TRUE(!button || !button->m_hWnd) << code << erase;
            EXPECT_EQ(shownPopup(), nullptr);
            EXPECT_EQ(::GetCapture(), nullptr);
            parent.onCode = nullptr;
        }
}

TEST_F(ColourButton, TheDialogMayDestroyOrDeleteIt)
{
    for (const bool erase : {false, true}) {
        show();
        button->onAsk = [&](const Colour&) -> std::optional<Colour> {
            erase ? button.reset() : static_cast<void>(button->DestroyWindow());
            return Colour::rgb(0, 1, 0);
        };
        for (const WPARAM key : {VK_DOWN, VK_END, VK_RETURN})
            button->SendMessage(WM_KEYDOWN, key, 0);
        EXPECT_TRUE(!button || !button->m_hWnd);
        EXPECT_EQ(parent.log().count(kGridChosen), 0);
    }
}

TEST_F(ColourButton, LivesInAToolbar)
{
    CToolBar bar;
    ASSERT_TRUE(bar.Create(&parent, WS_CHILD | WS_VISIBLE | CBRS_TOP));
    bar.SetWindowPos(nullptr, 0, 0, 300, 60, SWP_NOZORDER | SWP_NOMOVE);
    button = std::make_unique<PenButton>();
    button->Create(L"Pen", WS_CHILD | WS_VISIBLE, CRect(20, 10, 80, 34), &bar, 7);
    button->SetColour(Colour::colorref(kRust));
    present(parent);
    EXPECT_EQ(Picture::ofClient(*button).at(20, 12), kRust);
    button->SetFocus();
    user.key(VK_DOWN).key(VK_HOME).key(VK_RETURN);
    EXPECT_EQ(now(), RGB(0, 0, 0));
    EXPECT_EQ(parent.log().count(kGridChosen), 1) << "the bar hands it on to its owner";
    button.reset();
    bar.DestroyWindow();
}

TEST_F(ColourButton, NothingIsLost)
{
    const auto cycle = [this] {
        show();
        button->DropDown();
        user.key(VK_RIGHT);
        button->CloseUp();
        button.reset();
    };
    cycle();
    cycle(); // what the platform keeps for itself
    const GdiCounter gdi;
    for (int i = 0; i < 5; ++i)
        cycle();
    EXPECT_LE(gdi.grown(), 0);
}
