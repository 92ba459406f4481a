// The file dialog in both kinds: names, several files, questions, refusals.
#include "FileDialogScene.h"

#include <testkit/GdiCounter.h>
#include <testkit/WindowCounter.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr int kLongerThanNames = 15; ///< strokes that empty the name's box

class FileDialog : public testing::TestWithParam<Kind>
{
protected:
    Kind kind() const { return GetParam(); }
    bool newer() const { return kind() == Kind::Newer; }

    TemporaryFiles files{L"a.txt",
                         L"b.txt",
                         L"notes.tar.gz",
                         L"plain",
                         L"with blank.txt",
                         L"\u00fcml\u00e4ut.txt",
                         L"\u6587\u4ef6.txt",
                         L"below\\deep.txt"};
};

std::wstring text(const CString& value)
{
    return value.GetString();
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, FileDialog, testing::Values(Kind::Classic, Kind::Newer),
                         [](const auto& info) { return nameOf(info.param); });

TEST_P(FileDialog, GivesTheFileThatWasTyped)
{
    RecordingFileDialog dialog(kind());
    dialog.startIn(files.folder());
    auto answering = whenAsked().type(L"notes.tar.gz").key(VK_RETURN).start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(text(dialog.GetPathName()), files.path(L"notes.tar.gz"));
    EXPECT_EQ(text(dialog.GetFileName()), L"notes.tar.gz");
    EXPECT_EQ(text(dialog.GetFileTitle()), L"notes.tar");
    EXPECT_EQ(text(dialog.GetFileExt()), L"gz");
    EXPECT_EQ(dialog.m_ofn.lpstrFile + dialog.m_ofn.nFileOffset, std::wstring(L"notes.tar.gz"));
    EXPECT_EQ(dialog.m_ofn.lpstrFile + dialog.m_ofn.nFileExtension, std::wstring(L"gz"));
    EXPECT_EQ(dialog.m_ofn.lpstrFileTitle, std::wstring(L"notes.tar.gz"));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST_P(FileDialog, GivesNamesAsUsersHaveThem)
{
    for (const std::wstring name :
         {L"plain", L"with blank.txt", L"\u00fcml\u00e4ut.txt", L"\u6587\u4ef6.txt"}) {
        RecordingFileDialog dialog(kind(), TRUE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_FILEMUSTEXIST);
        dialog.startIn(files.folder());
        auto answering = whenAsked().type(name).key(VK_RETURN).start();
        ASSERT_EQ(dialog.DoModal(), IDOK);
        EXPECT_EQ(text(dialog.GetPathName()), files.path(name));
    }
}

TEST_P(FileDialog, GivesTheLongestNameThatThePathHasRoomFor)
{
    const std::wstring name(259 - files.folder().size() - 1, L'n');
    files.addFile(name);
    RecordingFileDialog dialog(kind());
    dialog.startIn(files.folder());
    auto answering = whenAsked().type(name).key(VK_RETURN).start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(text(dialog.GetPathName()), files.path(name));
    EXPECT_EQ(dialog.GetPathName().GetLength(), 259);
}

TEST_P(FileDialog, GivesANameOf255Characters)
{
    const std::wstring name(255, L'n');
    RecordingFileDialog dialog(kind(), FALSE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR);
    dialog.startIn(L"C:\\");
    auto answering = whenAsked().type(name).key(VK_RETURN).start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(text(dialog.GetPathName()), L"C:\\" + name);
    EXPECT_EQ(text(dialog.GetFileName()), name);
}

TEST_P(FileDialog, CancelledGivesNothing)
{
    RecordingFileDialog dialog(kind());
    dialog.startIn(files.folder());
    auto answering = whenAsked().type(L"a.txt").key(VK_ESCAPE).start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.count("FileNameOK"), 0);
    EXPECT_EQ(text(dialog.GetPathName()), L"");
    EXPECT_EQ(dialog.GetStartPosition(), nullptr);
}

TEST_P(FileDialog, BeginsWithTheNameAndTheTitleThatItWasGiven)
{
    RecordingFileDialog dialog(kind(), TRUE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR, nullptr, nullptr, L"b.txt");
    dialog.startIn(files.folder());
    dialog.m_ofn.lpstrTitle = L"Which one?";
    auto answering = whenAsked()
                         .waitFor("the title", [] { return shownWindow(L"Which one?") != nullptr; })
                         .key(VK_RETURN)
                         .start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(text(dialog.GetPathName()), files.path(L"b.txt"));
}

TEST_P(FileDialog, OpensInTheFolderOfAFullName)
{
    const std::wstring start = files.path(L"below\\deep.txt");
    RecordingFileDialog dialog(kind(), TRUE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR, nullptr, nullptr,
                               start.c_str());
    dialog.startIn(files.folder());
    auto answering = whenAsked().key(VK_RETURN).start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(text(dialog.GetPathName()), start);
}

TEST_P(FileDialog, TellsFolderAndNameWhileItIsShown)
{
    RecordingFileDialog dialog(kind(), TRUE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR, nullptr, nullptr, L"b.txt");
    dialog.startIn(files.folder());
    std::wstring folder;
    std::wstring path;
    std::wstring name;
    std::wstring title;
    std::wstring extension;
    auto answering = whenAsked()
                         .then([&] {
                             folder = text(dialog.GetFolderPath());
                             path = text(dialog.GetPathName());
                             name = text(dialog.GetFileName());
                             title = text(dialog.GetFileTitle());
                             extension = text(dialog.GetFileExt());
                         })
                         .key(VK_ESCAPE)
                         .start();
    dialog.DoModal();
    EXPECT_EQ(folder, files.folder());
    EXPECT_EQ(path, files.path(L"b.txt"));
    EXPECT_EQ(name, L"b.txt");
    EXPECT_EQ(title, L"b");
    EXPECT_EQ(extension, L"txt");
}

TEST_P(FileDialog, GivesSeveralFiles)
{
    RecordingFileDialog dialog(kind(), TRUE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_ALLOWMULTISELECT);
    dialog.startIn(files.folder());
    std::vector<wchar_t> buffer(4096);
    dialog.m_ofn.lpstrFile = buffer.data();
    dialog.m_ofn.nMaxFile = static_cast<DWORD>(buffer.size());
    auto answering = whenAsked().type(L"\"a.txt\" \"with blank.txt\" \"b.txt\"").key(VK_RETURN).start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    std::vector<std::wstring> paths;
    for (POSITION position = dialog.GetStartPosition(); position;)
        paths.push_back(text(dialog.GetNextPathName(position)));
    EXPECT_EQ(paths,
              (std::vector{files.path(L"a.txt"), files.path(L"with blank.txt"), files.path(L"b.txt")}));
}

TEST_P(FileDialog, GivesOneOfSeveral)
{
    RecordingFileDialog dialog(kind(), TRUE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_ALLOWMULTISELECT);
    dialog.startIn(files.folder());
    auto answering = whenAsked().type(L"with blank.txt").key(VK_RETURN).start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    POSITION position = dialog.GetStartPosition();
    EXPECT_EQ(text(dialog.GetNextPathName(position)), files.path(L"with blank.txt"));
    EXPECT_EQ(position, nullptr);
}

TEST_P(FileDialog, StaysOpenWhileTheFileIsRefused)
{
    RecordingFileDialog dialog(kind());
    dialog.startIn(files.folder());
    std::vector<std::wstring> offered;
    dialog.onFileNameOK = [&] {
        offered.push_back(text(dialog.GetPathName()));
        return offered.size() == 1;
    };
    auto answering = whenAsked()
                         .type(L"a.txt")
                         .key(VK_RETURN)
                         .waitFor("the refusal", [&] { return offered.size() == 1; })
                         .key(VK_END)
                         .key(VK_BACK, kLongerThanNames)
                         .type(L"b.txt")
                         .key(VK_RETURN)
                         .start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(offered, (std::vector{files.path(L"a.txt"), files.path(L"b.txt")}));
    EXPECT_EQ(text(dialog.GetPathName()), files.path(L"b.txt"));
}

TEST_P(FileDialog, ARefusedFileIsNoResult)
{
    RecordingFileDialog dialog(kind());
    dialog.startIn(files.folder());
    dialog.onFileNameOK = [] { return TRUE; };
    auto answering = whenAsked()
                         .type(L"a.txt")
                         .key(VK_RETURN)
                         .waitFor("the refusal", [&] { return dialog.count("FileNameOK") == 1; })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST_P(FileDialog, AsksBeforeAFileIsReplaced)
{
    RecordingFileDialog dialog(kind(), FALSE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_OVERWRITEPROMPT);
    dialog.startIn(files.folder());
    HWND fileDialog = nullptr;
    auto answering = whenAsked()
                         .then([&] { fileDialog = asked(); })
                         .type(L"a.txt")
                         .key(VK_RETURN)
                         .waitFor("the question", [&] { return asked() && asked() != fileDialog; })
                         .click([] { return ::GetDlgItem(asked(), IDNO); })
                         .waitFor("the file dialog again", [&] { return asked() == fileDialog; })
                         .key(VK_RETURN)
                         .waitFor("the question", [&] { return asked() && asked() != fileDialog; })
                         .click([] { return ::GetDlgItem(asked(), IDYES); })
                         .start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.count("FileNameOK"), 1);
    EXPECT_EQ(text(dialog.GetPathName()), files.path(L"a.txt"));
}

TEST_P(FileDialog, DoesNotTakeAMissingFileThatMustExist)
{
    RecordingFileDialog dialog(kind(), TRUE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_FILEMUSTEXIST);
    dialog.startIn(files.folder());
    HWND fileDialog = nullptr;
    auto answering = whenAsked()
                         .then([&] { fileDialog = asked(); })
                         .type(L"missing.txt")
                         .key(VK_RETURN)
                         .waitFor("the complaint", [&] { return asked() && asked() != fileDialog; })
                         .key(VK_RETURN)
                         .waitFor("the file dialog again", [&] { return asked() == fileDialog; })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.count("FileNameOK"), 0);
}

TEST_P(FileDialog, GivesTheTypeThatWasChosen)
{
    RecordingFileDialog dialog(kind(), TRUE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR,
                               L"Text|*.txt|Archives|*.gz|All|*.*||");
    dialog.startIn(files.folder());
    dialog.m_ofn.nFilterIndex = 2;
    int before = 0;
    auto answering = whenAsked()
                         .then([&] { before = dialog.count("TypeChange"); })
                         .click([] { return controlWithText(L"Archives"); })
                         .key(VK_DOWN)
                         .key(VK_RETURN)
                         .waitFor("the change", [&] { return dialog.count("TypeChange") == before + 1; })
                         .click(&nameBox)
                         .type(L"a.txt")
                         .key(VK_RETURN)
                         .start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_ofn.nFilterIndex, 3u);
}

TEST_P(FileDialog, TellsOfTheFolderThatTheUserGoesTo)
{
    RecordingFileDialog dialog(kind());
    dialog.startIn(files.folder());
    int before = 0;
    std::wstring folder;
    auto answering = whenAsked()
                         .then([&] { before = dialog.count("FolderChange"); })
                         .type(L"below")
                         .key(VK_RETURN)
                         .waitFor("the change", [&] { return dialog.count("FolderChange") > before; })
                         .then([&] { folder = text(dialog.GetFolderPath()); })
                         .key(VK_ESCAPE)
                         .start();
    dialog.DoModal();
    EXPECT_EQ(folder, files.path(L"below"));
}

TEST_P(FileDialog, TellsTheStoryInOrder)
{
    RecordingFileDialog dialog(kind());
    dialog.startIn(files.folder());
    auto answering = whenAsked().type(L"a.txt").key(VK_RETURN).start();
    dialog.DoModal();
    std::erase(dialog.events, "FileNameChange"); // how often the selection changes is the system's affair
    const std::vector<std::string> told{"InitDone", "FolderChange", "FileNameOK"};
    std::vector<std::string> expected = told;
    if (!newer())
        expected.insert(expected.begin(), "InitDialog");
    EXPECT_EQ(dialog.events, expected);
}

TEST_P(FileDialog, KeepsItsOwnerDisabledAndGivesTheFocusBack)
{
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"Owner", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                   nullptr);
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), &owner, 1);
    present(owner);
    edit.SetFocus();
    RecordingFileDialog dialog(kind(), TRUE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR, nullptr, &edit);
    bool disabled = false;
    auto answering = whenAsked().then([&] { disabled = !owner.IsWindowEnabled(); }).key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_TRUE(disabled);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(::GetFocus(), edit.m_hWnd);
    owner.DestroyWindow();
}

TEST_P(FileDialog, LeavesTheWorkingFolderAsItIs)
{
    wchar_t before[MAX_PATH]{};
    ::GetCurrentDirectoryW(MAX_PATH, before);
    RecordingFileDialog dialog(kind());
    dialog.startIn(files.folder());
    auto answering = whenAsked().type(L"a.txt").key(VK_RETURN).start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    wchar_t after[MAX_PATH]{};
    ::GetCurrentDirectoryW(MAX_PATH, after);
    EXPECT_STREQ(after, before);
}

TEST_P(FileDialog, CanBeShownAgain)
{
    RecordingFileDialog dialog(kind(), TRUE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR, L"Text|*.txt|All|*.*||");
    for (const std::wstring name : {L"a.txt", L"b.txt"}) {
        dialog.startIn(files.folder());
        dialog.m_ofn.lpstrFile[0] = L'\0';
        auto answering =
            whenAsked().key(VK_END).key(VK_BACK, kLongerThanNames).type(name).key(VK_RETURN).start();
        ASSERT_EQ(dialog.DoModal(), IDOK);
        EXPECT_EQ(text(dialog.GetPathName()), files.path(name));
    }
}

TEST_P(FileDialog, CopiesTheTextsOfItsConstructor)
{
    std::wstring name = L"b.txt";
    std::wstring extension = L"txt";
    std::wstring filter = L"Text|*.txt||";
    CFileDialog dialog(TRUE, extension.c_str(), name.c_str(), 0, filter.c_str(), nullptr, 0, newer());
    name = extension = filter = L"?";
    EXPECT_EQ(dialog.m_ofn.lpstrFile, std::wstring(L"b.txt"));
    EXPECT_EQ(dialog.m_ofn.lpstrDefExt, std::wstring(L"txt"));
    EXPECT_EQ(std::wstring(dialog.m_ofn.lpstrFilter, 12), std::wstring(L"Text\0*.txt\0\0", 12));
    EXPECT_EQ(dialog.m_ofn.lStructSize, sizeof(OPENFILENAME));
    EXPECT_EQ(&dialog.GetOFN(), &dialog.m_ofn);
    EXPECT_EQ(CFileDialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, 100, newer()).m_ofn.lStructSize, 100u);
}

TEST_P(FileDialog, LeavesNothingBehind)
{
    const auto show = [&] {
        RecordingFileDialog dialog(kind(), TRUE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR, L"Text|*.txt||");
        dialog.startIn(files.folder());
        auto answering = whenAsked().key(VK_ESCAPE).start();
        dialog.DoModal();
        EXPECT_EQ(dialog.m_dwRef, 1);
    };
    for (int i = 0; i < 3; ++i)
        show(); // what the system keeps for good
    const WindowCounter windows;
    const GdiCounter gdi;
    for (int i = 0; i < 20; ++i)
        show();
    EXPECT_EQ(windows.grown(), 0);
    EXPECT_LE(gdi.grown(), 5);
}
