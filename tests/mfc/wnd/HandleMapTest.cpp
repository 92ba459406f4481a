// Permanent and temporary objects of handles.
#include <afxwin.h>

#include <testkit/GuiThread.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

class PlainWindow
{
public:
    PlainWindow()
        : m_wnd(::CreateWindowExW(0, L"STATIC", L"plain", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr))
    {
    }
    ~PlainWindow()
    {
        if (::IsWindow(m_wnd))
            ::DestroyWindow(m_wnd);
    }
    operator HWND() const { return m_wnd; }

private:
    HWND m_wnd;
};

} // namespace

TEST(HandleMap, NullStandsForNull)
{
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(nullptr), nullptr);
    EXPECT_EQ(CMenu::FromHandle(nullptr), nullptr);
    const CWnd* none = nullptr;
    EXPECT_EQ(none->GetSafeHwnd(), nullptr);
}

TEST(HandleMap, AForeignHandleGetsOneTemporaryObject)
{
    const PlainWindow wnd;
    CWnd* first = CWnd::FromHandle(wnd);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->m_hWnd, static_cast<HWND>(wnd));
    EXPECT_EQ(CWnd::FromHandle(wnd), first);
    EXPECT_EQ(CWnd::FromHandlePermanent(wnd), nullptr);
}

TEST(HandleMap, AttachedObjectsArePermanent)
{
    const PlainWindow wnd;
    CWnd object;
    EXPECT_TRUE(object.Attach(wnd));
    EXPECT_EQ(CWnd::FromHandle(wnd), &object);
    EXPECT_EQ(CWnd::FromHandlePermanent(wnd), &object);
    CWnd other;
    EXPECT_FALSE(other.Attach(wnd)) << "it belongs to another object";
    EXPECT_FALSE(object.Attach(nullptr));
    EXPECT_EQ(object.Detach(), static_cast<HWND>(wnd));
    EXPECT_EQ(CWnd::FromHandlePermanent(wnd), nullptr);
    EXPECT_TRUE(::IsWindow(wnd)) << "a detached window lives on";
}

TEST(HandleMap, TemporaryObjectsGoInIdleTimeAndLeaveTheirHandles)
{
    const PlainWindow wnd;
    CWnd* before = CWnd::FromHandle(wnd);
    CMenu* menu = CMenu::FromHandle(::CreatePopupMenu());
    const HMENU menuHandle = menu->m_hMenu;
    EXPECT_NE(before, nullptr);
    GuiThread::settle();
    CWnd::DeleteTempMap();
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(wnd));
    EXPECT_TRUE(::IsMenu(menuHandle));
    EXPECT_EQ(CWnd::FromHandle(wnd)->m_hWnd, static_cast<HWND>(wnd));
    ::DestroyMenu(menuHandle);
}

TEST(HandleMap, ATemporaryObjectLivesWhileAMessageIsHandled)
{
    class Nested : public CWnd
    {
    public:
        CWnd* object = nullptr;
        bool kept = false;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP) {
                object = CWnd::FromHandle(reinterpret_cast<HWND>(wParam));
                AfxGetApp()->OnIdle(1); // as a nested loop does
                kept = object->m_hWnd == reinterpret_cast<HWND>(wParam);
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } wnd;
    wnd.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr);
    const PlainWindow plain;
    wnd.SendMessage(WM_APP, reinterpret_cast<WPARAM>(static_cast<HWND>(plain)));
    EXPECT_TRUE(wnd.kept);
}
