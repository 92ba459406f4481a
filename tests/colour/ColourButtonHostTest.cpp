// The colour button and its host: accessibility, data exchange, templates, toolbars, and what a host may do
// when it is told.
#include "ColourButtonScene.h"

#include <testkit/GdiCounter.h>
#include <testkit/Picture.h>
#include <testkit/WinEvents.h>

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
