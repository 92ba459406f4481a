// The folder browser in front of a folder of the test's own.
#include "ExampleScene.h"
#include "folder-browser/resource.h"

#include <ovouires/resource.h>

#include <testkit/Clipboard.h>
#include <testkit/TemporaryFiles.h>

#include <commctrl.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>

using namespace ovo::testkit;

namespace
{

struct File
{
    const wchar_t* name;
    int kilobytes;
    int daysOld;
};

constexpr File kFiles[] = {{L"a plan.md", 3, 0},    {L"big.txt", 5, 3},   {L"harvest.csv", 12, 10},
                           {L"hedge.jpg", 250, 40}, {L"notes.txt", 1, 0}, {L"pond.png", 88, 5}};
constexpr int kEntries = std::size(kFiles) + 2; // with two folders

/// The clipboard, which nobody else can use meanwhile. The program may have it open for another moment.
class HeldClipboard
{
public:
    explicit HeldClipboard(RunningProgram& program)
    {
        program.waitFor("the clipboard", [] { return ::OpenClipboard(nullptr) != FALSE; });
    }
    ~HeldClipboard() { ::CloseClipboard(); }
    HeldClipboard(const HeldClipboard&) = delete;
    HeldClipboard& operator=(const HeldClipboard&) = delete;
};

class FolderBrowser : public Example
{
protected:
    FolderBrowser()
    {
        for (const auto& [name, kilobytes, daysOld] : kFiles) {
            const std::filesystem::path path = m_files.path(name);
            std::ofstream(path) << std::string(kilobytes * std::size_t{1024}, 'x');
            std::filesystem::last_write_time(path,
                                             std::chrono::file_clock::now() - std::chrono::days(daysOld));
        }
        start();
    }

    void start()
    {
        m_program.emplace(L"folder-browser", L"\"" + m_files.folder() + L"\"");
        m_program->waitFor("the list", [this] { return ask(list(), LVM_GETITEMCOUNT) == kEntries; });
    }

    HWND tree() const { return ::GetDlgItem(m_program->main(), IDC_TREE); }
    HWND list() const { return ::GetDlgItem(m_program->main(), IDC_LIST); }
    std::wstring folder(const std::wstring& name = {}) const
    {
        return name.empty() ? m_files.folder() : m_files.path(name);
    }
    void waitForTitle(const std::wstring& title)
    {
        m_program->waitFor("the folder", [&] { return textOf(m_program->main()) == title; });
    }

    void waitForFocus(HWND wnd)
    {
        m_program->waitFor("the focus", [wnd] {
            GUITHREADINFO thread{};
            thread.cbSize = sizeof thread;
            return ::GetGUIThreadInfo(::GetWindowThreadProcessId(wnd, nullptr), &thread) &&
                   thread.hwndFocus == wnd;
        });
    }

    /// What these keys put on the clipboard.
    std::wstring copied(const std::vector<WORD>& held, WORD key)
    {
        std::wstring text;
        {
            const HeldClipboard held(*m_program);
            ::EmptyClipboard();
        }
        const auto copy = [&] {
            ::SetForegroundWindow(m_program->main());
            m_program->chord(held, key);
        };
        m_program->tryUntil("the text", copy, [&] {
            return ::IsClipboardFormatAvailable(CF_UNICODETEXT) && !(text = clipboardText()).empty();
        });
        return text;
    }

    /// What Ctrl+Shift+C puts on the clipboard: names in the order of the list, a blank behind each.
    std::wstring copiedNames()
    {
        const std::wstring text = copied({VK_CONTROL, VK_SHIFT}, 'C');
        std::wstring names;
        for (std::size_t at = 0, end; (end = text.find(L"\r\n", at)) != std::wstring::npos; at = end + 2)
            names += text.substr(at, end - at).substr(folder().size() + 1) + L' ';
        return names;
    }

    void sortBySize()
    {
        m_program->key(VK_F6); // the toolbar; its last button but one sorts
        m_program->key(VK_END);
        m_program->key(VK_LEFT);
        m_program->key(VK_DOWN);
        m_program->key(VK_RIGHT);
        m_program->key(VK_RETURN);
        waitForTheOrderBySize();
    }
    void waitForTheOrderBySize()
    {
        m_program->waitFor("the order", [this] {
            return copiedNames().ends_with(L"big.txt harvest.csv pond.png hedge.jpg ");
        });
    }

    void close()
    {
        ::PostMessageW(m_program->main(), WM_SYSCOMMAND, SC_CLOSE, 0); // Alt+F4 ends in Wine's tree view
        EXPECT_EQ(m_program->waitForEnd(), 0u);
    }

    TemporaryFiles m_files{L"beds\\roses.txt", L"beds\\tulips.txt", L"seeds\\list.txt"};
    std::optional<RunningProgram> m_program;
};

} // namespace

TEST_F(FolderBrowser, ShowsTheFolderThatItIsGiven)
{
    EXPECT_EQ(textOf(m_program->main()), folder());
    EXPECT_EQ(ask(tree(), TVM_GETCOUNT), 3) << "the folder and those in it";
    EXPECT_EQ(copiedNames(), L"a plan.md beds big.txt harvest.csv hedge.jpg notes.txt pond.png seeds ");
    shoot(m_program->main(), L"folder-browser");
    close();
}

TEST_F(FolderBrowser, GoesIntoAFolderAndUpAgain)
{
    m_program->key(VK_TAB);
    m_program->key(VK_HOME);
    m_program->key(VK_DOWN);
    m_program->key(VK_RETURN);
    waitForTitle(folder(L"beds"));
    m_program->waitFor("the list", [this] { return ask(list(), LVM_GETITEMCOUNT) == 2; });
    m_program->chord(VK_MENU, VK_UP);
    waitForTitle(folder());
    m_program->waitFor("the list", [this] { return ask(list(), LVM_GETITEMCOUNT) == kEntries; });
    close();
}

TEST_F(FolderBrowser, FollowsTheTree)
{
    m_program->key(VK_DOWN);
    waitForTitle(folder(L"beds"));
    m_program->key(VK_UP);
    waitForTitle(folder());
    close();
}

TEST_F(FolderBrowser, SortsByWhatIsChosenInTheFlyout)
{
    sortBySize();
    close();
}

TEST_F(FolderBrowser, ComesBackInTheOrderInWhichItWasClosed)
{
    sortBySize();
    close();
    start();
    waitForTheOrderBySize();
    close();
}

/// The system may end a program as soon as its windows have been told.
TEST_F(FolderBrowser, ComesBackInTheOrderThatItHadWhenTheSessionEnded)
{
    sortBySize();
    EXPECT_EQ(ask(m_program->main(), WM_QUERYENDSESSION), TRUE);
    ask(m_program->main(), WM_ENDSESSION, TRUE);
    m_program.reset();
    start();
    waitForTheOrderBySize();
    close();
}

TEST_F(FolderBrowser, SeesWhatIsNewWhenItReadsAgain)
{
    m_files.addFile(L"new.txt");
    m_program->key(VK_TAB); // to the list: in the tree, F5 is the tree's own
    m_program->key(VK_F5);
    m_program->waitFor("the new file", [this] { return ask(list(), LVM_GETITEMCOUNT) == kEntries + 1; });
    close();
}

/// The tree has read its folders before.
TEST_F(FolderBrowser, OpensAFolderThatIsNew)
{
    m_files.addFolder(L"later");
    m_program->key(VK_TAB); // to the list
    m_program->key(VK_F5);
    m_program->waitFor("the new folder", [this] { return ask(list(), LVM_GETITEMCOUNT) == kEntries + 1; });
    m_program->key(VK_HOME);
    m_program->key(VK_DOWN, 5);
    m_program->key(VK_RETURN);
    waitForTitle(folder(L"later"));
    m_program->chord(VK_MENU, VK_UP);
    waitForTitle(folder());
    close();
}

TEST_F(FolderBrowser, GoesOnInTheListAfterADialog)
{
    m_program->key(VK_TAB); // to the list
    waitForFocus(list());
    m_program->chord(VK_CONTROL, 'S');
    const HWND dialog = openedFileDialog(*m_program);
    m_program->key(VK_ESCAPE);
    m_program->waitFor("the end of the file dialog", [dialog] { return !::IsWindow(dialog); });
    waitForFocus(list());
    close();
}

TEST_F(FolderBrowser, TellsThatAnotherProgramHasTheClipboard)
{
    const HWND main = m_program->main();
    {
        const HeldClipboard held(*m_program);
        m_program->chord({VK_CONTROL, VK_SHIFT}, 'C');
        m_program->waitFor("the message", [main] { return ::IsWindow(main) && !::IsWindowEnabled(main); });
    }
    m_program->key(VK_ESCAPE);
    m_program->waitFor("its end", [main] { return ::IsWindowEnabled(main) != FALSE; });
    EXPECT_FALSE(copiedNames().empty()) << "the program goes on";
    close();
}

TEST_F(FolderBrowser, TakesAFolderFromWhereItWasStarted)
{
    close();
    m_program.emplace(L"folder-browser", L"."); // which starts beside the tests
    wchar_t module[MAX_PATH]{};
    ::GetModuleFileNameW(nullptr, module, std::size(module));
    const std::filesystem::path here = std::filesystem::path(module).parent_path();
    waitForTitle(here.wstring());
    m_program->chord(VK_MENU, VK_UP);
    waitForTitle(here.parent_path().wstring());
    close();
}

TEST_F(FolderBrowser, OpensAnotherFolderThatTheUserIsAskedFor)
{
    m_program->chord(VK_CONTROL, 'O');
    answerFileDialog(*m_program, folder(L"beds"));
    waitForTitle(folder(L"beds"));
    m_program->waitFor("the list", [this] { return ask(list(), LVM_GETITEMCOUNT) == 2; });
    EXPECT_EQ(ask(tree(), TVM_GETCOUNT), 1) << "the tree begins with that folder";
    close();
}

TEST_F(FolderBrowser, SavesThePathsOfAllRowsOrOfTheSelectedOnes)
{
    const TemporaryFiles saved;
    m_program->chord(VK_CONTROL, 'S');
    answerFileDialog(*m_program, saved.path(L"all"));
    EXPECT_EQ(savedLines(*m_program, saved.path(L"all.txt")),
              (std::vector<std::wstring>{folder(L"a plan.md"), folder(L"beds"), folder(L"big.txt"),
                                         folder(L"harvest.csv"), folder(L"hedge.jpg"), folder(L"notes.txt"),
                                         folder(L"pond.png"), folder(L"seeds")}));

    m_program->key(VK_TAB); // to the list
    m_program->key(VK_HOME);
    m_program->chord(VK_SHIFT, VK_DOWN);
    m_program->waitFor("the selection", [this] { return ask(list(), LVM_GETSELECTEDCOUNT) == 2; });
    m_program->chord(VK_CONTROL, 'S');
    answerFileDialog(*m_program, saved.path(L"some"));
    EXPECT_EQ(savedLines(*m_program, saved.path(L"some.txt")),
              (std::vector<std::wstring>{folder(L"a plan.md"), folder(L"beds")}));
    close();
}

TEST_F(FolderBrowser, CopiesTheSelectedRowsAsATable)
{
    m_program->key(VK_TAB); // to the list
    m_program->key(VK_HOME);
    m_program->waitFor("the selection", [this] { return ask(list(), LVM_GETSELECTEDCOUNT) == 1; });
    const std::wstring table = copied({VK_CONTROL}, 'C');
    EXPECT_TRUE(table.starts_with(L"Name\tSize\tChanged\r\na plan.md\t")) << ::testing::PrintToString(table);
    EXPECT_EQ(std::ranges::count(table, L'\n'), 2) << "the headings and the row";
    close();
}

TEST_F(FolderBrowser, ListsTheModulesFromTheFlyout)
{
    m_program->key(VK_F6); // the toolbar; its last button tells about the machine
    m_program->key(VK_END);
    m_program->key(VK_DOWN);
    m_program->key(VK_RIGHT);
    m_program->key(VK_RETURN);
    const HWND dialog = m_program->window(L"Loaded Modules");
    EXPECT_EQ(::GetWindow(dialog, GW_OWNER), m_program->main());
    m_program->key(VK_ESCAPE);
    m_program->waitFor("its end", [this] { return ::IsWindowEnabled(m_program->main()) != FALSE; });
    close();
}

TEST_F(FolderBrowser, TellsAboutTheMachine)
{
    m_program->key(VK_F6);
    m_program->key(VK_END);
    m_program->key(VK_RETURN);
    const HWND dialog = m_program->window(L"System Information");
    EXPECT_EQ(::GetWindow(dialog, GW_OWNER), m_program->main());
    EXPECT_FALSE(::IsWindowEnabled(m_program->main()));
    const std::wstring text = textOf(dialog, IDC_SYSTEM_INFO_TEXT);
    EXPECT_TRUE(text.starts_with(L"System: ")) << "the machine comes first";
    EXPECT_NE(text.find(L" processors\r\n"), std::wstring::npos);
    EXPECT_NE(text.find(L"dots per inch, primary\r\n"), std::wstring::npos);
    EXPECT_NE(text.find(L"\r\nfolder-browser.exe\t"), std::wstring::npos) << "then come the modules";
    m_program->key(VK_ESCAPE);
    m_program->waitFor("its end", [this] { return ::IsWindowEnabled(m_program->main()) != FALSE; });
    m_program->waitFor("the dialog to go", [this] { return !m_program->shows(L"System Information"); });
    close();
}
