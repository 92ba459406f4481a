// A frame with toolbar, status bar, view, about box and recent files.
#include <testkit/RunningProgram.h>
#include "notes/Resource.h"

#include <afxres.h>
#include <shlwapi.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace ovo::testkit;

namespace fs = std::filesystem;

namespace
{

constexpr COLORREF kStamp = RGB(200, 30, 30);
constexpr wchar_t kKey[] = L"Software\\ovoui test programs";
constexpr wchar_t kFiles[] = L"Software\\ovoui test programs\\mfc_program_notes\\Recent File List";

class Notes : public ::testing::Test
{
protected:
    Notes()
        : m_folder(fs::temp_directory_path() / (L"ovoui notes " + std::to_wstring(::GetCurrentProcessId())))
    {
        fs::create_directories(m_folder);
        ::SHDeleteKeyW(HKEY_CURRENT_USER, kKey);
    }
    ~Notes() override
    {
        fs::remove_all(m_folder);
        ::SHDeleteKeyW(HKEY_CURRENT_USER, kKey);
    }

    fs::path file(const wchar_t* name) const
    {
        const fs::path path = m_folder / name;
        std::ofstream(path) << "a note";
        return path;
    }

    static std::wstring quoted(const fs::path& path) { return L"\"" + path.wstring() + L"\""; }

    static std::wstring recent(const wchar_t* entry)
    {
        wchar_t path[MAX_PATH]{};
        DWORD bytes = sizeof path;
        ::RegGetValueW(HKEY_CURRENT_USER, kFiles, entry, RRF_RT_REG_SZ, nullptr, path, &bytes);
        return path;
    }

    /// Opens a menu by the key of its title, and chooses an item by its key.
    static void choose(RunningProgram& program, WORD menu, WORD item)
    {
        const auto isOpen = [&] { return program.shown(L"#32768") != nullptr; };
        const auto open = [&] {
            program.key(VK_ESCAPE, 2); // out of a menu bar that took the keys and opened nothing
            program.chord(VK_MENU, menu);
        };
        program.tryUntil("the menu", open, isOpen);
        program.key(item);
    }

    static HWND viewOf(RunningProgram& program) { return ::GetDlgItem(program.main(), AFX_IDW_PANE_FIRST); }

    /// Until the program has nothing left to do after its start.
    static void waitUntilReady(RunningProgram& program)
    {
        const HWND status = program.child(program.main(), L"msctls_statusbar32");
        program.waitFor("the message line", [&] { return textOf(status) == L"Ready"; });
    }

    static bool stamped(RunningProgram& program, CPoint point)
    {
        return colourAt(viewOf(program), point) == kStamp;
    }

    static void close(RunningProgram& program)
    {
        program.closeByKeys();
        EXPECT_EQ(program.waitForEnd(), 0u);
    }

    fs::path m_folder;
};

} // namespace

TEST_F(Notes, IsAFrameWithBarsAndAView)
{
    RunningProgram program(L"mfc_program_notes");
    EXPECT_EQ(textOf(program.main()), L"Notes");
    EXPECT_EQ(rectOf(program.main()), CRect(CPoint(60, 40), CSize(480, 320)));
    const HWND status = program.child(program.main(), L"msctls_statusbar32");
    const HWND toolBar = program.child(program.main(), L"ToolbarWindow32");
    waitUntilReady(program);
    EXPECT_TRUE(::IsWindowVisible(toolBar));
    EXPECT_GE(rectOf(viewOf(program)).top, rectOf(toolBar).bottom);
    EXPECT_LE(rectOf(viewOf(program)).bottom, rectOf(status).top);
    close(program);
}

TEST_F(Notes, TakesClicksKeysAndButtonsAndPaintsWhatTheyDo)
{
    RunningProgram program(L"mfc_program_notes");
    waitUntilReady(program);
    program.click(viewOf(program), CPoint(200, 100));
    program.waitFor("a stamp under the pointer", [&] { return stamped(program, CPoint(195, 95)); });
    EXPECT_FALSE(stamped(program, CPoint(20, 20)));
    program.key(VK_F5);
    program.waitFor("a stamp in the corner", [&] { return stamped(program, CPoint(50, 20)); });

    choose(program, 'E', 'C');
    program.waitFor("the empty note",
                    [&] { return !stamped(program, CPoint(195, 95)) && !stamped(program, CPoint(50, 20)); });

    const HWND toolBar = program.child(program.main(), L"ToolbarWindow32");
    program.key(VK_F5);
    program.waitFor("another stamp", [&] { return stamped(program, CPoint(20, 20)); });
    program.click(toolBar, CPoint(rectOf(toolBar).Height() / 2 + 8, rectOf(toolBar).Height() / 2));
    program.waitFor("the title of a new note", [&] { return textOf(program.main()) == L"Untitled - Notes"; });
    program.waitFor("the empty note", [&] { return !stamped(program, CPoint(20, 20)); });
    close(program);
}

TEST_F(Notes, HidesAndShowsItsBars)
{
    RunningProgram program(L"mfc_program_notes");
    const HWND status = program.child(program.main(), L"msctls_statusbar32");
    waitUntilReady(program);
    const LONG before = rectOf(viewOf(program)).bottom;
    choose(program, 'V', 'S');
    program.waitFor("the status bar to go", [&] { return !::IsWindowVisible(status); });
    program.waitFor("the view to take its room", [&] { return rectOf(viewOf(program)).bottom > before; });
    choose(program, 'V', 'S');
    program.waitFor("the status bar to come back", [&] { return ::IsWindowVisible(status) != FALSE; });
    program.waitFor("the view to give its room back",
                    [&] { return rectOf(viewOf(program)).bottom == before; });
    close(program);
}

TEST_F(Notes, ShowsItsAboutBoxInTheMiddleOfItsFrame)
{
    RunningProgram program(L"mfc_program_notes");
    choose(program, 'H', 'A');
    const HWND box = program.window(L"About Notes");
    EXPECT_EQ(textOf(box, IDC_VERSION), L"Notes, Version 1.0");
    EXPECT_FALSE(::IsWindowEnabled(program.main()));
    const CRect place = rectOf(box);
    const CRect frame = rectOf(program.main());
    EXPECT_EQ(place.left, (frame.left + frame.right - place.Width()) / 2);
    EXPECT_EQ(place.top, (frame.top + frame.bottom - place.Height()) / 2);
    program.key(VK_ESCAPE);
    program.waitFor("the box to go", [&] { return !::IsWindow(box); });
    program.waitFor("the frame to be usable", [&] { return ::IsWindowEnabled(program.main()) != FALSE; });
    close(program);
}

TEST_F(Notes, RemembersItsFiles)
{
    const fs::path first = file(L"first note.txt");
    const fs::path second = file(L"second note.txt");
    {
        RunningProgram program(L"mfc_program_notes", quoted(first));
        EXPECT_EQ(textOf(program.main()), L"first note.txt - Notes");
        close(program);
    }
    EXPECT_EQ(recent(L"File1"), first.wstring());
    {
        RunningProgram program(L"mfc_program_notes", quoted(second));
        choose(program, 'F', '2');
        program.waitFor("the first note",
                        [&] { return textOf(program.main()) == L"first note.txt - Notes"; });
        close(program);
    }
    EXPECT_EQ(recent(L"File1"), first.wstring());
    EXPECT_EQ(recent(L"File2"), second.wstring());
}

TEST_F(Notes, ForgetsAFileThatIsGone)
{
    const fs::path gone = file(L"gone.txt");
    {
        RunningProgram program(L"mfc_program_notes", quoted(gone));
        close(program);
    }
    fs::remove(gone);
    RunningProgram program(L"mfc_program_notes");
    choose(program, 'F', '1');
    const HWND box = program.window(L"mfc_program_notes");
    bool told = false;
    for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        told = told || textOf(child) == L"The file " + gone.wstring() + L" cannot be read.";
    EXPECT_TRUE(told);
    program.key(VK_RETURN);
    program.waitFor("the box to go", [&] { return !::IsWindow(box); });
    close(program);
    EXPECT_EQ(recent(L"File1"), L"");
}
