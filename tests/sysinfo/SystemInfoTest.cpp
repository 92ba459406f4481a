// The system information dialog over modules made for it.
#include "support/Desktop.h"
#include "support/ImportPatch.h"
#include "support/RecordingParent.h"
#include "support/Robot.h"
#include "support/TestApp.h"

#include <ovoui/sysinfo/SystemInfoDlg.h>

#include <ovocor/Text.h>

#include <gtest/gtest.h>

#include <dbghelp.h>
#include <tlhelp32.h>

#include <algorithm>
#include <functional>
#include <memory>

using namespace ovotest;

namespace
{

constexpr UINT kCopy = 1001;
constexpr int kText = 1002;

/// Calls in order, and failures to answer with, for the functions below that stand in for the system's.
struct System
{
    int snapshots = 0;
    int closed = 0;
    bool failSnapshot = false;
    bool failFirst = false;
    bool failVersion = false;
    std::function<void()> afterSnapshot;
    DWORD linkTime = 0;
    bool ownLinkTime = false;
};
System g_system;

HANDLE WINAPI snapshot(DWORD flags, DWORD process)
{
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
    return !g_system.failVersion && ::GetFileVersionInfoW(path, ignored, size, data);
}

DWORD WINAPI linkTime(HMODULE module)
{
    return g_system.ownLinkTime ? g_system.linkTime : ::GetTimestampForLoadedLibrary(module);
}

/// The functions above in place of the library's imports.
struct Patches
{
    Patches() { g_system = {}; }
    ImportPatch snapshots{L"ovoui.dll", "CreateToolhelp32Snapshot", reinterpret_cast<void*>(&snapshot)};
    ImportPatch closes{L"ovoui.dll", "CloseHandle", reinterpret_cast<void*>(&close)};
    ImportPatch firsts{L"ovoui.dll", "Module32FirstW", reinterpret_cast<void*>(&first)};
    ImportPatch versions{L"ovoui.dll", "GetFileVersionInfoW", reinterpret_cast<void*>(&versionInfo)};
    ImportPatch times{L"ovoui.dll", "GetTimestampForLoadedLibrary", reinterpret_cast<void*>(&linkTime)};
};

class Library
{
public:
    explicit Library(const std::wstring& path)
        : m_module(::LoadLibraryW(path.c_str()))
    {
        EXPECT_NE(m_module, nullptr) << testing::PrintToString(path);
    }
    ~Library() { release(); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    void release()
    {
        if (m_module)
            ::FreeLibrary(std::exchange(m_module, nullptr));
    }
    HMODULE get() const { return m_module; }

    std::wstring path() const
    {
        wchar_t text[1000]{};
        ::GetModuleFileNameW(m_module, text, 1000);
        return text;
    }
    std::wstring address() const
    {
        return stringPrintf(L"%016I64X", reinterpret_cast<std::uint64_t>(m_module));
    }

private:
    HMODULE m_module;
};

std::vector<std::wstring> split(const std::wstring& text, const std::wstring& at)
{
    std::vector<std::wstring> parts;
    std::size_t begin = 0;
    for (std::size_t end; (end = text.find(at, begin)) != std::wstring::npos; begin = end + at.size())
        parts.push_back(text.substr(begin, end - begin));
    parts.push_back(text.substr(begin));
    return parts;
}

/// The dialog as a host shows it, modeless so that a test can look at it.
class Shown
{
public:
    Shown()
    {
        m_dialog.create();
        m_dialog.ShowWindow(SW_SHOW);
    }

    std::wstring text()
    {
        CString text;
        m_dialog.GetDlgItem(kText)->GetWindowText(text);
        return std::wstring(text);
    }
    std::vector<std::wstring> lines() { return split(text(), L"\r\n"); }

    /// The columns of the module with this name; empty without one.
    std::vector<std::wstring> columns(const std::wstring& name)
    {
        for (const std::wstring& line : lines())
            if (lowercase(line).starts_with(lowercase(name) + L"\t"))
                return split(line, L"\t");
        return {};
    }
    CDialog& dialog() { return m_dialog; }

private:
    class Dialog : public CSystemInfoDlg
    {
    public:
        void create() { Create(1506); }
    };
    Dialog m_dialog;
};

std::wstring listSeparator()
{
    wchar_t text[20]{};
    ::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SLIST, text, 20);
    return text;
}

enum
{
    kName,
    kAddress,
    kSize,
    kLinkTime,
    kFileVersion,
    kProductVersion,
    kType,
    kFlags,
    kOs,
    kPath,
    kDescription
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

TEST_F(SystemInfo, LongPathsAndForeignLettersAreShownWhole)
{
    wchar_t folder[MAX_PATH]{};
    ::GetTempPathW(MAX_PATH, folder);
    std::wstring path = std::wstring(folder) + L"\u6A21\u584A";
    path += std::wstring(245 - path.size(), L'x') + L".dll";
    const Library original(L"sysinfo_plain.dll");
    ASSERT_TRUE(::CopyFileW(original.path().c_str(), path.c_str(), FALSE));
    {
        const Library copy(path);
        Shown shown;
        EXPECT_NE(lowercase(shown.text()).find(L"\t" + lowercase(path) + L"\t"), std::wstring::npos);
    }
    ::DeleteFileW(path.c_str());
}

TEST_F(SystemInfo, LinkTimesAreLocalTimes)
{
    for (const DWORD time :
         {DWORD{0}, DWORD{1}, DWORD{1234567890}, DWORD{0x7FFFFFFF}, DWORD{0x80000000}, DWORD{0xFFFFFFFF}}) {
        g_system.ownLinkTime = true;
        g_system.linkTime = time;
        const Library module(L"sysinfo_plain.dll");
        Shown shown;
        // By the system's own calendar: from 1601 in steps of 100 nanoseconds.
        const ULONGLONG ticks = (ULONGLONG{time} + 11644473600ull) * 10000000ull;
        const FILETIME utc{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
        SYSTEMTIME universal{};
        SYSTEMTIME local{};
        ::FileTimeToSystemTime(&utc, &universal);
        ::SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local);
        static const wchar_t* const kMonths[] = {L"January",   L"February", L"March",    L"April",
                                                 L"May",       L"June",     L"July",     L"August",
                                                 L"September", L"October",  L"November", L"December"};
        EXPECT_EQ(shown.columns(L"sysinfo_plain.dll")[kLinkTime],
                  stringPrintf(L"%d %s %d %02d:%02d:%02d", local.wDay, kMonths[local.wMonth - 1], local.wYear,
                               local.wHour, local.wMinute, local.wSecond));
    }
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
    Library module(L"sysinfo_plain.dll");
    g_system.afterSnapshot = [&] { module.release(); };
    Shown shown;
    EXPECT_FALSE(shown.text().empty());
    EXPECT_EQ(shown.lines().front().substr(0, 4), L"Name");
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

TEST_F(SystemInfo, CopyPutsTheTextOnTheClipboard)
{
    Shown shown;
    present(shown.dialog());
    Robot().click(Spot{shown.dialog().GetDlgItem(kCopy)->m_hWnd}).waitFor("the text on the clipboard", [] {
        return ::IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE;
    });
    ASSERT_TRUE(::OpenClipboard(shown.dialog()));
    const HANDLE data = ::GetClipboardData(CF_UNICODETEXT);
    const std::wstring copied = static_cast<const wchar_t*>(::GlobalLock(data));
    ::GlobalUnlock(data);
    ::CloseClipboard();
    EXPECT_EQ(copied, shown.text());
    ::OleFlushClipboard();
}

namespace
{

HRESULT WINAPI busyClipboard(IDataObject*)
{
    return CLIPBRD_E_CANT_OPEN;
}

} // namespace

TEST_F(SystemInfo, AClipboardInUseIsSaidClearly)
{
    const ImportPatch patch(L"ovomfc.dll", "OleSetClipboard", reinterpret_cast<void*>(&busyClipboard));
    Shown shown;
    const std::wstring before = shown.text();
    shown.dialog().SendMessage(WM_COMMAND, kCopy, 0);
    ASSERT_EQ(TestApp::instance().boxes().size(), 1u);
    EXPECT_NE(TestApp::instance().boxes()[0].text.find(L"clipboard"), std::wstring::npos);
    EXPECT_TRUE(shown.dialog().IsWindowVisible());
    EXPECT_EQ(shown.text(), before);
}

TEST_F(SystemInfo, RunsModallyAndClosesByKeyboard)
{
    CSystemInfoDlg dialog;
    auto closing =
        Robot().waitFor("the dialog", [] { return shownDialog() != nullptr; }).key(VK_ESCAPE).start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CSystemInfoDlg)));
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
