// Keys, focus, default button and help of dialogs, as the user has them.
#include "TestDialog.h"
#include "resource.h"

#include <testkit/TestApp.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

using Note = std::function<void()>;

/// The story with more keys, with a note after each.
Story withKeys(Story story, std::vector<WORD> keys, const Note& note)
{
    if (keys.empty())
        return story;
    const WORD first = keys.front();
    keys.erase(keys.begin());
    return withKeys(std::move(story).key(first).then(note), keys, note);
}

/// Opens the dialog, presses keys, closes it with Escape; gives the ids that had the focus on the way.
std::vector<int> focusTrail(TestDialog& dialog, std::vector<WORD> keys)
{
    std::vector<int> trail;
    const Note note = [&] { trail.push_back(::GetDlgCtrlID(::GetFocus())); };
    auto acting = withKeys(whenShown().then(note), std::move(keys), note).key(VK_ESCAPE).start();
    dialog.DoModal();
    acting.finish();
    return trail;
}

int defaultOf(CDialog& dialog)
{
    const DWORD answer = dialog.GetDefID();
    return HIWORD(answer) == DC_HASDEFID ? LOWORD(answer) : 0;
}

int focused()
{
    return ::GetDlgCtrlID(::GetFocus());
}

} // namespace

TEST(DialogKeys, TheFocusBeginsAtTheFirstControl)
{
    TestDialog dialog;
    EXPECT_EQ(focusTrail(dialog, {}), std::vector<int>{IDOK});
}

TEST(DialogKeys, TheFocusSetByTheInitialisationIsKept)
{
    TestDialog dialog;
    dialog.onInit = [](TestDialog& d) {
        d.GetDlgItem(TestDialog::kAct)->SetFocus();
        return FALSE;
    };
    EXPECT_EQ(focusTrail(dialog, {}), std::vector<int>{TestDialog::kAct});
}

TEST(DialogKeys, TabGoesRoundTheControls)
{
    TestDialog dialog;
    EXPECT_EQ(focusTrail(dialog, {VK_TAB, VK_TAB, VK_TAB}),
              (std::vector<int>{IDOK, TestDialog::kEdit, TestDialog::kAct, IDOK}));
}

TEST(DialogKeys, EscapeCancelsWithoutACancelButton)
{
    TestDialog dialog;
    auto acting = whenShown().key(VK_ESCAPE).start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(DialogKeys, EnterPressesTheDefaultButtonFromAnEditControl)
{
    TestDialog dialog;
    CString name;
    dialog.onExchange = [&](CDataExchange* exchange) { DDX_Text(exchange, TestDialog::kEdit, name); };
    auto acting =
        whenShown().click([] { return shownControl(TestDialog::kEdit); }).type(L"Oak").key(VK_RETURN).start();
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_STREQ(name, L"Oak");
}

TEST(DialogKeys, EnterPressesTheButtonWithTheFocus)
{
    TestDialog dialog;
    bool acted = false;
    dialog.onAct = [&](TestDialog&) { acted = true; };
    focusTrail(dialog, {VK_TAB, VK_TAB, VK_RETURN});
    EXPECT_TRUE(acted);
}

TEST(DialogKeys, TheCloseBoxCancels)
{
    TestDialog dialog;
    auto acting = whenShown().then([] { ::PostMessageW(shownDialog(), WM_SYSCOMMAND, SC_CLOSE, 0); }).start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(DialogKeys, ARefusedValueKeepsTheDialogOpenWithTheTextSelected)
{
    TestDialog dialog;
    int number = 7;
    dialog.onExchange = [&](CDataExchange* exchange) { DDX_Text(exchange, TestDialog::kEdit, number); };
    DWORD selection = 0;
    int focus = 0;
    auto acting = whenShown()
                      .then([] { ::SetWindowTextW(shownControl(TestDialog::kEdit), L"oak"); })
                      .click([] { return shownControl(IDOK); })
                      .then([&] {
                          focus = focused();
                          selection = static_cast<DWORD>(
                              ::SendMessageW(shownControl(TestDialog::kEdit), EM_GETSEL, 0, 0));
                      })
                      .type(L"42")
                      .key(VK_RETURN)
                      .start();
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(TestApp::instance().boxes().size(), 1u);
    EXPECT_EQ(focus, TestDialog::kEdit);
    EXPECT_EQ(selection, static_cast<DWORD>(MAKELONG(0, 3))) << "so that typing replaces it";
    EXPECT_EQ(number, 42);
}

// The same by calls

TEST(DialogKeys, TheFocusMovesByCalls)
{
    TestDialog dialog(nullptr, TestDialog::kStyle | WS_VISIBLE);
    ASSERT_TRUE(dialog.createModeless());
    present(dialog);
    dialog.GotoDlgCtrl(dialog.GetDlgItem(TestDialog::kEdit));
    EXPECT_EQ(focused(), TestDialog::kEdit);
    dialog.NextDlgCtrl();
    EXPECT_EQ(focused(), TestDialog::kAct);
    dialog.NextDlgCtrl();
    EXPECT_EQ(focused(), IDOK) << "after the last one comes the first";
    dialog.PrevDlgCtrl();
    EXPECT_EQ(focused(), TestDialog::kAct);
    dialog.DestroyWindow();
}

TEST(DialogKeys, TheDefaultButtonIsTheTemplatesUntilItIsChanged)
{
    TestDialog dialog;
    ASSERT_TRUE(dialog.createModeless());
    EXPECT_EQ(defaultOf(dialog), IDOK);
    dialog.SetDefID(TestDialog::kAct);
    EXPECT_EQ(defaultOf(dialog), TestDialog::kAct);
    dialog.DestroyWindow();
}

TEST(DialogKeys, DialogUnitsAreMappedAsTheSystemMapsThem)
{
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    CRect units(0, 0, 4, 8); // the average character of the dialog's font
    dialog.MapDialogRect(&units);
    CRect button;
    dialog.GetDlgItem(IDOK)->GetWindowRect(&button);
    dialog.ScreenToClient(&button);
    CRect wanted(50, 40, 100, 54);
    dialog.MapDialogRect(&wanted);
    EXPECT_EQ(button, wanted);
    EXPECT_GT(units.Width(), 0);
    EXPECT_GT(units.Height(), units.Width());
    dialog.DestroyWindow();
}

// Help

TEST(DialogKeys, F1AsksForTheDialogsHelp)
{
    TestDialog dialog;
    dialog.SetHelpID(33);
    auto acting = whenShown().key(VK_F1).key(VK_ESCAPE).start();
    dialog.DoModal();
    ASSERT_EQ(TestApp::instance().helps().size(), 1u);
    EXPECT_EQ(TestApp::instance().helps()[0].data, 0x20000u + 33);
    EXPECT_EQ(TestApp::instance().helps()[0].command, static_cast<UINT>(HELP_CONTEXT));
}

TEST(DialogKeys, F1AsksInTheProgramsKindOfHelp)
{
    TestDialog dialog;
    dialog.SetHelpID(33);
    AfxGetApp()->m_eHelpType = afxHTMLHelp;
    auto acting = whenShown().key(VK_F1).key(VK_ESCAPE).start();
    dialog.DoModal();
    AfxGetApp()->m_eHelpType = afxWinHelp;
    ASSERT_EQ(TestApp::instance().helps().size(), 1u);
    EXPECT_EQ(TestApp::instance().helps()[0].command, static_cast<UINT>(HH_HELP_CONTEXT));
}

TEST(DialogKeys, F1IsSilentWithoutAHelpId)
{
    TestDialog dialog;
    ASSERT_EQ(dialog.m_nIDHelp, 0u) << "a template in memory has no number";
    auto acting = whenShown().key(VK_F1).key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_TRUE(TestApp::instance().helps().empty());
}

TEST(DialogKeys, TheHelpIdIsTheTemplatesNumber)
{
    class Probe : public CDialog
    {
    public:
        using CDialog::CDialog;
        using CDialog::m_nIDHelp;
    };
    EXPECT_EQ(Probe(IDD_PLAIN).m_nIDHelp, static_cast<UINT>(IDD_PLAIN));
    EXPECT_EQ(Probe(L"NAMED").m_nIDHelp, 0u);
    Probe modeless;
    modeless.Create(IDD_PLAIN);
    EXPECT_EQ(modeless.m_nIDHelp, static_cast<UINT>(IDD_PLAIN));
    modeless.DestroyWindow();
}

TEST(DialogKeys, TheDialogIsToldItsFont)
{
    class Probe : public CDialog
    {
    public:
        HFONT told = nullptr;
        void OnSetFont(CFont* font) override { told = static_cast<HFONT>(font->GetSafeHandle()); }
    } dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    EXPECT_NE(dialog.told, nullptr);
    EXPECT_EQ(dialog.told, reinterpret_cast<HFONT>(dialog.SendDlgItemMessage(IDC_NAME, WM_GETFONT)))
        << "the one that its controls have";
    dialog.DestroyWindow();
}

TEST(DialogKeys, ACharacterForAWindowWithinSomethingHiddenIsLeftAlone)
{
    TestDialog dialog;
    ASSERT_TRUE(dialog.createModeless());
    dialog.ShowWindow(SW_SHOWNOACTIVATE);
    CWnd bar;
    bar.CreateEx(WS_EX_CONTROLPARENT, L"Static", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 80, 40), &dialog,
                 200);
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 60, 20), &bar, 201);
    const auto takes = [&](UINT message) {
        MSG character{};
        character.hwnd = edit;
        character.message = message;
        character.wParam = 'x'; // no mnemonic of the dialog
        return dialog.IsDialogMessage(&character) != FALSE;
    };
    for (const UINT message : {static_cast<UINT>(WM_CHAR), static_cast<UINT>(WM_SYSCHAR)}) {
        EXPECT_TRUE(takes(message));
        bar.ShowWindow(SW_HIDE);
        EXPECT_FALSE(takes(message)) << "hidden";
        bar.ShowWindow(SW_SHOWNOACTIVATE);
        bar.EnableWindow(FALSE);
        EXPECT_FALSE(takes(message)) << "disabled";
        bar.EnableWindow(TRUE);
        edit.ShowWindow(SW_HIDE);
        EXPECT_TRUE(takes(message)) << "what is hidden itself is found";
        edit.ShowWindow(SW_SHOWNOACTIVATE);
    }
    EXPECT_EQ(textOf(edit), L"xx") << "of the characters that were taken";
    dialog.DestroyWindow();
}
