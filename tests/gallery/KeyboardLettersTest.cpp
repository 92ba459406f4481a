// Letters for Alt on every page, and that the focus is seen wherever Tab leads.
#include "AccessibleText.h"
#include "GalleryScene.h"

#include "resource.h"
#include <testkit/GuiThread.h>
#include <testkit/Picture.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <set>

using namespace ovo::testkit;

namespace
{

constexpr int kMostStops = 80; // of the frame with its largest page

std::wstring textOf(HWND window)
{
    CString text;
    CWnd::FromHandle(window)->GetWindowText(text);
    return text.GetString();
}

std::wstring classOf(HWND window)
{
    wchar_t name[64]{};
    ::GetClassNameW(window, name, 64);
    return name;
}

/// In capitals, as keys are numbered.
std::optional<wchar_t> letterOf(const std::wstring& text)
{
    const std::size_t mark = text.find(L'&');
    if (mark == std::wstring::npos || mark + 1 == text.size() || text[mark + 1] == L'&')
        return {};
    wchar_t letter[] = {text[mark + 1], L'\0'};
    ::CharUpperW(letter);
    return letter[0];
}

bool isButton(HWND window)
{
    return classOf(window) == L"Button";
}

/// A letter presses it, which may open a dialog.
bool isPushButton(HWND window)
{
    const LONG type = ::GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK;
    return isButton(window) && type != BS_AUTOCHECKBOX && type != BS_AUTORADIOBUTTON && type != BS_AUTO3STATE;
}

/// What the letter of a control leads to: a button itself, of a label what follows it.
HWND targetOf(HWND control)
{
    return isButton(control) ? control : ::GetWindow(control, GW_HWNDNEXT);
}

bool isAt(HWND control, HWND focus)
{
    return focus == control || ::IsChild(control, focus);
}

/// A caret is seen, though not at every moment.
bool showsCaret(HWND focus)
{
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(::GetCurrentThreadId(), &info) && info.hwndCaret == focus;
}

/// These show no focus: a list box in which nothing is selected, whose first row may be scrolled out of view,
/// and Wine's field of dates.
bool isOfThePlatform(HWND window)
{
    const std::wstring name = classOf(window);
    const bool list = ::lstrcmpiW(name.c_str(), L"ListBox") == 0;
    return (list && ::SendMessageW(window, LB_GETCURSEL, 0, 0) == LB_ERR) || name == L"SysDateTimePick32";
}

Picture seenAt(const CRect& place)
{
    Picture picture(place.Width(), place.Height());
    const HDC screen = ::GetDC(nullptr);
    ::BitBlt(picture.dc(), 0, 0, place.Width(), place.Height(), screen, place.left, place.top, SRCCOPY);
    ::ReleaseDC(nullptr, screen);
    ::GdiFlush();
    return picture;
}

class KeyboardLetters : public ::testing::Test
{
protected:
    /// The controls of the page and of the frame around it whose texts have a letter.
    std::vector<HWND> lettered()
    {
        std::vector<HWND> found = scene.controls();
        for (HWND part = ::GetWindow(scene.frame(), GW_CHILD); part; part = ::GetWindow(part, GW_HWNDNEXT))
            found.push_back(part);
        std::erase_if(found, [](HWND window) {
            return !::IsWindowVisible(window) || !::IsWindowEnabled(window) || !letterOf(textOf(window));
        });
        return found;
    }

    std::vector<std::wstring> menus()
    {
        std::vector<std::wstring> texts;
        CMenu& menu = *scene.frame().GetMenu();
        for (int i = 0; i < menu.GetMenuItemCount(); ++i) {
            CString text;
            menu.GetMenuString(static_cast<UINT>(i), text, MF_BYPOSITION);
            texts.emplace_back(text.GetString());
        }
        return texts;
    }

    void showNow()
    {
        GuiThread::settle();
        scene.frame().RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        ::GdiFlush();
    }

    GalleryScene scene;
    Robot user;
};

} // namespace

TEST_F(KeyboardLetters, EachIsThereOnce)
{
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        std::map<wchar_t, std::vector<std::wstring>> users;
        for (const HWND control : lettered())
            users[*letterOf(textOf(control))].push_back(textOf(control));
        for (const std::wstring& text : menus())
            users[*letterOf(text)].push_back(text);
        EXPECT_GE(users.size(), 3u) << "two menus and the log";
        for (const auto& [letter, texts] : users)
            EXPECT_EQ(texts.size(), 1u) << ::testing::PrintToString(std::wstring(entry.name)) << ": "
                                        << ::testing::PrintToString(texts);
    }
}

TEST_F(KeyboardLetters, EachLeadsToWhatItStandsAt)
{
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        for (const HWND control : lettered()) {
            const HWND target = targetOf(control);
            if (isPushButton(control) || !::IsWindowEnabled(target))
                continue;
            scene.frame().pageList().SetFocus();
            user.holding(VK_MENU).key(static_cast<WORD>(*letterOf(textOf(control))));
            EXPECT_TRUE(isAt(target, ::GetFocus()))
                << ::testing::PrintToString(std::wstring(entry.name)) << ": "
                << ::testing::PrintToString(textOf(control)) << " leads to "
                << ::testing::PrintToString(readAloudAlone(::GetFocus()));
        }
    }
}

TEST_F(KeyboardLetters, TheToolbarIsReachedAndLeftByKeys)
{
    const HWND bar = scene.frame().bar();
    scene.frame().pageList().SetFocus();
    showNow(); // which buttons can be used is looked at in idle time
    user.holding(VK_CONTROL).key(VK_F6);
    ASSERT_EQ(::GetFocus(), bar);
    std::set<LRESULT> reached;
    constexpr int kOnceRound = 12;
    for (int i = 0; i < kOnceRound;
         ++i) { // a button that cannot be used but has a flyout is never the hot one
        reached.insert(::SendMessageW(bar, TB_GETHOTITEM, 0, 0));
        user.key(VK_RIGHT);
    }
    TBBUTTON button{};
    for (int i = 0;
         ::SendMessageW(bar, TB_GETBUTTON, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&button)); ++i)
        if (!(button.fsStyle & BTNS_SEP) && (button.fsState & TBSTATE_ENABLED)) {
            EXPECT_TRUE(reached.contains(i))
                << "button " << i << " among " << ::testing::PrintToString(reached);
        }
    user.key(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), scene.frame().pageList().m_hWnd);
}

TEST_F(KeyboardLetters, TheFocusIsSeenWhereverTabLeads)
{
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        const HWND start = scene.frame().pageList();
        ::SetFocus(start);
        int stops = 0;
        do {
            user.key(VK_TAB);
            const HWND focus = ::GetFocus();
            const bool caret = showsCaret(focus);
            CRect place;
            ::GetWindowRect(focus, &place);
            showNow();
            const Picture with = seenAt(place);
            scene.frame().pageList().SetFocus();
            showNow();
            EXPECT_TRUE(caret || focus == start || isOfThePlatform(focus) ||
                        seenAt(place).differences(with) > 0)
                << ::testing::PrintToString(std::wstring(entry.name)) << ": nothing shows the focus of "
                << ::testing::PrintToString(readAloudAlone(focus)) << " (" << ::GetDlgCtrlID(focus) << ")";
            ::SetFocus(focus);
        } while (!isAt(start, ::GetFocus()) && ++stops < kMostStops);
        EXPECT_GT(stops, 0);
    }
}
