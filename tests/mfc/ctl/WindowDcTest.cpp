// Contexts of windows: fetched, painted with, given back.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/GdiCounter.h>
#include <testkit/GuiThread.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>

using namespace ovo::testkit;

namespace
{

/// A child window that paints itself in one colour, and takes down what it was asked to paint.
class PaintedWindow : public CWnd
{
public:
    BOOL create(CWnd& parent)
    {
        return Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 10, 60, 60),
                      &parent, 7);
    }

    CRect painted;
    int paints = 0;
    CWnd* windowOfDc = nullptr;

protected:
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        ++paints;
        painted = dc.m_ps.rcPaint;
        windowOfDc = dc.GetWindow();
        dc.FillSolidRect(&dc.m_ps.rcPaint, RGB(255, 0, 0));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PaintedWindow, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

} // namespace

TEST(PaintDc, KnowsTheAreaAndValidatesTheWindow)
{
    RecordingParent parent;
    PaintedWindow window;
    ASSERT_TRUE(window.create(parent));
    present(parent);
    window.paints = 0;

    window.InvalidateRect(CRect(5, 6, 20, 21));
    window.UpdateWindow();

    EXPECT_EQ(window.paints, 1);
    EXPECT_EQ(window.painted, CRect(5, 6, 20, 21));
    EXPECT_EQ(window.windowOfDc, &window);
    EXPECT_FALSE(window.GetUpdateRect(nullptr)) << "the end of painting validates";
    EXPECT_THAT(Picture::ofClient(window).at(10, 10), IsColour(RGB(255, 0, 0)));
    window.UpdateWindow();
    EXPECT_EQ(window.paints, 1);
}

TEST(PaintDc, ThrowsWhenThereIsNoWindow)
{
    CWnd none;
    try {
        CPaintDC dc(&none);
        FAIL() << "painting began";
    } catch (CResourceException* exception) {
        exception->Delete();
    }
}

TEST(ClientDc, DrawsOnTheClientAreaAndIsGivenBack)
{
    RecordingParent parent;
    present(parent);
    const GdiCounter counter;
    {
        CClientDC dc(&parent);
        EXPECT_EQ(dc.GetWindow(), &parent);
        dc.FillSolidRect(CRect(0, 0, 5, 5), RGB(0, 0, 255));
    }
    EXPECT_THAT(Picture::ofClient(parent).at(2, 2), IsColour(RGB(0, 0, 255)));
    for (int i = 0; i < 200; ++i)
        CClientDC dc(&parent);
    EXPECT_LE(counter.grown(), 1) << "the system may keep one at hand";
}

TEST(WindowDc, CoversTheFrame)
{
    RecordingParent parent;
    present(parent);
    CRect frame;
    parent.GetWindowRect(&frame);
    CRect client;
    parent.GetClientRect(&client);

    CWindowDC dc(&parent);
    CRect box;
    dc.GetClipBox(&box);

    EXPECT_EQ(dc.GetWindow(), &parent);
    EXPECT_EQ(box.Size(), frame.Size());
    EXPECT_GT(box.Height(), client.Height());
}

TEST(ClientDc, OfNoWindowIsTheScreen)
{
    CClientDC client(nullptr);
    CWindowDC window(nullptr);

    EXPECT_EQ(client.GetDeviceCaps(HORZRES), ::GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(window.GetDeviceCaps(VERTRES), ::GetSystemMetrics(SM_CYSCREEN));
}

TEST(ClientDc, AWindowsContextsAreFoundByTheirHandles)
{
    CClientDC dc(nullptr);

    EXPECT_EQ(CDC::FromHandle(dc), &dc);
}

TEST(ClientDc, ScrollingMovesPixelsAndTellsWhatIsUncovered)
{
    RecordingParent parent;
    present(parent);
    CClientDC dc(&parent);
    dc.FillSolidRect(CRect(0, 0, 10, 40), RGB(255, 0, 0));
    const CRect area(0, 0, 40, 40);
    CRgn uncovered;
    uncovered.CreateRectRgn(0, 0, 0, 0);
    CRect box;

    EXPECT_TRUE(dc.ScrollDC(10, 0, area, area, &uncovered, &box));

    EXPECT_EQ(dc.GetPixel(15, 20), RGB(255, 0, 0));
    EXPECT_TRUE(box == CRect(0, 0, 10, 40));
    EXPECT_TRUE(uncovered.PtInRegion(5, 5));
}
