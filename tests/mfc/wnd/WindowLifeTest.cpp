// How objects get windows, keep them and lose them.
#include <afxwin.h>

#include <testkit/GuiThread.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace ovo::testkit;

namespace
{

std::vector<std::string> s_log;

class Logging : public CWnd
{
public:
    bool create(DWORD style = WS_POPUP)
    {
        s_log.clear();
        return CreateEx(0, AfxRegisterWndClass(0), L"", style, 0, 0, 100, 80, nullptr, nullptr);
    }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        s_log.push_back("precreate");
        return CWnd::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override { s_log.push_back(m_hWnd ? "presubclass" : "too early"); }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT cs)
    {
        s_log.push_back("nccreate");
        return CWnd::OnNcCreate(cs);
    }
    afx_msg int OnCreate(LPCREATESTRUCT cs)
    {
        s_log.push_back("create");
        return CWnd::OnCreate(cs);
    }
    afx_msg void OnDestroy()
    {
        s_log.push_back(::IsWindow(m_hWnd) ? "destroy" : "gone");
        CWnd::OnDestroy();
    }
    void PostNcDestroy() override { s_log.push_back(m_hWnd ? "attached" : "postncdestroy"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Logging, CWnd)
    ON_WM_NCCREATE()
    ON_WM_CREATE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

class Refusing : public Logging
{
protected:
    afx_msg int OnCreate(LPCREATESTRUCT) { return -1; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Refusing, Logging)
    ON_WM_CREATE()
END_MESSAGE_MAP()

class Suicidal : public CWnd
{
public:
    static int s_alive;
    Suicidal() { ++s_alive; }
    ~Suicidal() override { --s_alive; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_APP) {
            DestroyWindow(); // `this` is gone now
            return 7;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override { delete this; }
};

int Suicidal::s_alive = 0;

LRESULT CALLBACK plainProcedure(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == WM_APP ? 33 : ::DefWindowProcW(wnd, message, wParam, lParam);
}

HWND plainWindow()
{
    WNDCLASSW cls{};
    cls.lpfnWndProc = &plainProcedure;
    cls.hInstance = ::GetModuleHandleW(nullptr);
    cls.lpszClassName = L"PlainWindow";
    ::RegisterClassW(&cls);
    return ::CreateWindowExW(0, L"PlainWindow", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, cls.hInstance, nullptr);
}

} // namespace

TEST(WindowLife, TheObjectSeesEveryMessageFromTheFirst)
{
    Logging wnd;
    ASSERT_TRUE(wnd.create());
    EXPECT_EQ(s_log, (std::vector<std::string>{"precreate", "presubclass", "nccreate", "create"}));
    EXPECT_EQ(CWnd::FromHandlePermanent(wnd.m_hWnd), &wnd);
}

TEST(WindowLife, TheLastThingIsPostNcDestroyOfADetachedObject)
{
    Logging wnd;
    wnd.create();
    s_log.clear();
    const HWND handle = wnd.m_hWnd;
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(s_log, (std::vector<std::string>{"destroy", "postncdestroy"}));
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    EXPECT_FALSE(wnd.DestroyWindow()) << "there is none any more";
}

TEST(WindowLife, AWindowThatRefusesToBeCreatedLeavesNothing)
{
    Refusing wnd;
    EXPECT_FALSE(wnd.create());
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(s_log.back(), "postncdestroy");
}

TEST(WindowLife, AnUnknownClassFailsAndTellsTheObject)
{
    Logging wnd;
    s_log.clear();
    EXPECT_FALSE(wnd.CreateEx(0, L"there is no such class", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
    EXPECT_EQ(s_log, (std::vector<std::string>{"precreate", "postncdestroy"}));
    EXPECT_TRUE(wnd.create()) << "the hook waits for no object now";
}

TEST(WindowLife, AWindowMayBeDestroyedInItsOwnHandler)
{
    auto* wnd = new Suicidal;
    wnd->CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr);
    const HWND handle = wnd->m_hWnd;
    EXPECT_EQ(::SendMessageW(handle, WM_APP, 0, 0), 7);
    EXPECT_EQ(Suicidal::s_alive, 0);
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(WindowLife, TheDestructorDestroysTheWindow)
{
    HWND handle = nullptr;
    {
        CWnd wnd;
        wnd.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr);
        handle = wnd.m_hWnd;
        EXPECT_TRUE(::IsWindow(handle));
    }
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(WindowLife, SubclassingPutsTheObjectInFrontAndUnsubclassingTakesItAway)
{
    const HWND handle = plainWindow();
    class Front : public CWnd
    {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
            return message == WM_APP ? result + 1 : result;
        }
    } wnd;
    EXPECT_TRUE(wnd.SubclassWindow(handle));
    EXPECT_EQ(::SendMessageW(handle, WM_APP, 0, 0), 34);
    CWnd second;
    EXPECT_FALSE(second.SubclassWindow(handle));
    EXPECT_EQ(wnd.UnsubclassWindow(), handle);
    EXPECT_EQ(::SendMessageW(handle, WM_APP, 0, 0), 33);
    EXPECT_TRUE(wnd.SubclassWindow(handle)) << "it may be taken again";
    ::DestroyWindow(handle);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
}

TEST(WindowLife, ClosingTheMainWindowEndsTheLoop)
{
    CWinApp* app = AfxGetApp();
    CWnd main;
    main.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr);
    app->m_pMainWnd = &main;
    GuiThread::tookQuit();
    main.DestroyWindow();
    EXPECT_EQ(app->m_pMainWnd, nullptr);
    GuiThread::runUntil([] { return GuiThread::tookQuit(); });
}

TEST(WindowLife, ALabelOfAnInputMethodIsNotTakenForTheWindow)
{
    // The first top-level window of a thread brings a hidden one along.
    Logging wnd;
    ASSERT_TRUE(wnd.create(WS_OVERLAPPEDWINDOW));
    wchar_t name[64]{};
    ::GetClassNameW(wnd, name, 64);
    EXPECT_STRNE(name, L"IME");
}
