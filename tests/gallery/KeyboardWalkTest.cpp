// A user without a mouse: every control of every page is reached by Tab and the arrow keys, every bar by
// Ctrl+F6, and all of them can be left.
#include "AccessibleText.h"
#include "GalleryScene.h"
#include "resource.h"
#include "support/WindowFacts.h"

#include <testkit/GuiThread.h>

#include <ovoui/toolbar/VantorToolBar.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace ovo::testkit;
using support::classOf;

namespace
{

constexpr int kMostStops = 80; // of the frame with its largest page
constexpr int kOnceRound = 16; // more than a bar has buttons

bool hasStyle(HWND window, LONG style)
{
    return (::GetWindowLongW(window, GWL_STYLE) & style) != 0;
}

LONG buttonKind(HWND window)
{
    return ::GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK;
}

bool isButton(HWND window)
{
    return classOf(window) == L"Button";
}

bool isRadio(HWND window)
{
    return isButton(window) &&
           (buttonKind(window) == BS_RADIOBUTTON || buttonKind(window) == BS_AUTORADIOBUTTON);
}

/// Whether there is something to do with it. Toolbars are no stops of Tab: they have keys of their own.
/// Windows of the page's own that only show answer nothing.
bool takesInput(HWND window)
{
    static const std::set<std::wstring> kinds{
        L"Edit",          L"ComboBox",        L"ListBox",           L"SysListView32",
        L"SysTreeView32", L"SysTabControl32", L"msctls_trackbar32", L"SysDateTimePick32"};
    if (!::IsWindowVisible(window) || !::IsWindowEnabled(window))
        return false;
    if (isButton(window))
        return buttonKind(window) != BS_GROUPBOX;
    if (classOf(window) == L"ToolbarWindow32")
        return false;
    return hasStyle(window, WS_TABSTOP) || kinds.contains(classOf(window)) || answersItself(window);
}

bool isAt(HWND control, HWND focus)
{
    return focus == control || ::IsChild(control, focus);
}

/// The children of a bar that take input, at any depth.
std::vector<HWND> controlsOf(HWND bar)
{
    std::vector<HWND> found;
    for (HWND child = ::GetWindow(bar, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (takesInput(child))
            found.push_back(child);
    return found;
}

/// The buttons of a bar that can be used.
std::set<LRESULT> usableButtons(CToolBar& bar)
{
    std::set<LRESULT> usable;
    TBBUTTON button{};
    for (int i = 0; bar.GetToolBarCtrl().GetButton(i, &button); ++i)
        if (!(button.fsStyle & BTNS_SEP) && (button.fsState & TBSTATE_ENABLED))
            usable.insert(i);
    return usable;
}

class KeyboardWalk : public ::testing::Test
{
protected:
    /// Where the focus is after each Tab, from the list of pages once round.
    std::vector<HWND> walk()
    {
        std::vector<HWND> stops;
        const HWND start = scene.frame().pageList();
        ::SetFocus(start);
        do {
            const HWND before = ::GetFocus();
            user.key(VK_TAB);
            stops.push_back(::GetFocus());
            if (stops.back() == before) {
                ADD_FAILURE() << "Tab does not leave " << nameOf(before);
                break;
            }
        } while (!isAt(start, stops.back()) && stops.size() < kMostStops);
        EXPECT_LT(stops.size(), std::size_t{kMostStops})
            << "Tab never comes back to the list of pages, but goes round " << nameOf(stops.back());
        return stops;
    }

    /// The radio buttons that the arrow keys reach from one of them.
    std::set<HWND> radiosFrom(HWND first)
    {
        std::set<HWND> reached;
        ::SetFocus(first);
        while (reached.size() < kMostStops && reached.insert(::GetFocus()).second)
            user.key(VK_DOWN);
        return reached;
    }

    void nextBar() { user.holding(VK_CONTROL).key(VK_F6); }

    /// The bars of a page and of the frame that can be seen, the palette among them.
    std::vector<CControlBar*> openWithBars(const wchar_t* page)
    {
        scene.open(page);
        scene.frame().ShowControlBar(&scene.frame().palette(), TRUE, FALSE);
        scene.frame().pageList().SetFocus();
        GuiThread::settle(); // which buttons can be used is looked at in idle time
        std::vector<CControlBar*> bars = scene.frame().bars();
        std::erase_if(bars, [](CControlBar* bar) { return !bar->IsVisible(); });
        return bars;
    }

    void walkButtons(CVantorToolBar& bar)
    {
        CRect first;
        CRect second;
        bar.GetItemRect(0, &first);
        bar.GetItemRect(1, &second);
        const WORD onwards = first.left == second.left ? VK_DOWN : VK_RIGHT;
        std::set<LRESULT> reached;
        for (int i = 0; i < kOnceRound; ++i) {
            reached.insert(::SendMessageW(bar, TB_GETHOTITEM, 0, 0));
            user.key(onwards);
        }
        for (const LRESULT button : usableButtons(bar))
            EXPECT_TRUE(reached.contains(button))
                << "button " << button << " among " << ::testing::PrintToString(reached);
    }

    /// Tab leads from control to control, and stays in the bar.
    void walkControls(CControlBar& bar)
    {
        const std::vector<HWND> controls = controlsOf(bar);
        std::set<HWND> reached;
        for (std::size_t i = 0; i < controls.size(); ++i) {
            EXPECT_TRUE(isAt(bar, ::GetFocus())) << nameOf(::GetFocus());
            reached.insert(::GetFocus());
            user.key(VK_TAB);
        }
        for (const HWND control : controls)
            EXPECT_TRUE(reached.contains(control)) << "not reached: " << nameOf(control);
    }

    std::string nameOf(HWND window)
    {
        return ::testing::PrintToString(readAloudAlone(window)) + " (" +
               ::testing::PrintToString(classOf(window)) + " " + std::to_string(::GetDlgCtrlID(window)) + ")";
    }

    GalleryScene scene;
    Robot user;
};

} // namespace

TEST_F(KeyboardWalk, TabAndArrowsReachEveryControlAndLeaveIt)
{
    for (const PageEntry& entry : pageTable()) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(entry.name)));
        scene.frame().openPage(entry);
        std::vector<HWND> reached = walk();
        for (const HWND stop : std::vector<HWND>(reached))
            if (isRadio(stop))
                for (const HWND radio : radiosFrom(stop))
                    reached.push_back(radio);
        for (const HWND control : scene.controls()) {
            const auto isHere = [control](HWND focus) { return isAt(control, focus); };
            if (takesInput(control)) {
                EXPECT_TRUE(std::any_of(reached.begin(), reached.end(), isHere))
                    << "not reached: " << nameOf(control);
            }
        }
    }
}

TEST_F(KeyboardWalk, CtrlF6LeadsThroughAllBarsAndBack)
{
    const struct
    {
        const wchar_t* page;
        std::size_t bars;
    } pages[] = {{L"toolbars", 5}, {L"docking", 6}, {L"tree", 2}};
    for (const auto& [page, count] : pages) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(page)));
        const std::vector<CControlBar*> bars = openWithBars(page);
        ASSERT_EQ(bars.size(), count);
        for (CControlBar* const bar : bars) {
            nextBar();
            ASSERT_TRUE(isAt(*bar, ::GetFocus())) << nameOf(::GetFocus()) << " instead of " << nameOf(*bar);
            if (auto* const buttons = dynamic_cast<CVantorToolBar*>(bar))
                walkButtons(*buttons);
            else
                walkControls(*bar);
        }
        nextBar();
        EXPECT_EQ(::GetFocus(), scene.frame().pageList().m_hWnd);
    }
}

TEST_F(KeyboardWalk, TabLeadsIntoTheControlsOfABar)
{
    for (CControlBar* const bar : openWithBars(L"toolbars")) {
        auto* const buttons = dynamic_cast<CVantorToolBar*>(bar);
        if (!buttons || controlsOf(*bar).empty())
            continue;
        for (const WORD modifier : {WORD{0}, WORD{VK_SHIFT}}) {
            ASSERT_TRUE(buttons->FocusButtons());
            modifier ? user.holding(modifier).key(VK_TAB) : user.key(VK_TAB);
            EXPECT_TRUE(isAt(modifier ? controlsOf(*bar).back() : controlsOf(*bar).front(), ::GetFocus()))
                << nameOf(::GetFocus());
        }
    }
}

TEST_F(KeyboardWalk, EscapeLeadsBackFromEveryBar)
{
    for (const wchar_t* const page : {L"toolbars", L"docking"}) {
        const std::size_t count = openWithBars(page).size();
        for (std::size_t steps = 1; steps <= count; ++steps) {
            for (std::size_t i = 0; i < steps; ++i)
                nextBar();
            ASSERT_NE(::GetFocus(), scene.frame().pageList().m_hWnd);
            user.key(VK_ESCAPE);
            EXPECT_EQ(::GetFocus(), scene.frame().pageList().m_hWnd)
                << "bar " << steps << " of " << ::testing::PrintToString(std::wstring(page));
        }
    }
}

/// The buttons take turns: one that is pressed and disabled hands the keyboard to the other.
TEST_F(KeyboardWalk, TheKeyboardFollowsACheckInTheBackground)
{
    scene.open(L"updates");
    ::SetFocus(scene.control(IDC_UPDATES_BACKGROUND));
    scene.page().SendMessage(WM_COMMAND, IDC_UPDATES_BACKGROUND);
    EXPECT_FALSE(::IsWindowEnabled(scene.control(IDC_UPDATES_BACKGROUND)));
    EXPECT_EQ(::GetFocus(), scene.control(IDC_UPDATES_CANCEL));
    EXPECT_TRUE(GuiThread::runUntil(
        [&] { return ::IsWindowEnabled(scene.control(IDC_UPDATES_BACKGROUND)) != FALSE; }));
    EXPECT_EQ(::GetFocus(), scene.control(IDC_UPDATES_BACKGROUND));
}

TEST_F(KeyboardWalk, LettersLeadToTheControlsOfThePalette)
{
    openWithBars(L"toolbars");
    FramePalette& palette = scene.frame().palette();
    nextBar();
    nextBar();
    ASSERT_TRUE(isAt(palette, ::GetFocus()));
    user.holding(VK_MENU).key('H');
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), IDC_FRAME_LOG_HEIGHT);
    user.holding(VK_MENU).key('C');
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), IDC_FRAME_HUE);
    user.holding(VK_MENU).key('J');
    EXPECT_FALSE(isAt(palette, ::GetFocus())) << "a letter of the frame's";
}
