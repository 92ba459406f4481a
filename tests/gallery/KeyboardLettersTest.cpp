// Letters for Alt on every page.
#include "AccessibleText.h"
#include "GalleryScene.h"
#include "support/WindowFacts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>

using namespace ovo::testkit;
using support::classOf;
using support::textOf;

namespace
{

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
