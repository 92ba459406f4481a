// The browse functions, with the system's dialogs.
#include "HostDialog.h"

#include "mfc/cdlg/FakeShellDialog.h"
#include "support/WindowFacts.h"
#include <testkit/ImportPatch.h>

#include <ovoui/files/Browse.h>

#include <gtest/gtest.h>

#include <afxdlgs.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <cwchar>
#include <cwctype>

using namespace ovo::testkit;
using support::textOf;

namespace
{

constexpr wchar_t kFilter[] = L"Text|*.txt|Pictures|*.png;*.jpg|All|*.*|";

std::wstring workingFolder()
{
    wchar_t folder[MAX_PATH]{};
    ::GetCurrentDirectoryW(MAX_PATH, folder);
    return folder;
}

/// The arguments of BrowseForFile, with defaults for what a test does not care about.
struct File
{
    std::wstring title = {};
    std::wstring folder = {};
    const wchar_t* extension = nullptr;
    std::wstring filter = kFilter;
    std::wstring path = {};
    int mustExist = 0;
    int save = 0;

    bool ask() { return BrowseForFile(nullptr, title, folder, extension, filter, path, mustExist, save); }
};

class BrowseTest : public testing::Test
{
protected:
    BrowseTest() { m_workingFolder = workingFolder(); }
    ~BrowseTest() override { EXPECT_EQ(workingFolder(), m_workingFolder); }

    TemporaryFiles files{L"a.txt", L"b.txt", L"p.png", L"below\\deep.txt"};

private:
    std::wstring m_workingFolder;
};

} // namespace

// One file

TEST_F(BrowseTest, OneFileGivesItsFullPath)
{
    File file{.folder = files.folder(), .path = L"b.txt"};
    auto answering = whenAsked().key(VK_RETURN).start();
    EXPECT_TRUE(file.ask());
    EXPECT_EQ(file.path, files.path(L"b.txt"));
}

TEST_F(BrowseTest, CancelledLeavesEverythingAsItIs)
{
    File file{.folder = files.folder(), .path = L"b.txt"};
    auto answering = whenAsked().key(VK_ESCAPE).start();
    EXPECT_FALSE(file.ask());
    EXPECT_EQ(file.path, L"b.txt");

    std::vector<std::wstring> paths{L"as before"};
    auto cancelling = whenAsked().key(VK_ESCAPE).start();
    EXPECT_FALSE(BrowseForFiles(nullptr, nullptr, files.folder(), L"", kFilter, paths));
    EXPECT_EQ(paths, std::vector<std::wstring>{L"as before"});
}

TEST_F(BrowseTest, BeginsInTheNearestFolder)
{
    struct Case
    {
        std::wstring start;
        std::wstring found;
    };
    const std::wstring folder = files.folder();
    for (const Case& c :
         {Case{folder, folder}, Case{folder + L"\\", folder}, Case{folder + L"\\gone\\deeper", folder},
          Case{files.path(L"a.txt"), folder}, Case{files.path(L"below"), files.path(L"below")}}) {
        SCOPED_TRACE(testing::PrintToString(c.start));
        File file{.folder = c.start};
        auto answering = whenAsked().type(L"new.txt").key(VK_RETURN).start();
        ASSERT_TRUE(file.ask());
        EXPECT_EQ(file.path, c.found + L"\\new.txt");

        std::vector<std::wstring> paths;
        const std::wstring name = c.found == folder ? L"a.txt" : L"deep.txt";
        auto choosing = whenAsked().type(name).key(VK_RETURN).start();
        ASSERT_TRUE(BrowseForFiles(nullptr, nullptr, c.start, L"", kFilter, paths));
        EXPECT_EQ(paths, std::vector<std::wstring>{c.found + L"\\" + name});
    }
}

TEST_F(BrowseTest, BeginsInTheFolderOfTheNameUnlessItIsGone)
{
    File there{.folder = files.folder(), .path = files.path(L"below\\new.txt")};
    auto answering = whenAsked().key(VK_RETURN).start();
    EXPECT_TRUE(there.ask());
    EXPECT_EQ(there.path, files.path(L"below\\new.txt"));

    File gone{.folder = files.folder(), .path = files.path(L"gone\\new.txt")};
    auto again = whenAsked().key(VK_RETURN).start();
    EXPECT_TRUE(gone.ask());
    EXPECT_EQ(gone.path, files.path(L"new.txt"));
}

TEST_F(BrowseTest, BeginsSomewhereWhenThereIsNoSuchFolder)
{
    for (const std::wstring start : {L"", L"Q:\\gone", L"\\\\no-such-server\\share\\folder", L"gone"}) {
        SCOPED_TRACE(testing::PrintToString(start));
        File file{.folder = start};
        auto answering = whenAsked().type(files.path(L"a.txt")).key(VK_RETURN).start();
        ASSERT_TRUE(file.ask());
        EXPECT_EQ(file.path, files.path(L"a.txt"));
    }
}

TEST_F(BrowseTest, BeginsInAFolderOfTheWorkingFolder)
{
    const std::wstring before = workingFolder();
    ::SetCurrentDirectoryW(files.folder().c_str());
    File file{.folder = L"below\\gone"};
    auto answering = whenAsked().type(L"deep.txt").key(VK_RETURN).start();
    EXPECT_TRUE(file.ask());
    EXPECT_EQ(file.path, files.path(L"below\\deep.txt"));
    EXPECT_EQ(workingFolder(), files.folder());
    ::SetCurrentDirectoryW(before.c_str());
}

TEST_F(BrowseTest, ChoosesTheEntryOfTheExtension)
{
    struct Case
    {
        const wchar_t* extension;
        const wchar_t* shown;
    };
    for (const Case& c : {Case{L".jpg", L"Pictures"}, Case{L".*", L"All"}, Case{L".JPG", L"Text"},
                          Case{L".gif", L"Text"}, Case{nullptr, L"Text"}}) {
        SCOPED_TRACE(testing::PrintToString(c.extension));
        File file{.folder = files.folder(), .extension = c.extension};
        bool shown = false;
        auto answering =
            whenAsked().then([&] { shown = controlWithText(c.shown) != nullptr; }).key(VK_ESCAPE).start();
        file.ask();
        EXPECT_TRUE(shown);
    }
}

TEST_F(BrowseTest, FilesChooseTheEntryInAnyCase)
{
    struct Case
    {
        const wchar_t* extension;
        const wchar_t* filter;
        const wchar_t* shown;
    };
    for (const Case& c : {Case{L".JPG", kFilter, L"Pictures"}, Case{L".txt", L"All|*.*|Text|*.txt", L"All"},
                          Case{L".txt", L"All|*.*|Text|*.txt|", L"Text"}}) {
        bool shown = false;
        std::vector<std::wstring> paths;
        auto answering =
            whenAsked().then([&] { shown = controlWithText(c.shown) != nullptr; }).key(VK_ESCAPE).start();
        BrowseForFiles(nullptr, nullptr, files.folder(), c.extension, c.filter, paths);
        EXPECT_TRUE(shown) << testing::PrintToString(c.extension);
    }
}

TEST_F(BrowseTest, AtTheEndOfTheFilterOneFileChoosesTheEntry)
{
    File file{.folder = files.folder(), .extension = L".txt", .filter = L"All|*.*|Text|*.txt"};
    bool shown = false;
    auto answering =
        whenAsked().then([&] { shown = controlWithText(L"Text") != nullptr; }).key(VK_ESCAPE).start();
    file.ask();
    EXPECT_TRUE(shown);
}

TEST_F(BrowseTest, ShowsTheTitle)
{
    File titled{.title = L"Which picture?", .folder = files.folder()};
    std::wstring title;
    auto first = whenAsked().then([&] { title = textOf(asked()); }).key(VK_ESCAPE).start();
    titled.ask();
    EXPECT_EQ(title, L"Which picture?");

    std::wstring usual;
    File untitled{.folder = files.folder()};
    auto second = whenAsked().then([&] { usual = textOf(asked()); }).key(VK_ESCAPE).start();
    untitled.ask();
    EXPECT_FALSE(usual.empty());

    std::vector<std::wstring> paths;
    for (const wchar_t* text : {static_cast<const wchar_t*>(nullptr), L"", L"Which pictures?"}) {
        auto third = whenAsked().then([&] { title = textOf(asked()); }).key(VK_ESCAPE).start();
        BrowseForFiles(nullptr, text, files.folder(), L"", kFilter, paths);
        EXPECT_EQ(title, text && *text ? std::wstring(text) : usual);
    }
}

TEST_F(BrowseTest, TakesNamesOf259Characters)
{
    const std::size_t room = 259 - files.folder().size() - 1;
    const std::wstring longest(room, L'n');
    files.addFile(longest);
    File file{.folder = files.folder(), .path = files.path(longest)};
    auto answering = whenAsked().key(VK_RETURN).start();
    ASSERT_TRUE(file.ask());
    EXPECT_EQ(file.path, files.path(longest));
}

TEST_F(BrowseTest, CutsANameOf260Characters)
{
    const std::size_t room = 259 - files.folder().size() - 1;
    const std::wstring longest(room, L'n');
    File file{.folder = files.folder(), .path = files.path(longest) + L"X"};
    std::wstring shown;
    auto answering = whenAsked().then([&] { shown = textOf(nameBox()); }).key(VK_ESCAPE).start();
    EXPECT_FALSE(file.ask());
    EXPECT_EQ(shown, longest);
}

TEST_F(BrowseTest, AsksForAFileThatExists)
{
    File file{.folder = files.folder(), .mustExist = 1};
    HWND dialog = nullptr;
    auto answering = whenAsked()
                         .then([&] { dialog = asked(); })
                         .type(L"gone.txt")
                         .key(VK_RETURN)
                         .waitFor("the complaint", [&] { return asked() && asked() != dialog; })
                         .key(VK_RETURN)
                         .waitFor("the dialog", [&] { return asked() == dialog; })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_FALSE(file.ask());
    EXPECT_EQ(file.path, L"");
}

TEST_F(BrowseTest, AsksBeforeItReplaces)
{
    File file{.folder = files.folder(), .path = L"a.txt", .save = 1};
    HWND dialog = nullptr;
    auto answering = whenAsked()
                         .then([&] { dialog = asked(); })
                         .key(VK_RETURN)
                         .waitFor("the question", [&] { return asked() && asked() != dialog; })
                         .click([] { return ::GetDlgItem(asked(), IDYES); })
                         .start();
    EXPECT_TRUE(file.ask());
    EXPECT_EQ(file.path, files.path(L"a.txt"));
}

TEST_F(BrowseTest, DisablesTheParentMeanwhile)
{
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                    nullptr);
    bool disabled = false;
    std::wstring path;
    auto answering = whenAsked().then([&] { disabled = !parent.IsWindowEnabled(); }).key(VK_ESCAPE).start();
    BrowseForFile(&parent, L"", L"", nullptr, kFilter, path, 0, 0);
    EXPECT_TRUE(disabled);
    EXPECT_TRUE(parent.IsWindowEnabled());
    parent.DestroyWindow();
}

// Several files

TEST_F(BrowseTest, SeveralFilesComeInOrder)
{
    std::vector<std::wstring> paths{L"as before"};
    auto answering = whenAsked().type(L"\"b.txt\" \"a.txt\"").key(VK_RETURN).start();
    ASSERT_TRUE(BrowseForFiles(nullptr, nullptr, files.folder(), L".txt", kFilter, paths));
    EXPECT_EQ(paths, (std::vector{files.path(L"b.txt"), files.path(L"a.txt")}));
}

TEST_F(BrowseTest, FiveHundredFiles)
{
    std::vector<std::wstring> expected;
    std::wstring typed;
    for (int i = 100; i < 600; ++i) {
        const std::wstring name = L"f " + std::to_wstring(i) + L".txt";
        files.addFile(name);
        expected.push_back(files.path(name));
        typed += L'"' + name + L"\" ";
    }
    std::vector<std::wstring> paths;
    // Set at once: so many strokes would take minutes.
    auto answering =
        whenAsked().then([&] { ::SetWindowTextW(nameBox(), typed.c_str()); }).key(VK_RETURN).start();
    ASSERT_TRUE(BrowseForFiles(nullptr, nullptr, files.folder(), L".txt", kFilter, paths));
    EXPECT_EQ(paths, expected);
}

TEST_F(BrowseTest, MoreFilesThanThereIsRoomForCountAsCancelled)
{
    FakeShellDialog fake;
    for (int i = 0; i < 200; ++i)
        fake.results.push_back(L"C:\\" + std::wstring(200, L'x') + std::to_wstring(i));
    std::vector<std::wstring> paths{L"as before"};
    EXPECT_FALSE(BrowseForFiles(nullptr, nullptr, L"", L"", kFilter, paths));
    EXPECT_EQ(paths, std::vector<std::wstring>{L"as before"});
    fake.results.resize(150);
    EXPECT_TRUE(BrowseForFiles(nullptr, nullptr, L"", L"", kFilter, paths));
    EXPECT_EQ(paths, fake.results);
}

TEST_F(BrowseTest, AsksWithTheAgreedFlags)
{
    constexpr DWORD kAlways = FOS_NOCHANGEDIR | FOS_PATHMUSTEXIST | FOS_SHAREAWARE | FOS_FORCEFILESYSTEM;
    FakeShellDialog fake;
    fake.results = {L"C:\\a"};
    struct Case
    {
        int mustExist;
        int save;
        DWORD flags;
    };
    for (const Case& c : {Case{0, 0, 0}, Case{1, 0, FOS_FILEMUSTEXIST}, Case{0, 1, FOS_OVERWRITEPROMPT},
                          Case{7, 7, FOS_FILEMUSTEXIST | FOS_OVERWRITEPROMPT}}) {
        fake.options = 0;
        File file{.mustExist = c.mustExist, .save = c.save};
        EXPECT_TRUE(file.ask());
        EXPECT_EQ(fake.options, kAlways | c.flags);
    }
    fake.options = 0;
    std::vector<std::wstring> paths;
    BrowseForFiles(nullptr, nullptr, L"", L"", kFilter, paths);
    EXPECT_EQ(fake.options, kAlways | FOS_FILEMUSTEXIST | FOS_ALLOWMULTISELECT);
}

TEST_F(BrowseTest, HandsOverNameTypeAndExtensionAsTheyStand)
{
    FakeShellDialog fake;
    fake.results = {L"C:\\a"};
    File file{.extension = L".png", .path = L"b.txt"};
    EXPECT_TRUE(file.ask());
    EXPECT_EQ(fake.kind, CLSID_FileOpenDialog);
    EXPECT_EQ(fake.name, L"b.txt");
    EXPECT_EQ(fake.type, 2u);
    EXPECT_EQ(fake.extension, L".png");
    File saved{.save = 1};
    EXPECT_TRUE(saved.ask());
    EXPECT_EQ(fake.kind, CLSID_FileSaveDialog);

    fake.name.clear();
    fake.type = 0;
    fake.extension.clear();
    std::vector<std::wstring> paths;
    EXPECT_TRUE(BrowseForFiles(nullptr, nullptr, L"", L".JPG", kFilter, paths));
    EXPECT_EQ(fake.kind, CLSID_FileOpenDialog);
    EXPECT_EQ(fake.name, L"");
    EXPECT_EQ(fake.type, 2u);
    EXPECT_EQ(fake.extension, L".JPG");
}

// The classic dialog, where there is no other

namespace
{

/// What the system is asked for in its classic dialogs. The user cancels them.
struct AskedRecord
{
    static inline std::vector<std::string> dialogs;
    static inline OPENFILENAMEW record;
    static inline std::wstring title;
    static inline std::wstring folder;
    static inline std::wstring name;
    static inline std::wstring filter;

    static BOOL WINAPI open(OPENFILENAMEW* asked) { return take("open", *asked); }
    static BOOL WINAPI save(OPENFILENAMEW* asked) { return take("save", *asked); }

private:
    static BOOL take(const char* dialog, const OPENFILENAMEW& asked)
    {
        const auto textOrNone = [](const wchar_t* text) { return text ? text : L"(none)"; };
        dialogs.emplace_back(dialog);
        record = asked;
        title = textOrNone(asked.lpstrTitle);
        folder = textOrNone(asked.lpstrInitialDir);
        name = asked.lpstrFile;
        filter.clear();
        for (const wchar_t* part = asked.lpstrFilter; *part; part += std::wcslen(part) + 1)
            filter.append(part) += L'|';
        return FALSE;
    }
};

class ClassicBrowseTest : public BrowseTest
{
protected:
    ClassicBrowseTest()
    {
        fake.creation = REGDB_E_CLASSNOTREG;
        AskedRecord::dialogs.clear();
        parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr);
    }
    ~ClassicBrowseTest() override { parent.DestroyWindow(); }

    /// Without what the framework adds for every dialog.
    static DWORD flags() { return AskedRecord::record.Flags & ~DWORD{OFN_EXPLORER | OFN_ENABLEHOOK}; }

    FakeShellDialog fake;
    CWnd parent;

private:
    ImportPatch m_opening{L"ovomfc.dll", "GetOpenFileNameW", reinterpret_cast<void*>(&AskedRecord::open)};
    ImportPatch m_saving{L"ovomfc.dll", "GetSaveFileNameW", reinterpret_cast<void*>(&AskedRecord::save)};
};

} // namespace

TEST_F(ClassicBrowseTest, OneFileIsAskedForAsAgreed)
{
    std::wstring path = L"b.txt";
    EXPECT_FALSE(
        BrowseForFile(&parent, L"Which picture?", files.path(L"gone"), L".jpg", kFilter, path, 1, 0));
    const OPENFILENAMEW& record = AskedRecord::record;
    EXPECT_EQ(record.lStructSize, sizeof(OPENFILENAMEW));
    EXPECT_EQ(record.hwndOwner, parent.m_hWnd);
    EXPECT_EQ(flags(), 0x580Cu);
    EXPECT_EQ(record.nFilterIndex, 2u);
    EXPECT_EQ(AskedRecord::title, L"Which picture?");
    EXPECT_EQ(AskedRecord::folder, files.folder());
    EXPECT_EQ(AskedRecord::name, L"b.txt");
    EXPECT_EQ(AskedRecord::filter, kFilter);
    EXPECT_EQ(path, L"b.txt");

    EXPECT_FALSE(BrowseForFile(&parent, L"", L"", nullptr, kFilter, path, 0, 1));
    EXPECT_EQ(flags(), 0x480Eu);
    EXPECT_EQ(record.lpstrDefExt, nullptr);
    EXPECT_EQ(AskedRecord::title, L"(none)");
    EXPECT_EQ(AskedRecord::folder, L"(none)");
    EXPECT_EQ(AskedRecord::dialogs, (std::vector<std::string>{"open", "save"}));
}

TEST_F(ClassicBrowseTest, SeveralFilesAreAskedForAsAgreed)
{
    std::vector<std::wstring> paths{L"as before"};
    EXPECT_FALSE(BrowseForFiles(&parent, L"Which?", files.path(L"below"), L".PNG", kFilter, paths));
    const OPENFILENAMEW& record = AskedRecord::record;
    EXPECT_EQ(record.hwndOwner, parent.m_hWnd);
    EXPECT_EQ(flags(), 0x85A0Cu & ~DWORD{OFN_EXPLORER});
    EXPECT_NE(record.Flags & OFN_EXPLORER, 0u);
    EXPECT_EQ(record.nMaxFile, 32767u);
    EXPECT_EQ(record.nFilterIndex, 2u);
    EXPECT_EQ(AskedRecord::title, L"Which?");
    EXPECT_EQ(AskedRecord::folder, files.path(L"below"));
    EXPECT_EQ(AskedRecord::name, L"");
    EXPECT_EQ(AskedRecord::filter, kFilter);
    EXPECT_EQ(AskedRecord::dialogs, std::vector<std::string>{"open"});
    EXPECT_EQ(paths, std::vector<std::wstring>{L"as before"});
}

// A folder

namespace
{

/// Takes down the messages to a folder dialog.
class FolderDialog : public CWnd
{
public:
    FolderDialog()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"Folder", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    }
    ~FolderDialog() override { DestroyWindow(); }

    struct Told
    {
        UINT message;
        WPARAM isPath;
        std::wstring path;
        bool operator==(const Told&) const = default;
    };
    std::vector<Told> told;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == BFFM_SETEXPANDED || message == BFFM_SETSELECTIONW)
            told.push_back({message, wParam, reinterpret_cast<const wchar_t*>(lParam)});
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

/// What BrowseForDir asks of the system, which the test answers.
struct AskedFolder
{
    static inline UINT flags = 0;
    static inline HWND owner = nullptr;
    static inline std::wstring title;
    static inline std::wstring start;
    static inline LPITEMIDLIST answer = nullptr;
    static inline std::vector<LRESULT> results;
    static inline std::vector<FolderDialog::Told> told;

    static LPITEMIDLIST WINAPI ask(LPBROWSEINFOW question)
    {
        flags = question->ulFlags;
        owner = question->hwndOwner;
        title = question->lpszTitle;
        start = reinterpret_cast<const wchar_t*>(question->lParam);
        EXPECT_EQ(question->pidlRoot, nullptr);
        EXPECT_NE(question->pszDisplayName, nullptr);
        results = {question->lpfn(nullptr, BFFM_SELCHANGED, 0, question->lParam),
                   question->lpfn(nullptr, BFFM_VALIDATEFAILED, 0, question->lParam),
                   question->lpfn(nullptr, BFFM_INITIALIZED, 0, 0)};
        FolderDialog dialog;
        results.push_back(question->lpfn(dialog.m_hWnd, BFFM_INITIALIZED, 0, question->lParam));
        told = dialog.told;
        return std::exchange(answer, nullptr);
    }
};

/// The tree's chosen item, in the dialog that waits.
std::wstring chosenFolder()
{
    const HWND tree = ::FindWindowExW(asked(), nullptr, L"SysTreeView32", nullptr);
    const HWND host = tree ? tree : asked();
    TVITEMW item{};
    wchar_t text[MAX_PATH]{};
    item.mask = TVIF_TEXT | TVIF_HANDLE;
    item.hItem = reinterpret_cast<HTREEITEM>(::SendMessageW(host, TVM_GETNEXTITEM, TVGN_CARET, 0));
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    return item.hItem && ::SendMessageW(host, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) ? text : L"";
}

/// Sets the time at which a folder was read last so far ahead that reading it does not change it. Wine's
/// folder dialog finds a folder only while its times stay the same.
void keepTimes(const std::wstring& folder)
{
    constexpr ULONGLONG kHour = 60ULL * 60 * 10'000'000;
    FILETIME now{};
    ::GetSystemTimeAsFileTime(&now);
    ULARGE_INTEGER time{};
    time.LowPart = now.dwLowDateTime;
    time.HighPart = now.dwHighDateTime;
    time.QuadPart += kHour;
    const FILETIME ahead{time.LowPart, time.HighPart};
    const HANDLE handle =
        ::CreateFileW(folder.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    EXPECT_TRUE(::SetFileTime(handle, nullptr, &ahead, nullptr));
    ::CloseHandle(handle);
}

std::wstring nameOfPath(const std::wstring& path)
{
    return path.substr(path.find_last_of(L'\\') + 1);
}

} // namespace

TEST_F(BrowseTest, AFolderIsAskedForAsAgreed)
{
    const ImportPatch patch(L"ovoui.dll", "SHBrowseForFolderW", reinterpret_cast<void*>(&AskedFolder::ask));
    wchar_t path[MAX_PATH];
    ::lstrcpynW(path, files.path(L"gone\\deeper").c_str(), MAX_PATH);
    const std::wstring before = path;
    EXPECT_EQ(BrowseForDir(nullptr, L"Where to?", path), 0);
    EXPECT_EQ(path, before);
    EXPECT_EQ(AskedFolder::flags, 0x41u);
    EXPECT_EQ(AskedFolder::owner, nullptr);
    EXPECT_EQ(AskedFolder::title, L"Where to?");
    EXPECT_EQ(AskedFolder::start, files.folder());
    EXPECT_EQ(AskedFolder::results, (std::vector<LRESULT>{0, 0, 0, 0}));
    EXPECT_EQ(AskedFolder::told,
              (std::vector<FolderDialog::Told>{{BFFM_SETEXPANDED, TRUE, files.folder()},
                                               {BFFM_SETSELECTIONW, TRUE, files.folder()}}));
}

TEST_F(BrowseTest, AFolderBeginsWhereTheClimbStops)
{
    const ImportPatch patch(L"ovoui.dll", "SHBrowseForFolderW", reinterpret_cast<void*>(&AskedFolder::ask));
    struct Case
    {
        const wchar_t* path;
        const wchar_t* start;
    };
    for (const Case& c : {Case{L"Q:\\gone", L"Q:\\"}, Case{L"", L""}, Case{L"gone", L"gone"}}) {
        wchar_t path[MAX_PATH]{};
        ::lstrcpynW(path, c.path, MAX_PATH);
        BrowseForDir(nullptr, L"", path);
        EXPECT_EQ(AskedFolder::start, c.start);
    }
}

TEST_F(BrowseTest, AFolderOutsideOfTheFileSystemIsNone)
{
    const ImportPatch patch(L"ovoui.dll", "SHBrowseForFolderW", reinterpret_cast<void*>(&AskedFolder::ask));
    ASSERT_HRESULT_SUCCEEDED(::SHGetSpecialFolderLocation(nullptr, CSIDL_CONTROLS, &AskedFolder::answer));
    wchar_t path[MAX_PATH] = L"C:\\";
    EXPECT_EQ(BrowseForDir(nullptr, L"", path), 0);
    EXPECT_STREQ(path, L"C:\\");
}

namespace
{

/// The shell's allocator, which takes down what is freed.
class CountingAllocator : public IMalloc
{
public:
    static inline std::vector<void*> freed;
    static inline int uses = 0;

    static HRESULT WINAPI get(IMalloc** allocator)
    {
        ++uses;
        static CountingAllocator s_only;
        *allocator = &s_only;
        return S_OK;
    }

    STDMETHODIMP QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(++uses); }
    STDMETHODIMP_(ULONG) Release() override { return static_cast<ULONG>(--uses); }
    STDMETHODIMP_(void*) Alloc(SIZE_T size) override { return ::CoTaskMemAlloc(size); }
    STDMETHODIMP_(void*) Realloc(void* memory, SIZE_T size) override
    {
        return ::CoTaskMemRealloc(memory, size);
    }
    STDMETHODIMP_(void) Free(void* memory) override
    {
        freed.push_back(memory);
        ::CoTaskMemFree(memory);
    }
    STDMETHODIMP_(SIZE_T) GetSize(void*) override { return 0; }
    STDMETHODIMP_(int) DidAlloc(void*) override { return -1; }
    STDMETHODIMP_(void) HeapMinimize() override {}
};

/// OLE as a thread starts it, whose uses are counted.
struct Ole
{
    static inline HRESULT answer = S_OK;
    static inline int uses = 0;
    static inline int usesWhileAsked = 0;

    static HRESULT WINAPI begin(void*)
    {
        uses += SUCCEEDED(answer);
        return answer;
    }
    static void WINAPI end() { --uses; }
    static LPITEMIDLIST WINAPI ask(LPBROWSEINFOW)
    {
        usesWhileAsked = uses;
        return nullptr;
    }
};

} // namespace

TEST_F(BrowseTest, WhatTheFolderDialogGivesIsFreedByTheShellsAllocator)
{
    const ImportPatch asking(L"ovoui.dll", "SHBrowseForFolderW", reinterpret_cast<void*>(&AskedFolder::ask));
    const ImportPatch patch(L"ovoui.dll", "SHGetMalloc", reinterpret_cast<void*>(&CountingAllocator::get));
    LPITEMIDLIST outside = nullptr;
    ASSERT_HRESULT_SUCCEEDED(::SHGetSpecialFolderLocation(nullptr, CSIDL_CONTROLS, &outside));
    for (const LPITEMIDLIST answer : {::ILCreateFromPathW(files.folder().c_str()), outside, LPITEMIDLIST{}}) {
        CountingAllocator::freed.clear();
        AskedFolder::answer = answer;
        wchar_t path[MAX_PATH] = L"C:\\";
        EXPECT_EQ(BrowseForDir(nullptr, L"", path), answer && answer != outside ? 1 : 0);
        EXPECT_EQ(CountingAllocator::freed, answer ? std::vector<void*>{answer} : std::vector<void*>{});
        EXPECT_EQ(CountingAllocator::uses, 0) << "it is released";
    }
}

TEST_F(BrowseTest, TheFolderDialogIsShownWithOleStarted)
{
    const ImportPatch asking(L"ovoui.dll", "SHBrowseForFolderW", reinterpret_cast<void*>(&Ole::ask));
    const ImportPatch begin(L"ovoui.dll", "OleInitialize", reinterpret_cast<void*>(&Ole::begin));
    const ImportPatch end(L"ovoui.dll", "OleUninitialize", reinterpret_cast<void*>(&Ole::end));
    for (const HRESULT answer : {S_OK, S_FALSE, RPC_E_CHANGED_MODE}) {
        Ole::answer = answer;
        wchar_t path[MAX_PATH] = L"C:\\";
        EXPECT_EQ(BrowseForDir(nullptr, L"", path), 0);
        EXPECT_EQ(Ole::usesWhileAsked, SUCCEEDED(answer) ? 1 : 0);
        EXPECT_EQ(Ole::uses, 0) << "what was not started is not ended";
    }
}

// Folders that are not to be read, and folders of other machines

namespace
{

/// Stands between the library or the shell and the disk: a folder is refused, or there is a share.
struct Disk
{
    static inline std::wstring refused; ///< the folder, without a separator at its end
    static inline int refusals = 0;
    static inline std::wstring share;     ///< the only folder
    static inline std::wstring askedItem; ///< the path that the system was asked to make an item of

    static BOOL WINAPI isFolderUnlessRefused(LPCWSTR path)
    {
        if (path != refused)
            return ::PathIsDirectoryW(path);
        ++refusals;
        ::SetLastError(ERROR_ACCESS_DENIED);
        return FALSE;
    }

    static HANDLE WINAPI findUnlessRefused(LPCWSTR pattern, LPWIN32_FIND_DATAW data)
    {
        const std::wstring_view asked(pattern);
        if (!asked.starts_with(refused + L'\\') || asked.find(L'*') == asked.npos)
            return ::FindFirstFileW(pattern, data);
        ++refusals;
        ::SetLastError(ERROR_ACCESS_DENIED);
        return INVALID_HANDLE_VALUE;
    }

    static BOOL WINAPI isShare(LPCWSTR path) { return path == share ? FILE_ATTRIBUTE_DIRECTORY : FALSE; }

    static HRESULT WINAPI makeItem(PCWSTR path, IBindCtx* context, REFIID iid, void** item)
    {
        askedItem = path;
        return ::SHCreateItemFromParsingName(path, context, iid, item);
    }
};

} // namespace

TEST_F(BrowseTest, AFolderThatMayNotBeAskedAboutIsLeftForTheOneAbove)
{
    const ImportPatch patch(L"ovoui.dll", "PathIsDirectoryW",
                            reinterpret_cast<void*>(&Disk::isFolderUnlessRefused));
    Disk::refused = files.path(L"below");
    Disk::refusals = 0;
    File file{.folder = files.path(L"below")};
    auto answering = whenAsked().type(L"new.txt").key(VK_RETURN).start();
    ASSERT_TRUE(file.ask());
    EXPECT_EQ(file.path, files.path(L"new.txt"));

    std::vector<std::wstring> paths;
    auto choosing = whenAsked().type(L"a.txt").key(VK_RETURN).start();
    ASSERT_TRUE(BrowseForFiles(nullptr, nullptr, files.path(L"below"), L"", kFilter, paths));
    EXPECT_EQ(paths, std::vector<std::wstring>{files.path(L"a.txt")});

    const ImportPatch asking(L"ovoui.dll", "SHBrowseForFolderW", reinterpret_cast<void*>(&AskedFolder::ask));
    wchar_t path[MAX_PATH]{};
    ::lstrcpynW(path, files.path(L"below").c_str(), MAX_PATH);
    BrowseForDir(nullptr, L"", path);
    EXPECT_EQ(AskedFolder::start, files.folder());
    EXPECT_EQ(Disk::refusals, 3);
}

TEST_F(BrowseTest, AFolderThatMayNotBeReadIsBegunInWithoutItsFiles)
{
    const ImportPatch patch(L"shell32.dll", "FindFirstFileW",
                            reinterpret_cast<void*>(&Disk::findUnlessRefused));
    Disk::refused = files.path(L"below");
    Disk::refusals = 0;
    File file{.folder = files.path(L"below")};
    auto answering = whenAsked().type(L"new.txt").key(VK_RETURN).start();
    ASSERT_TRUE(file.ask());
    EXPECT_EQ(file.path, files.path(L"below\\new.txt"));
    EXPECT_GT(Disk::refusals, 0);

    Disk::refusals = 0;
    std::vector<std::wstring> paths{L"as before"};
    auto cancelling = whenAsked().key(VK_ESCAPE).start();
    EXPECT_FALSE(BrowseForFiles(nullptr, nullptr, files.path(L"below"), L"", kFilter, paths));
    EXPECT_EQ(paths, std::vector<std::wstring>{L"as before"});
    EXPECT_GT(Disk::refusals, 0);

    keepTimes(files.path(L"below"));
    Disk::refusals = 0;
    wchar_t path[MAX_PATH]{};
    ::lstrcpynW(path, files.path(L"below").c_str(), MAX_PATH);
    auto confirming = whenAsked()
                          .waitFor("the folder to begin in", [] { return chosenFolder() == L"below"; })
                          .click([] { return ::GetDlgItem(asked(), IDOK); })
                          .start();
    EXPECT_EQ(BrowseForDir(nullptr, L"", path), 1);
    EXPECT_EQ(path, files.path(L"below"));
}

TEST_F(BrowseTest, AFolderOfAShareIsBegunIn)
{
    // The shell is told of the share; that it then shows what is there is its own affair.
    const ImportPatch disk(L"ovoui.dll", "PathIsDirectoryW", reinterpret_cast<void*>(&Disk::isShare));
    const ImportPatch items(L"ovomfc.dll", "SHCreateItemFromParsingName",
                            reinterpret_cast<void*>(&Disk::makeItem));
    const ImportPatch asking(L"ovoui.dll", "SHBrowseForFolderW", reinterpret_cast<void*>(&AskedFolder::ask));
    FakeShellDialog fake;
    struct Case
    {
        const wchar_t* exists;
        const wchar_t* wanted;
    };
    for (const Case& c : {Case{L"\\\\server\\share", L"\\\\server\\share"},
                          Case{L"\\\\server\\share", L"\\\\server\\share\\gone\\deeper"},
                          Case{L"\\\\server\\share\\plans", L"\\\\server\\share\\plans\\gone"}}) {
        SCOPED_TRACE(testing::PrintToString(c.wanted));
        Disk::share = c.exists;
        Disk::askedItem.clear();
        fake.results = {std::wstring(c.exists) + L"\\a.txt"};
        File file{.folder = c.wanted};
        EXPECT_TRUE(file.ask());
        EXPECT_EQ(Disk::askedItem, c.exists);
        EXPECT_EQ(file.path, fake.results.front());

        Disk::askedItem.clear();
        fake.results.push_back(std::wstring(c.exists) + L"\\b.txt");
        std::vector<std::wstring> paths;
        EXPECT_TRUE(BrowseForFiles(nullptr, nullptr, c.wanted, L"", kFilter, paths));
        EXPECT_EQ(Disk::askedItem, c.exists);
        EXPECT_EQ(paths, fake.results);

        wchar_t path[MAX_PATH]{};
        ::lstrcpynW(path, c.wanted, MAX_PATH);
        BrowseForDir(nullptr, L"", path);
        EXPECT_EQ(AskedFolder::start, c.exists);
    }
}

TEST_F(BrowseTest, AFolderIsChosenByTheUser)
{
    keepTimes(files.path(L"below"));
    wchar_t path[MAX_PATH];
    ::lstrcpynW(path, files.path(L"below\\gone").c_str(), MAX_PATH);
    auto answering = whenAsked()
                         .waitFor("the folder to begin in", [] { return chosenFolder() == L"below"; })
                         .click([] { return ::GetDlgItem(asked(), IDOK); })
                         .start();
    EXPECT_EQ(BrowseForDir(nullptr, L"Where to?", path), 1);
    EXPECT_EQ(path, files.path(L"below"));
}

TEST_F(BrowseTest, AFolderCanBeLeftUnchosen)
{
    keepTimes(files.folder());
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                    nullptr);
    wchar_t path[MAX_PATH];
    ::lstrcpynW(path, files.folder().c_str(), MAX_PATH);
    bool disabled = false;
    auto answering =
        whenAsked()
            .waitFor("the folder to begin in", [&] { return chosenFolder() == nameOfPath(files.folder()); })
            .then([&] { disabled = !parent.IsWindowEnabled(); })
            .key(VK_ESCAPE)
            .start();
    EXPECT_EQ(BrowseForDir(&parent, L"Where to?", path), 0);
    EXPECT_EQ(path, files.folder());
    EXPECT_TRUE(disabled);
    EXPECT_TRUE(parent.IsWindowEnabled());
    parent.DestroyWindow();
}
