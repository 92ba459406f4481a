// The colour button and its host: accessibility, data exchange, templates, toolbars, and what a host may do
// when it is told.
#include "ColourButtonScene.h"

#include <support/Perishing.h>
#include <testkit/GdiCounter.h>
#include <testkit/Picture.h>
#include <testkit/WinEvents.h>

#include <ovoui/frame/ThemeData.h>

#include <afxext.h>

using namespace ovo::testkit;

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
    user.waitFor("the colour", [this] { return now() == RGB(0, 0, 255); });
}

TEST_F(ColourButton, AccessibilityHasItsAnswerBeforeTheDialogIsShown)
{
    show();
    button->onAsk = [](const Colour&) { return Colour::rgb(0, 1, 0); };
    open();
    const AccessibleView list(shownPopup());
    EXPECT_EQ(list->accDoDefaultAction(AccessibleView::numbered(7)), S_OK);
    EXPECT_EQ(button->asked, 0);
    user.waitFor("the answer", [this] { return now() == RGB(0, 255, 0); });
    EXPECT_EQ(button->asked, 1);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kDropped, kClosed, kGridChosen}));
}

TEST_F(ColourButton, AccessibilityOpensItAndSeesTheMark)
{
    show();
    button->SetFocus();
    const VARIANT whole = AccessibleView::numbered(CHILDID_SELF);
    const AccessibleView seen(*button);
    ASSERT_EQ(seen->accDoDefaultAction(whole), S_OK);
    user.waitFor("the palette", [this] { return button->IsDropped(); });

    const AccessibleView list(shownPopup());
    EXPECT_EQ(list.role(), ROLE_SYSTEM_LIST);
    EXPECT_EQ(list.action(3), L"Take");
    EXPECT_EQ(list.focused(), 3) << "though the button has the keyboard";
    EXPECT_TRUE(list.state(3) & STATE_SYSTEM_FOCUSED);
    EXPECT_TRUE(list.state(3) & STATE_SYSTEM_SELECTED);
    EXPECT_FALSE(list.state(2) & STATE_SYSTEM_FOCUSED);
    user.key(VK_LEFT);
    EXPECT_EQ(list.focused(), 2);
    button->CloseUp();
    BSTR text = nullptr;
    EXPECT_EQ(list->get_accName(AccessibleView::numbered(1), &text), CO_E_OBJNOTCONNECTED);

    button->EnableWindow(FALSE);
    EXPECT_EQ(seen.action(), L"") << "disabled";
    EXPECT_EQ(seen->accDoDefaultAction(whole), DISP_E_MEMBERNOTFOUND);
    button->DestroyWindow();
    EXPECT_EQ(seen->get_accName(whole, &text), CO_E_OBJNOTCONNECTED);
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

TEST_F(ColourButton, TheParentMayDestroyOrDeleteItWhenItLosesTheFocus)
{
    for (const bool erase : {false, true}) {
        SCOPED_TRACE(erase);
        show();
        button = std::make_unique<Perishing<PenButton>>();
        button->Create(L"Pen", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_NOTIFY, CRect(20, 20, 80, 44), &parent,
                       7);
        button->SetFocus();
        button->DropDown();
        bool left = false;
        parent.onMessage = [&](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
            if (message == WM_COMMAND && HIWORD(wParam) == BN_KILLFOCUS && !left) {
                left = true;
                erase ? button.reset() : static_cast<void>(button->DestroyWindow());
            }
            return std::nullopt;
        };
        parent.SetFocus();
        parent.onMessage = nullptr;
        EXPECT_TRUE(left);
        EXPECT_TRUE(!button || !button->m_hWnd);
        EXPECT_EQ(shownPopup(), nullptr);
        EXPECT_EQ(::GetCapture(), nullptr);
    }
}

/// What paints it here is a picture, on which is seen whether anything is painted afterwards.
TEST_F(ColourButton, TheParentMayDestroyOrDeleteItWhenItIsAskedForTheBrush)
{
    if (!CThemeData::getThemeData().IsAppThemed())
        GTEST_SKIP() << "visual styles are off, and the parent is not asked";
    const struct
    {
        const char* name;
        std::function<void()> act;
        bool paints;
    } answers[] = {{"leaves it alone", [] {}, true},
                   {"destroys it", [this] { button->DestroyWindow(); }, false},
                   {"deletes it", [this] { button.reset(); }, false}};
    constexpr COLORREF kPaper = RGB(255, 0, 200);
    for (const auto& [name, act, paints] : answers) {
        SCOPED_TRACE(name);
        show();
        button = std::make_unique<Perishing<PenButton>>();
        button->Create(L"Pen", WS_CHILD | WS_VISIBLE, CRect(20, 20, 80, 44), &parent, 7);
        button->SetColour(Colour::colorref(kRust));
        const Picture picture(60, 24, kPaper);
        int asked = 0;
        parent.onMessage = [&, act = act](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
            if (message != WM_CTLCOLORBTN)
                return std::nullopt;
            ++asked;
            act();
            return reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_BTNFACE));
        };
        DRAWITEMSTRUCT item{.CtlType = ODT_BUTTON,
                            .CtlID = 7,
                            .itemID = 0,
                            .itemAction = ODA_DRAWENTIRE,
                            .itemState = 0,
                            .hwndItem = button->m_hWnd,
                            .hDC = picture.dc(),
                            .rcItem = {0, 0, 60, 24},
                            .itemData = 0};
        parent.SendMessage(WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
        parent.onMessage = nullptr;
        EXPECT_EQ(asked, 1);
        EXPECT_EQ(picture.at(20, 12), paints ? kRust : kPaper);
        EXPECT_EQ(picture.count(kPaper), paints ? 0 : 60 * 24);
    }
}

/// Chooses the colour to the left of the button's own.
TEST_F(ColourButton, AParentThatRaisesWhenThePaletteClosesHearsOfTheChoice)
{
    show();
    bool raisesTwice = false;
    parent.onCode = [&](UINT code) {
        if (code == kClosed)
            throw 42;
        if (code == kGridChosen && raisesTwice)
            throw L"the second";
    };
    const auto choose = [this](WPARAM key) {
        button->SetColour(Colour::colorref(kSky));
        parent.log().clear();
        button->DropDown();
        button->SendMessage(WM_KEYDOWN, key);
        button->SendMessage(WM_KEYDOWN, VK_RETURN);
    };
    for (const bool twice : {false, true}) {
        raisesTwice = twice;
        EXPECT_THROW(choose(VK_LEFT), int) << "what was raised first";
        EXPECT_EQ(parent.codes(), (std::vector<UINT>{kDropped, kGridPointed, kClosed, kGridChosen}));
        EXPECT_EQ(now(), kRust);
        EXPECT_FALSE(button->IsDropped());
        EXPECT_EQ(shownPopup(), nullptr);
    }
    EXPECT_THROW(choose(VK_END), int);
    EXPECT_EQ(button->asked, 0) << "no dialog covers the error";
    EXPECT_EQ(parent.log().count(kGridChosen), 0);
    parent.onCode = nullptr;
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
