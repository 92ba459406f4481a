// CWinApp: its resources, the hourglass, help, and the end.
#include "Texts.h"
#include <testkit/ImportPatch.h>
#include <testkit/RecordingParent.h>
#include <testkit/TestApp.h>

#include <afxwin.h>

#include <commctrl.h>

using namespace ovo::testkit;

namespace
{

// OCR_CROSS and OIC_HAND, which the system's headers hide.
constexpr UINT kOemCross = 32515;
constexpr UINT kOemHand = 32513;

/// Makes a window the program's main window.
class MainWindow
{
public:
    explicit MainWindow(CWnd& window) { AfxGetApp()->m_pMainWnd = &window; }
    ~MainWindow() { AfxGetApp()->m_pMainWnd = nullptr; }
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
};

/// Puts the program's help file elsewhere.
class HelpFile
{
public:
    explicit HelpFile(LPCTSTR path)
        : m_old(std::exchange(AfxGetApp()->m_pszHelpFilePath, ::_wcsdup(path)))
        , m_oldMode(AfxGetApp()->GetHelpMode())
    {
    }
    ~HelpFile()
    {
        AfxGetApp()->m_eHelpType = m_oldMode;
        std::free(const_cast<LPTSTR>(std::exchange(AfxGetApp()->m_pszHelpFilePath, m_old)));
    }
    HelpFile(const HelpFile&) = delete;
    HelpFile& operator=(const HelpFile&) = delete;

private:
    LPCTSTR m_old;
    AFX_HELP_TYPE m_oldMode;
};

DWORD g_startedClasses = 0;

/// As version 5 of the common controls answers.
BOOL WINAPI startClassesOfVersion5(const INITCOMMONCONTROLSEX* wanted)
{
    if (wanted->dwICC & (ICC_STANDARD_CLASSES | ICC_LINK_CLASS))
        return FALSE;
    g_startedClasses |= wanted->dwICC;
    return TRUE;
}

HCURSOR hourglass()
{
    return ::LoadCursorW(nullptr, IDC_WAIT);
}

} // namespace

TEST(WinApp, StartsEachClassThatItsVersionOfTheCommonControlsHas)
{
    const ImportPatch patch(L"ovomfc.dll", "InitCommonControlsEx",
                            reinterpret_cast<void*>(&startClassesOfVersion5));
    g_startedClasses = 0;
    const CWinApp& app = *AfxGetApp();
    ASSERT_TRUE(AfxWinInit(app.m_hInstance, nullptr, app.m_lpCmdLine, app.m_nCmdShow));
    for (const DWORD classes :
         {ICC_WIN95_CLASSES, ICC_USEREX_CLASSES, ICC_DATE_CLASSES, ICC_COOL_CLASSES, ICC_INTERNET_CLASSES})
        EXPECT_EQ(g_startedClasses & classes, classes);
}

TEST(WinApp, LoadsTheSystemsCursorsAndIcons)
{
    const CWinApp& app = *AfxGetApp();
    EXPECT_EQ(app.LoadStandardCursor(IDC_CROSS), ::LoadCursorW(nullptr, IDC_CROSS));
    EXPECT_EQ(app.LoadOEMCursor(kOemCross), ::LoadCursorW(nullptr, IDC_CROSS));
    EXPECT_NE(app.LoadStandardIcon(IDI_HAND), nullptr);
    EXPECT_NE(app.LoadOEMIcon(kOemHand), nullptr);
}

TEST(WinApp, TheExitCommandClosesTheMainWindow)
{
    RecordingParent window;
    window.log().record(WM_CLOSE);
    const MainWindow main(window);
    EXPECT_TRUE(AfxGetApp()->OnCmdMsg(ID_APP_EXIT, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(window.log().size(), 1u);
}

TEST(WinApp, HidesItsMainWindow)
{
    RecordingParent window;
    const MainWindow main(window);
    window.ShowWindow(SW_SHOW);
    AfxGetApp()->HideApplication();
    EXPECT_FALSE(window.IsWindowVisible());
    AfxGetApp()->m_pMainWnd = nullptr;
    AfxGetApp()->HideApplication();
}

// The hourglass

TEST(WaitCursor, ShowsForAScopeAndThenWhatWasThere)
{
    const HCURSOR cross = ::LoadCursorW(nullptr, IDC_CROSS);
    ::SetCursor(cross);
    {
        const CWaitCursor wait;
        EXPECT_EQ(::GetCursor(), hourglass());
        {
            const CWaitCursor nested;
            EXPECT_EQ(::GetCursor(), hourglass());
        }
        EXPECT_EQ(::GetCursor(), hourglass()) << "the outer one still waits";
    }
    EXPECT_EQ(::GetCursor(), cross);
}

TEST(WaitCursor, IsRestoredAfterSomethingElseChangedIt)
{
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    CWaitCursor wait;
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    wait.Restore();
    EXPECT_EQ(::GetCursor(), hourglass());
}

TEST(WaitCursor, EndingOnceTooOftenDoesNoHarm)
{
    CWinApp& app = *AfxGetApp();
    const HCURSOR arrow = ::LoadCursorW(nullptr, IDC_ARROW);
    ::SetCursor(arrow);
    app.DoWaitCursor(0);
    EXPECT_EQ(::GetCursor(), arrow) << "nothing waits, so nothing is restored";
    app.BeginWaitCursor();
    app.EndWaitCursor();
    app.EndWaitCursor();
    app.BeginWaitCursor();
    EXPECT_EQ(::GetCursor(), hourglass());
    app.EndWaitCursor();
    EXPECT_NE(::GetCursor(), hourglass());
}

// Help

TEST(Help, TheHelpFilesEndingFollowsTheKindOfHelp)
{
    const HelpFile file(L"C:\\programs.v2\\editor.hlp");
    CWinApp& app = *AfxGetApp();
    app.EnableHtmlHelp();
    EXPECT_EQ(app.GetHelpMode(), afxHTMLHelp);
    EXPECT_STREQ(app.m_pszHelpFilePath, L"C:\\programs.v2\\editor.CHM");
    app.SetHelpMode(afxWinHelp);
    EXPECT_EQ(app.GetHelpMode(), afxWinHelp);
    EXPECT_STREQ(app.m_pszHelpFilePath, L"C:\\programs.v2\\editor.HLP");
}

TEST(Help, AMissingFileIsPassedOverInSilence)
{
    const HelpFile file(L"C:\\there is no such help.chm");
    TestApp& app = TestApp::instance();
    app.CWinApp::HtmlHelp(5);
    app.CWinApp::WinHelp(5);
    EXPECT_TRUE(app.boxes().empty());
    EXPECT_EQ(::GetModuleHandleW(L"hhctrl.ocx"), nullptr) << "the help viewer was not even loaded";
}
