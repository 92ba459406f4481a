// The tool window: making, closing, scrolling, help, docking.
#include "resource.h"

#include <support/StartProcess.h>
#include <testkit/Desktop.h>
#include <testkit/GuiThread.h>
#include <testkit/Robot.h>
#include <testkit/TemporaryProfile.h>
#include <testkit/TestApp.h>

#include <ovoui/toolbar/VantorToolWnd.h>

#include <afxpriv.h>
#include <afxcmn.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

const int kBordersAtLoad[] = {CVantorToolWnd::sm_xBorder, CVantorToolWnd::sm_yBorder};

constexpr UINT kBarId = AFX_IDW_CONTROLBAR_FIRST + 0x30;
constexpr UINT kStyle = WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_GRIPPER;

/// Takes down the scroll messages that come to it.
class ScrolledFrame : public CFrameWnd
{
public:
    struct Scroll
    {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        bool operator==(const Scroll&) const = default;
    };
    std::vector<Scroll> scrolls;
    int contextMenus = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        contextMenus += message == WM_CONTEXTMENU;
        if (message != WM_HSCROLL && message != WM_VSCROLL)
            return CFrameWnd::WindowProc(message, wParam, lParam);
        scrolls.push_back({message, wParam, lParam});
        return 4711;
    }
};

class Scene
{
public:
    Scene()
    {
        frame = new ScrolledFrame;
        frame->Create(nullptr, L"Host", WS_OVERLAPPEDWINDOW, CRect(50, 50, 550, 400));
        AfxGetApp()->m_pMainWnd = frame;
        pane.Create(AfxRegisterWndClass(0), nullptr, WS_CHILD | WS_VISIBLE, CRect(), frame,
                    AFX_IDW_PANE_FIRST);
        frame->EnableDocking(CBRS_ALIGN_ANY);
    }
    ~Scene()
    {
        AfxGetApp()->m_pMainWnd = nullptr;
        frame->DestroyWindow();
    }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    void dock()
    {
        palette.EnableDocking(CBRS_ALIGN_ANY);
        frame->DockControlBar(&palette, AFX_IDW_DOCKBAR_LEFT);
        frame->RecalcLayout();
        present(*frame);
    }
    void makeFloat(CPoint point = CPoint(250, 150))
    {
        palette.EnableDocking(CBRS_ALIGN_ANY);
        frame->FloatControlBar(&palette, point);
        frame->RecalcLayout();
        present(*frame);
    }
    CWnd& item(UINT id) { return *palette.GetDlgItem(static_cast<int>(id)); }

    ScrolledFrame* frame;
    CWnd pane;
    CVantorToolWnd palette;
};

class ToolWnd : public ::testing::Test, protected Scene
{
protected:
    ToolWnd() { EXPECT_TRUE(palette.Create(frame, IDD_PALETTE, kStyle, IDS_PALETTE, kBarId)); }

    /// What the user has done in the palette.
    void work()
    {
        palette.SetDlgItemText(IDC_PALETTE_EDIT, L"half written");
        palette.CheckDlgButton(IDC_PALETTE_CHECK, BST_CHECKED);
        item(IDC_PALETTE_SLIDER).SendMessage(TBM_SETPOS, TRUE, 37);
    }
    void expectWork()
    {
        CString text;
        palette.GetDlgItemText(IDC_PALETTE_EDIT, text);
        EXPECT_STREQ(text, L"half written");
        EXPECT_EQ(palette.IsDlgButtonChecked(IDC_PALETTE_CHECK), UINT{BST_CHECKED});
        EXPECT_EQ(item(IDC_PALETTE_SLIDER).SendMessage(TBM_GETPOS), 37);
    }
};

CRect screenRect(const CWnd& wnd)
{
    CRect rect;
    wnd.GetWindowRect(&rect);
    return rect;
}

} // namespace

// Borders

TEST(ToolWndBorders, AreZeroUntilTheFirstOneThenTwoForEver)
{
    EXPECT_EQ(kBordersAtLoad[0], 0);
    EXPECT_EQ(kBordersAtLoad[1], 0);
    const CVantorToolWnd first;
    EXPECT_EQ(CVantorToolWnd::sm_xBorder, 2);
    EXPECT_EQ(CVantorToolWnd::sm_yBorder, 2);
    for (const int host : {7, 0}) {
        CVantorToolWnd::sm_xBorder = host;
        CVantorToolWnd::sm_yBorder = host;
        const std::unique_ptr<CObject> another(RUNTIME_CLASS(CVantorToolWnd)->CreateObject());
        EXPECT_EQ(CVantorToolWnd::sm_xBorder, host) << "what the host sets is the host's";
        EXPECT_EQ(CVantorToolWnd::sm_yBorder, host);
    }
    CVantorToolWnd::sm_xBorder = CVantorToolWnd::sm_yBorder = 2;
}

TEST(ToolWndBorders, WhatTheHostSetsBeforeTheFirstOneStays)
{
    PROCESS_INFORMATION process{};
    ASSERT_TRUE(support::startProcess(L"toolwnd_probe.exe", {}, process));
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    EXPECT_EQ(code, 5u) << "five, and nothing above and below";
}

// Making

TEST(ToolWndClass, IsMadeDynamically)
{
    EXPECT_STREQ(RUNTIME_CLASS(CVantorToolWnd)->m_lpszClassName, "CVantorToolWnd");
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CVantorToolWnd)->CreateObject());
    ASSERT_TRUE(made);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CDialogBar)));
}

TEST_F(ToolWnd, IsABarOfTheFrameWithATitleAndNoCaption)
{
    EXPECT_EQ(frame->GetDlgItem(kBarId), &palette);
    EXPECT_EQ(frame->GetControlBar(kBarId), &palette);
    CString title;
    palette.GetWindowText(title);
    EXPECT_STREQ(title, L"Palette") << "not that of the template";
    EXPECT_EQ(palette.GetStyle() & WS_CAPTION, 0u);
    frame->RecalcLayout();
    CRect client;
    palette.GetClientRect(&client);
    EXPECT_GE(client.Width(), palette.m_sizeDefault.cx) << "the controls have the room of their template";
}

TEST(ToolWndCreate, TheBarsNumberIsTheTemplatesUnlessThereIsOne)
{
    Scene scene;
    ASSERT_TRUE(scene.palette.Create(scene.frame, IDD_PALETTE, kStyle, IDS_PALETTE, 0));
    EXPECT_EQ(scene.frame->GetControlBar(IDD_PALETTE), &scene.palette);
    scene.palette.SendMessage(WM_HELP);
    ASSERT_EQ(TestApp::instance().helps().size(), 1u);
    EXPECT_EQ(TestApp::instance().helps()[0].data, DWORD_PTR{IDD_PALETTE});
}

TEST(ToolWndCreate, AMissingTitleIsAnEmptyOne)
{
    Scene scene;
    EXPECT_TRUE(scene.palette.Create(scene.frame, IDD_PALETTE, kStyle, 4711, kBarId));
    EXPECT_EQ(scene.palette.GetWindowTextLength(), 0);
}

TEST(ToolWndCreate, AMissingTemplateLeavesEverythingAsItWas)
{
    Scene scene;
    EXPECT_FALSE(scene.palette.Create(scene.frame, 999, kStyle, IDS_PALETTE, kBarId));
    EXPECT_EQ(scene.palette.m_hWnd, nullptr);
    scene.palette.OnHelp();
    EXPECT_EQ(TestApp::instance().helps().back().data, 0u);
    ASSERT_TRUE(scene.palette.Create(scene.frame, IDD_PALETTE, kStyle, IDS_PALETTE, kBarId));
    EXPECT_EQ(scene.frame->GetControlBar(kBarId), &scene.palette);
}

// Closing

TEST_F(ToolWnd, WmCloseHidesIt)
{
    dock();
    work();
    EXPECT_EQ(palette.SendMessage(WM_CLOSE), 0);
    EXPECT_FALSE(palette.IsVisible());
    EXPECT_TRUE(::IsWindow(palette));
    GuiThread::settle();
    EXPECT_EQ(screenRect(pane).left, screenRect(*frame->GetControlBar(AFX_IDW_DOCKBAR_LEFT)).left)
        << "the pane gets its room";
    frame->ShowControlBar(&palette, TRUE, FALSE);
    EXPECT_TRUE(palette.IsVisible());
    expectWork();
}

TEST_F(ToolWnd, AFocusInItGoesToTheFrameWhenItIsClosed)
{
    for (const bool floats : {false, true}) {
        SCOPED_TRACE(floats);
        floats ? makeFloat() : dock();
        frame->ShowControlBar(&palette, TRUE, FALSE);
        Robot().click(Spot{item(IDC_PALETTE_EDIT)});
        ASSERT_EQ(::GetFocus(), item(IDC_PALETTE_EDIT).m_hWnd);
        palette.SendMessage(WM_CLOSE);
        EXPECT_FALSE(palette.IsVisible());
        EXPECT_EQ(::GetFocus(), frame->m_hWnd);
    }
}

TEST_F(ToolWnd, AFocusElsewhereStaysWhenItIsClosed)
{
    dock();
    pane.SetFocus();
    palette.SendMessage(WM_CLOSE);
    EXPECT_EQ(::GetFocus(), pane.m_hWnd);
}

TEST_F(ToolWnd, TheCaptionsCloseBoxHidesIt)
{
    makeFloat();
    work();
    CFrameWnd* const window = palette.GetParentFrame();
    Robot()
        .click(Spot{[&] {
            const CRect rect = screenRect(*window);
            return CPoint(
                rect.right - ::GetSystemMetrics(SM_CXFIXEDFRAME) - ::GetSystemMetrics(SM_CXSMSIZE) / 2,
                rect.top + ::GetSystemMetrics(SM_CYFIXEDFRAME) + ::GetSystemMetrics(SM_CYSMCAPTION) / 2);
        }})
        .waitFor("the palette to go", [&] { return !palette.IsVisible(); });
    EXPECT_TRUE(::IsWindow(palette));
    EXPECT_FALSE(window->IsWindowVisible()) << "its window goes with it";
    frame->ShowControlBar(&palette, TRUE, FALSE);
    EXPECT_TRUE(window->IsWindowVisible());
    expectWork();
}

TEST_F(ToolWnd, TheFramesMenuHidesAndShowsIt)
{
    dock();
    work();
    EXPECT_TRUE(frame->OnBarCheck(kBarId));
    EXPECT_FALSE(palette.IsVisible());
    EXPECT_TRUE(frame->OnBarCheck(kBarId));
    EXPECT_TRUE(palette.IsVisible());
    expectWork();
}

// Scrolling

TEST_F(ToolWnd, ScrollMessagesGoToTheFrame)
{
    dock();
    const auto slider = reinterpret_cast<LPARAM>(item(IDC_PALETTE_SLIDER).m_hWnd);
    EXPECT_EQ(palette.SendMessage(WM_HSCROLL, MAKEWPARAM(TB_THUMBPOSITION, 12), slider), 4711);
    EXPECT_EQ(palette.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), 0), 4711);
    EXPECT_EQ(frame->scrolls,
              (std::vector<ScrolledFrame::Scroll>{{WM_HSCROLL, MAKEWPARAM(TB_THUMBPOSITION, 12), slider},
                                                  {WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), 0}}));
}

TEST_F(ToolWnd, ASliderThatTheUserMovesReachesTheFrame)
{
    for (const bool floats : {false, true}) {
        floats ? makeFloat() : dock();
        item(IDC_PALETTE_SLIDER).SendMessage(TBM_SETPOS, TRUE, 0);
        frame->scrolls.clear();
        Robot().click(Spot{item(IDC_PALETTE_SLIDER)}).waitFor("the frame", [&] {
            return !frame->scrolls.empty();
        });
        EXPECT_EQ(frame->scrolls[0].message, UINT{WM_HSCROLL});
        EXPECT_EQ(frame->scrolls[0].lParam, reinterpret_cast<LPARAM>(item(IDC_PALETTE_SLIDER).m_hWnd));
    }
}

TEST(ToolWndWithoutFrame, ScrollMessagesAreTheBarsOwn)
{
    Scene scene;
    // Made as a dialog bar, it knows no frame.
    CDialogBar& bar = scene.palette;
    ASSERT_TRUE(bar.Create(scene.frame, IDD_PALETTE, kStyle, kBarId));
    EXPECT_NE(bar.SendMessage(WM_HSCROLL, 0, 0), 4711);
    EXPECT_TRUE(scene.frame->scrolls.empty());
}

// Help and context menu

TEST_F(ToolWnd, HelpIsThatOfTheBarsNumber)
{
    EXPECT_EQ(palette.SendMessage(WM_HELP), 1);
    palette.OnHelp();
    ASSERT_EQ(TestApp::instance().helps().size(), 2u);
    for (const AskedHelp& help : TestApp::instance().helps()) {
        EXPECT_EQ(help.data, DWORD_PTR{kBarId});
        EXPECT_EQ(help.command, UINT{HH_HELP_CONTEXT});
    }
}

TEST_F(ToolWnd, F1InAControlIsForTheBar)
{
    dock();
    Robot().click(Spot{item(IDC_PALETTE_EDIT)}).key(VK_F1).waitFor("the help", [] {
        return !TestApp::instance().helps().empty();
    });
    EXPECT_EQ(TestApp::instance().helps()[0].data, DWORD_PTR{kBarId});
}

TEST_F(ToolWnd, HandlesOneMessageByItself)
{
    class Mapped : public CVantorToolWnd
    {
    public:
        const AFX_MSGMAP* map() const { return CVantorToolWnd::GetMessageMap(); }
    } bar;
    const AFX_MSGMAP_ENTRY* const entries = bar.map()->lpEntries;
    EXPECT_EQ(entries[0].nMessage, UINT{WM_CONTEXTMENU});
    EXPECT_EQ(entries[1].pfnThunk, nullptr) << "the end";
}

TEST_F(ToolWnd, AContextMenuIsAskedOfTheFrameByTheSystemAlone)
{
    dock();
    frame->contextMenus = 0;
    const auto edit = reinterpret_cast<WPARAM>(item(IDC_PALETTE_EDIT).m_hWnd);
    palette.SendMessage(WM_CONTEXTMENU, edit, MAKELPARAM(70, 90));
    // The window's default processing asks its parent, a side of the frame, which asks the frame.
    EXPECT_EQ(frame->contextMenus, 1);
}

// Docking

TEST_F(ToolWnd, DocksAndFloatsWithItsStateAndItsTitle)
{
    dock();
    work();
    frame->FloatControlBar(&palette, CPoint(250, 150));
    frame->RecalcLayout();
    CString title;
    palette.GetParentFrame()->GetWindowText(title);
    EXPECT_STREQ(title, L"Palette");
    expectWork();
    frame->DockControlBar(&palette, AFX_IDW_DOCKBAR_RIGHT);
    frame->RecalcLayout();
    EXPECT_FALSE(palette.IsFloating());
    EXPECT_EQ(screenRect(palette).right, screenRect(*frame->GetControlBar(AFX_IDW_DOCKBAR_RIGHT)).right);
    expectWork();
}

TEST_F(ToolWnd, ComesBackWithTheBarState)
{
    const TemporaryProfile profile;
    makeFloat(CPoint(260, 170));
    frame->SaveBarState(L"Bars");
    Scene next;
    ASSERT_TRUE(next.palette.Create(next.frame, IDD_PALETTE, kStyle, IDS_PALETTE, kBarId));
    next.dock();
    next.frame->LoadBarState(L"Bars");
    EXPECT_TRUE(next.palette.IsFloating());
    EXPECT_EQ(screenRect(*next.palette.GetParentFrame()).TopLeft(), CPoint(260, 170));
}
