// The controls of a dialog template in a frame.
#include "TestFrame.h"
#include "resource.h"

#include <afxext.h>

#include <gtest/gtest.h>
#include <testkit/WindowCounter.h>

using namespace ovo::testkit;

namespace
{

class TestFormView : public CFormView
{
    DECLARE_DYNCREATE(TestFormView)

public:
    TestFormView()
        : CFormView(IDD_FORM)
    {
    }

    CString name = L"Oak";
    int acted = 0;
    int clicked = 0;
    int scrolled = 0;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        CFormView::DoDataExchange(exchange);
        DDX_Text(exchange, IDC_NAME, name);
    }
    afx_msg void OnAct() { ++acted; }
    afx_msg void OnClicked() { ++clicked; }
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar)
    {
        scrolled += bar != nullptr;
        CFormView::OnHScroll(code, position, bar);
    }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(TestFormView, CFormView)

BEGIN_MESSAGE_MAP(TestFormView, CFormView)
    ON_COMMAND(ID_TEST_ACT, &TestFormView::OnAct)
    ON_BN_CLICKED(IDC_ACT, &TestFormView::OnClicked)
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

class MissingFormView : public CFormView
{
    DECLARE_DYNCREATE(MissingFormView)

public:
    static inline int s_alive = 0;
    MissingFormView()
        : CFormView(IDD_MISSING)
    {
        ++s_alive;
    }
    ~MissingFormView() override { --s_alive; }
};

IMPLEMENT_DYNCREATE(MissingFormView, CFormView)

class FormViewTest : public ::testing::Test
{
protected:
    FormViewTest()
    {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(TestFormView);
        frame = new TestFrame;
        frame->LoadFrame(IDR_FRAME, WS_OVERLAPPEDWINDOW, nullptr, &context);
        frame->SetWindowPos(nullptr, 20, 20, 500, 400, SWP_NOZORDER | SWP_NOACTIVATE);
        frame->InitialUpdateFrame(nullptr, FALSE);
        view = static_cast<TestFormView*>(frame->GetActiveView());
    }
    ~FormViewTest() override { frame->DestroyWindow(); }

    bool hasFocus(int id) const { return ::GetFocus() == ::GetDlgItem(view->m_hWnd, id); }

    TestFrame* frame;
    TestFormView* view;
};

} // namespace

TEST_F(FormViewTest, ShowsItsMembersInTheControls)
{
    EXPECT_TRUE(view->IsInitDlgCompleted());
    EXPECT_EQ(textIn(*view->GetDlgItem(IDC_NAME)), L"Oak");
    EXPECT_EQ(view->GetDlgCtrlID(), static_cast<int>(AFX_IDW_PANE_FIRST));
    EXPECT_TRUE(view->GetExStyle() & WS_EX_CLIENTEDGE);
    CRect client;
    frame->GetClientRect(&client);
    EXPECT_EQ(frame->placeOf(*view), client);
    view->SetDlgItemText(IDC_NAME, L"Elm");
    EXPECT_TRUE(view->UpdateData());
    EXPECT_EQ(view->name, L"Elm");
}

TEST_F(FormViewTest, AUserWalksThroughItByKeys)
{
    present(*frame);
    ASSERT_TRUE(GuiThread::runUntil([&] { return hasFocus(IDC_NAME); })) << "the first control";
    Robot().type(L"x");
    EXPECT_EQ(textIn(*view->GetDlgItem(IDC_NAME)), L"xOak");
    Robot().key(VK_TAB).waitFor("the next control", [&] { return hasFocus(IDC_ACT); }).key(VK_SPACE);
    EXPECT_EQ(view->clicked, 1);
    Robot().key(VK_F6); // the frame's accelerator
    EXPECT_EQ(view->acted, 1);
    EXPECT_EQ(frame->acted, 0) << "the view was first";
}

TEST_F(FormViewTest, KeepsTheFocusWhileAnotherWindowIsActive)
{
    present(*frame);
    Robot().click(Spot(*view->GetDlgItem(IDC_ACT)));
    ASSERT_TRUE(hasFocus(IDC_ACT));
    TestFrame* const other = TestFrame::make();
    present(*other);
    ASSERT_TRUE(GuiThread::runUntil([&] { return !hasFocus(IDC_ACT); }));
    other->DestroyWindow();
    frame->SetForegroundWindow();
    frame->SetActiveWindow();
    EXPECT_TRUE(GuiThread::runUntil([&] { return hasFocus(IDC_ACT); }));
}

TEST_F(FormViewTest, ScrollsWhenTheFrameIsSmaller)
{
    present(*frame);
    EXPECT_FALSE(view->GetStyle() & (WS_HSCROLL | WS_VSCROLL));
    CRect before;
    view->GetDlgItem(IDC_NAME)->GetWindowRect(&before);
    frame->SetWindowPos(nullptr, 0, 0, 150, 110, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(view->GetStyle() & WS_VSCROLL);
    view->ScrollToPosition(CPoint(0, 15));
    CRect after;
    view->GetDlgItem(IDC_NAME)->GetWindowRect(&after);
    EXPECT_EQ(after.top, before.top - 15) << "the controls go along";
}

TEST_F(FormViewTest, ASliderInItDoesNotScrollIt)
{
    frame->SetWindowPos(nullptr, 0, 0, 150, 110, SWP_NOMOVE | SWP_NOZORDER);
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | SBS_HORZ, CRect(0, 0, 60, 16), view, 90));
    const CPoint position = view->GetScrollPosition();
    view->SendMessage(WM_HSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(bar.m_hWnd));
    EXPECT_EQ(view->scrolled, 1);
    EXPECT_EQ(view->GetScrollPosition(), position);
    view->SendMessage(WM_HSCROLL, SB_LINEDOWN);
    EXPECT_GT(view->GetScrollPosition().x, position.x);
}

TEST(FormView, WithoutItsTemplateIsNotMade)
{
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(MissingFormView);
    const WindowCounter windows;
    const int frames = TestFrame::s_alive;
    EXPECT_FALSE((new TestFrame)->LoadFrame(IDR_FRAME, WS_OVERLAPPEDWINDOW, nullptr, &context));
    EXPECT_EQ(TestFrame::s_alive, frames);
    EXPECT_EQ(MissingFormView::s_alive, 0);
    EXPECT_EQ(windows.grown(), 0);
}
