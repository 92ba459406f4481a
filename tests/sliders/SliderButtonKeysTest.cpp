// A slider button and its popup with the keyboard.
#include "SliderButtonScene.h"

#include <support/EmptyDialog.h>

using namespace ovo::testkit;

TEST_F(SliderButton, DialogsDoNotTakeItForAStaticControl)
{
    CStatic label;
    label.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 90, 100, 110), &parent, 20);
    const LRESULT usual = label.SendMessage(WM_GETDLGCODE);
    ASSERT_TRUE(usual & DLGC_STATIC);
    EXPECT_EQ(button->SendMessage(WM_GETDLGCODE), usual & ~DLGC_STATIC);
}

TEST_F(SliderButton, TabGoesThroughItInADialog)
{
    EmptyDialog form;
    ASSERT_TRUE(form.create({20, 20}, {120, 60}));
    buddy.SetParent(&form);
    button->SetParent(&form);
    other.SetParent(&form);
    button->SetWindowPos(&buddy, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    other.SetWindowPos(button.get(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    present(form);
    buddy.SetFocus();
    user.key(VK_TAB).waitFor("the focus", [&] { return ::GetFocus() == button->m_hWnd; });
    user.key(VK_TAB).waitFor("the next one", [&] { return ::GetFocus() == other.m_hWnd; });
    user.holding(VK_SHIFT).key(VK_TAB).waitFor("the focus", [&] { return ::GetFocus() == button->m_hWnd; });
    user.key(VK_DOWN).waitFor("the popup", [] { return slider() && isOpen(); });
    EXPECT_EQ(::GetFocus(), button->m_hWnd) << "the dialog did not take the key";
    user.key(VK_RIGHT).waitFor("the value", [&] { return buddyText() == L"1"; });
    user.key(VK_ESCAPE).waitFor("the old text", [&] { return buddyText().empty(); });
    EXPECT_TRUE(form.IsWindowVisible()) << "Escape closed the popup alone";
}

TEST_F(SliderButton, SpaceOpensAndCloses)
{
    show();
    button->SetFocus();
    user.key(VK_SPACE).waitFor("the popup", &isOpen);
    EXPECT_EQ(::GetFocus(), button->m_hWnd);
    user.key(VK_SPACE).waitFor("the popup to go", &isClosed);
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
    EXPECT_EQ(::GetFocus(), buddy.m_hWnd);
}

TEST_F(SliderButton, SpaceThatIsHeldOpensOnce)
{
    constexpr LPARAM kFirst = 0x00390001;
    constexpr LPARAM kAgain = 0x40390001;
    setBuddyText(L"50");
    show();
    button->SetFocus();
    button->SendMessage(WM_KEYDOWN, VK_SPACE, kFirst);
    ASSERT_TRUE(isOpen());
    button->SendMessage(WM_KEYDOWN, VK_SPACE, kAgain);
    button->SendMessage(WM_KEYDOWN, VK_SPACE, kAgain);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(::GetFocus(), button->m_hWnd);
    EXPECT_TRUE(told().empty());
    button->SendMessage(WM_KEYDOWN, VK_SPACE, kFirst);
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
}

TEST_F(SliderButton, TabAndEnterOnTheButtonCloseThePopupAlone)
{
    EmptyDialog form;
    ASSERT_TRUE(form.create({20, 20}, {120, 60}));
    for (CWnd* const control : {static_cast<CWnd*>(&buddy), static_cast<CWnd*>(button.get())})
        control->SetParent(&form);
    button->SetWindowPos(&buddy, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    present(form);
    for (const WORD key : {VK_TAB, VK_RETURN}) {
        setBuddyText(L"50");
        button->SetFocus();
        user.key(VK_DOWN).waitFor("the popup", [] { return slider() && isOpen(); });
        user.key(VK_RIGHT).waitFor("the value", [&] { return buddyText() == L"51"; });
        user.key(key).waitFor("the popup to go", [] { return slider() == nullptr; });
        EXPECT_EQ(buddyText(), L"51");
        EXPECT_EQ(::GetFocus(), buddy.m_hWnd) << "as after the same key in the slider";
        EXPECT_TRUE(form.IsWindowVisible());
    }
}

TEST_F(SliderButton, DownOpensAndTheKeysMoveTheSlider)
{
    setBuddyText(L"50");
    show();
    button->SetFocus();
    user.key(VK_DOWN).waitFor("the popup", &isOpen);
    EXPECT_EQ(buddyText(), L"50") << "the key that opens moves nothing";
    const struct
    {
        WORD key;
        const wchar_t* text;
    } keys[] = {{VK_RIGHT, L"51"}, {VK_LEFT, L"50"},  {VK_DOWN, L"51"}, {VK_UP, L"50"},
                {VK_NEXT, L"60"},  {VK_PRIOR, L"50"}, {VK_END, L"100"}, {VK_HOME, L"0"}};
    for (const auto& [key, text] : keys) {
        user.key(key).waitFor("the value", [&, text = text] { return buddyText() == text; });
        EXPECT_EQ(told(), (std::vector<UINT>{kChanged}));
        parent.log().clear();
    }
    EXPECT_EQ(::GetFocus(), button->m_hWnd);
}

TEST_F(SliderButton, EscapePutsTheTextBack)
{
    setBuddyText(L"50 apples");
    show();
    button->SetFocus();
    user.key(VK_DOWN).waitFor("the popup", &isOpen).key(VK_END).waitFor("the value", [&] {
        return buddyText() == L"100";
    });
    parent.log().clear();
    user.key(VK_ESCAPE).waitFor("the popup to go", &isClosed);
    EXPECT_EQ(buddyText(), L"50 apples");
    EXPECT_EQ(told(), (std::vector<UINT>{kChanged, kReleased}));
}

TEST_F(SliderButton, EscapeWithoutAChangeTellsOfNone)
{
    setBuddyText(L"50 apples");
    show();
    open();
    user.key(VK_ESCAPE).waitFor("the popup to go", &isClosed);
    EXPECT_EQ(buddyText(), L"50 apples");
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
}

TEST_F(SliderButton, SpaceTabAndEnterInThePopupCloseIt)
{
    for (const WORD key : {VK_SPACE, VK_TAB, VK_RETURN}) {
        setBuddyText(L"50");
        show();
        open();
        EXPECT_TRUE(::SendMessageW(slider(), WM_GETDLGCODE, 0, 0) & DLGC_WANTTAB);
        user.click(Spot{[] { return CPoint(thumbX(), middleOfSlider()); }})
            .waitFor("the focus in the slider", [] { return ::GetFocus() == slider(); })
            .key(key)
            .waitFor("the release", [&] { return !told().empty() && told().back() == kReleased; });
        EXPECT_TRUE(isClosed());
        EXPECT_EQ(buddyText(), L"50");
    }
}

TEST_F(SliderButton, EscapeInThePopupPutsTheTextBack)
{
    setBuddyText(L"50");
    show();
    open();
    user.click(Spot{[] { return CPoint(thumbX(), middleOfSlider()); }})
        .waitFor("the focus in the slider", [] { return ::GetFocus() == slider(); })
        .key(VK_END)
        .waitFor("the value", [&] { return buddyText() == L"100"; })
        .key(VK_ESCAPE)
        .waitFor("the popup to go", &isClosed);
    EXPECT_EQ(buddyText(), L"50");
}
