// The system information dialog over modules made for it.
#include "ShownModules.h"
#include <testkit/Desktop.h>
#include <testkit/ImportPatch.h>
#include <testkit/Robot.h>

#include <ovoui/sysinfo/LoadedModules.h>

#include <ovocor/Text.h>

#include <gtest/gtest.h>

#include <tlhelp32.h>

#include <algorithm>
#include <climits>
#include <functional>
#include <memory>
#include <string_view>

using namespace ovo::testkit;

namespace
{

/// Calls in order, and failures to answer with, for the functions below that stand in for the system's.
struct System
{
    int snapshots = 0;
    int closed = 0;
    bool failSnapshot = false;
    bool failFirst = false;
    bool failVersion = false;
    std::function<void()> afterSnapshot;
};
System g_system;

HANDLE WINAPI snapshot(DWORD flags, DWORD process)
{
    EXPECT_EQ(flags, DWORD{TH32CS_SNAPMODULE | TH32CS_SNAPMODULE32});
    EXPECT_EQ(process, ::GetCurrentProcessId());
    if (g_system.failSnapshot) {
        ::SetLastError(ERROR_BAD_LENGTH);
        return INVALID_HANDLE_VALUE;
    }
    ++g_system.snapshots;
    const HANDLE handle = ::CreateToolhelp32Snapshot(flags, process);
    if (g_system.afterSnapshot)
        g_system.afterSnapshot();
    return handle;
}

BOOL WINAPI close(HANDLE handle)
{
    ++g_system.closed;
    return ::CloseHandle(handle);
}

BOOL WINAPI first(HANDLE handle, MODULEENTRY32W* entry)
{
    return !g_system.failFirst && ::Module32FirstW(handle, entry);
}

BOOL WINAPI versionInfo(LPCWSTR path, DWORD ignored, DWORD size, LPVOID data)
{
    DWORD unused = 0;
    EXPECT_EQ(size, 2 * ::GetFileVersionInfoSizeW(path, &unused)) << "the system may need more than it says";
    return !g_system.failVersion && ::GetFileVersionInfoW(path, ignored, size, data);
}

/// The functions above in place of the library's imports.
struct Patches
{
    Patches() { g_system = {}; }
    ImportPatch snapshots{L"ovoui.dll", "CreateToolhelp32Snapshot", reinterpret_cast<void*>(&snapshot)};
    ImportPatch closes{L"ovoui.dll", "CloseHandle", reinterpret_cast<void*>(&close)};
    ImportPatch firsts{L"ovoui.dll", "Module32FirstW", reinterpret_cast<void*>(&first)};
    ImportPatch versions{L"ovoui.dll", "GetFileVersionInfoW", reinterpret_cast<void*>(&versionInfo)};
};

class SystemInfo : public ::testing::Test
{
protected:
    Patches patches;
};

} // namespace

// The list

TEST_F(SystemInfo, ListsEveryModuleUnderTheNamesOfTheColumns)
{
    Shown shown;
    const std::vector<std::wstring> lines = shown.lines();
    EXPECT_EQ(
        lines.front(),
        L"Name\tbase address\tsize\tlinker stamp\tfile ver\tproduct ver\ttype\tflags\tos\tpath\tfileDesc");
    EXPECT_EQ(lines.back(), L"") << "every line is ended";
    EXPECT_FALSE(shown.columns(L"test_sysinfo.exe").empty());
    EXPECT_FALSE(shown.columns(L"ovoui.dll").empty());
    for (std::size_t i = 1; i + 1 < lines.size(); ++i)
        EXPECT_GE(split(lines[i], L"\t").size(), 11u) << testing::PrintToString(lines[i]);
}

TEST_F(SystemInfo, AModuleWithoutAVersionRecordShowsWhatIsKnown)
{
    const Library module(L"sysinfo_plain.dll");
    Shown shown;
    const auto columns = shown.columns(L"sysinfo_plain.dll");
    ASSERT_EQ(columns.size(), 11u);
    EXPECT_EQ(columns[kAddress], module.address());
    EXPECT_TRUE(columns[kSize].starts_with(L"0x"));
    EXPECT_NE(columns[kLinkTime], L"");
    for (const int empty : {kFileVersion, kProductVersion, kType, kFlags, kOs, kDescription})
        EXPECT_EQ(columns[static_cast<std::size_t>(empty)], L"");
    EXPECT_EQ(lowercase(columns[kPath]), lowercase(module.path()));
}

TEST_F(SystemInfo, TwoLanguagesMakeOneColumnMore)
{
    const Library module(L"sysinfo_two_languages.dll");
    Shown shown;
    const auto columns = shown.columns(L"sysinfo_two_languages.dll");
    ASSERT_EQ(columns.size(), 12u);
    EXPECT_EQ(columns[kFileVersion], L"1.2.3.4");
    EXPECT_EQ(columns[kProductVersion], L"5.6.7.65535");
    EXPECT_EQ(columns[kType], L"DLL");
    EXPECT_EQ(columns[kFlags], L"debug" + listSeparator() + L"patched" + listSeparator() + L"special build")
        << "what the mask leaves out does not count";
    EXPECT_EQ(columns[kOs], L"NT/2000" + listSeparator() + L"win32");
    EXPECT_EQ(columns[kDescription], L"Two languages");
    EXPECT_EQ(columns[kDescription + 1], L"Zwei Sprachen");
}

TEST_F(SystemInfo, RecordsOfEveryKind)
{
    const struct
    {
        const wchar_t* name;
        std::wstring type;
        std::wstring flags;
        std::wstring os;
        std::wstring description;
    } rows[] = {
        {L"sysinfo_no_translation.dll", L"application", L"", L"win32", L""},
        {L"sysinfo_empty_description.dll", L"virtual device", L"all",
         L"OS:0x5" + listSeparator() + L"API:0x5", L"Nur deutsch"},
        {L"sysinfo_printer_driver.dll", L"printer driver", L"", L"MS-DOS" + listSeparator() + L"win16", L""},
        {L"sysinfo_truetype_font.dll", L"truetype font", L"", L"OS/2-16" + listSeparator() + L"PM16", L""},
        {L"sysinfo_odd_type.dll", L"0x6/0x0", L"c0", L"", L""},
        {L"sysinfo_unknown_type.dll", L"unknown", L"c0", L"", L""},
        {L"sysinfo_static_library.dll", L"static library", L"c0", L"", L""},
        {L"sysinfo_broken.dll", L"", L"", L"", L""}};
    for (const auto& row : rows) {
        const Library module(row.name);
        Shown shown;
        const auto columns = shown.columns(row.name);
        ASSERT_EQ(columns.size(), 11u) << testing::PrintToString(row.name);
        EXPECT_EQ(columns[kType], row.type);
        if (row.flags == L"all")
            EXPECT_EQ(split(columns[kFlags], listSeparator()).size(), 6u);
        else
            EXPECT_EQ(columns[kFlags], row.flags);
        EXPECT_EQ(columns[kOs], row.os);
        EXPECT_EQ(columns[kDescription], row.description);
    }
}

namespace
{

/// What is damaged in the records that the system gives.
struct Damage
{
    UINT translationBytes = UINT_MAX; ///< of the block, if it has more
    UINT fixedBytes = UINT_MAX;       ///< likewise
    bool fixedIsForeign = false;      ///< something else stands in its place
};
Damage g_damage;

BOOL WINAPI queryValue(LPCVOID record, LPCWSTR path, LPVOID* value, PUINT length)
{
    if (!::VerQueryValueW(record, path, value, length))
        return FALSE;
    if (std::wstring_view(path) == L"\\VarFileInfo\\Translation")
        *length = std::min(*length, g_damage.translationBytes);
    if (std::wstring_view(path) == L"\\") {
        *length = std::min(*length, g_damage.fixedBytes);
        static VS_FIXEDFILEINFO s_foreign;
        if (g_damage.fixedIsForeign)
            *value = &s_foreign;
    }
    return TRUE;
}

/// How the module with two languages is listed when its record is damaged.
LoadedModule listed(const Damage& damage)
{
    g_damage = damage;
    const std::vector<LoadedModule> modules = loadedModules();
    const auto found = std::ranges::find(modules, std::wstring(L"sysinfo_two_languages.dll"),
                                         [](const LoadedModule& module) { return lowercase(module.name); });
    EXPECT_NE(found, modules.end());
    return found == modules.end() ? LoadedModule() : *found;
}

} // namespace

TEST_F(SystemInfo, OnlyWholePairsOfATranslationCount)
{
    const ImportPatch patch(L"ovoui.dll", "VerQueryValueW", reinterpret_cast<void*>(&queryValue));
    const Library module(L"sysinfo_two_languages.dll");
    for (UINT bytes = 0; bytes <= 8; ++bytes)
        EXPECT_EQ(listed({.translationBytes = bytes}).fileDescription, bytes < 4 ? L""
                                                                       : bytes < 8
                                                                           ? L"Two languages"
                                                                           : L"Two languages\tZwei Sprachen")
            << bytes;
}

TEST_F(SystemInfo, WithoutItsFixedBlockARecordHasItsDescriptionsAlone)
{
    const ImportPatch patch(L"ovoui.dll", "VerQueryValueW", reinterpret_cast<void*>(&queryValue));
    const Library library(L"sysinfo_two_languages.dll");
    EXPECT_EQ(listed({}).fileVersion, L"1.2.3.4");
    for (const Damage& damage : {Damage{.fixedBytes = 0}, Damage{.fixedBytes = sizeof(VS_FIXEDFILEINFO) - 1},
                                 Damage{.fixedIsForeign = true}}) {
        const LoadedModule module = listed(damage);
        EXPECT_EQ(module.fileVersion + module.productVersion + module.type + module.flags + module.system,
                  L"");
        EXPECT_EQ(module.fileDescription, L"Two languages\tZwei Sprachen");
        EXPECT_TRUE(module.hasVersionRecord);
    }
}

namespace
{

std::wstring g_separator;

int WINAPI localeInfo(LCID locale, LCTYPE type, LPWSTR text, int size)
{
    if (type != LOCALE_SLIST)
        return ::GetLocaleInfoW(locale, type, text, size);
    EXPECT_GT(size, 10) << "there is room for ten characters";
    ::lstrcpynW(text, g_separator.c_str(), size);
    return static_cast<int>(g_separator.size()) + 1;
}

} // namespace

TEST_F(SystemInfo, TheUsersListSeparatorStandsBetweenTheWords)
{
    const ImportPatch patch(L"ovoui.dll", "GetLocaleInfoW", reinterpret_cast<void*>(&localeInfo));
    const Library module(L"sysinfo_two_languages.dll");
    for (std::size_t length = 1; length <= 10; ++length) {
        g_separator = std::wstring(L" and then ").substr(0, length);
        Shown shown;
        EXPECT_EQ(shown.columns(L"sysinfo_two_languages.dll")[kOs], L"NT/2000" + g_separator + L"win32");
    }
}

TEST_F(SystemInfo, LongPathsAndForeignLettersAreShownWhole)
{
    wchar_t folder[MAX_PATH]{};
    ::GetTempPathW(MAX_PATH, folder);
    std::wstring path = std::wstring(folder) + L"\u6A21\u584A";
    path += std::wstring(246 - path.size(), L'x') + L".dll";
    ASSERT_EQ(path.size(), 250u);
    const Library original(L"sysinfo_plain.dll");
    ASSERT_TRUE(::CopyFileW(original.path().c_str(), path.c_str(), FALSE));
    {
        const Library copy(path);
        Shown shown;
        EXPECT_NE(lowercase(shown.text()).find(L"\t" + lowercase(path) + L"\t"), std::wstring::npos);
    }
    ::DeleteFileW(path.c_str());
}

// Failures

TEST_F(SystemInfo, WithoutASnapshotThereIsASentence)
{
    g_system.failSnapshot = true;
    Shown shown;
    EXPECT_EQ(shown.text(), L"Cannot get loaded module list");
    EXPECT_EQ(g_system.closed, 0);
}

TEST_F(SystemInfo, WithoutAFirstModuleThereIsTheSameSentence)
{
    g_system.failFirst = true;
    Shown shown;
    EXPECT_EQ(shown.text(), L"Cannot get loaded module list");
    EXPECT_EQ(g_system.closed, g_system.snapshots);
}

TEST_F(SystemInfo, AModuleThatIsUnloadedMeanwhileIsStillListed)
{
    Library module(L"sysinfo_two_languages.dll");
    g_system.afterSnapshot = [&] { module.release(); };
    const std::vector<LoadedModule> modules = loadedModules();
    const auto gone = std::ranges::find(modules, std::wstring(L"sysinfo_two_languages.dll"),
                                        [](const LoadedModule& listed) { return lowercase(listed.name); });
    ASSERT_NE(gone, modules.end());
    EXPECT_EQ(gone->fileVersion, L"1.2.3.4") << "the file is still there";
    EXPECT_EQ(g_system.closed, g_system.snapshots);

    Shown shown;
    EXPECT_EQ(shown.lines().front().substr(0, 4), L"Name");
    EXPECT_TRUE(shown.columns(L"sysinfo_two_languages.dll").empty());
}

TEST_F(SystemInfo, ARecordThatCannotBeReadIsLeftOut)
{
    g_system.failVersion = true;
    const Library module(L"sysinfo_two_languages.dll");
    Shown shown;
    const auto columns = shown.columns(L"sysinfo_two_languages.dll");
    ASSERT_EQ(columns.size(), 11u);
    EXPECT_EQ(columns[kFileVersion], L"");
    EXPECT_EQ(columns[kDescription], L"");
    EXPECT_EQ(g_system.closed, g_system.snapshots);
}

// The dialog

TEST_F(SystemInfo, TheListIsMadeWhenTheDialogOpensAndWheneverItIsShown)
{
    Shown shown;
    EXPECT_EQ(g_system.snapshots, 2) << "once at the start, once when shown";
    EXPECT_EQ(shown.columns(L"sysinfo_odd_type.dll").size(), 0u);
    shown.dialog().ShowWindow(SW_HIDE);
    EXPECT_EQ(g_system.snapshots, 2);
    const Library module(L"sysinfo_odd_type.dll");
    shown.dialog().ShowWindow(SW_SHOW);
    EXPECT_EQ(g_system.snapshots, 3);
    EXPECT_EQ(shown.columns(L"sysinfo_odd_type.dll").size(), 11u);
    EXPECT_EQ(g_system.closed, g_system.snapshots) << "no handle is left";
}

TEST_F(SystemInfo, TheTextIsReadOnlyAndMonospaced)
{
    Shown shown;
    CWnd& text = *shown.dialog().GetDlgItem(kText);
    EXPECT_TRUE(text.GetStyle() & ES_READONLY);
    EXPECT_TRUE(text.GetStyle() & ES_MULTILINE);
    CClientDC dc(&text);
    CFont* const old = dc.SelectObject(text.GetFont());
    EXPECT_EQ(dc.GetTextExtent(L"iiii").cx, dc.GetTextExtent(L"WWWW").cx);
    dc.SelectObject(old);
}

TEST_F(SystemInfo, TheColumnsLineUpAtTheTabStop)
{
    Shown shown;
    auto* const text = dynamic_cast<CEdit*>(CWnd::FromHandlePermanent(*shown.dialog().GetDlgItem(kText)));
    ASSERT_NE(text, nullptr) << "the dialog's own control";
    // The same text in a control with the stop that is asked for.
    CEdit other;
    other.Create(WS_CHILD | ES_MULTILINE | ES_AUTOHSCROLL, CRect(0, 0, 100, 100), &shown.dialog(), 9000);
    other.SetFont(text->GetFont());
    other.SetTabStops(92);
    other.SetWindowText(shown.text().c_str());
    const auto secondColumn = [&](CEdit& edit, int line) {
        const int begin = edit.LineIndex(line);
        const auto tab = shown.text().find(L'\t', static_cast<std::size_t>(begin));
        return edit.PosFromChar(static_cast<UINT>(tab + 1)).x - edit.PosFromChar(static_cast<UINT>(begin)).x;
    };
    const int column = secondColumn(*text, 0);
    EXPECT_EQ(column, secondColumn(other, 0));
    const std::vector<std::wstring> lines = shown.lines();
    for (std::size_t line = 1; line + 1 < lines.size(); ++line)
        if (lines[line].find(L'\t') < 20) {
            EXPECT_EQ(secondColumn(*text, static_cast<int>(line)), column)
                << testing::PrintToString(lines[line]);
        }
}

TEST_F(SystemInfo, TheKeyboardReachesEverything)
{
    Shown shown;
    CDialog& dialog = shown.dialog();
    present(dialog);
    const HWND copy = ::GetDlgItem(dialog, kCopy);
    ::SetFocus(copy);
    Robot().holding(VK_MENU).key('L');
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog, kText));
    Robot().key(VK_TAB);
    EXPECT_EQ(::GetFocus(), copy);
    Robot().key(VK_TAB);
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog, IDCANCEL));
    Robot().key(VK_RETURN).waitFor("the end of the dialog", [&] { return !::IsWindowVisible(dialog); });
}

TEST_F(SystemInfo, TheTextGrowsWithTheDialogAndTheButtonsFollow)
{
    Shown shown;
    CDialog& dialog = shown.dialog();
    const auto place = [&](int id) {
        CRect rect;
        dialog.GetDlgItem(id)->GetWindowRect(&rect);
        dialog.ScreenToClient(&rect);
        return rect;
    };
    const CRect text = place(kText);
    const CRect copy = place(kCopy);
    CRect window;
    dialog.GetWindowRect(&window);
    dialog.SetWindowPos(nullptr, 0, 0, window.Width() + 100, window.Height() + 50, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(place(kText), CRect(text.left, text.top, text.right + 100, text.bottom + 50));
    EXPECT_EQ(place(kCopy), CRect(copy + CPoint(100, 50)));
    dialog.SetWindowPos(nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
    CRect least;
    dialog.GetWindowRect(&least);
    EXPECT_EQ(least.Size(), window.Size()) << "never smaller than it opens";
    EXPECT_EQ(place(kText), text);
}

TEST_F(SystemInfo, RunsModallyAndClosesByKeyboard)
{
    CSystemInfoDlg dialog;
    auto closing =
        Robot().waitFor("the dialog", [] { return shownDialog() != nullptr; }).key(VK_ESCAPE).start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CSystemInfoDlg)));
}

TEST_F(SystemInfo, ShownAgainItIsAsTheFirstTime)
{
    CSystemInfoDlg dialog;
    for (int time = 1; time <= 2; ++time) {
        CRect before;
        CRect after;
        bool fixed = false;
        const auto copyRect = [](CRect& rect) { ::GetWindowRect(::GetDlgItem(shownDialog(), kCopy), &rect); };
        auto story = Robot()
                         .waitFor("the dialog", [] { return shownDialog() != nullptr; })
                         .then([&] {
                             copyRect(before);
                             CRect window;
                             ::GetWindowRect(shownDialog(), &window);
                             ::SetWindowPos(shownDialog(), nullptr, 0, 0, window.Width() + 40,
                                            window.Height() + 30, SWP_NOMOVE | SWP_NOZORDER);
                             copyRect(after);
                             LOGFONT face{};
                             dialog.GetDlgItem(kText)->GetFont()->GetLogFont(&face);
                             fixed = std::wstring(face.lfFaceName) == L"Courier New";
                         })
                         .key(VK_ESCAPE)
                         .start();
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
        EXPECT_EQ(after, CRect(before + CPoint(40, 30))) << "time " << time;
        EXPECT_TRUE(fixed) << "time " << time;
    }
}

TEST_F(SystemInfo, TheMachineComesFirstOnRequest)
{
    class Dialog : public CSystemInfoDlg
    {
    public:
        void create() { Create(1506); }
    } dialog;
    dialog.ShowMachine(true);
    dialog.create();
    dialog.ShowWindow(SW_SHOW);
    CString text;
    dialog.GetDlgItemText(kText, text);
    EXPECT_EQ(text.Find(L"System: "), 0);
    EXPECT_NE(text.Find(L"\r\n\r\nName\tbase address"), -1);
}

TEST_F(SystemInfo, IsMadeByItsClass)
{
    const std::unique_ptr<CObject> dialog(RUNTIME_CLASS(CSystemInfoDlg)->CreateObject());
    EXPECT_TRUE(dialog && dialog->IsKindOf(RUNTIME_CLASS(CSystemInfoDlg)));
}
