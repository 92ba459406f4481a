// Libraries of the system that are absent. Those that are loaded at run time are done without, as it is
// documented, and no control fails; without any that the modules are linked with, the system does not load
// them.
#include "Absence.h"
#include "Lives.h"
#include "ProbeFolder.h"

#include <support/NextDialog.h>
#include <testkit/GuiThread.h>
#include <testkit/RecordingParent.h>
#include <testkit/TestApp.h>
#include <testkit/WindowCounter.h>

#include <ovoui/ovoui.h>

#include <ovocor/Url.h>
#include <ovocor/WinError.h>

#include <gallery/resource.h>

#include <gtest/gtest.h>

#include <vsstyle.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <ostream>
#include <string>

namespace fs = std::filesystem;
using namespace ovo::testkit;

namespace
{

struct AbsentLibrary
{
    const char* name;
    const wchar_t* library;
    const char* function; ///< null: there is no such library at all
    void (*documented)(RecordingParent& parent);
};

void PrintTo(const AbsentLibrary& absent, std::ostream* out)
{
    *out << absent.name;
}

// What is documented

/// Ends with the library's own theme data as it is made without UxTheme, so that the controls find it.
void withoutUxTheme(RecordingParent& parent)
{
    CThemeData themes;
    EXPECT_FALSE(themes.IsAppThemed());
    EXPECT_EQ(themes.GroupboxText(parent), ::GetSysColor(COLOR_HIGHLIGHT));
    const CClientDC dc(&parent);
    const CRect rect(0, 0, 20, 20);
    EXPECT_FALSE(themes.drawBackground(dc, &rect, parent, L"Button", PBS_NORMAL));
    EXPECT_FALSE(themes.drawCheckBox(dc, &rect, parent, CBS_CHECKEDNORMAL));
    CThemeData::getThemeData() = themes;
}

void expectWinInetIsMissed(const std::function<void()>& call)
{
    try {
        call();
        FAIL() << "no error";
    } catch (const WinError& error) {
        EXPECT_NE(std::wstring(error.wwhat()).find(L"wininet.dll"), std::wstring::npos);
    }
}

void withoutWinInet(RecordingParent& parent)
{
    const std::wstring address = L"http://localhost/updates.csv";
    const int version[] = {1, 0, 0, 0};
    expectWinInetIsMissed([&] { canonicalizeUrl(address); });
    expectWinInetIsMissed([&] { downloadUrlToCache(address); });
    expectWinInetIsMissed([&] { browseUrl(address); });
    expectWinInetIsMissed([&] { findUpdate(address, L"Board", L"", version); });
    expectWinInetIsMissed([&] { checkForUpdates(address, L"Board", L"", version); });
    UpdateQuestion question;
    question.address = address;
    const auto job = UpdateJob::start(question, parent, WM_APP, [](const auto& work) { work(); });
    EXPECT_EQ(job->state(), UpdateJob::State::Failed);
    EXPECT_NE(job->error().find(L"wininet.dll"), std::wstring::npos);
}

/// The resolution of a monitor is that of the screen then.
void withoutResolutionOfMonitors(RecordingParent& parent)
{
    const CClientDC screen(&parent);
    const MachineInfo machine = machineInfo();
    EXPECT_FALSE(machine.monitors.empty());
    for (const MachineMonitor& monitor : machine.monitors)
        EXPECT_EQ(monitor.dotsPerInch, static_cast<unsigned>(screen.GetDeviceCaps(LOGPIXELSX)));
}

void withoutResolutionOfWindows(RecordingParent& parent)
{
    CVantorToolBar bar;
    bar.CreateEx(&parent, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
    bar.UseStrips({{IDB_FRAME_BAR_16, 16}}, 16);
    IMAGEINFO image{};
    CImageList* const images = bar.GetToolBarCtrl().GetImageList();
    ASSERT_NE(images, nullptr);
    ASSERT_TRUE(images->GetImageInfo(0, &image));
    const CClientDC screen(&parent);
    EXPECT_EQ(CRect(image.rcImage).Width(), ::MulDiv(16, screen.GetDeviceCaps(LOGPIXELSY), 96));
}

/// The dialog opens, in the folder that the system chooses.
void withoutItemsOfTheShell(RecordingParent& parent)
{
    const NextDialogAnswered answered(IDCANCEL);
    COVOFileDialog dialog(TRUE, nullptr, nullptr, OFN_NOCHANGEDIR, nullptr, &parent, TRUE);
    const std::wstring folder = fs::temp_directory_path().wstring();
    dialog.SetDefaultFolder(folder);
    dialog.AddPlace(folder, true);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

void withoutHelpViewer(RecordingParent&)
{
    const std::wstring file = thisProgram().wstring(); // that there is one is enough
    const LPCTSTR before = AfxGetApp()->m_pszHelpFilePath;
    AfxGetApp()->m_pszHelpFilePath = file.c_str();
    TestApp::instance().CWinApp::HtmlHelp(5);
    AfxGetApp()->m_pszHelpFilePath = before;
    EXPECT_TRUE(TestApp::instance().boxes().empty());
}

void withoutWine(RecordingParent&)
{
    EXPECT_EQ(machineInfo().system.find(L"Windows "), 0u);
}

/// The numbers of the version are 0.
void withoutVersion(RecordingParent&)
{
    EXPECT_NE(machineInfo().system.find(L"Windows 0.0, build 0"), std::wstring::npos);
}

const AbsentLibrary kLibraries[]{
    {"UxTheme", L"uxtheme.dll", nullptr, withoutUxTheme},
    {"WinInet", L"wininet.dll", nullptr, withoutWinInet},
    {"WinInetFunction", L"wininet.dll", "CommitUrlCacheEntryW", withoutWinInet},
    {"ShCore", L"shcore.dll", nullptr, withoutResolutionOfMonitors},
    {"ShCoreFunction", L"shcore.dll", "GetDpiForMonitor", withoutResolutionOfMonitors},
    {"ResolutionOfWindows", L"user32.dll", "GetDpiForWindow", withoutResolutionOfWindows},
    {"Shell", L"shell32.dll", nullptr, withoutItemsOfTheShell},
    {"ShellFunction", L"shell32.dll", "SHCreateItemFromParsingName", withoutItemsOfTheShell},
    {"HelpViewer", L"hhctrl.ocx", nullptr, withoutHelpViewer},
    {"HelpFunction", L"hhctrl.ocx", "HtmlHelpW", withoutHelpViewer},
    {"Wine", L"ntdll.dll", "wine_get_version", withoutWine},
    {"Version", L"ntdll.dll", "RtlGetVersion", withoutVersion},
};

/// Set in a process that has been started for one test.
constexpr wchar_t kAlone[] = L"OVO_ABSENT_LIBRARY";

class AbsentLibraries : public ::testing::TestWithParam<AbsentLibrary>
{
protected:
    static bool isAlone() { return ::GetEnvironmentVariableW(kAlone, nullptr, 0) > 0; }

    /// The running test in another process, in which nothing has been loaded yet.
    static DWORD runAlone()
    {
        const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
        const std::string name = std::string(test.test_suite_name()) + "." + test.name();
        ::SetEnvironmentVariableW(kAlone, L"1");
        const DWORD code =
            exitCodeOf(L"\"" + thisProgram().wstring() + L"\" --gtest_brief=1 --gtest_filter=" +
                           std::wstring(name.begin(), name.end()),
                       thisProgram().parent_path());
        ::SetEnvironmentVariableW(kAlone, nullptr);
        return code;
    }

    static void liveWithout(const AbsentLibrary& absent)
    {
        const Absence absence(absent.library, absent.function);
        RecordingParent parent;
        parent.ShowWindow(SW_SHOWNOACTIVATE);
        absent.documented(parent);
        EXPECT_GT(absence.asked(), 0);
        liveAll(parent); // some platforms make windows of their own, which stay
        const WindowCounter windows;
        liveAll(parent);
        EXPECT_EQ(windows.grown(), 0);
    }

    static void liveAll(CWnd& parent)
    {
        for (const Life& life : lives())
            EXPECT_NO_THROW(life.live(parent)) << life.name;
        GuiThread::settle();
    }
};

std::string contentOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

TEST_P(AbsentLibraries, AreDoneWithout)
{
    if (isAlone())
        liveWithout(GetParam());
    else
        EXPECT_EQ(runAlone(), 0u);
}

INSTANTIATE_TEST_SUITE_P(OfTheSystem, AbsentLibraries, ::testing::ValuesIn(kLibraries),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(AbsentAtTheStart, UxThemeLeavesTheLibraryWithoutThemes)
{
    const ProbeFolder folder;
    EXPECT_EQ(folder.run(L"unthemed"), 0u);
}

TEST(AbsentAtTheStart, AnyLibraryThatIsLinkedIsMissed)
{
    const ProbeFolder folder;
    EXPECT_EQ(folder.run(L"unlinked"), 0u);
}

TEST(AbsentAtTheStart, AProgramDoesNotStart)
{
    constexpr DWORD kLibraryNotFound = 0xC0000135; // STATUS_DLL_NOT_FOUND
    const ProbeFolder folder;
    const std::wstring host = thisProgram().filename().wstring();
    folder.add(host);
    folder.add(L"ovosvg11.dll"); // which the gallery links
    EXPECT_EQ(folder.run(L"--gtest_list_tests --gtest_filter=AbsentAtTheStart.*", host), 0u);
    std::string library = contentOf(folder.path() / L"ovoui.dll");
    const std::size_t name = library.find("gdiplus.dll");
    ASSERT_NE(name, std::string::npos);
    library[name] = '_';
    std::ofstream(folder.path() / L"ovoui.dll", std::ios::binary) << library;
    EXPECT_EQ(folder.run(L"--gtest_list_tests", host), kLibraryNotFound);
}
