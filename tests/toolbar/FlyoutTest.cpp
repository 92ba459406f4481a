// The flyout's window: where it goes, how large it is, how it looks, tips and prompts.
#include "ToolBarScene.h"

#include "support/ImportPatch.h"
#include "support/Picture.h"

#include <ovoui/frame/Geometry.h>

#include <afxpriv.h>

#include <gtest/gtest.h>

#include <map>

using namespace ovotest;

namespace
{

constexpr char kShown[] = "the flyout";

CRect onScreen(const TestBar& bar, int index)
{
    CRect rect;
    bar.GetItemRect(index, &rect);
    bar.ClientToScreen(&rect);
    return rect;
}

/// Opens the flyout of a button without the mouse; it is closed at the end of the scope.
class OpenFlyout
{
public:
    explicit OpenFlyout(const BarScene& scene, int index = BarScene::Lines)
    {
        scene.bar().CreatePopup(index, onScreen(scene.bar(), index), 0);
    }
    ~OpenFlyout() { TestBar::ms_popupBar.reset(); }
    OpenFlyout(const OpenFlyout&) = delete;
    OpenFlyout& operator=(const OpenFlyout&) = delete;

    CFlyoutToolbar& operator*() const { return *BarScene::flyout(); }
    CFlyoutToolbar* operator->() const { return BarScene::flyout(); }

    CRect rect() const { return BarScene::flyoutRect(); }
    int count() const { return static_cast<int>(BarScene::flyout()->SendMessage(TB_BUTTONCOUNT)); }
    CRect entry(int index) const
    {
        CRect rect;
        BarScene::flyout()->GetItemRect(index, &rect);
        return rect;
    }
    /// How many different tops, or lefts, the entries have, separators aside.
    int rows() const { return distinct(&CRect::top); }
    int columns() const { return distinct(&CRect::left); }

private:
    int distinct(LONG RECT::*side) const
    {
        std::set<LONG> values;
        for (int i = 0; i < count(); ++i)
            if (!(BarScene::flyout()->GetButtonStyle(i) & TBBS_SEPARATOR))
                values.insert(entry(i).*side);
        return static_cast<int>(values.size());
    }
};

void attachMany(BarScene& scene, int count, bool styleFlag = false)
{
    std::vector<int> commands;
    for (int i = 0; i < count; ++i)
        commands.push_back(1000 + i);
    scene.bar().AttachBar(BarScene::Lines, 16, commands, std::vector<int>(commands.size(), IDR_SHAPES),
                          std::vector<int>(commands.size(), 4), {}, styleFlag, false);
}

struct SideCase
{
    const char* name;
    DWORD side;
    bool horizontal;
};

const SideCase kSides[] = {{"top", CBRS_TOP, true},
                           {"bottom", CBRS_BOTTOM, true},
                           {"left", CBRS_LEFT, false},
                           {"right", CBRS_RIGHT, false}};

} // namespace

// Window

TEST(FlyoutWindow, IsASmallFlatToolbarThatTakesNothing)
{
    BarScene scene;
    const HWND focus = ::GetFocus();
    const HWND active = ::GetActiveWindow();
    const OpenFlyout flyout(scene);
    ASSERT_TRUE(BarScene::flyoutShown());
    EXPECT_EQ(flyout->GetStyle() & (WS_POPUP | WS_CHILD), static_cast<DWORD>(WS_POPUP));
    EXPECT_TRUE(flyout->GetStyle() & TBSTYLE_FLAT);
    EXPECT_TRUE(flyout->GetExStyle() & WS_EX_TOOLWINDOW);
    EXPECT_EQ(::GetWindow(flyout->m_hWnd, GW_OWNER), scene.frame().m_hWnd);
    EXPECT_TRUE(::GetClassLongPtrW(flyout->m_hWnd, GCL_STYLE) & CS_DROPSHADOW);
    EXPECT_EQ(::GetFocus(), focus);
    EXPECT_EQ(::GetActiveWindow(), active);
    EXPECT_EQ(flyout->SendMessage(WM_MOUSEACTIVATE), MA_NOACTIVATE);
}

TEST(FlyoutWindow, BelongsToTheBarsOwner)
{
    BarScene scene;
    CFrameWnd* const owner = new CFrameWnd;
    owner->Create(nullptr, L"Owner", WS_OVERLAPPEDWINDOW);
    scene.bar().SetOwner(owner);
    {
        const OpenFlyout flyout(scene);
        EXPECT_EQ(::GetWindow(flyout->m_hWnd, GW_OWNER), owner->m_hWnd);
        EXPECT_EQ(flyout->GetOwner()->GetSafeHwnd(), owner->m_hWnd);
    }
    scene.bar().SetOwner(&scene.frame());
    owner->DestroyWindow();
}

TEST(FlyoutWindow, AnotherOneDestroysIt)
{
    BarScene scene;
    const OpenFlyout first(scene);
    const HWND before = first->m_hWnd;
    const OpenFlyout second(scene, BarScene::Shapes);
    EXPECT_FALSE(::IsWindow(before));
    EXPECT_TRUE(BarScene::flyoutShown());
}

TEST(FlyoutWindow, TheFrameLaysNothingOutForIt)
{
    BarScene scene;
    scene.bar().SetButtonStyle(BarScene::Lines, TBBS_BUTTON | TBBS_WRAPPED); // a layout would undo it
    GuiThread::settle();
    int layouts = 0;
    scene.bar().seeing = [&](UINT message, WPARAM) { layouts += message == WM_SIZEPARENT; };
    {
        const OpenFlyout flyout(scene);
        EXPECT_EQ(flyout->GetDockingFrame(), nullptr) << "no bar of the frame's";
        GuiThread::settle();
    }
    GuiThread::settle();
    EXPECT_EQ(layouts, 0);
    EXPECT_TRUE(scene.bar().GetButtonStyle(BarScene::Lines) & TBBS_WRAPPED);
}

TEST(FlyoutWindow, WithoutAFlyoutOrEntriesNothingOpens)
{
    BarScene scene;
    {
        const OpenFlyout none(scene, BarScene::Plain);
        EXPECT_EQ(BarScene::flyout(), nullptr);
    }
    scene.bar().AttachBar(BarScene::Plain, 16, {}, {}, {}, {}, false, false);
    scene.bar().AttachBar(BarScene::Other, IDR_SHAPES, 16, {77, -1}, false);
    for (const int index : {BarScene::Plain, BarScene::Other}) {
        const OpenFlyout none(scene, index);
        EXPECT_EQ(BarScene::flyout(), nullptr) << index;
    }
    scene.bar().AttachBar(BarScene::Other, 4711, 16, {0}, false); // no such resource
    const OpenFlyout none(scene, BarScene::Other);
    EXPECT_EQ(BarScene::flyout(), nullptr);
}

// Entries

TEST(FlyoutEntries, OfAListHaveItsCommandsAndImages)
{
    BarScene scene;
    const OpenFlyout flyout(scene);
    ASSERT_EQ(flyout.count(), 5);
    const int images[] = {4, 5, 0, 6, 7};
    for (int i = 0; i < 5; ++i) {
        TBBUTTON button{};
        flyout->GetToolBarCtrl().GetButton(i, &button);
        EXPECT_EQ(button.idCommand, BarScene::lineCommands()[static_cast<std::size_t>(i)]);
        EXPECT_EQ((button.fsStyle & TBSTYLE_SEP) != 0, i == 2);
        if (i != 2) {
            EXPECT_EQ(button.iBitmap, images[i]);
        }
    }
    EXPECT_EQ(flyout->GetToolBarCtrl().GetImageList()->GetSafeHandle(),
              scene.bar().GetToolBarCtrl().GetImageList()->GetSafeHandle());
}

TEST(FlyoutEntries, OfAResourceAreThoseNamedInTheirOrder)
{
    BarScene scene;
    scene.bar().AttachBar(BarScene::Shapes, IDR_SHAPES, 16, {4, 2, 0, 99}, false);
    const OpenFlyout flyout(scene, BarScene::Shapes);
    ASSERT_EQ(flyout.count(), 3);
    EXPECT_EQ(flyout->GetItemID(0), static_cast<UINT>(ID_RING));
    EXPECT_EQ(flyout->GetItemID(1), static_cast<UINT>(ID_SEPARATOR));
    EXPECT_EQ(flyout->GetItemID(2), static_cast<UINT>(ID_BOX));
}

TEST(FlyoutEntries, AreAsLargeAsTheBarsButtons)
{
    BarScene scene;
    scene.bar().SetSizes(CSize(40, 36), CSize(16, 15));
    for (const int index : {BarScene::Lines, BarScene::Shapes}) {
        const OpenFlyout flyout(scene, index);
        EXPECT_EQ(flyout.entry(0).Size(), onScreen(scene.bar(), 0).Size()) << index;
    }
}

TEST(FlyoutEntries, ShowTheirImages)
{
    BarScene scene;
    const OpenFlyout flyout(scene);
    const Picture picture = Picture::ofClient(flyout->m_hWnd);
    const COLORREF colours[] = {RGB(128, 0, 128), RGB(0, 128, 128)};
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(picture.at(flyout.entry(i).CenterPoint()), colours[i]) << i;
}

TEST(FlyoutEntries, ABarWithoutImagesLendsItsStrips)
{
    BarScene scene;
    TestBar bare;
    bare.CreateEx(&scene.frame(), TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
    static constexpr UINT kButton[] = {ID_LINE};
    bare.SetButtons(kButton, 1);
    bare.AttachBar(0, 16, {ID_LINE, ID_ARC}, {IDR_SHAPES, IDR_SHAPES}, {1, 2}, {}, false, false);
    scene.frame().RecalcLayout();
    bare.CreatePopup(0, onScreen(bare, 0), 0);
    ASSERT_TRUE(BarScene::flyoutShown());
    CFlyoutToolbar& flyout = *BarScene::flyout();
    EXPECT_EQ(::ImageList_GetImageCount(flyout.GetToolBarCtrl().GetImageList()->GetSafeHandle()), 8)
        << "once";
    TestBar::ms_popupBar.reset();
}

TEST(FlyoutEntries, AreEnabledAsTheUpdateHandlersSay)
{
    BarScene scene;
    scene.frame().disabled = {ID_CURVE};
    const OpenFlyout flyout(scene);
    EXPECT_FALSE(flyout->GetButtonStyle(0) & TBBS_DISABLED);
    EXPECT_TRUE(flyout->GetButtonStyle(1) & TBBS_DISABLED);
    scene.frame().disabled = {ID_LINE};
    scene.bar().SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_TRUE(flyout->GetButtonStyle(0) & TBBS_DISABLED) << "and go on following them";
    EXPECT_FALSE(flyout->GetButtonStyle(1) & TBBS_DISABLED);
}

// Place

TEST(FlyoutPlace, OnEverySideBelowOrBesideItsButton)
{
    for (const SideCase& side : kSides) {
        BarScene scene(side.side);
        for (const int index : {BarScene::Lines, BarScene::Shapes}) {
            const CRect at = onScreen(scene.bar(), index);
            const OpenFlyout flyout(scene, index);
            EXPECT_EQ(flyout.rect().TopLeft(),
                      side.horizontal ? CPoint(at.left, at.bottom) : CPoint(at.right, at.top))
                << side.name;
            EXPECT_EQ(flyout.columns() > 1, side.horizontal) << side.name;
            EXPECT_EQ(flyout.rows() > 1, !side.horizontal) << side.name;
        }
    }
}

TEST(FlyoutPlace, AFloatingBarIsVerticalWithSeveralRows)
{
    BarScene scene;
    scene.bar().SetBarStyle(scene.bar().GetBarStyle() | CBRS_FLOATING);
    {
        const OpenFlyout flyout(scene);
        EXPECT_EQ(flyout.rows(), 1) << "one row";
    }
    scene.bar().SetButtonStyle(BarScene::Shapes, TBBS_BUTTON | TBBS_WRAPPED);
    ASSERT_EQ(scene.bar().GetToolBarCtrl().GetRows(), 2);
    const CRect button = onScreen(scene.bar(), BarScene::Lines);
    const OpenFlyout flyout(scene);
    EXPECT_EQ(flyout.columns(), 1);
    EXPECT_EQ(flyout.rect().TopLeft(), CPoint(button.right, button.top));
}

TEST(FlyoutPlace, AtEveryEdgeOfTheWorkAreaItIsPulledInside)
{
    for (const SideCase& side : kSides) {
        BarScene scene(side.side);
        CRect frame;
        scene.frame().GetWindowRect(&frame);
        const CRect area(GetWorkArea(frame));
        const CPoint corners[] = {area.TopLeft() - CSize(20, 20), CPoint(area.right - 60, area.top),
                                  CPoint(area.left, area.bottom - 60),
                                  CPoint(area.right - frame.Width() + 30, area.bottom - frame.Height() + 20)};
        for (const CPoint corner : corners) {
            scene.frame().SetWindowPos(nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
            const OpenFlyout flyout(scene);
            CRect both;
            both.UnionRect(flyout.rect(), area);
            EXPECT_EQ(both, area) << side.name << " at " << corner.x << " " << corner.y;
        }
    }
}

TEST(FlyoutPlace, ALongOneBreaksIntoRowsOrColumns)
{
    for (const SideCase& side : kSides) {
        BarScene scene(side.side);
        attachMany(scene, 150);
        const OpenFlyout flyout(scene);
        const CRect area(GetWorkArea(flyout.rect()));
        CRect both;
        both.UnionRect(flyout.rect(), area);
        EXPECT_EQ(both, area) << side.name;
        EXPECT_GT(flyout.rows(), 1) << side.name;
        EXPECT_GT(flyout.columns(), 1) << side.name;
        CRect client;
        flyout->GetClientRect(&client);
        for (int i = 0; i < flyout.count(); ++i)
            EXPECT_TRUE(client.PtInRect(flyout.entry(i).CenterPoint())) << side.name << " " << i;
    }
}

TEST(FlyoutPlace, TheStyleFlagGivesItAGrip)
{
    for (const SideCase& side : kSides) {
        BarScene scene(side.side);
        attachMany(scene, 3, false);
        CSize plain;
        {
            const OpenFlyout flyout(scene);
            plain = flyout.rect().Size();
        }
        attachMany(scene, 3, true);
        const OpenFlyout flyout(scene);
        const CSize more = flyout.rect().Size() - plain;
        EXPECT_EQ(more.cx > 0, side.horizontal) << side.name;
        EXPECT_EQ(more.cy > 0, !side.horizontal) << side.name;
    }
}

// Prompts

TEST(FlyoutPrompt, OfTheHotEntryIsInTheMessageLineAndGoesAgain)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .waitFor("the prompt", [&] { return scene.prompt() == L"Draws a line"; })
        .moveTo(scene.entry(1))
        .waitFor("the next one", [&] { return scene.prompt() == L"Draws a curve"; })
        .moveTo(scene.outside())
        .waitFor("none", [&] { return scene.prompt() == L"Ready"; })
        .moveTo(scene.entry(0))
        .waitFor("the prompt again", [&] { return scene.prompt() == L"Draws a line"; })
        .release();
    GuiThread::runUntil([&] { return scene.prompt() == L"Ready"; });
    EXPECT_EQ(scene.prompt(), L"Ready");
}

// Tips

namespace
{

HWND shownTip()
{
    return shownWindow(L"OVO_FLYOUT_TOOLTIP");
}

/// Timers that ovoui sets, by their number; what they are set to in turn.
std::map<UINT_PTR, std::vector<UINT>> timers;
UINT fastest = 0; ///< when not zero, timers 43 and 44 are this fast

UINT_PTR WINAPI noteTimer(HWND wnd, UINT_PTR id, UINT elapse, TIMERPROC procedure)
{
    timers[id].push_back(elapse);
    return ::SetTimer(wnd, id, fastest && id != 42 ? fastest : elapse, procedure);
}

class FlyoutTips : public ::testing::Test
{
protected:
    FlyoutTips()
    {
        timers.clear();
        fastest = 0;
    }

    BarScene scene;
    const ImportPatch setTimer{L"ovoui.dll", "SetTimer", reinterpret_cast<void*>(&noteTimer)};
};

} // namespace

TEST_F(FlyoutTips, AppearBesideTheHotEntry)
{
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .waitFor("the tip", [] { return shownTip() != nullptr; })
        .then([&] {
            const CWnd& tip = *CWnd::FromHandle(shownTip());
            EXPECT_EQ(tip.GetExStyle(), static_cast<DWORD>(WS_EX_TOOLWINDOW));
            EXPECT_EQ(tip.GetStyle() & (WS_POPUP | WS_CHILD | WS_CAPTION), static_cast<DWORD>(WS_POPUP));
            CRect place;
            tip.GetWindowRect(&place);
            CRect entry;
            BarScene::flyout()->GetItemRect(0, &entry);
            BarScene::flyout()->ClientToScreen(&entry);
            EXPECT_GE(place.top, entry.bottom);
            EXPECT_EQ(place.left, entry.left);
            const Picture picture = Picture::ofWindow(tip.m_hWnd);
            EXPECT_GT(picture.count(::GetSysColor(COLOR_INFOBK)), picture.width() * picture.height() / 2);
            EXPECT_GT(picture.count(::GetSysColor(COLOR_INFOTEXT)), 2 * picture.width())
                << "border and letters";
        })
        .moveTo(scene.outside())
        .then([] { EXPECT_EQ(shownTip(), nullptr); })
        .release();
}

TEST_F(FlyoutTips, TheFirstWaitsLongerThanTheNext)
{
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .moveTo(scene.entry(1))
        .then([] {
            EXPECT_EQ(timers[43], (std::vector<UINT>{::GetDoubleClickTime(), ::GetDoubleClickTime()}))
                << "none was shown yet";
            timers.clear();
        })
        .waitFor("the tip", [] { return shownTip() != nullptr; })
        .moveTo(scene.entry(0))
        .then([] {
            EXPECT_EQ(shownTip(), nullptr) << "hidden at once";
            EXPECT_EQ(timers[43], std::vector<UINT>{::GetDoubleClickTime() / 5});
            EXPECT_EQ(timers[44], std::vector<UINT>{::GetDoubleClickTime() * 10});
        })
        .waitFor("the next tip", [] { return shownTip() != nullptr; })
        .moveTo(scene.outside())
        .release();
    EXPECT_EQ(timers[42], std::vector<UINT>{});
}

TEST_F(FlyoutTips, GoByThemselves)
{
    fastest = 10;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .then([] { EXPECT_EQ(timers[42], std::vector<UINT>{200}); })
        .moveTo(scene.entry(0))
        .waitFor("the end timer", [] { return timers[44].size() == 1; })
        .waitFor("the tip to go", [] { return shownTip() == nullptr; })
        .then([] { EXPECT_TRUE(BarScene::flyoutShown()); })
        .moveTo(scene.outside())
        .release();
}

TEST_F(FlyoutTips, NamesServeCommandsWithoutAString)
{
    // The wider tip has the longer text: "nameless" and "Line" have no width in common.
    const auto widthOver = [&](int index) {
        int width = 0;
        scene.user.press(scene.button(BarScene::Lines))
            .waitFor(kShown, &BarScene::flyoutShown)
            .moveTo(scene.entry(0))
            .moveTo(scene.entry(index))
            .waitFor("the tip", [] { return shownTip() != nullptr; })
            .then([&] {
                CRect place;
                ::GetWindowRect(shownTip(), &place);
                width = place.Width();
            })
            .moveTo(scene.outside())
            .release();
        return width;
    };
    EXPECT_GT(widthOver(4), widthOver(0));
}

TEST_F(FlyoutTips, WithoutStringOrNameThereIsNone)
{
    fastest = 1;
    attachMany(scene, 2);
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .waitFor("the tip's timer", [] { return timers[43].size() > 0; })
        .then([] {
            GuiThread::settle();
            EXPECT_TRUE(timers[44].empty());
            EXPECT_EQ(shownTip(), nullptr);
        })
        .moveTo(scene.outside())
        .release();
}
