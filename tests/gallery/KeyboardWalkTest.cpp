// A user without a mouse: every control of every page is reached by Tab and the arrow keys, and can be left.
#include "AccessibleText.h"
#include "GalleryScene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace ovo::testkit;

namespace
{

constexpr int kMostStops = 80; // of the frame with its largest page

std::wstring classOf(HWND window)
{
    wchar_t name[64]{};
    ::GetClassNameW(window, name, 64);
    return name;
}

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
