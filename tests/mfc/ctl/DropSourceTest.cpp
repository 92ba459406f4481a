// COleDropSource: when a drag begins and ends.
#include <afxole.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/GuiThread.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

using namespace ovo::testkit;

namespace
{

/// Starts a drag at every press, and notes whether it began. No drag follows.
class Pressed : public RecordingParent
{
public:
    class Source : public COleDropSource
    {
    public:
        int asked = 0;
        BOOL began = FALSE;
        CWnd* window = nullptr;

        BOOL OnBeginDrag(CWnd* wnd) override
        {
            ++asked;
            window = wnd;
            began = COleDropSource::OnBeginDrag(wnd);
            return FALSE;
        }
    } source;
    CRect startRect{0, 0, 0, 0};
    bool usesRect = false;
    HWND captureAfter = nullptr;

protected:
    afx_msg void OnLButtonDown(UINT, CPoint)
    {
        SetCapture();
        COleDataSource data;
        EXPECT_EQ(data.DoDragDrop(DROPEFFECT_COPY, usesRect ? &startRect : nullptr, &source),
                  static_cast<DROPEFFECT>(DROPEFFECT_NONE));
        captureAfter = ::GetCapture();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Pressed, RecordingParent)
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

} // namespace

TEST(DropSource, WithoutAStartEveryReleaseCancels)
{
    COleDropSource source;

    EXPECT_EQ(source.QueryContinueDrag(FALSE, MK_LBUTTON), S_OK);
    EXPECT_EQ(source.QueryContinueDrag(FALSE, 0), DRAGDROP_S_CANCEL);
    EXPECT_EQ(source.QueryContinueDrag(TRUE, MK_LBUTTON), DRAGDROP_S_CANCEL) << "Escape";
    EXPECT_EQ(source.QueryContinueDrag(FALSE, MK_LBUTTON | MK_RBUTTON), DRAGDROP_S_CANCEL)
        << "the other button";
    EXPECT_EQ(source.GiveFeedback(DROPEFFECT_COPY), S_OK) << "no drag, no pointer";
}

TEST(DropSource, AskedThroughItsInterfaceItIsTheSame)
{
    COleDropSource source;
    auto* part = static_cast<IDropSource*>(source.GetInterface(&IID_IDropSource));

    ASSERT_NE(part, nullptr);
    EXPECT_EQ(part->QueryContinueDrag(FALSE, MK_LBUTTON), S_OK);
    EXPECT_EQ(part->QueryContinueDrag(TRUE, MK_LBUTTON), DRAGDROP_S_CANCEL);
    EXPECT_EQ(part->AddRef(), 2u);
    EXPECT_EQ(part->Release(), 1u);
}

TEST(DropSource, NoDragBeginsWithoutAButton)
{
    RecordingParent window;
    COleDropSource source;

    EXPECT_FALSE(source.OnBeginDrag(&window));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(DropSource, LeavingTheStartRectangleBeginsTheDrag)
{
    Pressed window;
    present(window);

    Robot().press(Spot(window, CPoint(100, 100))).moveBy(30, 0).waitFor("the drag", [&] {
        return window.source.asked == 1;
    });

    EXPECT_TRUE(window.source.began);
    EXPECT_EQ(window.source.window, &window);
    EXPECT_EQ(window.captureAfter, nullptr) << "the mouse is free again";
}

TEST(DropSource, ReleasingInsideTheStartRectangleIsAClick)
{
    Pressed window;
    present(window);
    window.usesRect = true;
    window.startRect = CRect(50, 50, 200, 200);
    window.ClientToScreen(&window.startRect);

    // A button that is held for longer begins a drag, and a hand may be slow.
    ::WriteProfileStringW(L"windows", L"DragDelay", L"20000");

    Robot().click(Spot(window, CPoint(100, 100)));

    EXPECT_EQ(window.source.asked, 1);
    EXPECT_FALSE(window.source.began);
    ::WriteProfileStringW(L"windows", L"DragDelay", nullptr);
}

TEST(DropSource, MovingInsideTheStartRectangleIsNoDragUntilItIsLeft)
{
    Pressed window;
    present(window);
    window.usesRect = true;
    window.startRect = CRect(50, 50, 200, 200);
    window.ClientToScreen(&window.startRect);
    // Long enough that only the movement can begin it.
    ::WriteProfileStringW(L"windows", L"DragDelay", L"20000");

    Robot().press(Spot(window, CPoint(100, 100))).moveBy(40, 40).release();
    EXPECT_EQ(window.source.asked, 1);
    EXPECT_FALSE(window.source.began);

    Robot().press(Spot(window, CPoint(100, 100))).moveBy(150, 0).release();
    EXPECT_EQ(window.source.asked, 2);
    EXPECT_TRUE(window.source.began);
    ::WriteProfileStringW(L"windows", L"DragDelay", nullptr);
}

TEST(DropSource, WaitingLongEnoughBeginsTheDrag)
{
    Pressed window;
    present(window);
    window.usesRect = true;
    window.startRect = CRect(50, 50, 200, 200);
    window.ClientToScreen(&window.startRect);

    Robot()
        .press(Spot(window, CPoint(100, 100)))
        .waitFor("the drag", [&] { return window.source.began; })
        .release();

    EXPECT_TRUE(window.source.began);
}

TEST(DropSource, EscapeOrTheOtherButtonEndTheWaiting)
{
    Pressed window;
    present(window);
    window.usesRect = true;
    window.startRect = CRect(50, 50, 200, 200);
    window.ClientToScreen(&window.startRect);
    ::WriteProfileStringW(L"windows", L"DragDelay", L"20000");

    Robot().press(Spot(window, CPoint(100, 100))).key(VK_ESCAPE).release();
    EXPECT_EQ(window.source.asked, 1);
    EXPECT_FALSE(window.source.began);

    Robot()
        .press(Spot(window, CPoint(100, 100)))
        .click(Spot(window, CPoint(100, 100)), Button::Right)
        .release();
    EXPECT_EQ(window.source.asked, 2);
    EXPECT_FALSE(window.source.began);
    ::WriteProfileStringW(L"windows", L"DragDelay", nullptr);
}
