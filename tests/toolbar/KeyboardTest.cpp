// The keyboard in the bar itself: walking, opening flyouts, choosing, and where the focus goes.
#include "ToolBarScene.h"

#include <support/Perishing.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>

#include <afxpriv.h>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

using namespace ovo::testkit;

namespace
{

using Ids = std::vector<UINT>;

/// Has the focus at first, as a view would.
class Pane : public CWnd
{
public:
    explicit Pane(CWnd& frame)
    {
        Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 100, 200, 200), &frame,
               AFX_IDW_PANE_FIRST);
        SetFocus();
    }
};

class BarKeyboard : public ::testing::Test
{
protected:
    BarKeyboard()
        : pane(scene.frame())
    {
    }

    /// The button with the mark of the keyboard; -1 for none.
    int hot() const { return hasKeyboard() ? static_cast<int>(scene.bar().SendMessage(TB_GETHOTITEM)) : -1; }
    bool hasKeyboard() const { return ::GetFocus() == scene.bar().m_hWnd; }
    bool paneHasFocus() const { return ::GetFocus() == pane.m_hWnd; }

    /// Whether a button has the mark as it should be: its dots alternate along the whole of its upper edge.
    bool isMarked(int index)
    {
        CRect rect;
        scene.bar().GetItemRect(index, &rect);
        scene.bar().UpdateWindow();
        const Picture picture = Picture::ofClient(scene.bar().m_hWnd);
        int changes = 0;
        for (int x = rect.left + 4; x < rect.right - 4; ++x)
            changes += picture.at(CPoint(x, rect.top + 2)) != picture.at(CPoint(x + 1, rect.top + 2));
        return changes > rect.Width() - 10;
    }

    BarScene scene;
    Pane pane;
};

} // namespace

TEST_F(BarKeyboard, IsOffUntilTheHostAsks)
{
    scene.bar().SetFocus(); // the platform's own keys, which know no flyouts
    EXPECT_FALSE(scene.bar().SendMessage(WM_GETDLGCODE) & DLGC_WANTALLKEYS);
    scene.user.key(VK_RIGHT).key(VK_DOWN);
    EXPECT_EQ(BarScene::flyout(), nullptr);
    scene.user.key(VK_ESCAPE);
    EXPECT_FALSE(paneHasFocus());
}

TEST_F(BarKeyboard, ArrowsWalkTheButtonsWithTheirPrompts)
{
    ASSERT_TRUE(scene.bar().FocusButtons());
    EXPECT_TRUE(hasKeyboard());
    EXPECT_EQ(hot(), BarScene::Plain);
    std::vector<int> seen;
    const auto note = [&] { seen.push_back(hot()); };
    scene.user.waitFor("the prompt", [&] { return scene.prompt() == L"Does something plain"; })
        .key(VK_RIGHT)
        .then(note)
        .waitFor("the next prompt", [&] { return scene.prompt() == L"Draws a line"; })
        .key(VK_RIGHT)
        .then(note)
        .key(VK_RIGHT)
        .then(note)
        .key(VK_RIGHT)
        .then(note)
        .key(VK_LEFT)
        .then(note)
        .key(VK_HOME)
        .then(note)
        .key(VK_END)
        .then(note);
    EXPECT_EQ(seen, (std::vector<int>{BarScene::Lines, BarScene::Shapes, BarScene::Other, BarScene::Plain,
                                      BarScene::Other, BarScene::Plain, BarScene::Other}))
        << "past the separator, and round the end";
    EXPECT_EQ(scene.commands(), Ids{});
}

TEST_F(BarKeyboard, TheButtonIsMarked)
{
    EXPECT_FALSE(isMarked(BarScene::Other));
    scene.bar().FocusButtons();
    scene.user.key(VK_END);
    EXPECT_TRUE(isMarked(BarScene::Other));
    scene.user.key(VK_ESCAPE);
    EXPECT_FALSE(isMarked(BarScene::Other));
}

/// The mark inverts what is below it: drawn once more over itself it would be gone.
TEST_F(BarKeyboard, TheMarkStaysWhenSomethingElseIsPainted)
{
    scene.bar().FocusButtons();
    scene.user.key(VK_END);
    ASSERT_TRUE(isMarked(BarScene::Other));
    CRect mark;
    scene.bar().GetItemRect(BarScene::Other, &mark);
    CRect part(mark.left, mark.top, mark.CenterPoint().x, mark.bottom);
    CRect elsewhere;
    scene.bar().GetItemRect(BarScene::Plain, &elsewhere);
    for (const CRect& painted : {elsewhere, part}) {
        scene.bar().InvalidateRect(&painted);
        EXPECT_TRUE(isMarked(BarScene::Other));
    }
    scene.bar().RedrawWindow(nullptr, nullptr, RDW_INTERNALPAINT);
    EXPECT_TRUE(isMarked(BarScene::Other));
}

TEST_F(BarKeyboard, EscapeGivesTheFocusBack)
{
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT).key(VK_ESCAPE);
    EXPECT_TRUE(paneHasFocus());
    GuiThread::runUntil([&] { return scene.prompt() == L"Ready"; });
    EXPECT_EQ(scene.prompt(), L"Ready");
    scene.bar().FocusButtons();
    pane.DestroyWindow();
    scene.user.key(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), scene.frame().m_hWnd) << "what had it is gone";
}

TEST_F(BarKeyboard, AskedForTwiceItKnowsWhereTheFocusWas)
{
    EXPECT_TRUE(scene.bar().FocusButtons());
    EXPECT_TRUE(scene.bar().FocusButtons());
    scene.user.key(VK_ESCAPE);
    EXPECT_TRUE(paneHasFocus());
}

TEST_F(BarKeyboard, WhatCannotTakeTheFocusAnyMoreDoesNotGetIt)
{
    scene.bar().FocusButtons();
    pane.ShowWindow(SW_HIDE);
    scene.user.key(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), scene.frame().m_hWnd) << "it is hidden";
    pane.ShowWindow(SW_SHOW);
    pane.SetFocus();
    scene.bar().FocusButtons();
    pane.EnableWindow(FALSE);
    scene.user.key(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), scene.frame().m_hWnd) << "it is disabled";
}

TEST_F(BarKeyboard, TheCommandFindsTheFocusWhereItWas)
{
    HWND focus = nullptr;
    scene.frame().onCommand = [&](UINT) { focus = ::GetFocus(); };
    scene.bar().FocusButtons();
    scene.user.key(VK_END).key(VK_RETURN);
    EXPECT_EQ(scene.commands(), Ids{ID_OTHER});
    EXPECT_EQ(focus, pane.m_hWnd);
}

TEST_F(BarKeyboard, F10IsTheMenus)
{
    scene.bar().FocusButtons();
    scene.user.key(VK_F10);
    EXPECT_EQ(scene.frame().menusAsked, 1);
}

TEST_F(BarKeyboard, AltAloneIsTheMenusAndWithAnArrowTheBars)
{
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT);
    constexpr LPARAM kWithAlt = 1 | KF_ALTDOWN << 16;
    const auto holdAlt = [&](WPARAM key) {
        scene.bar().SendMessage(WM_SYSKEYDOWN, VK_MENU, kWithAlt);
        if (key)
            scene.bar().SendMessage(WM_SYSKEYDOWN, key, kWithAlt);
        scene.bar().SendMessage(WM_SYSKEYUP, VK_MENU, 1);
    };
    holdAlt(0);
    EXPECT_EQ(scene.frame().menusAsked, 1);
    holdAlt(VK_DOWN);
    EXPECT_TRUE(BarScene::flyoutShown());
    holdAlt(VK_UP);
    EXPECT_TRUE(BarScene::idle());
    EXPECT_EQ(scene.frame().menusAsked, 1);
}

TEST_F(BarKeyboard, EnterAndSpacePressTheButton)
{
    for (const UINT key : {VK_RETURN, VK_SPACE}) {
        scene.frame().issued.clear();
        scene.bar().FocusButtons();
        scene.user.key(VK_END).key(key);
        EXPECT_EQ(scene.frame().issued, (std::vector<Issued>{{ID_OTHER, scene.bar().m_hWnd}}));
        EXPECT_TRUE(paneHasFocus());
    }
}

TEST_F(BarKeyboard, AnOwnerThatRaisesAtThePressHearsOfTheRelease)
{
    constexpr auto kPressed = static_cast<UINT>(TBN_BEGINDRAG);
    constexpr auto kLetGo = static_cast<UINT>(TBN_ENDDRAG);
    std::vector<UINT> told;
    scene.frame().onNotify = [&](NMHDR* header) -> LRESULT {
        if (header->code == kPressed || header->code == kLetGo)
            told.push_back(header->code);
        if (header->code == kPressed)
            throw std::runtime_error("misdeed");
        return 0;
    };
    scene.bar().FocusButtons();
    EXPECT_THROW(scene.user.key(VK_END).key(VK_RETURN), std::runtime_error);
    scene.frame().onNotify = nullptr;
    EXPECT_EQ(told, (std::vector<UINT>{kPressed, kLetGo}));
    EXPECT_NE(::GetCapture(), scene.bar().m_hWnd);
    EXPECT_EQ(scene.commands(), Ids{ID_OTHER});
}

TEST_F(BarKeyboard, ADisabledButtonIsLeftOutUnlessItHasAFlyout)
{
    scene.frame().disabled = {ID_PLAIN, ID_LINE};
    GuiThread::settle();
    scene.bar().OnUpdateCmdUI(nullptr, TRUE);
    scene.bar().FocusButtons();
    EXPECT_EQ(::GetFocus(), scene.bar().m_hWnd);
    scene.user.key(VK_RETURN);
    EXPECT_EQ(scene.commands(), Ids{}) << "its own command is disabled";
    scene.user.key(VK_DOWN).waitFor("the flyout", &BarScene::flyoutShown).key(VK_ESCAPE).key(VK_ESCAPE);
    EXPECT_TRUE(paneHasFocus());
}

TEST_F(BarKeyboard, AHiddenButtonIsPassedOver)
{
    scene.bar().SetButtonStyle(BarScene::Lines, TBBS_BUTTON | TBBS_HIDDEN);
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT);
    EXPECT_EQ(hot(), BarScene::Shapes);
}

TEST_F(BarKeyboard, DownOpensTheFlyoutAndArrowsWalkItsEntries)
{
    scene.bar().FocusButtons();
    std::vector<int> seen;
    const auto note = [&] { seen.push_back(BarScene::hotEntry()); };
    scene.user.key(VK_RIGHT)
        .key(VK_DOWN)
        .waitFor("the flyout", &BarScene::flyoutShown)
        .then(note)
        .waitFor("the prompt", [&] { return scene.prompt() == L"Draws a line"; })
        .key(VK_RIGHT)
        .then(note)
        .waitFor("the next prompt", [&] { return scene.prompt() == L"Draws a curve"; })
        .key(VK_DOWN)
        .then(note)
        .key(VK_END)
        .then(note)
        .key(VK_RIGHT)
        .then(note)
        .key(VK_ESCAPE);
    EXPECT_EQ(seen, (std::vector{0, 1, 3, 4, 0}));
    EXPECT_TRUE(BarScene::idle());
    EXPECT_TRUE(hasKeyboard()) << "Escape closes the flyout alone";
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
    EXPECT_EQ(scene.commands(), Ids{});
}

TEST_F(BarKeyboard, AFlyoutThatAnUpdateHandlerKeepsFromBeingShownIsNotOpen)
{
    const auto press = [&](WPARAM key) { scene.bar().SendMessage(WM_KEYDOWN, key); };
    scene.bar().FocusButtons();
    press(VK_RIGHT);
    scene.frame().onUpdate = [](UINT id) {
        if (id == ID_CURVE) // asked for by the flyout alone
            throw std::runtime_error("misdeed");
    };
    EXPECT_THROW(press(VK_DOWN), std::runtime_error);
    scene.frame().onUpdate = nullptr;
    EXPECT_TRUE(BarScene::idle());
    press(VK_RIGHT);
    EXPECT_EQ(hot(), BarScene::Shapes) << "the keys walk in the bar";
    press(VK_LEFT);
    press(VK_DOWN);
    EXPECT_TRUE(BarScene::flyoutShown()) << "another time it may be";
    press(VK_ESCAPE);
    EXPECT_EQ(hot(), BarScene::Lines);
}

TEST_F(BarKeyboard, AltDownOpensAndAltUpCloses)
{
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT)
        .holding(VK_MENU)
        .key(VK_DOWN)
        .waitFor("the flyout", &BarScene::flyoutShown)
        .letGo(VK_MENU);
    // A window that appears can make the system forget a key that is held, so this one comes as a message.
    constexpr LPARAM kWithAlt = 1 | KF_ALTDOWN << 16;
    scene.bar().SendMessage(WM_SYSKEYDOWN, VK_UP, kWithAlt);
    EXPECT_TRUE(BarScene::idle());
    EXPECT_TRUE(hasKeyboard());
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
}

TEST_F(BarKeyboard, EnterChoosesAsAReleaseDoes)
{
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT)
        .key(VK_DOWN)
        .waitFor("the flyout", &BarScene::flyoutShown)
        .key(VK_RIGHT)
        .key(VK_RETURN);
    EXPECT_EQ(scene.frame().issued, (std::vector<Issued>{{ID_CURVE, scene.bar().m_hWnd}}));
    EXPECT_EQ(scene.command(BarScene::Lines), ID_CURVE);
    EXPECT_EQ(scene.image(BarScene::Lines), 5);
    EXPECT_TRUE(BarScene::idle());
    EXPECT_TRUE(paneHasFocus());
}

TEST_F(BarKeyboard, ADisabledEntryIsChosenWithoutACommand)
{
    scene.frame().disabled = {ID_CURVE};
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT)
        .key(VK_DOWN)
        .waitFor("the flyout", &BarScene::flyoutShown)
        .key(VK_RIGHT)
        .key(VK_RETURN);
    EXPECT_EQ(scene.commands(), Ids{});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_CURVE);
}

TEST_F(BarKeyboard, AFlyoutOpenedByKeyCanBeClicked)
{
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT)
        .key(VK_DOWN)
        .waitFor("the flyout", &BarScene::flyoutShown)
        .click(scene.entry(3))
        .waitFor("the command", [&] { return !scene.commands().empty(); });
    EXPECT_EQ(scene.commands(), Ids{ID_ARC});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_ARC);
    EXPECT_TRUE(BarScene::idle());
}

TEST_F(BarKeyboard, OfEntriesWithOneCommandTheClickedOneIsChosen)
{
    scene.bar().AttachBar(BarScene::Lines, 16, {ID_LINE, ID_LINE, ID_ARC},
                          {IDR_SHAPES, IDR_SHAPES, IDR_SHAPES}, {4, 5, 6}, {}, false, false);
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT)
        .key(VK_DOWN)
        .waitFor("the flyout", &BarScene::flyoutShown)
        .click(scene.entry(1))
        .waitFor("the command", [&] { return !scene.commands().empty(); });
    EXPECT_EQ(scene.commands(), Ids{ID_LINE});
    EXPECT_EQ(scene.image(BarScene::Lines), 5);
}

TEST_F(BarKeyboard, TheTipOfAnEntryShowsAsWithTheMouse)
{
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT)
        .key(VK_DOWN)
        .waitFor("the tip", [] { return shownWindow(L"OVO_FLYOUT_TOOLTIP") != nullptr; })
        .key(VK_RIGHT)
        .waitFor("the next tip", [] { return shownWindow(L"OVO_FLYOUT_TOOLTIP") != nullptr; })
        .key(VK_ESCAPE)
        .then([] { EXPECT_EQ(shownWindow(L"OVO_FLYOUT_TOOLTIP"), nullptr); });
}

TEST_F(BarKeyboard, TheFocusThatGoesElsewhereEndsIt)
{
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT).key(VK_DOWN).waitFor("the flyout", &BarScene::flyoutShown).then([&] {
        pane.SetFocus();
    });
    EXPECT_TRUE(BarScene::idle());
    EXPECT_TRUE(paneHasFocus());
    EXPECT_EQ(scene.bar().SendMessage(WM_GETDLGCODE) & DLGC_WANTALLKEYS, 0);
}

TEST_F(BarKeyboard, AClickOnTheBarEndsItAndIsAClick)
{
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT)
        .key(VK_DOWN)
        .waitFor("the flyout", &BarScene::flyoutShown)
        .click(scene.button(BarScene::Other));
    EXPECT_EQ(scene.commands(), Ids{ID_OTHER});
    EXPECT_TRUE(BarScene::idle());
    EXPECT_TRUE(paneHasFocus());
}

TEST_F(BarKeyboard, TabGoesToTheBarsControls)
{
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(200, 0, 260, 18), &scene.bar(), IDC_BAR_EDIT);
    scene.bar().FocusButtons();
    CEdit last;
    last.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(265, 0, 300, 18), &scene.bar(), IDC_BAR_EDIT + 1);
    scene.user.key(VK_TAB);
    EXPECT_EQ(::GetFocus(), edit.m_hWnd);
    scene.bar().FocusButtons();
    scene.user.holding(VK_SHIFT).key(VK_TAB);
    EXPECT_EQ(::GetFocus(), last.m_hWnd);
}

TEST(BarKeyboardVertical, RightOpensAndDownWalks)
{
    BarScene scene(CBRS_LEFT);
    scene.bar().FocusButtons();
    scene.user.key(VK_DOWN)
        .then([&] { EXPECT_EQ(scene.bar().SendMessage(TB_GETHOTITEM), BarScene::Lines); })
        .key(VK_RIGHT)
        .waitFor("the flyout", &BarScene::flyoutShown)
        .key(VK_DOWN)
        .then([] { EXPECT_EQ(BarScene::hotEntry(), 1); })
        .key(VK_RETURN);
    EXPECT_EQ(scene.commands(), Ids{ID_CURVE});
}

TEST_F(BarKeyboard, WithoutAButtonOrAWindowThereIsNoFocus)
{
    TestBar unborn;
    EXPECT_FALSE(unborn.FocusButtons());
    while (scene.bar().DeleteButton(0)) {
    }
    EXPECT_FALSE(scene.bar().FocusButtons());
    EXPECT_TRUE(paneHasFocus());
}

TEST_F(BarKeyboard, AHiddenBarDoesNotTakeTheFocus)
{
    scene.bar().ShowWindow(SW_HIDE);
    EXPECT_FALSE(scene.bar().FocusButtons());
    EXPECT_TRUE(paneHasFocus());
}

TEST(BarKeyboardAlone, WithoutAFrameThereIsNobodyToShowThePrompt)
{
    RecordingParent parent;
    TestBar bar;
    bar.CreateEx(&parent, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
    static constexpr UINT kButton[] = {ID_PLAIN};
    bar.SetButtons(kButton, 1);
    bar.SetWindowPos(nullptr, 0, 0, 200, 40, SWP_NOZORDER);
    present(parent);
    EXPECT_TRUE(bar.FocusButtons());
    MSG message;
    const auto toTheThread = reinterpret_cast<HWND>(-1);
    EXPECT_FALSE(::PeekMessageW(&message, toTheThread, WM_SETMESSAGESTRING, WM_SETMESSAGESTRING, PM_REMOVE));
}

TEST_F(BarKeyboard, TheOwnerMayDeleteTheBarWhenTheFocusLeaves)
{
    std::unique_ptr<TestBar> bar = std::make_unique<Perishing<TestBar>>();
    bar->CreateEx(&scene.frame(), TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
    static constexpr UINT kButton[] = {ID_PLAIN};
    bar->SetButtons(kButton, 1);
    scene.frame().RecalcLayout();
    ASSERT_TRUE(bar->FocusButtons());
    pane.DestroyWindow(); // so that the bar looks for another window
    scene.frame().onNotify = [&, from = bar->m_hWnd](NMHDR* header) -> LRESULT {
        if (header->hwndFrom != from || header->code != static_cast<UINT>(TBN_HOTITEMCHANGE))
            return 0;
        bar.reset();
        return 1; // leave the hot button as it is
    };
    scene.user.key(VK_ESCAPE);
    scene.frame().onNotify = nullptr;
    EXPECT_EQ(bar, nullptr);
}

TEST_F(BarKeyboard, TheOwnerHearsOfTheHotButtonAndMayForbidIt)
{
    struct Change
    {
        int from;
        int to;
        DWORD flags;
        bool operator==(const Change&) const = default;
    };
    scene.bar().SendMessage(TB_SETHOTITEM, static_cast<WPARAM>(-1)); // wherever the pointer is
    std::vector<Change> heard;
    int forbidden = 0;
    scene.frame().onNotify = [&](NMHDR* header) -> LRESULT {
        if (header->hwndFrom != scene.bar().m_hWnd || header->code != static_cast<UINT>(TBN_HOTITEMCHANGE))
            return 0;
        const NMTBHOTITEM& change = *reinterpret_cast<NMTBHOTITEM*>(header);
        heard.push_back({change.idOld, change.idNew, change.dwFlags});
        return change.idNew == forbidden;
    };
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT);
    forbidden = ID_BOX;
    scene.user.key(VK_RIGHT);
    EXPECT_EQ(hot(), BarScene::Lines);
    scene.user.key(VK_ESCAPE);
    scene.frame().onNotify = nullptr;
    constexpr DWORD kOther = HICF_OTHER;
    EXPECT_EQ(heard, (std::vector<Change>{{0, ID_PLAIN, kOther | HICF_ENTERING},
                                          {ID_PLAIN, ID_LINE, kOther},
                                          {ID_LINE, ID_BOX, kOther},
                                          {ID_LINE, 0, kOther | HICF_LEAVING}}));
}

TEST_F(BarKeyboard, HostsMayDestroyTheBarOnTheWay)
{
    scene.bar().FocusButtons();
    scene.frame().onNotify = [&](NMHDR* header) {
        if (header->code == static_cast<UINT>(TBN_HOTITEMCHANGE))
            scene.deleteBar();
        return 0;
    };
    scene.user.key(VK_RIGHT);
    scene.frame().onNotify = nullptr;

    TestBar& second = scene.addBar();
    second.FocusButtons();
    scene.frame().onUpdate = [&](UINT id) {
        if (id == ID_CURVE) // asked for by the flyout alone
            second.DestroyWindow();
    };
    scene.user.key(VK_DOWN);
    scene.frame().onUpdate = nullptr;
    EXPECT_TRUE(BarScene::idle());
}

TEST_F(BarKeyboard, TheCommandOfAKeyMayDestroyTheBarOrTheFrame)
{
    scene.frame().onCommand = [&](UINT) { scene.deleteBar(); };
    scene.bar().FocusButtons();
    scene.user.key(VK_RETURN);
    TestBar& second = scene.addBar();
    scene.frame().onCommand = [&](UINT) { scene.frame().DestroyWindow(); };
    second.FocusButtons();
    scene.user.key(VK_END).key(VK_RETURN);
    GuiThread::runUntil([&] { return !scene.frameLives(); });
    EXPECT_FALSE(scene.frameLives());
}

TEST_F(BarKeyboard, ButtonsThatComeAndGoKeepItsPlace)
{
    scene.bar().FocusButtons();
    scene.user.key(VK_END);
    scene.bar().DeleteButton(BarScene::Plain);
    scene.user.key(VK_RETURN);
    EXPECT_EQ(scene.commands(), Ids{ID_OTHER});
}

TEST_F(BarKeyboard, ButtonsThatAreInsertedLeaveItAtItsButton)
{
    TBBUTTON button{};
    button.idCommand = ID_PLAIN;
    button.fsState = TBSTATE_ENABLED;
    scene.bar().FocusButtons();
    scene.user.key(VK_END);
    scene.bar().InsertButton(0, &button);
    scene.bar().InsertButton(-1, &button); // which makes it the last one
    scene.user.key(VK_RETURN);
    EXPECT_EQ(scene.commands(), Ids{ID_OTHER});
}
