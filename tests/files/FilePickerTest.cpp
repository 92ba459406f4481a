// The forms for std::filesystem, and folders in the new-style dialog.
#include "HostDialog.h"

#include "mfc/cdlg/FakeShellDialog.h"
#include <testkit/ImportPatch.h>

#include <ovoui/files/FilePicker.h>

#include <gtest/gtest.h>

#include <shlobj.h>

#include <utility>

using namespace ovo::testkit;
namespace fs = std::filesystem;

namespace
{

class FilePicker : public testing::Test
{
protected:
    TemporaryFiles files{L"a.txt", L"b.txt", L"p.png", L"below\\deep.txt"};
    const std::vector<FileType> types{{L"Text", {L"*.txt"}}, {L"Pictures", {L"*.png", L"*.jpg"}}};
};

/// The system's older dialog for folders, which the test answers.
struct OlderDialog
{
    static inline HWND owner = nullptr;
    static inline std::wstring title;
    static inline std::wstring start;
    static inline std::wstring answer;

    static LPITEMIDLIST WINAPI ask(LPBROWSEINFOW question)
    {
        owner = question->hwndOwner;
        title = question->lpszTitle;
        start = reinterpret_cast<const wchar_t*>(question->lParam);
        return ::ILCreateFromPathW(answer.c_str());
    }
};

std::wstring titleOf(HWND wnd)
{
    wchar_t text[200]{};
    ::GetWindowTextW(wnd, text, 200);
    return text;
}

} // namespace

TEST_F(FilePicker, GivesAFile)
{
    std::wstring title;
    bool type = false;
    auto answering = whenAsked()
                         .then([&] {
                             title = titleOf(asked());
                             type = controlWithText(L"Pictures") != nullptr;
                         })
                         .key(VK_RETURN)
                         .start();
    const auto file = pickFile({.title = L"Which one?",
                                .folder = files.path(L"gone"),
                                .name = L"p.png",
                                .types = types,
                                .extension = L".png"});
    ASSERT_TRUE(file);
    EXPECT_EQ(*file, fs::path(files.path(L"p.png")));
    EXPECT_EQ(title, L"Which one?");
    EXPECT_TRUE(type);
}

TEST_F(FilePicker, CancelledGivesNothing)
{
    for (int i = 0; i < 5; ++i) {
        auto answering = whenAsked().key(VK_ESCAPE).start();
        const FileQuestion question{.folder = files.folder(), .types = types};
        const FolderQuestion folder{.folder = files.folder()};
        const bool nothing = i == 0   ? !pickFile(question)
                             : i == 1 ? pickFiles(question).empty()
                             : i == 2 ? !pickFileToSave(question)
                             : i == 3 ? !pickFolder(folder)
                                      : pickFolders(folder).empty();
        EXPECT_TRUE(nothing) << i;
    }
}

TEST_F(FilePicker, GivesSeveralFiles)
{
    auto answering = whenAsked().type(L"\"b.txt\" \"a.txt\"").key(VK_RETURN).start();
    EXPECT_EQ(pickFiles({.folder = files.folder(), .types = types}),
              (std::vector<fs::path>{files.path(L"b.txt"), files.path(L"a.txt")}));
}

TEST_F(FilePicker, GivesWhereToSave)
{
    auto answering = whenAsked().type(L"new").key(VK_RETURN).start();
    const auto file = pickFileToSave({.folder = files.folder(), .types = types, .extension = L".txt"});
    ASSERT_TRUE(file);
    EXPECT_EQ(*file, fs::path(files.path(L"new.txt")));
}

TEST_F(FilePicker, TakesTypesWithBarsInTheirNames)
{
    bool shown = false;
    auto answering =
        whenAsked().then([&] { shown = controlWithText(L"A|B") != nullptr; }).key(VK_ESCAPE).start();
    pickFile({.folder = files.folder(), .types = {{L"A|B", {L"*.txt"}}}});
    EXPECT_TRUE(shown);
}

TEST_F(FilePicker, GivesAFolder)
{
    auto answering = whenAsked().type(L"below").key(VK_RETURN).start();
    const auto folder = pickFolder({.title = L"Where to?", .folder = files.path(L"gone\\deeper")});
    ASSERT_TRUE(folder);
    EXPECT_EQ(*folder, fs::path(files.path(L"below")));
}

TEST_F(FilePicker, GivesPathsOfAnyLength)
{
    FakeShellDialog fake;
    const std::wstring longPath = L"C:\\" + std::wstring(5000, L'x');
    fake.results = {longPath};
    EXPECT_EQ(pickFile({}), fs::path(longPath));
    EXPECT_EQ(pickFolder({}), fs::path(longPath));
    fake.results = {longPath + L"\\a", longPath + L"\\b", L"D:\\elsewhere"};
    const std::vector<fs::path> all(fake.results.begin(), fake.results.end());
    EXPECT_EQ(pickFiles({}), all);
    EXPECT_EQ(pickFolders({}), all);
    EXPECT_NE(fake.options & FOS_PICKFOLDERS, 0u);
    EXPECT_NE(fake.options & FOS_ALLOWMULTISELECT, 0u);
}

TEST_F(FilePicker, AsksInTheClassicDialogsWhereThereAreNoOthers)
{
    FakeShellDialog fake;
    fake.creation = REGDB_E_CLASSNOTREG;
    {
        auto answering = whenAsked().type(L"\"b.txt\" \"a.txt\"").key(VK_RETURN).start();
        EXPECT_EQ(pickFiles({.folder = files.folder(), .types = types}),
                  (std::vector<fs::path>{files.path(L"b.txt"), files.path(L"a.txt")}));
    }
    auto cancelling = whenAsked().key(VK_ESCAPE).start();
    EXPECT_EQ(pickFolder({.folder = files.folder()}), std::nullopt);
}

TEST_F(FilePicker, SeveralFilesOfTheClassicDialogBeginWithTheNameAndHaveRoom)
{
    FakeShellDialog fake;
    fake.creation = REGDB_E_CLASSNOTREG;
    {
        auto taking = whenAsked().key(VK_RETURN).start();
        EXPECT_EQ(pickFiles({.folder = files.folder(), .name = L"b.txt", .types = types}),
                  std::vector<fs::path>{files.path(L"b.txt")});
    }
    std::vector<fs::path> expected;
    std::wstring typed;
    for (int i = 100; i < 140; ++i) { // their names take more than 260 characters
        const std::wstring name = L"f " + std::to_wstring(i) + L".txt";
        files.addFile(name);
        expected.emplace_back(files.path(name));
        typed += L'"' + name + L"\" ";
    }
    auto answering =
        whenAsked().then([&] { ::SetWindowTextW(nameBox(), typed.c_str()); }).key(VK_RETURN).start();
    EXPECT_EQ(pickFiles({.folder = files.folder(), .types = types}), expected);
}

TEST_F(FilePicker, AFolderOfTheOlderDialogIsGiven)
{
    FakeShellDialog fake;
    fake.creation = REGDB_E_CLASSNOTREG;
    const ImportPatch patch(L"ovoui.dll", "SHBrowseForFolderW", reinterpret_cast<void*>(&OlderDialog::ask));
    OlderDialog::answer = files.path(L"below");
    const FolderQuestion question{.title = L"Where to?", .folder = files.path(L"gone")};
    EXPECT_EQ(pickFolder(question), fs::path(files.path(L"below")));
    EXPECT_EQ(OlderDialog::title, L"Where to?");
    EXPECT_EQ(OlderDialog::start, files.folder());
    EXPECT_EQ(pickFolders(question), std::vector<fs::path>{files.path(L"below")});
}

TEST_F(FilePicker, TheOlderDialogForFoldersBelongsToTheParentOrElseToTheMainWindow)
{
    FakeShellDialog fake;
    fake.creation = REGDB_E_CLASSNOTREG;
    const ImportPatch patch(L"ovoui.dll", "SHBrowseForFolderW", reinterpret_cast<void*>(&OlderDialog::ask));
    CWnd main;
    CWnd parent;
    for (CWnd* const window : {&main, &parent})
        window->CreateEx(0, AfxRegisterWndClass(0), L"Window", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    struct MainWindow
    {
        explicit MainWindow(CWnd& window)
            : before(std::exchange(AfxGetThread()->m_pMainWnd, &window))
        {
        }
        ~MainWindow() { AfxGetThread()->m_pMainWnd = before; }
        CWnd* before;
    };
    {
        const MainWindow given(main);
        pickFolder({});
        EXPECT_EQ(OlderDialog::owner, main.m_hWnd);
        pickFolders({.parent = &parent});
        EXPECT_EQ(OlderDialog::owner, parent.m_hWnd);
    }
    parent.DestroyWindow();
    main.DestroyWindow();
}

TEST_F(FilePicker, HandsOverNameTypeAndTheExtensionWithoutItsPeriod)
{
    FakeShellDialog fake;
    fake.results = {L"C:\\a"};
    const std::wstring name(400, L'n');
    pickFile({.name = name, .types = types, .extension = L".JPG"});
    EXPECT_EQ(fake.kind, CLSID_FileOpenDialog);
    EXPECT_EQ(fake.name, name);
    EXPECT_EQ(fake.type, 2u);
    EXPECT_EQ(fake.extension, L"JPG");
    pickFileToSave({.name = L"b.txt", .types = types, .extension = L".txt"});
    EXPECT_EQ(fake.kind, CLSID_FileSaveDialog);
    EXPECT_EQ(fake.name, L"b.txt");
    EXPECT_EQ(fake.type, 1u);
    EXPECT_EQ(fake.extension, L"txt");
}

TEST_F(FilePicker, EachFunctionAsksInItsWay)
{
    constexpr DWORD kAlways = FOS_NOCHANGEDIR | FOS_PATHMUSTEXIST | FOS_SHAREAWARE | FOS_FORCEFILESYSTEM;
    FakeShellDialog fake;
    fake.results = {L"C:\\a"};
    struct Case
    {
        void (*ask)();
        DWORD flags;
    };
    for (const Case& c :
         {Case{[] { pickFile({}); }, FOS_FILEMUSTEXIST},
          Case{[] { pickFiles({}); }, FOS_FILEMUSTEXIST | FOS_ALLOWMULTISELECT},
          Case{[] { pickFileToSave({}); }, FOS_OVERWRITEPROMPT},
          Case{[] { pickFolder({}); }, FOS_FILEMUSTEXIST | FOS_PICKFOLDERS},
          Case{[] { pickFolders({}); }, FOS_FILEMUSTEXIST | FOS_ALLOWMULTISELECT | FOS_PICKFOLDERS}}) {
        fake.options = 0;
        c.ask();
        EXPECT_EQ(fake.options, kAlways | c.flags);
    }
}

TEST_F(FilePicker, ADialogThatDoesNotTakeFoldersIsNotAskedForOne)
{
    FakeShellDialog fake;
    fake.results = {files.path(L"a.txt")}; // a file, which it would give
    fake.optionsAnswer = E_INVALIDARG;
    for (const bool several : {false, true}) {
        auto cancelling = whenAsked().key(VK_ESCAPE).start();
        const FolderQuestion question{.folder = files.folder()};
        EXPECT_TRUE(several ? pickFolders(question).empty() : !pickFolder(question)) << several;
    }
}
