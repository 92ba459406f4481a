// What tells about the hot entry of a flyout: its prompt in the message line, its tip.
#include "ToolBarScene.h"

#include <testkit/ImportPatch.h>
#include <testkit/Picture.h>

#include <ovoui/frame/Geometry.h>

#include <gtest/gtest.h>

#include <map>

using namespace ovo::testkit;

namespace
{

constexpr char kShown[] = "the flyout";

} // namespace

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

TEST(FlyoutPrompt, OfTheHostStaysWhereNoEntryWasHot)
{
    BarScene scene;
    scene.frame().SetMessageText(L"Saving");
    scene.bar().CreatePopup(BarScene::Lines, onScreen(scene.bar(), BarScene::Lines), 0);
    TestBar::ms_popupBar.reset();
    GuiThread::settle();
    EXPECT_EQ(scene.prompt(), L"Saving");
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
UINT tipTime = 0; ///< when not zero, timers 43 and 44 take this long

/// For tips that must not come by themselves, however slow the hand is: milliseconds, more than a test may
/// take.
constexpr UINT kNever = 300'000;

UINT_PTR WINAPI noteTimer(HWND wnd, UINT_PTR id, UINT elapse, TIMERPROC procedure)
{
    timers[id].push_back(elapse);
    return ::SetTimer(wnd, id, tipTime && id != 42 ? tipTime : elapse, procedure);
}

BOOL WINAPI noFonts(UINT action, UINT parameter, void* value, UINT how)
{
    if (action != SPI_GETNONCLIENTMETRICS)
        return ::SystemParametersInfoW(action, parameter, value, how);
    ::SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return FALSE;
}

int refusedTips = 0;

/// Makes all windows but the first tip.
HWND WINAPI refuseOneTip(DWORD extendedStyle, LPCWSTR windowClass, LPCWSTR name, DWORD style, int x, int y,
                         int width, int height, HWND parent, HMENU menu, HINSTANCE instance, void* data)
{
    if (refusedTips == 0 && name && ::lstrcmpW(name, L"OVO_FLYOUT_TOOLTIP") == 0) {
        ++refusedTips;
        return nullptr;
    }
    return ::CreateWindowExW(extendedStyle, windowClass, name, style, x, y, width, height, parent, menu,
                             instance, data);
}

/// A screen of twice the resolution, whose fonts are as large as before.
int WINAPI twiceTheResolution(HDC dc, int index)
{
    return ::GetDeviceCaps(dc, index) * (index == LOGPIXELSX ? 2 : 1);
}

/// Lets the tip come that is awaited.
void bringTip()
{
    ::SetTimer(BarScene::flyout()->m_hWnd, 43, USER_TIMER_MINIMUM, nullptr);
}

class FlyoutTips : public ::testing::Test
{
protected:
    FlyoutTips()
    {
        timers.clear();
        tipTime = 0;
    }

    /// Of the tip of the first entry.
    CSize sizeOfTip()
    {
        CRect place;
        scene.user.press(scene.button(BarScene::Lines))
            .waitFor(kShown, &BarScene::flyoutShown)
            .moveTo(scene.entry(0))
            .waitFor("the tip", [] { return shownTip() != nullptr; })
            .then([&] { ::GetWindowRect(shownTip(), &place); })
            .moveTo(scene.outside())
            .release();
        return place.Size();
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
            wchar_t name[64] = L"";
            ::GetClassNameW(tip.m_hWnd, name, 64);
            WNDCLASSW own{};
            EXPECT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), name, &own))
                << "a class of the library's own";
            EXPECT_STRNE(name, TOOLTIPS_CLASSW);
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

TEST_F(FlyoutTips, TheirMarginsGrowWithTheResolution)
{
    const CClientDC screen(nullptr);
    const CSize margins(::MulDiv(5, screen.GetDeviceCaps(LOGPIXELSX), 96),
                        ::MulDiv(3, screen.GetDeviceCaps(LOGPIXELSX), 96));
    const CSize usual = sizeOfTip();
    const ImportPatch patch{L"ovomfc.dll", "GetDeviceCaps", reinterpret_cast<void*>(&twiceTheResolution)};
    EXPECT_EQ(sizeOfTip() - usual, margins + margins);
}

TEST_F(FlyoutTips, TheFirstWaitsLongerThanTheNext)
{
    tipTime = kNever;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .moveTo(scene.entry(1))
        .then([] {
            EXPECT_EQ(timers[43], (std::vector<UINT>{::GetDoubleClickTime(), ::GetDoubleClickTime()}))
                << "none was shown yet";
            timers.clear();
            bringTip();
        })
        .waitFor("the tip", [] { return shownTip() != nullptr; })
        .moveTo(scene.entry(0))
        .then([] {
            EXPECT_EQ(shownTip(), nullptr) << "hidden at once";
            EXPECT_EQ(timers[43], std::vector<UINT>{::GetDoubleClickTime() / 5});
            EXPECT_EQ(timers[44], std::vector<UINT>{::GetDoubleClickTime() * 10});
            bringTip();
        })
        .waitFor("the next tip", [] { return shownTip() != nullptr; })
        .moveTo(scene.outside())
        .release();
    EXPECT_EQ(timers[42], std::vector<UINT>{});
}

TEST_F(FlyoutTips, AppearWhereTheSystemDoesNotTellTheirFont)
{
    const ImportPatch patch{L"ovoui.dll", "SystemParametersInfoW", reinterpret_cast<void*>(&noFonts)};
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .waitFor("the tip", [] { return shownTip() != nullptr; })
        .moveTo(scene.outside())
        .release();
    EXPECT_TRUE(BarScene::idle());
}

TEST_F(FlyoutTips, AppearAtTheNextEntryAfterOneThatCouldNotBeMade)
{
    refusedTips = 0;
    const ImportPatch patch{L"ovomfc.dll", "CreateWindowExW", reinterpret_cast<void*>(&refuseOneTip)};
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .waitFor("the refusal", [] { return refusedTips == 1; })
        .then([] { EXPECT_TRUE(timers[44].empty()) << "nothing was shown that could end"; })
        .moveTo(scene.entry(1))
        .waitFor("the tip", [] { return shownTip() != nullptr; })
        .moveTo(scene.outside())
        .release();
}

TEST_F(FlyoutTips, ComeOnce)
{
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .waitFor("the tip", [] { return shownTip() != nullptr; })
        .then([] { EXPECT_FALSE(::KillTimer(BarScene::flyout()->m_hWnd, 43)) << "nothing is awaited now"; })
        .moveTo(scene.outside())
        .release();
}

TEST_F(FlyoutTips, AMoveWithinTheEntryStartsNothingAnew)
{
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .waitFor("the tip", [] { return shownTip() != nullptr; })
        .moveBy(2, 1)
        .then([] {
            EXPECT_EQ(timers[43].size(), 1u);
            EXPECT_NE(shownTip(), nullptr) << "it stays";
        })
        .moveTo(scene.outside())
        .release();
}

TEST_F(FlyoutTips, OverASeparatorThereIsNone)
{
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .waitFor("the tip", [] { return shownTip() != nullptr; })
        .moveTo(scene.entry(2))
        .then([] {
            EXPECT_EQ(shownTip(), nullptr);
            EXPECT_EQ(timers[43].size(), 1u);
        })
        .moveTo(scene.outside())
        .release();
}

TEST_F(FlyoutTips, AtTheLowerEdgeOfTheWorkAreaTheyAreAboveTheEntry)
{
    CRect frame;
    scene.frame().GetWindowRect(&frame);
    const CRect area(GetWorkArea(frame));
    // The flyout, as high as a button and its border, ends at the lower edge.
    const CRect button = onScreen(scene.bar(), BarScene::Lines);
    const int down = area.bottom - button.bottom - button.Height() - 2;
    scene.frame().SetWindowPos(nullptr, frame.left, frame.top + down, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .waitFor("the tip", [] { return shownTip() != nullptr; })
        .then([&] {
            CRect place;
            ::GetWindowRect(shownTip(), &place);
            CRect entry;
            BarScene::flyout()->GetItemRect(0, &entry);
            BarScene::flyout()->ClientToScreen(&entry);
            EXPECT_LE(place.bottom, entry.top);
        })
        .moveTo(scene.button(BarScene::Plain))
        .release();
}

TEST_F(FlyoutTips, GoByThemselves)
{
    tipTime = 10;
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
    tipTime = 1;
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
