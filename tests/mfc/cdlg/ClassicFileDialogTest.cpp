// What only the classic file dialog has: the child dialog of a template, the read-only box, dialogs of the
// old style.
#include "FileDialogScene.h"
#include "resource.h"

#include <testkit/TestApp.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// Handles the messages of the controls in its template.
class WithTemplate : public RecordingFileDialog
{
public:
    WithTemplate()
        : RecordingFileDialog(Kind::Classic)
    {
        SetTemplate(0u, IDD_CHILD);
    }

    int pushed = 0;
    int changed = 0;

protected:
    afx_msg void OnPush() { ++pushed; }
    afx_msg void OnWords() { ++changed; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(WithTemplate, CFileDialog)
    ON_BN_CLICKED(IDC_PUSH, &WithTemplate::OnPush)
    ON_EN_CHANGE(IDC_WORDS, &WithTemplate::OnWords)
END_MESSAGE_MAP()

} // namespace

TEST(ClassicFileDialog, HasTheControlsOfItsTemplate)
{
    WithTemplate dialog;
    std::wstring words;
    UINT checked = 0;
    bool child = false;
    auto answering = whenAsked()
                         .click([&] { return dialog.GetDlgItem(IDC_PUSH)->m_hWnd; })
                         .waitFor("the push", [&] { return dialog.pushed == 1; })
                         .click([&] { return dialog.GetDlgItem(IDC_CHECK)->m_hWnd; })
                         .click([&] { return dialog.GetDlgItem(IDC_WORDS)->m_hWnd; })
                         .type(L"hello")
                         .waitFor("the words", [&] { return dialog.changed == 5; })
                         .then([&] {
                             CString text;
                             dialog.GetDlgItemText(IDC_WORDS, text);
                             words = text.GetString();
                             checked = dialog.IsDlgButtonChecked(IDC_CHECK);
                             child = dialog.GetParent()->m_hWnd == asked();
                         })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(words, L"hello");
    EXPECT_EQ(checked, static_cast<UINT>(BST_CHECKED));
    EXPECT_TRUE(child);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ClassicFileDialog, SetsTextsAndHidesControlsOfItsOwn)
{
    RecordingFileDialog dialog(Kind::Classic);
    dialog.on["InitDone"] = [&] {
        dialog.SetControlText(IDOK, "&Take");
        dialog.SetControlText(stc3, L"Na\u00efve:");
        dialog.HideControl(cmb1);
    };
    bool seen = false;
    auto answering = whenAsked()
                         .then([&] {
                             seen = controlWithText(L"&Take") == ::GetDlgItem(asked(), IDOK) &&
                                    controlWithText(L"Na\u00efve:") == ::GetDlgItem(asked(), stc3) &&
                                    !::IsWindowVisible(::GetDlgItem(asked(), cmb1));
                         })
                         .key(VK_ESCAPE)
                         .start();
    dialog.DoModal();
    EXPECT_TRUE(seen);
}

// Wine's dialog takes no notice of the message, so what reaches it is looked at.
TEST(ClassicFileDialog, TellsTheDialogTheExtensionToAdd)
{
    RecordingFileDialog dialog(Kind::Classic, FALSE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR);
    std::vector<std::wstring> extensions;
    const auto listen = [](HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                           DWORD_PTR heard) -> LRESULT {
        if (message == CDM_SETDEFEXT)
            reinterpret_cast<std::vector<std::wstring>*>(heard)->push_back(
                reinterpret_cast<const wchar_t*>(lParam));
        return ::DefSubclassProc(wnd, message, wParam, lParam);
    };
    dialog.on["InitDone"] = [&] {
        ::SetWindowSubclass(dialog.GetParent()->m_hWnd, listen, 1, reinterpret_cast<DWORD_PTR>(&extensions));
        dialog.SetDefExt("dat");
    };
    auto answering = whenAsked().key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_EQ(extensions, std::vector<std::wstring>{L"dat"});
}

TEST(ClassicFileDialog, KnowsWhetherReadOnlyIsWanted)
{
    TemporaryFiles files{L"a.txt"};
    for (const bool wanted : {false, true}) {
        RecordingFileDialog dialog(Kind::Classic, TRUE, OFN_NOCHANGEDIR | (wanted ? OFN_READONLY : 0));
        dialog.startIn(files.folder());
        auto answering = whenAsked().type(L"a.txt").key(VK_RETURN).start();
        ASSERT_EQ(dialog.DoModal(), IDOK);
        EXPECT_EQ(dialog.GetReadOnlyPref() != FALSE, wanted);
    }
}

TEST(ClassicFileDialog, GivesNoInterfaces)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    CFileDialog dialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, 0, FALSE);
    EXPECT_DEATH(dialog.GetIFileDialogCustomize(), "assertion failed");
}

TEST(ClassicFileDialog, ShowsHelpOnItself)
{
    WithTemplate dialog;
    dialog.m_nIDHelp = 77;
    auto answering = whenAsked()
                         .click([&] { return dialog.GetDlgItem(IDC_WORDS)->m_hWnd; })
                         .key(VK_F1)
                         .waitFor("the help", [] { return !TestApp::instance().helps().empty(); })
                         .key(VK_ESCAPE)
                         .start();
    dialog.DoModal();
    ASSERT_EQ(TestApp::instance().helps().size(), 1u);
    EXPECT_EQ(TestApp::instance().helps()[0].data, static_cast<DWORD_PTR>(0x20000 + 77));
}

TEST(ClassicFileDialog, ShowsHelpForItsHelpButton)
{
    RecordingFileDialog dialog(Kind::Classic);
    dialog.m_nIDHelp = 78;
    dialog.on["InitDone"] = [&] {
        OFNOTIFY notification{};
        notification.hdr.code = CDN_HELP;
        notification.lpOFN = &dialog.m_ofn;
        dialog.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notification));
    };
    auto answering = whenAsked().key(VK_ESCAPE).start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    ASSERT_EQ(TestApp::instance().helps().size(), 1u);
    EXPECT_EQ(TestApp::instance().helps()[0].data, static_cast<DWORD_PTR>(0x20000 + 78));
}

TEST(ClassicFileDialog, TellsOfAFileInUse)
{
    RecordingFileDialog dialog(Kind::Classic);
    std::wstring violated;
    dialog.onShareViolation = [&](const std::wstring& path) {
        violated = path;
        return OFN_SHAREFALLTHROUGH;
    };
    LRESULT answer = 0;
    LONG_PTR kept = 0;
    dialog.on["InitDone"] = [&] {
        wchar_t path[] = L"C:\\used.txt";
        OFNOTIFY notification{};
        notification.hdr.code = CDN_SHAREVIOLATION;
        notification.lpOFN = &dialog.m_ofn;
        notification.pszFile = path;
        answer = dialog.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notification));
        kept = ::GetWindowLongPtrW(dialog.m_hWnd, DWLP_MSGRESULT);
    };
    auto answering = whenAsked().key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_EQ(violated, L"C:\\used.txt");
    EXPECT_EQ(answer, OFN_SHAREFALLTHROUGH);
    EXPECT_EQ(kept, OFN_SHAREFALLTHROUGH);
}

TEST(ClassicFileDialog, OfTheOldStyleTellsItsSelections)
{
    // What such a dialog sends to its hook, sent by hand: not every system still has these dialogs.
    RecordingFileDialog dialog(Kind::Classic);
    LRESULT refused = -1;
    LRESULT shared = -1;
    dialog.onShareViolation = [](const std::wstring&) { return OFN_SHARENOWARN; };
    dialog.onFileNameOK = [] { return TRUE; };
    dialog.on["InitDone"] = [&] {
        const DWORD flags = std::exchange(dialog.m_ofn.Flags, dialog.m_ofn.Flags & ~OFN_EXPLORER);
        dialog.SendMessage(::RegisterWindowMessageW(LBSELCHSTRINGW), lst1, MAKELPARAM(3, CD_LBSELCHANGE));
        shared = dialog.SendMessage(::RegisterWindowMessageW(SHAREVISTRINGW), 0,
                                    reinterpret_cast<LPARAM>(L"C:\\x"));
        refused = dialog.SendMessage(::RegisterWindowMessageW(FILEOKSTRINGW), 0, 0);
        dialog.m_ofn.Flags = flags;
    };
    auto answering = whenAsked().key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_EQ(dialog.count("LBSelChanged " + std::to_string(lst1) + " 3 0"), 1);
    EXPECT_EQ(shared, OFN_SHARENOWARN);
    EXPECT_EQ(refused, TRUE);
}

TEST(ClassicFileDialog, OfTheOldStyleGivesSeveralFiles)
{
    // The answer of such a dialog, put where it puts it: not every system still has these dialogs.
    wchar_t answer[] = L"C:\\docs MYLETT~1.TXT b.txt";
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT, nullptr, nullptr, 0, FALSE);
    dialog.m_ofn.Flags &= ~OFN_EXPLORER;
    dialog.m_ofn.lpstrFile = answer;
    dialog.m_ofn.nFileOffset = 8;
    EXPECT_EQ(dialog.GetFileName().GetString(), std::wstring(L"MYLETT~1.TXT"));
    EXPECT_EQ(dialog.GetFileTitle().GetString(), std::wstring(L"MYLETT~1"));
    EXPECT_EQ(dialog.GetFileExt().GetString(), std::wstring(L"TXT"));
    std::vector<std::wstring> paths;
    for (POSITION position = dialog.GetStartPosition(); position;)
        paths.emplace_back(dialog.GetNextPathName(position).GetString());
    EXPECT_EQ(paths, (std::vector<std::wstring>{L"C:\\docs\\MYLETT~1.TXT", L"C:\\docs\\b.txt"}));
}

TEST(ClassicFileDialog, WithoutItsTemplateIsCancelled)
{
    RecordingFileDialog dialog(Kind::Classic);
    dialog.SetTemplate(L"NO_SUCH", L"NO_SUCH");
    auto answering = Robot()
                         .waitFor("the end, or a dialog without the child",
                                  [&] { return asked() || dialog.m_hWnd == nullptr; })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}
