// Views that are controls in a frame: made from a run-time class, their commands, their notifications.
#include "TestFrame.h"
#include "resource.h"

#include <afxcview.h>

#include <gtest/gtest.h>
#include <testkit/TestApp.h>
#include <testkit/WindowCounter.h>

using namespace ovo::testkit;

namespace
{

/// A frame with a view of one class, as a program makes it.
template <class View>
class FrameWith
{
public:
    FrameWith()
    {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(View);
        m_frame = new TestFrame;
        EXPECT_TRUE(m_frame->LoadFrame(IDR_FRAME, WS_OVERLAPPEDWINDOW, nullptr, &context));
        m_frame->SetWindowPos(nullptr, 30, 30, 400, 300, SWP_NOZORDER);
        m_frame->InitialUpdateFrame(nullptr, TRUE);
        GuiThread::settle();
    }
    ~FrameWith() { m_frame->DestroyWindow(); }

    View& view() const { return *static_cast<View*>(m_frame->GetActiveView()); }
    TestFrame* operator->() const { return m_frame; }
    TestFrame& operator*() const { return *m_frame; }

private:
    TestFrame* m_frame;
};

class TestTreeView : public CTreeView
{
    DECLARE_DYNCREATE(TestTreeView)

public:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        cs.style |= TVS_HASBUTTONS | TVS_LINESATROOT | TVS_SHOWSELALWAYS;
        return CTreeView::PreCreateWindow(cs);
    }
    void OnInitialUpdate() override
    {
        CTreeView::OnInitialUpdate();
        CTreeCtrl& tree = GetTreeCtrl();
        oak = tree.InsertItem(L"Oak");
        elm = tree.InsertItem(L"Elm");
        ash = tree.InsertItem(L"Ash", oak);
    }

    HTREEITEM oak = nullptr;
    HTREEITEM elm = nullptr;
    HTREEITEM ash = nullptr;
    int selections = 0;
    int acted = 0;

protected:
    afx_msg void OnSelChanged(NMHDR*, LRESULT*) { ++selections; }
    afx_msg void OnAct() { ++acted; }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(TestTreeView, CTreeView)

BEGIN_MESSAGE_MAP(TestTreeView, CTreeView)
    ON_NOTIFY_REFLECT(TVN_SELCHANGED, &TestTreeView::OnSelChanged)
    ON_COMMAND(ID_TEST_ACT, &TestTreeView::OnAct)
END_MESSAGE_MAP()

class TestListView : public CListView
{
    DECLARE_DYNCREATE(TestListView)

public:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        cs.style |= LVS_REPORT | LVS_SHAREIMAGELISTS;
        return CListView::PreCreateWindow(cs);
    }
    void OnInitialUpdate() override
    {
        CListView::OnInitialUpdate();
        CListCtrl& list = GetListCtrl();
        list.InsertColumn(0, L"Tree", LVCFMT_LEFT, 100);
        for (const LPCTSTR name : {L"Oak", L"Elm", L"Ash"})
            list.InsertItem(list.GetItemCount(), name);
    }
    using CListView::RemoveImageList;
};

IMPLEMENT_DYNCREATE(TestListView, CListView)

} // namespace

TEST(TreeView, FillsTheFrameAsATreeControl)
{
    const FrameWith<TestTreeView> frame;
    TestTreeView& view = frame.view();
    EXPECT_EQ(view.GetParentFrame(), &*frame);
    EXPECT_EQ(view.GetTreeCtrl().m_hWnd, view.m_hWnd);
    EXPECT_EQ(view.GetTreeCtrl().GetCount(), 3u);
    EXPECT_EQ(view.GetTreeCtrl().GetItemText(view.ash), L"Ash");
    EXPECT_TRUE(view.GetStyle() & TVS_HASBUTTONS);
    EXPECT_TRUE(view.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_EQ(CWnd::FromHandlePermanent(view.m_hWnd), &view) << "the window's object is the view";
    CRect client;
    frame->GetClientRect(&client);
    EXPECT_EQ(frame->placeOf(view), client);
}

TEST(TreeView, TakesTheUsersKeysAndHearsItsOwnNotifications)
{
    const FrameWith<TestTreeView> frame;
    TestTreeView& view = frame.view();
    present(*frame);
    ASSERT_TRUE(GuiThread::runUntil([&] { return ::GetFocus() == view.m_hWnd; }));
    view.GetTreeCtrl().SelectItem(view.oak);
    const int before = view.selections;
    Robot().key(VK_RIGHT).key(VK_DOWN);
    EXPECT_EQ(view.GetTreeCtrl().GetSelectedItem(), view.ash) << "opened, and gone into";
    EXPECT_GT(view.selections, before);
    CRect elm;
    view.GetTreeCtrl().GetItemRect(view.elm, &elm, TRUE);
    Robot().click(Spot(view, elm.CenterPoint()));
    EXPECT_EQ(view.GetTreeCtrl().GetSelectedItem(), view.elm);
}

TEST(TreeView, GetsTheFramesCommandsFirst)
{
    const FrameWith<TestTreeView> frame;
    frame->SendMessage(WM_COMMAND, ID_TEST_ACT);
    EXPECT_EQ(frame.view().acted, 1);
    EXPECT_EQ(frame->acted, 0);
    present(*frame);
    Robot().key(VK_F6); // the frame's accelerator
    EXPECT_EQ(frame.view().acted, 2);
    frame->SetActiveView(nullptr);
    frame->SendMessage(WM_COMMAND, ID_TEST_ACT);
    EXPECT_EQ(frame->acted, 1) << "without an active view";
}

TEST(ListView, FillsTheFrameAsAListControl)
{
    const FrameWith<TestListView> frame;
    CListCtrl& list = frame.view().GetListCtrl();
    EXPECT_EQ(list.GetItemCount(), 3);
    EXPECT_EQ(list.GetItemText(1, 0), L"Elm");
    EXPECT_EQ(list.GetStyle() & LVS_TYPEMASK, DWORD{LVS_REPORT});
    present(*frame);
    CRect row;
    list.GetItemRect(2, &row, LVIR_LABEL);
    Robot().click(Spot(list, row.CenterPoint()));
    EXPECT_EQ(list.GetItemState(2, LVIS_SELECTED), UINT{LVIS_SELECTED});
}

TEST(ListView, LetsGoOfAnImageList)
{
    const FrameWith<TestListView> frame;
    CImageList images;
    images.Create(16, 16, ILC_COLOR32, 1, 1);
    frame.view().GetListCtrl().SetImageList(&images, LVSIL_SMALL);
    EXPECT_EQ(frame.view().GetListCtrl().GetImageList(LVSIL_SMALL)->GetSafeHandle(), images.GetSafeHandle());
    frame.view().RemoveImageList(LVSIL_SMALL);
    EXPECT_EQ(frame.view().GetListCtrl().GetImageList(LVSIL_SMALL), nullptr);
}

TEST(ControlView, PaintsItself)
{
    const FrameWith<TestListView> frame;
    present(*frame);
    CListCtrl& list = frame.view().GetListCtrl();
    list.SetBkColor(RGB(200, 0, 0));
    list.Invalidate();
    list.UpdateWindow();
    CRect client;
    list.GetClientRect(&client);
    EXPECT_TRUE(GuiThread::runUntil(
        [&] { return CClientDC(&list).GetPixel(client.right - 5, client.bottom - 5) == RGB(200, 0, 0); }));
}

TEST(ControlView, GoesWithItsFrame)
{
    const WindowCounter windows;
    for (int i = 0; i < 5; ++i) {
        const FrameWith<TestTreeView> tree;
        const FrameWith<TestListView> list;
    }
    EXPECT_EQ(windows.grown(), 0);
}
