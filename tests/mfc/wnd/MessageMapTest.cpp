// Which handler a message finds, and what it is called with.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

constexpr UINT kFirst = WM_APP + 1;
constexpr UINT kShared = WM_APP + 2;
constexpr UINT kThrows = WM_APP + 3;
UINT s_registered = 0;

class Base : public CWnd
{
public:
    std::vector<std::string> log;

    bool create() { return CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 100, 80, nullptr, nullptr); }

protected:
    afx_msg LRESULT OnFirst(WPARAM wParam, LPARAM lParam)
    {
        log.push_back("base first");
        return static_cast<LRESULT>(wParam) + lParam;
    }
    afx_msg LRESULT OnShared(WPARAM, LPARAM)
    {
        log.push_back("base shared");
        return 1;
    }
    afx_msg LRESULT OnSharedAgain(WPARAM, LPARAM)
    {
        log.push_back("base shared again");
        return 2;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Base, CWnd)
    ON_MESSAGE(kFirst, &Base::OnFirst)
    ON_MESSAGE(kShared, &Base::OnShared)
    ON_MESSAGE(kShared, &Base::OnSharedAgain)
END_MESSAGE_MAP()

class Derived : public Base
{
public:
    CPoint moved, mouse;
    CSize size;
    UINT sizeType = 99, keys = 0, timer = 0, lastKey = 0;
    CString setting;

protected:
    afx_msg LRESULT OnShared(WPARAM wParam, LPARAM lParam)
    {
        log.push_back("derived shared");
        return wParam ? Base::OnShared(wParam, lParam) : 3;
    }
    afx_msg LRESULT OnRegistered(WPARAM wParam, LPARAM)
    {
        log.push_back("registered");
        return static_cast<LRESULT>(wParam) * 2;
    }
    afx_msg LRESULT OnThrows(WPARAM, LPARAM) { throw std::string("oak"); }
    afx_msg void OnMove(int x, int y) { moved = CPoint(x, y); }
    afx_msg void OnSize(UINT type, int cx, int cy)
    {
        sizeType = type;
        size = CSize(cx, cy);
    }
    afx_msg void OnMouseMove(UINT flags, CPoint point)
    {
        keys = flags;
        mouse = point;
    }
    afx_msg void OnKeyDown(UINT key, UINT, UINT) { lastKey = key; }
    afx_msg void OnTimer(UINT_PTR id) { timer = static_cast<UINT>(id); }
    afx_msg BOOL OnEraseBkgnd(CDC* dc)
    {
        log.push_back(dc ? "erase" : "erase without");
        return TRUE;
    }
    afx_msg void OnSettingChange(UINT, LPCTSTR section) { setting = section; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, Base)
    ON_MESSAGE(kShared, &Derived::OnShared)
    ON_MESSAGE(kThrows, &Derived::OnThrows)
    ON_REGISTERED_MESSAGE(s_registered, &Derived::OnRegistered)
    ON_WM_MOVE()
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_WM_KEYDOWN()
    ON_WM_TIMER()
    ON_WM_ERASEBKGND()
    ON_WM_SETTINGCHANGE()
END_MESSAGE_MAP()

} // namespace

TEST(MessageMap, FindsTheHandlerOfABaseClass)
{
    Derived wnd;
    ASSERT_TRUE(wnd.create());
    EXPECT_EQ(wnd.SendMessage(kFirst, 40, 2), 42);
    EXPECT_EQ(wnd.log, std::vector<std::string>{"base first"});
}

TEST(MessageMap, TheMostDerivedClassComesFirst)
{
    Derived wnd;
    wnd.create();
    EXPECT_EQ(wnd.SendMessage(kShared, 0), 3);
    EXPECT_EQ(wnd.log, std::vector<std::string>{"derived shared"});
    wnd.log.clear();
    EXPECT_EQ(wnd.SendMessage(kShared, 1), 1);
    EXPECT_EQ(wnd.log, (std::vector<std::string>{"derived shared", "base shared"}));
}

TEST(MessageMap, WithinAMapTheFirstEntryDecides)
{
    Base wnd;
    wnd.create();
    EXPECT_EQ(wnd.SendMessage(kShared), 1);
    EXPECT_EQ(wnd.log, std::vector<std::string>{"base shared"});
}

TEST(MessageMap, ARegisteredMessageIsFoundOnceItsNumberIsKnown)
{
    Derived wnd;
    wnd.create();
    const UINT number = ::RegisterWindowMessageW(L"ovomfc test message");
    EXPECT_EQ(wnd.SendMessage(number, 21), 0) << "the variable is not filled yet";
    s_registered = number;
    EXPECT_EQ(wnd.SendMessage(number, 21), 42);
}

TEST(MessageMap, ArgumentsAreTakenOutOfTheMessage)
{
    Derived wnd;
    wnd.create();
    ::SendMessageW(wnd, WM_MOVE, 0, MAKELPARAM(-5, -300));
    EXPECT_EQ(wnd.moved, CPoint(-5, -300));
    ::SendMessageW(wnd, WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(40000, 7));
    EXPECT_EQ(wnd.sizeType, static_cast<UINT>(SIZE_MAXIMIZED));
    EXPECT_EQ(wnd.size, CSize(40000, 7));
    ::SendMessageW(wnd, WM_MOUSEMOVE, MK_LBUTTON | MK_SHIFT, MAKELPARAM(-3, 9));
    EXPECT_EQ(wnd.mouse, CPoint(-3, 9));
    EXPECT_EQ(wnd.keys, static_cast<UINT>(MK_LBUTTON | MK_SHIFT));
    ::SendMessageW(wnd, WM_KEYDOWN, VK_F5, 1);
    EXPECT_EQ(wnd.lastKey, static_cast<UINT>(VK_F5));
    ::SendMessageW(wnd, WM_TIMER, 77, 0);
    EXPECT_EQ(wnd.timer, 77u);
    ::SendMessageW(wnd, WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(L"intl"));
    EXPECT_STREQ(wnd.setting, L"intl");
    CClientDC dc(&wnd);
    EXPECT_EQ(::SendMessageW(wnd, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC), 0), 1);
    EXPECT_EQ(wnd.log.back(), "erase");
}

TEST(MessageMap, TheLastMessageIsRestoredAfterANestedOneAndAnException)
{
    class Nesting : public Derived
    {
    public:
        MSG before{}, after{};

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_APP + 50)
                return Derived::WindowProc(message, wParam, lParam);
            before = *GetCurrentMessage();
            SendMessage(kFirst, 1, 2);
            try {
                SendMessage(kThrows);
            } catch (const std::string&) {
                after = *GetCurrentMessage();
            }
            return 5;
        }
    } wnd;
    wnd.create();
    EXPECT_EQ(wnd.SendMessage(WM_APP + 50, 11, 12), 5);
    EXPECT_EQ(wnd.before.message, static_cast<UINT>(WM_APP + 50));
    EXPECT_EQ(wnd.after.message, wnd.before.message);
    EXPECT_EQ(wnd.after.wParam, 11u);
    EXPECT_EQ(wnd.after.lParam, 12);
}
