// An object in front of a window that other code made.
#include "Windows.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace wndtest;

namespace
{

/// Adds one to what the window's own procedure gives for WM_APP.
class Front : public CWnd
{
public:
    int prepared = 0;

protected:
    void PreSubclassWindow() override
    {
        EXPECT_NE(m_hWnd, nullptr);
        EXPECT_NE(::GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC), reinterpret_cast<LONG_PTR>(&AfxWndProc));
        ++prepared;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
        return message == WM_APP ? result + 1 : result;
    }
};

WNDPROC s_behind = nullptr;

LRESULT CALLBACK stranger(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = ::CallWindowProcW(s_behind, wnd, message, wParam, lParam);
    return message == WM_APP ? result + 100 : result;
}

WNDPROC procedureOf(HWND wnd)
{
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(wnd, GWLP_WNDPROC));
}

} // namespace

TEST(Subclassing, PutsTheObjectInFrontOfTheWindowsProcedure)
{
    const PlainWindow plain;
    Front wnd;
    EXPECT_TRUE(wnd.SubclassWindow(plain));
    EXPECT_EQ(wnd.prepared, 1);
    EXPECT_EQ(::SendMessageW(plain, WM_APP, 0, 0), 34);
    wnd.DestroyWindow();
    EXPECT_FALSE(::IsWindow(plain));
}

TEST(Subclassing, TakesAControlOfADialogByItsNumber)
{
    Hidden<> parent;
    parent.create();
    const HWND edit = plainControl(parent, L"EDIT", 12);
    Front wnd;
    EXPECT_FALSE(wnd.SubclassDlgItem(13, &parent)) << "there is no such control";
    EXPECT_TRUE(wnd.SubclassDlgItem(12, &parent));
    EXPECT_EQ(wnd.m_hWnd, edit);
    EXPECT_EQ(parent.GetDlgItem(12), &wnd);
    Front second;
    EXPECT_FALSE(second.SubclassDlgItem(12, &parent)) << "it is taken";
    parent.DestroyWindow();
    EXPECT_EQ(wnd.m_hWnd, nullptr);
}

TEST(Subclassing, AnObjectTakesOneWindowOnly)
{
    const PlainWindow first;
    const PlainWindow second;
    Front wnd;
    EXPECT_TRUE(wnd.SubclassWindow(first));
    EXPECT_FALSE(wnd.SubclassWindow(second));
    EXPECT_EQ(::SendMessageW(second, WM_APP, 0, 0), 33);
    EXPECT_FALSE(wnd.SubclassWindow(nullptr));
    wnd.UnsubclassWindow();
}

TEST(Subclassing, AWindowOfAnotherProgramIsNotTaken)
{
    Front wnd;
    EXPECT_FALSE(wnd.SubclassWindow(::GetDesktopWindow()));
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(::GetDesktopWindow()), nullptr);
}

TEST(Subclassing, AnExceptionLeavesTheWindowAsItWas)
{
    class Throwing : public CWnd
    {
    protected:
        void PreSubclassWindow() override { throw std::runtime_error("oak"); }
    } wnd;
    const PlainWindow plain;
    const WNDPROC before = procedureOf(plain);
    EXPECT_THROW(wnd.SubclassWindow(plain), std::runtime_error);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    EXPECT_EQ(procedureOf(plain), before);
}

TEST(Subclassing, UnsubclassingGivesTheProcedureBackAndTheWindowLives)
{
    const PlainWindow plain;
    const WNDPROC before = procedureOf(plain);
    Front wnd;
    wnd.SubclassWindow(plain);
    EXPECT_EQ(wnd.UnsubclassWindow(), static_cast<HWND>(plain));
    EXPECT_EQ(procedureOf(plain), before);
    EXPECT_EQ(::SendMessageW(plain, WM_APP, 0, 0), 33);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    EXPECT_TRUE(wnd.SubclassWindow(plain)) << "and may be taken again";
    wnd.UnsubclassWindow();
}

TEST(Subclassing, AStrangerInFrontKeepsItsPlaceToTheEnd)
{
    const PlainWindow plain;
    Front wnd;
    wnd.SubclassWindow(plain);
    s_behind = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(plain, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&stranger)));
    EXPECT_EQ(::SendMessageW(plain, WM_APP, 0, 0), 134);
    ::DestroyWindow(plain);
    EXPECT_EQ(wnd.m_hWnd, nullptr) << "the object is told through the stranger";
}

TEST(Subclassing, AWindowOfOursForwardsToTheClassItWasMadeFrom)
{
    Hidden<> parent;
    parent.create();
    Hidden<CEdit> edit;
    ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &parent, 4));
    edit.SetWindowText(L"oak");
    EXPECT_EQ(edit.SendMessage(EM_LINELENGTH, 0), 3);
    EXPECT_NE(*edit.GetSuperWndProcAddr(), nullptr);
}

TEST(Subclassing, AWindowOfOursSaysSo)
{
    Hidden<> wnd;
    wnd.create();
    const PlainWindow plain;
    constexpr UINT kQuestion = 0x0360;
    EXPECT_EQ(::SendMessageW(wnd, kQuestion, 0, 0), 1);
    EXPECT_EQ(::SendMessageW(plain, kQuestion, 0, 0), 0);
}
