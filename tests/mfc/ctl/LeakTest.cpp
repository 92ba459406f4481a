// Controls made, used and destroyed again and again.
#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/GdiCounter.h>
#include <testkit/GuiThread.h>
#include <testkit/RecordingParent.h>
#include <testkit/WindowCounter.h>

using namespace ovo::testkit;

namespace
{

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE;

template <class Control>
void makeAndDestroy(CWnd& parent)
{
    Control control;
    control.Create(kStyle, CRect(0, 0, 80, 40), &parent, 7);
    CWnd::FromHandle(control)->IsWindowEnabled();
}

void makeAll(CWnd& parent)
{
    makeAndDestroy<CEdit>(parent);
    makeAndDestroy<CListBox>(parent);
    makeAndDestroy<CComboBox>(parent);
    makeAndDestroy<CScrollBar>(parent);
    makeAndDestroy<CTreeCtrl>(parent);
    makeAndDestroy<CListCtrl>(parent);
    makeAndDestroy<CTabCtrl>(parent);
    makeAndDestroy<CSliderCtrl>(parent);
    makeAndDestroy<CHeaderCtrl>(parent);
    makeAndDestroy<CProgressCtrl>(parent);
    makeAndDestroy<CSpinButtonCtrl>(parent);
    makeAndDestroy<CStatusBarCtrl>(parent);
    makeAndDestroy<CToolBarCtrl>(parent);
    CToolTipCtrl tip;
    tip.Create(&parent);
    CImageList images;
    images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 4, 1);
}

} // namespace

TEST(Leaks, ControlsLeaveNoHandlesAndNoWindows)
{
    RecordingParent parent;
    for (int i = 0; i < 5; ++i)
        makeAll(parent); // what is made once for good
    GuiThread::settle();
    const GdiCounter objects;
    const WindowCounter windows;

    for (int i = 0; i < 100; ++i)
        makeAll(parent);
    GuiThread::settle();

    EXPECT_EQ(objects.grown(), 0);
    EXPECT_EQ(windows.grown(), 0);
}
