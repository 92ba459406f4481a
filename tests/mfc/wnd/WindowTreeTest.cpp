// Parents, owners, descendants.
#include "Windows.h"

#include <afxpriv.h>

#include <gtest/gtest.h>

using namespace wndtest;

namespace
{

class Counting : public Hidden<>
{
public:
    int got = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        got += message == WM_APP;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

/// A frame on the stack.
class Frame : public CFrameWnd
{
public:
    ~Frame() override
    {
        if (m_hWnd)
            DestroyWindow();
    }
    BOOL create(CWnd* parent = nullptr)
    {
        return CWnd::CreateEx(0, AfxRegisterWndClass(0), L"frame", WS_POPUP | WS_CAPTION, 0, 0, 300, 200,
                              parent->GetSafeHwnd(), nullptr);
    }

protected:
    void PostNcDestroy() override {}
};

class WindowTree : public ::testing::Test
{
protected:
    WindowTree()
    {
        top.create(WS_OVERLAPPEDWINDOW);
        child.createChild(top, 5);
        grandchild.createChild(child, 6);
        popup.create(WS_POPUP, &top);
    }

    Counting top;
    Counting child;
    Counting grandchild;
    Counting popup;
};

} // namespace

TEST_F(WindowTree, KnowsParentsAndTheirKin)
{
    EXPECT_EQ(grandchild.GetParent(), &child);
    EXPECT_EQ(popup.GetParent(), &top) << "an owner counts as parent";
    EXPECT_EQ(top.GetParent(), nullptr);
    EXPECT_EQ(top.GetTopWindow(), &child);
    EXPECT_EQ(top.GetWindow(GW_CHILD), &child);
    EXPECT_EQ(child.GetNextWindow(), nullptr);
    EXPECT_TRUE(top.IsChild(&grandchild));
    EXPECT_FALSE(top.IsChild(&popup));
    EXPECT_FALSE(top.IsChild(nullptr));
    EXPECT_EQ(top.GetWindowedChildCount(), 1);
    EXPECT_EQ(grandchild.GetAncestor(GA_ROOT), &top);
    EXPECT_EQ(popup.GetAncestor(GA_ROOTOWNER), &top);
}

TEST_F(WindowTree, AnOwnerIsTheParentUnlessOneIsSet)
{
    EXPECT_EQ(child.GetOwner(), &top);
    child.SetOwner(&popup);
    EXPECT_EQ(child.GetOwner(), &popup);
    EXPECT_EQ(child.GetParent(), &top);
    child.SetOwner(nullptr);
    EXPECT_EQ(child.GetOwner(), &top);
}

TEST_F(WindowTree, TheParentOwnerIsTheNearestOneThatIsNoChild)
{
    EXPECT_EQ(grandchild.GetParentOwner(), &top);
    grandchild.SetOwner(&popup);
    EXPECT_EQ(grandchild.GetParentOwner(), &popup);
}

TEST_F(WindowTree, TheTopLevelParentIgnoresOwnersThatWereSet)
{
    Hidden<> other;
    other.create(WS_OVERLAPPEDWINDOW);
    grandchild.SetOwner(&other);
    EXPECT_EQ(grandchild.GetTopLevelParent(), &top);
    EXPECT_EQ(grandchild.GetTopLevelOwner(), &other);
    EXPECT_EQ(popup.GetTopLevelParent(), &top);
    EXPECT_EQ(top.GetTopLevelParent(), &top);
    const CWnd without;
    EXPECT_EQ(without.GetTopLevelParent(), nullptr);
    EXPECT_EQ(without.GetTopLevelOwner(), nullptr);
}

TEST_F(WindowTree, FramesAreFoundUpwards)
{
    Frame outer;
    ASSERT_TRUE(outer.create());
    Frame inner;
    ASSERT_TRUE(inner.create(&outer));
    Hidden<> pane;
    pane.createChild(inner, 3);
    EXPECT_EQ(pane.GetParentFrame(), &inner);
    EXPECT_EQ(inner.GetParentFrame(), &outer) << "a frame is not its own parent";
    EXPECT_EQ(pane.GetTopLevelFrame(), &outer);
    EXPECT_EQ(outer.GetTopLevelFrame(), &outer);
    EXPECT_EQ(Frame().GetTopLevelFrame(), nullptr) << "it has no window";
    EXPECT_EQ(outer.GetParentFrame(), nullptr);
    EXPECT_EQ(child.GetParentFrame(), nullptr);
    pane.DestroyWindow();
}

TEST_F(WindowTree, ItemsAreChildrenOnlyDescendantsAreAllBelow)
{
    EXPECT_EQ(top.GetDlgItem(5), &child);
    EXPECT_EQ(top.GetDlgItem(6), nullptr);
    HWND handle = nullptr;
    top.GetDlgItem(5, &handle);
    EXPECT_EQ(handle, child.m_hWnd);
    EXPECT_EQ(top.GetDescendantWindow(6), &grandchild);
    EXPECT_EQ(top.GetDescendantWindow(7), nullptr);
    EXPECT_EQ(child.GetDlgCtrlID(), 5);
    child.SetDlgCtrlID(50);
    EXPECT_EQ(top.GetDlgItem(50), &child);
}

TEST_F(WindowTree, TheNearestDescendantIsFoundAndAPermanentOneIfWanted)
{
    const HWND plain = plainControl(top, L"STATIC", 6);
    EXPECT_EQ(top.GetDescendantWindow(6)->m_hWnd, plain) << "nearer than the grandchild";
    EXPECT_EQ(top.GetDescendantWindow(6, TRUE), &grandchild) << "the nearer one has no object";
}

TEST_F(WindowTree, AMessageReachesTheDescendantsThatAreMeant)
{
    plainControl(top, L"STATIC", 9);
    top.SendMessageToDescendants(WM_APP, 0, 0, FALSE, FALSE);
    EXPECT_EQ(child.got, 1);
    EXPECT_EQ(grandchild.got, 0);
    top.SendMessageToDescendants(WM_APP, 0, 0, TRUE, FALSE);
    EXPECT_EQ(child.got, 2);
    EXPECT_EQ(grandchild.got, 1);
    top.SendMessageToDescendants(WM_APP, 0, 0, TRUE, TRUE);
    EXPECT_EQ(grandchild.got, 2);
    EXPECT_EQ(top.got, 0) << "only those below";
    EXPECT_EQ(popup.got, 0) << "an owned window is no descendant";
}

TEST_F(WindowTree, AMessageReachesPermanentWindowsBelowTemporaryOnes)
{
    const HWND plain = plainControl(top, L"STATIC", 9);
    Counting below;
    below.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD, 0, 0, 9, 9, plain, nullptr);
    top.SendMessageToDescendants(WM_APP, 0, 0, TRUE, TRUE);
    EXPECT_EQ(below.got, 1);
}

TEST_F(WindowTree, ADescendantMayGoWhileTheMessageIsOnItsWay)
{
    class Killing : public Hidden<>
    {
    public:
        CWnd* victim = nullptr;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP) {
                victim->DestroyWindow();
                DestroyWindow();
                return 0;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } killer;
    killer.createChild(top, 8);
    killer.victim = &child;
    ::SetWindowPos(killer, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    Counting last;
    last.createChild(top, 10);
    ::SetWindowPos(last, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    top.SendMessageToDescendants(WM_APP);
    EXPECT_EQ(child.got, 0);
    EXPECT_EQ(last.got, 1);
}

TEST_F(WindowTree, ASafeOwnerIsNoChildWindow)
{
    EXPECT_EQ(CWnd::GetSafeOwner(&grandchild), &top);
    HWND below = nullptr;
    EXPECT_EQ(CWnd::GetSafeOwner(&popup, &below), &popup);
    EXPECT_EQ(below, top.m_hWnd) << "to be disabled as well";
    EXPECT_EQ(CWnd::GetSafeOwner(&top, &below), &top);
    EXPECT_EQ(below, nullptr);
}

TEST_F(WindowTree, WithoutAWindowTheMainWindowIsTheSafeOwner)
{
    CWinThread* thread = AfxGetThread();
    EXPECT_EQ(CWnd::GetSafeOwner(), nullptr);
    thread->m_pMainWnd = &top;
    EXPECT_EQ(CWnd::GetSafeOwner(), &top);
    thread->m_pMainWnd = nullptr;
}

TEST_F(WindowTree, AWindowCanChangeItsParent)
{
    Hidden<> other;
    other.create();
    EXPECT_EQ(grandchild.SetParent(&other), &child);
    EXPECT_EQ(grandchild.GetParent(), &other);
    EXPECT_EQ(CWnd::FromHandlePermanent(grandchild.m_hWnd), &grandchild);
    grandchild.SetParent(&child);
}

TEST_F(WindowTree, DescentGoesThroughOwners)
{
    EXPECT_TRUE(AfxIsDescendant(top, grandchild));
    EXPECT_TRUE(AfxIsDescendant(top, popup));
    EXPECT_FALSE(AfxIsDescendant(child, popup));
    EXPECT_EQ(AfxGetParentOwner(popup), top.m_hWnd);
}

TEST_F(WindowTree, PointsFindWindows)
{
    EXPECT_EQ(top.ChildWindowFromPoint(CPoint(5, 5)), &child);
    EXPECT_EQ(top.ChildWindowFromPoint(CPoint(100, 80)), &top);
    EXPECT_EQ(top.ChildWindowFromPoint(CPoint(5, 5), CWP_SKIPINVISIBLE), &top);
    EXPECT_EQ(CWnd::FindWindow(nullptr, L"there is no such title"), nullptr);
    EXPECT_EQ(CWnd::FindWindowEx(top, nullptr, nullptr, L"child"), &child);
}
