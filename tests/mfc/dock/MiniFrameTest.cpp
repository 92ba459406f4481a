// Small frames beside a program's frame.
#include "DockScene.h"

#include <testkit/Picture.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;
using namespace docktest;

namespace
{

class NotingMini : public CMiniFrameWnd
{
public:
    bool captionActive = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NCACTIVATE)
            captionActive = wParam != 0;
        return CMiniFrameWnd::WindowProc(message, wParam, lParam);
    }
};

class MiniFrame : public ::testing::Test, protected DockScene
{
protected:
    MiniFrame() { present(); }

    NotingMini* make(DWORD mini)
    {
        auto* made = new NotingMini;
        constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE;
        made->Create(nullptr, L"Mini", kStyle | mini, CRect(300, 250, 420, 330), frame);
        return made;
    }

    static LRESULT hit(const CWnd& wnd, CPoint point)
    {
        return wnd.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y));
    }
};

} // namespace

TEST_F(MiniFrame, HasALowCaptionAndBelongsToTheFrame)
{
    NotingMini* mini = make(0);
    EXPECT_TRUE(mini->GetExStyle() & WS_EX_TOOLWINDOW);
    EXPECT_EQ(::GetWindow(*mini, GW_OWNER), frame->m_hWnd);
    EXPECT_TRUE(mini->IsKindOf(RUNTIME_CLASS(CMiniFrameWnd)));
    EXPECT_EQ(onScreen(*mini), CRect(300, 250, 420, 330));
    CString text;
    mini->GetWindowText(text);
    EXPECT_STREQ(text, L"Mini");
}

TEST_F(MiniFrame, LooksAsActiveAsTheFrameFromTheStart)
{
    ASSERT_EQ(::GetActiveWindow(), frame->m_hWnd);
    frame->FloatControlBar(&one, CPoint(300, 300));
    frame->RecalcLayout();
    const auto caption = [&] {
        const CRect whole = onScreen(*floatOf(one));
        const Picture picture = Picture::ofWindow(*floatOf(one));
        return picture.at(whole.Width() / 2, ::GetSystemMetrics(SM_CYSIZEFRAME) + 4);
    };
    const COLORREF atFirst = caption();
    floatOf(one)->SendMessage(WM_FLOATSTATUS, FS_DEACTIVATE);
    EXPECT_NE(caption(), atFirst);
    floatOf(one)->SendMessage(WM_FLOATSTATUS, FS_ACTIVATE);
    EXPECT_EQ(caption(), atFirst);
}

TEST_F(MiniFrame, CanBeMadeAsSmallAsItsContents)
{
    NotingMini* mini = make(MFS_THICKFRAME);
    EXPECT_TRUE(mini->GetStyle() & WS_THICKFRAME);
    mini->SetWindowPos(nullptr, 0, 0, 40, 40, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(onScreen(*mini).Size(), CSize(40, 40));
}

TEST_F(MiniFrame, ItsBordersDoWhatItsStylesSay)
{
    const CPoint border(301, 300);
    EXPECT_EQ(hit(*make(MFS_THICKFRAME), border), HTLEFT);
    EXPECT_EQ(hit(*make(MFS_THICKFRAME | MFS_MOVEFRAME), border), HTCAPTION);
    EXPECT_EQ(hit(*make(MFS_4THICKFRAME), border), HTBORDER);
}

TEST_F(MiniFrame, LooksAsActiveAsTheFrame)
{
    NotingMini* mini = make(MFS_SYNCACTIVE);
    mini->SetActiveWindow();
    EXPECT_TRUE(mini->captionActive);
    frame->SetActiveWindow();
    EXPECT_TRUE(mini->captionActive) << "the frame and its windows are active together";
    CWnd other;
    other.CreateEx(0, AfxRegisterWndClass(0), L"Other", WS_POPUP | WS_VISIBLE, CRect(0, 0, 50, 50), nullptr,
                   0);
    other.SetActiveWindow();
    EXPECT_FALSE(frame->captionActive);
    other.DestroyWindow();
}

TEST_F(MiniFrame, AFloatingBarAndItsFrameLookActiveTogether)
{
    frame->FloatControlBar(&one, CPoint(300, 300));
    frame->RecalcLayout();
    floatOf(one)->SetActiveWindow();
    EXPECT_TRUE(frame->captionActive);
    CWnd other;
    other.CreateEx(0, AfxRegisterWndClass(0), L"Other", WS_POPUP | WS_VISIBLE, CRect(0, 0, 50, 50), nullptr,
                   0);
    other.SetActiveWindow();
    EXPECT_FALSE(frame->captionActive);
    frame->SetActiveWindow();
    EXPECT_TRUE(frame->captionActive);
    other.DestroyWindow();
}
