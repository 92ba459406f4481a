// A property sheet with tabs: its pages, its buttons, its results.
#include "SheetScene.h"

#include <testkit/GdiCounter.h>
#include <testkit/TestApp.h>
#include <testkit/WindowCounter.h>

#include <utility>

using namespace ovo::testkit;

namespace
{

class TabbedSheet : public SheetScene
{
protected:
    std::wstring tabText(int index)
    {
        wchar_t text[80]{};
        TCITEM item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 80;
        sheet.GetTabControl()->GetItem(index, &item);
        return text;
    }

    static std::wstring titleOf(const CWnd& wnd)
    {
        CString text;
        wnd.GetWindowText(text);
        return std::wstring(text);
    }

    /// Puts an edit control of several lines, `text`, on the first page, and presses Escape in it.
    Story escapeIn(CEdit& text, Story story)
    {
        return story
            .then([&] {
                text.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_MULTILINE, CRect(0, 90, 90, 120),
                            &general, IDC_OTHER);
                text.SetFocus();
                taken();
            })
            .waitFor("the focus", [&] { return ::GetFocus() == text.m_hWnd; })
            .key(VK_ESCAPE);
    }
};

} // namespace

// Pages

TEST_F(TabbedSheet, ShowsATabForEachPageAndTheFirstPage)
{
    show([this](Story story) {
        return story
            .then([this] {
                EXPECT_EQ(titleOf(sheet), L"Trees");
                ASSERT_EQ(sheet.GetTabControl()->GetItemCount(), 3);
                EXPECT_EQ(tabText(0), L"General") << "the template's title";
                EXPECT_EQ(tabText(1), L"Colours") << "the caption given";
                EXPECT_EQ(tabText(2), L"Lists");
                EXPECT_TRUE(general.IsWindowVisible());
                EXPECT_FALSE(colours.m_hWnd) << "made when the user comes to it";
                EXPECT_EQ(general.GetParent(), &sheet);
                EXPECT_EQ(sheet.GetActivePage(), &general);
                EXPECT_EQ(general.GetDlgItemInt(IDC_NUMBER), 7u);
            })
            .key(VK_ESCAPE);
    });
    EXPECT_FALSE(general.m_hWnd);
}

TEST_F(TabbedSheet, AClickOnATabExchangesDataAndGoesThere)
{
    show([this](Story story) {
        return story.then([this] { general.SetDlgItemInt(IDC_NUMBER, 42); })
            .click(tab(1))
            .waitFor("the second page", [this] { return colours.m_hWnd && colours.IsWindowVisible(); })
            .then([this] {
                EXPECT_EQ(general.number, 42);
                EXPECT_FALSE(general.IsWindowVisible());
                EXPECT_EQ(sheet.GetActiveIndex(), 1);
                EXPECT_EQ(taken(), (Calls{"general init", "general active", "general left", "colours init",
                                          "colours active"}));
                general.number = 55;
            })
            .click(tab(0))
            .waitFor("the first page", [this] { return general.IsWindowVisible() != FALSE; })
            .then([this] {
                EXPECT_EQ(general.GetDlgItemInt(IDC_NUMBER), 55u) << "shown anew";
                EXPECT_EQ(taken(), (Calls{"colours left", "general active"}));
            })
            .key(VK_ESCAPE);
    });
}

TEST_F(TabbedSheet, KeysGoFromPageToPage)
{
    show([this](Story story) {
        return story
            .chordUntil("the second page", VK_CONTROL, VK_TAB,
                        [this] { return sheet.GetActivePage() == &colours; })
            .chordUntil("the third page", VK_CONTROL, VK_NEXT,
                        [this] { return sheet.GetActivePage() == &lists; })
            .chordUntil("the second page again", VK_CONTROL, VK_PRIOR,
                        [this] { return sheet.GetActivePage() == &colours; })
            .key(VK_ESCAPE);
    });
}

TEST_F(TabbedSheet, TheFocusStaysInSightWhereverThePagesGo)
{
    const auto focusIsSeen = [this] {
        const HWND focus = ::GetFocus();
        return ::IsChild(sheet.m_hWnd, focus) && ::IsWindowVisible(focus);
    };
    show([&](Story story) {
        return story.then([this] { general.GetDlgItem(IDC_NUMBER)->SetFocus(); })
            .chordUntil("the second page", VK_CONTROL, VK_NEXT,
                        [this] { return sheet.GetActivePage() == &colours; })
            .then([&] { EXPECT_TRUE(focusIsSeen()) << "after keys"; })
            .then([this] { colours.GetDlgItem(IDC_NUMBER)->SetFocus(); })
            .then([&] {
                sheet.SetActivePage(&lists);
                EXPECT_TRUE(focusIsSeen()) << "after code";
            })
            .then([this] { lists.GetDlgItem(IDC_NUMBER)->SetFocus(); })
            .click(tab(0))
            .waitFor("the first page", [this] { return general.IsWindowVisible() != FALSE; })
            .then([&] { EXPECT_TRUE(focusIsSeen()) << "after a click"; })
            .key(VK_ESCAPE);
    });
}

TEST_F(TabbedSheet, ACharacterForAPageThatWasLeftHarmsNothing)
{
    show([this](Story story) {
        return story
            .chordUntil("the second page", VK_CONTROL, VK_TAB,
                        [this] { return sheet.GetActivePage() == &colours; })
            .then([this] {
                for (const UINT message : {WM_CHAR, WM_SYSCHAR})
                    for (const int id : {IDC_NUMBER, ID_TEST_ACT})
                        general.GetDlgItem(id)->PostMessage(message, 'z'); // no label's letter
            })
            .then([this] { EXPECT_EQ(sheet.GetActivePage(), &colours); })
            .key(VK_ESCAPE);
    });
}

TEST_F(TabbedSheet, TabMovesThroughPageAndButtons)
{
    std::vector<int> met;
    show([&](Story story) {
        return story.then([this] { general.GetDlgItem(IDC_NUMBER)->SetFocus(); })
            .then([&] { met.push_back(::GetDlgCtrlID(::GetFocus())); })
            .key(VK_TAB)
            .then([&] { met.push_back(::GetDlgCtrlID(::GetFocus())); })
            .key(VK_TAB)
            .then([&] { met.push_back(::GetDlgCtrlID(::GetFocus())); })
            .key(VK_ESCAPE);
    });
    EXPECT_EQ(met, (std::vector<int>{IDC_NUMBER, ID_TEST_ACT, IDOK}));
}

TEST_F(TabbedSheet, APageThatDoesNotLetGoStays)
{
    show([this](Story story) {
        return story.then([this] { general.SetDlgItemInt(IDC_NUMBER, 4711); })
            .click(tab(1))
            .waitFor("the refusal", [] { return TestApp::instance().boxes().size() == 1; })
            .then([this] {
                EXPECT_EQ(sheet.GetActivePage(), &general);
                EXPECT_TRUE(general.IsWindowVisible());
                EXPECT_FALSE(sheet.SetActivePage(1)) << "nor by code";
            })
            .key(VK_ESCAPE);
    });
}

TEST_F(TabbedSheet, ThePageShownFirstMayBeChosen)
{
    EXPECT_TRUE(sheet.SetActivePage(&colours));
    EXPECT_EQ(sheet.GetActiveIndex(), 1);
    EXPECT_EQ(sheet.GetActivePage(), &colours);
    show([this](Story story) {
        return story
            .then([this] {
                EXPECT_EQ(sheet.GetActivePage(), &colours);
                EXPECT_FALSE(general.m_hWnd);
                EXPECT_TRUE(sheet.SetActivePage(2));
                EXPECT_EQ(sheet.GetActivePage(), &lists);
                EXPECT_FALSE(sheet.SetActivePage(3));
                EXPECT_FALSE(sheet.SetActivePage(-1));
                EXPECT_EQ(sheet.GetActivePage(), &lists);
            })
            .key(VK_ESCAPE);
    });
}

TEST_F(TabbedSheet, ThePageThatTheConstructorNamesIsShownFirst)
{
    TestSheet other(IDS_SHEET, &owner, 1);
    other.AddPage(&general);
    other.AddPage(&colours);
    auto story = Robot()
                     .waitFor("the sheet", [&] { return other.m_hWnd && shownDialog() == other.m_hWnd; })
                     .then([&] {
                         EXPECT_EQ(titleOf(other), L"Options") << "a string's number";
                         EXPECT_EQ(other.GetActivePage(), &colours);
                     })
                     .key(VK_ESCAPE);
    EXPECT_EQ(showUntilClosed(other, std::move(story)), IDCANCEL);
}

TEST_F(TabbedSheet, APageThatRefusesIsSkipped)
{
    colours.answers["active"] = FALSE;
    show([this](Story story) {
        return story.click(tab(1))
            .waitFor("the page behind it", [this] { return sheet.GetActivePage() == &lists; })
            .key(VK_ESCAPE);
    });
}

TEST_F(TabbedSheet, PagesAreAddedAndRemovedWhileItIsShown)
{
    TestPage late("late", calls, IDD_GENERAL, IDS_COLOURS);
    show([&](Story story) {
        return story
            .then([&] {
                sheet.AddPage(&late);
                EXPECT_EQ(sheet.GetPageCount(), 4);
                EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 4);
                EXPECT_EQ(sheet.GetPageIndex(&late), 3);
                sheet.SetActivePage(&late);
                EXPECT_TRUE(late.IsWindowVisible());
                sheet.RemovePage(&late);
                EXPECT_FALSE(late.m_hWnd) << "its window is destroyed";
                EXPECT_EQ(sheet.GetPageCount(), 3);
                EXPECT_EQ(sheet.GetPageIndex(&late), -1);
                EXPECT_EQ(sheet.GetActivePage(), &lists);
                sheet.RemovePage(0);
                EXPECT_EQ(sheet.GetPage(0), &colours);
                EXPECT_EQ(sheet.GetActivePage(), &lists);
            })
            .key(VK_ESCAPE);
    });
    EXPECT_EQ(sheet.GetPage(2), nullptr);
    EXPECT_EQ(sheet.GetPage(-1), nullptr);
}

TEST_F(TabbedSheet, APageWithoutATemplateIsNoPage)
{
    TestPage missing("missing", calls, IDD_MISSING);
    show([&](Story story) {
        return story
            .then([&] {
                EXPECT_THROW(sheet.AddPage(&missing), CResourceException*);
                EXPECT_EQ(sheet.GetPageCount(), 3);
            })
            .key(VK_ESCAPE);
    });
    sheet.AddPage(&missing);
    EXPECT_EQ(showUntilClosed(sheet), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_FALSE(sheet.Create(&owner));
}

// Buttons

TEST_F(TabbedSheet, OkAppliesThePagesThatWereSeen)
{
    const INT_PTR answer = show([this](Story story) {
        return story
            .then([this] {
                sheet.SetActivePage(1);
                colours.SetDlgItemInt(IDC_NUMBER, 33);
                taken();
            })
            .click(button(IDOK));
    });
    EXPECT_EQ(answer, IDOK);
    EXPECT_EQ(taken(), (Calls{"colours left", "general apply", "general ok", "colours apply", "colours ok"}));
    EXPECT_EQ(colours.number, 33);
    EXPECT_FALSE(sheet.m_hWnd);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_F(TabbedSheet, EnterIsOk)
{
    EXPECT_EQ(show([this](Story story) {
                  return story.then([this] { general.GetDlgItem(IDC_NUMBER)->SetFocus(); }).key(VK_RETURN);
              }),
              IDOK);
}

TEST_F(TabbedSheet, ApplyLeavesItOpen)
{
    const INT_PTR answer = show([this](Story story) {
        return story
            .then([this] {
                EXPECT_FALSE(isEnabled(ID_APPLY_NOW));
                general.SetModified();
                EXPECT_TRUE(isEnabled(ID_APPLY_NOW));
                general.SetModified(FALSE);
                EXPECT_FALSE(isEnabled(ID_APPLY_NOW));
                general.SetModified();
                general.SetDlgItemInt(IDC_NUMBER, 12);
                taken();
            })
            .click(button(ID_APPLY_NOW))
            .waitFor("the end of it", [this] { return !isEnabled(ID_APPLY_NOW); })
            .then([this] {
                EXPECT_EQ(general.number, 12);
                const Calls all = taken();
                EXPECT_EQ(Calls(all.begin(), all.begin() + 3),
                          (Calls{"general left", "general apply", "general ok"}));
            })
            .key(VK_ESCAPE);
    });
    EXPECT_EQ(answer, IDCANCEL);
    EXPECT_EQ(general.number, 12);
}

TEST_F(TabbedSheet, ApplyStaysEnabledWhileOnePageHasChanges)
{
    show([this](Story story) {
        return story
            .then([this] {
                sheet.SetActivePage(1);
                general.SetModified();
                colours.SetModified();
                colours.SetModified(FALSE);
                EXPECT_TRUE(isEnabled(ID_APPLY_NOW));
                general.SetModified(FALSE);
                EXPECT_FALSE(isEnabled(ID_APPLY_NOW));
            })
            .key(VK_ESCAPE);
    });
}

TEST_F(TabbedSheet, APageMayRefuseOkAndIsShown)
{
    general.answers["apply"] = FALSE;
    const INT_PTR answer = show([this](Story story) {
        return story.then([this] { sheet.SetActivePage(1); })
            .click(button(IDOK))
            .waitFor("the page that refuses", [this] { return sheet.GetActivePage() == &general; })
            .then([this] { general.answers.clear(); })
            .click(button(IDOK));
    });
    EXPECT_EQ(answer, IDOK);
}

TEST_F(TabbedSheet, CancelEscapeAndTheCloseBoxResetThePages)
{
    const std::vector<std::function<void()>> ways{[this] { sheet.PressButton(PSBTN_CANCEL); },
                                                  [this] { sheet.PostMessage(WM_CLOSE); },
                                                  [this] { sheet.PostMessage(WM_SYSCOMMAND, SC_CLOSE); },
                                                  [this] { sheet.PostMessage(WM_COMMAND, IDCANCEL); }};
    for (std::size_t i = 0; i < ways.size(); ++i) {
        const INT_PTR answer = show([&](Story story) {
            return story.then([&] {
                sheet.SetActivePage(1);
                taken();
                ways[i]();
            });
        });
        EXPECT_EQ(answer, IDCANCEL) << i;
        EXPECT_EQ(taken(), (Calls{"colours query cancel", "general reset", "general cancel", "colours reset",
                                  "colours cancel"}))
            << i;
    }
    EXPECT_EQ(show([](Story story) { return story.key(VK_ESCAPE); }), IDCANCEL);
}

/// An edit control of several lines would close the page around it, which then hears of a cancelling.
TEST_F(TabbedSheet, EscapeInATextOfSeveralLinesCancelsTheSheet)
{
    CEdit text;
    const INT_PTR answer = show([&](Story story) { return escapeIn(text, std::move(story)); });
    EXPECT_EQ(answer, IDCANCEL);
    EXPECT_EQ(taken(), (Calls{"general query cancel", "general reset", "general cancel"}));
}

TEST_F(TabbedSheet, EscapeInATextOfSeveralLinesMayBeRefused)
{
    CEdit text;
    general.answers["query cancel"] = FALSE;
    show([&](Story story) {
        return escapeIn(text, std::move(story))
            .waitFor("the question", [this] { return !calls.empty(); })
            .then([&] {
                EXPECT_EQ(taken(), Calls{"general query cancel"});
                EXPECT_TRUE(text.m_hWnd && text.IsWindowVisible());
                sheet.EndDialog(IDCANCEL);
            });
    });
}

TEST_F(TabbedSheet, CancelMayBeRefused)
{
    general.answers["query cancel"] = FALSE;
    show([this](Story story) {
        return story.then([this] { taken(); })
            .key(VK_ESCAPE)
            .waitFor("the question", [this] { return !calls.empty(); })
            .then([this] {
                EXPECT_EQ(taken(), Calls{"general query cancel"});
                EXPECT_TRUE(sheet.m_hWnd && sheet.IsWindowVisible());
                general.answers.clear();
            })
            .key(VK_ESCAPE);
    });
}

TEST_F(TabbedSheet, ButtonsArePressedByCode)
{
    EXPECT_EQ(show([this](Story story) {
                  return story
                      .then([this] {
                          general.SetModified();
                          sheet.PressButton(PSBTN_APPLYNOW);
                      })
                      .waitFor("the end of it", [this] { return !isEnabled(ID_APPLY_NOW); })
                      .then([this] { sheet.PressButton(PSBTN_OK); });
              }),
              IDOK);
}

TEST_F(TabbedSheet, CancelBecomesClose)
{
    show([this](Story story) {
        return story
            .then([this] {
                const std::wstring ok = textOf(IDOK);
                general.CancelToClose();
                EXPECT_FALSE(isEnabled(IDCANCEL));
                EXPECT_NE(textOf(IDOK), ok);
            })
            .click(button(IDOK));
    });
}

TEST_F(TabbedSheet, EndDialogGivesItsResult)
{
    general.onAct = [this] {
        sheet.EndDialog(77);
        EXPECT_TRUE(sheet.m_hWnd) << "the window outlives the handler";
    };
    EXPECT_EQ(show([this](Story story) {
                  return story.click(Spot{[this] { return general.GetDlgItem(ID_TEST_ACT)->m_hWnd; }});
              }),
              77);
}

TEST_F(TabbedSheet, EndedInItsInitialisationIsNeverShown)
{
    sheet.onInit = [](TestSheet& s) { s.EndDialog(78); };
    EXPECT_EQ(showUntilClosed(sheet), 78);
    EXPECT_EQ(sheet.shown, 0);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_F(TabbedSheet, DestroyedInsteadOfClosedGivesMinusOne)
{
    general.onAct = [this] { sheet.DestroyWindow(); };
    EXPECT_EQ(show([this](Story story) {
                  return story.then([this] { general.PostMessage(WM_COMMAND, ID_TEST_ACT); });
              }),
              -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

// The sheet as a whole

TEST_F(TabbedSheet, DisablesItsOwnerAndIsCentredOnIt)
{
    show([this](Story story) {
        return story
            .then([this] {
                EXPECT_FALSE(owner.IsWindowEnabled());
                EXPECT_EQ(::GetWindow(sheet, GW_OWNER), owner.m_hWnd);
                CRect place;
                sheet.GetWindowRect(&place);
                EXPECT_NEAR(place.CenterPoint().x, 40 + 350, 1);
                EXPECT_NEAR(place.CenterPoint().y, 30 + 250, 1);
            })
            .key(VK_ESCAPE);
    });
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(sheet.shown, 1);
}

TEST_F(TabbedSheet, WithoutAParentTheMainWindowOwnsIt)
{
    AfxGetApp()->m_pMainWnd = &owner;
    TestSheet other(L"Other");
    other.AddPage(&general);
    HWND itsOwner = nullptr;
    auto story = Robot()
                     .waitFor("the sheet", [&] { return other.m_hWnd && shownDialog() == other.m_hWnd; })
                     .then([&] { itsOwner = ::GetWindow(other, GW_OWNER); })
                     .key(VK_ESCAPE);
    showUntilClosed(other, std::move(story));
    AfxGetApp()->m_pMainWnd = nullptr;
    EXPECT_EQ(itsOwner, owner.m_hWnd);
}

TEST_F(TabbedSheet, TheTitleMayChange)
{
    sheet.SetTitle(L"Oaks");
    show([this](Story story) {
        return story
            .then([this] {
                EXPECT_EQ(titleOf(sheet), L"Oaks");
                sheet.SetTitle(L"Elms");
                EXPECT_EQ(titleOf(sheet), L"Elms");
                sheet.SetTitle(L"Elms", PSH_PROPTITLE);
                const std::wstring title = titleOf(sheet);
                EXPECT_NE(title.find(L"Elms"), std::wstring::npos);
                EXPECT_GT(title.size(), 4u) << "with the system's word for properties";
            })
            .key(VK_ESCAPE);
    });
}

TEST_F(TabbedSheet, TabsAreStackedUnlessTheHostWantsOtherwise)
{
    for (const BOOL stacked : {TRUE, FALSE}) {
        sheet.EnableStackedTabs(stacked);
        show([&](Story story) {
            return story
                .then([&] {
                    EXPECT_EQ((sheet.GetTabControl()->GetStyle() & TCS_MULTILINE) != 0, stacked != FALSE);
                })
                .key(VK_ESCAPE);
        });
    }
}

TEST_F(TabbedSheet, DialogUnitsAreThoseOfTheSheet)
{
    show([this](Story story) {
        return story
            .then([this] {
                CRect mine(4, 8, 40, 80);
                CRect systems = mine;
                sheet.MapDialogRect(&mine);
                ::MapDialogRect(sheet, &systems);
                EXPECT_EQ(mine, systems);
                EXPECT_GT(mine.right, 40);
            })
            .key(VK_ESCAPE);
    });
}

TEST_F(TabbedSheet, TheHostsCallbackIsCalledToo)
{
    static std::vector<UINT> s_told;
    s_told.clear();
    sheet.m_psh.dwFlags |= PSH_USECALLBACK;
    sheet.m_psh.pfnCallback = [](HWND, UINT message, LPARAM) {
        s_told.push_back(message);
        return 0;
    };
    show([](Story story) { return story.key(VK_ESCAPE); });
    ASSERT_GE(s_told.size(), 2u);
    EXPECT_EQ(s_told[0], UINT{PSCB_PRECREATE});
    EXPECT_EQ(s_told[1], UINT{PSCB_INITIALIZED});
}

TEST_F(TabbedSheet, ItsRecordSaysWhatItStartsWith)
{
    const HBITMAP watermark = ::CreateBitmap(8, 8, 1, 1, nullptr);
    const HBITMAP header = ::CreateBitmap(8, 8, 1, 1, nullptr);
    const auto palette = static_cast<HPALETTE>(::GetStockObject(DEFAULT_PALETTE));
    const CPropertySheet pictures(IDS_SHEET, &owner, 2, watermark, palette, header);
    EXPECT_STREQ(pictures.m_psh.pszCaption, L"Options");
    EXPECT_EQ(pictures.m_psh.nStartPage, 2u);
    EXPECT_EQ(pictures.m_psh.hbmWatermark, watermark);
    EXPECT_EQ(pictures.m_psh.hplWatermark, palette);
    EXPECT_EQ(pictures.m_psh.hbmHeader, header);
    EXPECT_EQ(pictures.m_psh.dwFlags, DWORD{PSH_WATERMARK | PSH_USEHBMWATERMARK | PSH_USEHPLWATERMARK |
                                            PSH_HEADER | PSH_USEHBMHEADER});
    const CPropertySheet plain(L"Plain");
    EXPECT_STREQ(plain.m_psh.pszCaption, L"Plain");
    EXPECT_EQ(plain.m_psh.dwFlags, 0u);
    EXPECT_EQ(plain.m_psh.dwSize, sizeof(PROPSHEETHEADER));
    ::DeleteObject(watermark);
    ::DeleteObject(header);
}

TEST_F(TabbedSheet, WithoutApplyThereIsNoSuchButton)
{
    sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW;
    show([this](Story story) {
        return story.then([this] { EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(sheet, ID_APPLY_NOW))); })
            .key(VK_ESCAPE);
    });
}

TEST_F(TabbedSheet, MayOpenAnother)
{
    CPropertySheet inner(L"Inner", &sheet);
    TestPage page("inner", calls);
    inner.AddPage(&page);
    INT_PTR answer = 0;
    general.onAct = [&] { answer = inner.DoModal(); };
    const INT_PTR outer = show([&](Story story) {
        return story.click(Spot{[this] { return general.GetDlgItem(ID_TEST_ACT)->m_hWnd; }})
            .waitFor("the inner one", [&] { return inner.m_hWnd && shownDialog() == inner.m_hWnd; })
            .then([this] { EXPECT_FALSE(sheet.IsWindowEnabled()); })
            .key(VK_RETURN)
            .waitFor("the outer one", [this] { return shownDialog() == sheet.m_hWnd; })
            .key(VK_ESCAPE);
    });
    EXPECT_EQ(answer, IDOK);
    EXPECT_EQ(outer, IDCANCEL);
}

TEST_F(TabbedSheet, MayBeShownAgainAndLosesNothing)
{
    const auto cycle = [this] {
        show([this](Story story) {
            return story.then([this] {
                sheet.SetActivePage(1);
                sheet.SetActivePage(2);
                sheet.PressButton(PSBTN_OK);
            });
        });
    };
    cycle(); // what the platform keeps for itself
    cycle();
    const WindowCounter windows;
    const GdiCounter gdi;
    for (int i = 0; i < 20; ++i)
        cycle();
    EXPECT_EQ(windows.grown(), 0);
    EXPECT_LE(gdi.grown(), 0);
}
