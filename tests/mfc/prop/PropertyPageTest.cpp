// A property page: where it comes from, what it asks of its sheet, what reaches it.
#include "SheetScene.h"

#include <testkit/TestApp.h>

#include <afxdllx.h>
#include <afxpriv.h>

using namespace ovo::testkit;

namespace
{

class PropertyPage : public SheetScene
{
};

/// A page may also take the notifications of the sheet in its message map.
class ListeningPage : public CPropertyPage
{
public:
    ListeningPage()
        : CPropertyPage(IDD_COLOURS)
    {
    }
    int helps = 0;
    int activated = 0;

    BOOL OnSetActive() override
    {
        ++activated;
        return CPropertyPage::OnSetActive();
    }

protected:
    afx_msg LRESULT OnCommandHelp(WPARAM, LPARAM)
    {
        ++helps;
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ListeningPage, CPropertyPage)
    ON_MESSAGE(WM_COMMANDHELP, &ListeningPage::OnCommandHelp)
END_MESSAGE_MAP()

/// A main window that handles help and a command.
class MainWindow : public CWnd
{
public:
    int acts = 0;

protected:
    afx_msg void OnAct() { ++acts; }
    afx_msg void OnNoHelp() {}
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MainWindow, CWnd)
    ON_COMMAND(ID_TEST_ACT, &MainWindow::OnAct)
    ON_COMMAND(ID_HELP, &MainWindow::OnNoHelp)
END_MESSAGE_MAP()

} // namespace

TEST_F(PropertyPage, ItsRecordSaysWhatItIsMadeOf)
{
    const CPropertyPage page(IDD_GENERAL, IDS_COLOURS, IDS_HEADER, IDS_SUBHEADER);
    const PROPSHEETPAGE& record = page.GetPSP();
    EXPECT_EQ(&record, &page.m_psp);
    EXPECT_EQ(record.dwSize, sizeof(PROPSHEETPAGE));
    EXPECT_EQ(record.pszTemplate, MAKEINTRESOURCEW(IDD_GENERAL));
    EXPECT_STREQ(record.pszTitle, L"Colours");
    EXPECT_STREQ(record.pszHeaderTitle, L"Which tree");
    EXPECT_STREQ(record.pszHeaderSubTitle, L"Choose one");
    EXPECT_EQ(record.dwFlags, DWORD{PSP_USETITLE | PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE});
    const CPropertyPage plain(L"NAMED");
    EXPECT_STREQ(plain.m_psp.pszTemplate, L"NAMED");
    EXPECT_EQ(plain.m_psp.dwFlags, 0u);
}

TEST_F(PropertyPage, AnArrayOfPagesIsConstructedLater)
{
    CPropertyPage pages[2];
    pages[0].Construct(IDD_GENERAL);
    pages[1].Construct(IDD_COLOURS, IDS_COLOURS);
    CPropertySheet several[1];
    several[0].Construct(IDS_SHEET, &owner, 1);
    for (CPropertyPage& page : pages)
        several[0].AddPage(&page);
    auto story = Robot()
                     .waitFor("the sheet", [&] { return several[0].m_hWnd && shownDialog() == several[0]; })
                     .then([&] {
                         EXPECT_EQ(several[0].GetActivePage(), &pages[1]);
                         several[0].PressButton(PSBTN_OK);
                     });
    EXPECT_EQ(showUntilClosed(several[0], std::move(story)), IDOK);
}

TEST_F(PropertyPage, TheTemplateIsFoundAlongTheResourceChain)
{
    // The current module has no templates; the test's own is an extension of it.
    const HINSTANCE before = AfxGetResourceHandle();
    const HINSTANCE own = ::GetModuleHandleW(nullptr);
    AfxSetResourceHandle(::GetModuleHandleW(L"ovomfc.dll"));
    CDynLinkLibrary extension(own, own);
    {
        TestPage page("page", calls, IDD_LISTS, IDS_COLOURS);
        CPropertySheet found(IDS_SHEET, &owner);
        found.AddPage(&page);
        auto story = Robot()
                         .waitFor("the sheet", [&] { return found.m_hWnd && shownDialog() == found.m_hWnd; })
                         .then([&] {
                             EXPECT_EQ(page.SendDlgItemMessage(IDC_COMBO, CB_GETCOUNT), 2)
                                 << "filled by what goes with the template";
                             found.PressButton(PSBTN_OK);
                         });
        EXPECT_EQ(showUntilClosed(found, std::move(story)), IDOK);
    }
    AfxSetResourceHandle(before);
}

TEST_F(PropertyPage, ATemplateInMemoryMayBeGiven)
{
    const HRSRC found = ::FindResourceW(nullptr, MAKEINTRESOURCEW(IDD_GENERAL), RT_DIALOG);
    CPropertyPage page;
    page.Construct(static_cast<LPCTSTR>(nullptr));
    page.m_psp.dwFlags |= PSP_DLGINDIRECT;
    page.m_psp.pResource = static_cast<LPCDLGTEMPLATE>(::LockResource(::LoadResource(nullptr, found)));
    CPropertySheet with(L"Memory", &owner);
    with.AddPage(&page);
    auto story =
        Robot().waitFor("the sheet", [&] { return with.m_hWnd && shownDialog() == with.m_hWnd; }).then([&] {
            EXPECT_TRUE(page.GetDlgItem(ID_TEST_ACT));
            with.PressButton(PSBTN_OK);
        });
    EXPECT_EQ(showUntilClosed(with, std::move(story)), IDOK);
}

TEST_F(PropertyPage, SiblingsAreAskedUntilOneAnswers)
{
    colours.onQuery = [](WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; };
    show([this](Story story) {
        return story
            .then([this] {
                EXPECT_EQ(general.QuerySiblings(3, 4), 0) << "the others have no window yet";
                sheet.SetActivePage(1);
                sheet.SetActivePage(2);
                taken();
                EXPECT_EQ(lists.QuerySiblings(3, 4), 7);
                EXPECT_EQ(taken(), (Calls{"general query", "colours query"}));
            })
            .key(VK_ESCAPE);
    });
    EXPECT_EQ(general.QuerySiblings(3, 4), 0) << "outside of a sheet";
    general.SetModified(); // which does nothing there
    general.CancelToClose();
}

TEST_F(PropertyPage, AskedForHelpByTheButtonAndTheKey)
{
    ListeningPage page;
    page.m_psp.dwFlags |= PSP_HASHELP;
    sheet.AddPage(&page);
    sheet.m_psh.dwFlags |= PSH_HASHELP;
    sheet.SetActivePage(&page);
    show([&](Story story) {
        return story.click(button(IDHELP))
            .waitFor("the button's help", [&] { return page.helps == 1; })
            .key(VK_F1)
            .waitFor("the key's help", [&] { return page.helps == 2; })
            .then([this] { sheet.GetTabControl()->SetFocus(); })
            .key(VK_F1)
            .waitFor("help on the tab", [&] { return page.helps == 3; })
            .key(VK_ESCAPE);
    });
}

TEST_F(PropertyPage, AProgramWithHelpHasAHelpButton)
{
    EXPECT_FALSE(general.m_psp.dwFlags & PSP_HASHELP);
    EXPECT_FALSE(sheet.m_psh.dwFlags & PSH_HASHELP);
    MainWindow main;
    main.CreateEx(0, AfxRegisterWndClass(0), L"Main", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr);
    AfxGetApp()->m_pMainWnd = &main;
    EXPECT_TRUE(CPropertyPage(IDD_GENERAL).m_psp.dwFlags & PSP_HASHELP);
    EXPECT_TRUE(CPropertySheet(L"").m_psh.dwFlags & PSH_HASHELP);
    AfxGetApp()->m_pMainWnd = nullptr;
    main.DestroyWindow();
}

TEST_F(PropertyPage, ItsCommandsGoOnToTheOwnerOfTheSheet)
{
    MainWindow main;
    main.CreateEx(0, AfxRegisterWndClass(0), L"Main", WS_POPUP | WS_VISIBLE, 0, 0, 500, 400, nullptr,
                  nullptr);
    CPropertySheet other(L"Other", &main);
    ListeningPage page;
    other.AddPage(&page);
    auto story =
        Robot().waitFor("the sheet", [&] { return other.m_hWnd && shownDialog() == other.m_hWnd; }).then([&] {
            page.SendMessage(WM_COMMAND, ID_TEST_ACT);
            EXPECT_EQ(main.acts, 1);
            other.SendMessage(WM_COMMAND, ID_TEST_ACT);
            EXPECT_EQ(main.acts, 2);
            other.PressButton(PSBTN_CANCEL);
        });
    EXPECT_EQ(showUntilClosed(other, std::move(story)), IDCANCEL);
    main.DestroyWindow();
}

TEST_F(PropertyPage, NotificationsOfItsControlsAreNotThoseOfTheSheet)
{
    ASSERT_TRUE(sheet.Create(&owner));
    taken();
    for (const UINT code : {PSN_SETACTIVE, PSN_KILLACTIVE, PSN_APPLY, PSN_RESET, PSN_QUERYCANCEL}) {
        NMHDR notification{general.GetDlgItem(IDC_NUMBER)->m_hWnd, IDC_NUMBER, code};
        general.SendMessage(WM_NOTIFY, IDC_NUMBER, reinterpret_cast<LPARAM>(&notification));
    }
    EXPECT_EQ(taken(), Calls{});
}

TEST_F(PropertyPage, HearsOfIdleTimeWhileItIsTheActiveOne)
{
    class IdlePage : public CPropertyPage
    {
    public:
        IdlePage()
            : CPropertyPage(IDD_COLOURS)
        {
        }
        int idles = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            idles += message == WM_KICKIDLE;
            return CPropertyPage::WindowProc(message, wParam, lParam);
        }
    };
    IdlePage page;
    sheet.AddPage(&page);
    sheet.SetActivePage(&page);
    show([&](Story story) {
        return story.waitFor("idle time", [&] { return page.idles > 0; }).key(VK_ESCAPE);
    });
}
