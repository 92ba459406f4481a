// Push buttons, menus, radio groups, texts and separators: one host's class in both dialogs.
#include "HostDialog.h"
#include "resource.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;

namespace
{

/// The same lines for both kinds of dialog.
class WithExtras : public COVOFileDialog
{
public:
    explicit WithExtras(Kind kind)
        : COVOFileDialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_NOCHANGEDIR, nullptr, nullptr,
                         kind == Kind::NewStyle)
    {
        if (!IsVistaStyle()) {
            ofn->Flags |= OFN_ENABLETEMPLATE;
            ofn->lpTemplateName = MAKEINTRESOURCE(IDD_EXTRAS);
        }
        const Labels labels(IDD_EXTRAS);
        AddText(labels, IDC_NOTE);
        AddPushButton(labels, IDC_DETAILS);
        AddMenu(labels, IDC_OPEN_LIST);
        AddMenuItem(IDC_OPEN_LIST, IDC_ITEM_FIRST, L"First");
        AddMenuItem(IDC_OPEN_LIST, IDC_ITEM_SECOND, L"Second");
        AddRadioGroup(labels, IDC_SIZES, {IDC_SMALL, IDC_LARGE});
        AddSeparator(IDC_LINE);
    }

    std::vector<std::string> events;
    std::function<void()> onEvent;

    int count(const std::string& event) const
    {
        return static_cast<int>(std::count(events.begin(), events.end(), event));
    }

protected:
    void OnItemSelected(DWORD id, DWORD item) override
    {
        note("ItemSelected " + std::to_string(id) + " " + std::to_string(item));
    }
    void OnButtonClicked(DWORD id) override { note("ButtonClicked " + std::to_string(id)); }
    void OnCheckButtonToggled(DWORD id, BOOL) override { note("CheckButtonToggled " + std::to_string(id)); }
    void OnControlActivating(DWORD id) override { note("ControlActivating " + std::to_string(id)); }

private:
    void note(const std::string& event)
    {
        events.push_back(event);
        if (onEvent)
            onEvent();
    }
};

class ExtraControls : public testing::TestWithParam<Kind>
{
protected:
    Kind kind() const { return GetParam(); }
};

std::string event(const char* name, DWORD id)
{
    return std::string(name) + " " + std::to_string(id);
}

/// The menu's button: the new style makes it a toolbar.
HWND menuButton()
{
    const HWND button = controlWithText(L"&Insert");
    if (button)
        return button;
    const HWND pane = controlOfClass(L"idlg_container_pane");
    HWND sink = nullptr;
    while ((sink = ::FindWindowExW(pane, sink, L"FloatNotifySink", nullptr)) != nullptr)
        if (const HWND bar = ::FindWindowExW(sink, nullptr, L"ToolbarWindow32", nullptr))
            return bar;
    return nullptr;
}

/// The middle of the button, which fills only the beginning of a toolbar.
CPoint onMenuButton()
{
    CRect rect;
    ::GetWindowRect(menuButton(), &rect);
    return {rect.left + 12, rect.CenterPoint().y};
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, ExtraControls, testing::Values(Kind::Classic, Kind::NewStyle),
                         [](const auto& info) { return nameOf(info.param); });

TEST_P(ExtraControls, APushButtonIsTold)
{
    WithExtras dialog(kind());
    auto answering =
        whenAsked()
            .click([] { return controlWithText(L"Deta&ils"); })
            .waitFor("the click", [&] { return dialog.count(event("ButtonClicked", IDC_DETAILS)) == 1; })
            .key(VK_ESCAPE)
            .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.events.size(), 1u);
}

TEST_P(ExtraControls, AMenuTellsItsChoice)
{
    WithExtras dialog(kind());
    const std::string chosen = event("ItemSelected", IDC_OPEN_LIST) + " " + std::to_string(IDC_ITEM_SECOND);
    auto answering = whenAsked()
                         .click(&onMenuButton)
                         .waitFor("the menu", [] { return shownMenu() != nullptr; })
                         .key(VK_DOWN)
                         .key(VK_DOWN)
                         .key(VK_RETURN)
                         .waitFor("the choice", [&] { return dialog.count(chosen) == 1; })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.events, (std::vector<std::string>{event("ControlActivating", IDC_OPEN_LIST), chosen}));
}

TEST_P(ExtraControls, AMenuThatIsLeftTellsNothing)
{
    WithExtras dialog(kind());
    auto answering = whenAsked()
                         .click(&onMenuButton)
                         .waitFor("the menu", [] { return shownMenu() != nullptr; })
                         .key(VK_ESCAPE)
                         .waitFor("the menu's end", [] { return shownMenu() == nullptr; })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.events, std::vector<std::string>{event("ControlActivating", IDC_OPEN_LIST)});
}

TEST_P(ExtraControls, ARadioGroupTellsItsButton)
{
    WithExtras dialog(kind());
    const std::string chosen = event("ItemSelected", IDC_SIZES) + " " + std::to_string(IDC_LARGE);
    DWORD before = 1;
    DWORD after = 0;
    DWORD set = 0;
    DWORD setBack = 0;
    auto answering = whenAsked()
                         .then([&] { before = dialog.GetSelectedRadioButton(IDC_SIZES); })
                         .click([] { return controlWithText(L"&Large"); })
                         .waitFor("the choice", [&] { return dialog.count(chosen) == 1; })
                         .then([&] {
                             after = dialog.GetSelectedRadioButton(IDC_SIZES);
                             dialog.SetSelectedRadioButton(IDC_SIZES, IDC_SMALL);
                             set = dialog.GetSelectedRadioButton(IDC_SIZES);
                             dialog.SetSelectedRadioButton(IDC_SIZES, IDC_LARGE);
                             setBack = dialog.GetSelectedRadioButton(IDC_SIZES);
                         })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(before, 0u);
    EXPECT_EQ(after, static_cast<DWORD>(IDC_LARGE));
    EXPECT_EQ(set, static_cast<DWORD>(IDC_SMALL));
    EXPECT_EQ(setBack, static_cast<DWORD>(IDC_LARGE)) << "one at a time";
}

TEST_P(ExtraControls, ATextIsShown)
{
    WithExtras dialog(kind());
    bool shown = false;
    auto answering =
        whenAsked().then([&] { shown = controlWithText(L"A note") != nullptr; }).key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_TRUE(shown);
}

TEST_P(ExtraControls, AnExceptionClosesTheDialogAndComesOut)
{
    const auto comesOut = [&](Spot place) {
        WithExtras dialog(kind());
        dialog.onEvent = [] { throw std::runtime_error("of the handler"); };
        auto answering = whenAsked().click(place).start();
        EXPECT_THROW(dialog.DoModal(), std::runtime_error);
        EXPECT_EQ(dialog.events.size(), 1u);
    };
    comesOut([] { return controlWithText(L"Deta&ils"); });
    comesOut([] { return controlWithText(L"&Large"); });
    comesOut(&onMenuButton);
}

TEST(ExtraControlsOfTheNewDialog, AreThereBeforeItIsShown)
{
    const WithExtras dialog(Kind::NewStyle);
    for (const DWORD id : {IDC_NOTE, IDC_DETAILS, IDC_OPEN_LIST, IDC_SIZES, IDC_LINE})
        EXPECT_TRUE(dialog.GetControlStateVisible(id)) << id;
    EXPECT_FALSE(dialog.GetControlStateVisible(IDC_LINE + 100));
}

TEST(ExtraControlsOfTheClassicDialog, OpenTheirMenuBelowItsButton)
{
    WithExtras dialog(Kind::Classic);
    CRect button;
    CRect menu;
    auto answering = whenAsked()
                         .click(&onMenuButton)
                         .waitFor("the menu", [] { return shownMenu() != nullptr; })
                         .then([&] {
                             ::GetWindowRect(menuButton(), &button);
                             ::GetWindowRect(shownMenu(), &menu);
                         })
                         .key(VK_ESCAPE)
                         .waitFor("the menu's end", [] { return shownMenu() == nullptr; })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(menu.TopLeft(), CPoint(button.left, button.bottom));
}

TEST(ExtraControlsOfTheClassicDialog, OpenTheirMenuFromTheRightWhereTheDialogReadsFromThere)
{
    WithExtras dialog(Kind::Classic);
    CRect button;
    CRect menu;
    DWORD style = 0;
    auto answering =
        whenAsked()
            .then([&] { dialog.DialogWnd()->ModifyStyleEx(0, WS_EX_LAYOUTRTL, SWP_FRAMECHANGED); })
            .click(&onMenuButton)
            .waitFor("the menu", [] { return shownMenu() != nullptr; })
            .then([&] {
                ::GetWindowRect(menuButton(), &button);
                ::GetWindowRect(shownMenu(), &menu);
                style = static_cast<DWORD>(::GetWindowLongPtrW(shownMenu(), GWL_EXSTYLE));
            })
            .key(VK_ESCAPE)
            .waitFor("the menu's end", [] { return shownMenu() == nullptr; })
            .key(VK_ESCAPE)
            .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_NEAR(menu.right, button.right, 4);
    EXPECT_NEAR(menu.top, button.bottom, 4);
    EXPECT_TRUE(style & WS_EX_LAYOUTRTL);
}

TEST(ExtraControlsOfTheClassicDialog, TellAnItemWithTheNumberZero)
{
    WithExtras dialog(Kind::Classic);
    dialog.AddMenuItem(IDC_OPEN_LIST, 0, L"Third");
    const std::string chosen = event("ItemSelected", IDC_OPEN_LIST) + " 0";
    auto answering = whenAsked()
                         .click(&onMenuButton)
                         .waitFor("the menu", [] { return shownMenu() != nullptr; })
                         .key(VK_DOWN)
                         .key(VK_DOWN)
                         .key(VK_DOWN)
                         .key(VK_RETURN)
                         .waitFor("the menu's end", [] { return shownMenu() == nullptr; })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.events, (std::vector<std::string>{event("ControlActivating", IDC_OPEN_LIST), chosen}));
}

TEST(ExtraControlsOfTheClassicDialog, MayDestroyTheOwnerBeforeTheirMenuOpens)
{
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                    nullptr);
    WithExtras dialog(Kind::Classic);
    dialog.ofn->Flags |= OFN_ENABLESIZING;
    dialog.onEvent = [&] { ::DestroyWindow(asked()); };
    auto answering = whenAsked().click(&onMenuButton).start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    parent.DestroyWindow();
}
