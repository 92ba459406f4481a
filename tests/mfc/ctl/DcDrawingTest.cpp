// Device contexts: shapes, fills and pictures, looked at pixel by pixel.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Picture.h>

using ovo::testkit::IsColour;
using ovo::testkit::Picture;

namespace
{

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kWhite = RGB(255, 255, 255);

class DcDrawing : public ::testing::Test
{
protected:
    Picture picture{40, 40};
    CDC& dc = *CDC::FromHandle(picture.dc());
};

} // namespace

TEST_F(DcDrawing, FillRectUsesTheBrushAndLeavesTheRest)
{
    CBrush brush(kRed);

    dc.FillRect(CRect(5, 5, 15, 10), &brush);

    EXPECT_EQ(picture.count(kRed), 50);
    EXPECT_THAT(picture.at(15, 5), IsColour(kWhite));
    EXPECT_THAT(picture.at(14, 9), IsColour(kRed));
}

TEST_F(DcDrawing, FillSolidRectChangesTheBackgroundColour)
{
    dc.FillSolidRect(2, 3, 4, 5, kGreen);
    EXPECT_EQ(picture.count(kGreen), 20);
    EXPECT_EQ(dc.GetBkColor(), kGreen);
}

TEST_F(DcDrawing, FillSolidRectIsExactInAMirroredDeviceContext)
{
    const DWORD before = dc.SetLayout(LAYOUT_RTL);
    dc.FillSolidRect(0, 0, 3, 2, kGreen);
    dc.SetLayout(before);
    EXPECT_EQ(picture.count(kGreen), 6);
    EXPECT_EQ(picture.count(kGreen, 0, CRect(picture.width() - 3, 0, picture.width(), 2)), 6);
}

TEST_F(DcDrawing, FrameRectIsOnePixelWide)
{
    CBrush brush(kBlue);

    dc.FrameRect(CRect(0, 0, 10, 10), &brush);

    EXPECT_EQ(picture.count(kBlue), 36);
    EXPECT_THAT(picture.at(1, 1), IsColour(kWhite));
}

TEST_F(DcDrawing, InvertRectTwiceChangesNothing)
{
    dc.InvertRect(CRect(0, 0, 10, 10));
    EXPECT_EQ(picture.count(RGB(0, 0, 0)), 100);
    dc.InvertRect(CRect(0, 0, 10, 10));
    EXPECT_EQ(picture.count(kWhite), 1600);
}

TEST_F(DcDrawing, ARaisedFrameHasTwoColoursAndTheLowerOneGetsTheCorners)
{
    dc.Draw3dRect(CRect(10, 10, 20, 16), kRed, kBlue);

    EXPECT_THAT(picture.at(10, 10), IsColour(kRed));
    EXPECT_THAT(picture.at(18, 10), IsColour(kRed));
    EXPECT_THAT(picture.at(19, 10), IsColour(kBlue));
    EXPECT_THAT(picture.at(10, 14), IsColour(kRed));
    EXPECT_THAT(picture.at(10, 15), IsColour(kBlue));
    EXPECT_THAT(picture.at(19, 15), IsColour(kBlue));
    EXPECT_THAT(picture.at(11, 11), IsColour(kWhite));
    EXPECT_EQ(picture.count(kRed) + picture.count(kBlue), 2 * 10 + 2 * 6 - 4);
}

TEST_F(DcDrawing, LinesGoFromThePositionAndMoveIt)
{
    CPen pen(PS_SOLID, 1, kRed);
    CPen* former = dc.SelectObject(&pen);

    dc.MoveTo(5, 5);
    EXPECT_TRUE(dc.LineTo(15, 5));

    EXPECT_EQ(picture.count(kRed), 10) << "the last point is left out";
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(15, 5));
    dc.SelectObject(former);
}

TEST_F(DcDrawing, ShapesAreOutlinedAndFilled)
{
    CPen pen(PS_SOLID, 1, kRed);
    CBrush brush(kGreen);
    CPen* formerPen = dc.SelectObject(&pen);
    CBrush* formerBrush = dc.SelectObject(&brush);

    dc.Rectangle(CRect(0, 0, 10, 10));
    EXPECT_EQ(picture.count(kRed), 36);
    EXPECT_EQ(picture.count(kGreen), 64);

    dc.Ellipse(20, 20, 39, 39);
    EXPECT_THAT(picture.at(29, 29), IsColour(kGreen));
    EXPECT_THAT(picture.at(21, 21), IsColour(kWhite));

    CPoint corners[] = {{0, 20}, {10, 20}, {0, 30}};
    dc.Polygon(corners, 3);
    EXPECT_THAT(picture.at(2, 22), IsColour(kGreen));
    EXPECT_THAT(picture.at(9, 29), IsColour(kWhite));
    dc.SelectObject(formerPen);
    dc.SelectObject(formerBrush);
}

TEST_F(DcDrawing, AnEllipseInXorModeDrawnTwiceIsGone)
{
    dc.FillSolidRect(CRect(0, 0, 40, 20), RGB(40, 90, 200));
    Picture before(40, 40);
    ::BitBlt(before.dc(), 0, 0, 40, 40, picture.dc(), 0, 0, SRCCOPY);
    CPen pen(PS_SOLID, 2, kWhite);
    dc.SelectObject(&pen);
    dc.SelectStockObject(NULL_BRUSH);
    dc.SetROP2(R2_XORPEN);

    dc.Ellipse(CRect(5, 5, 35, 35));
    EXPECT_GT(picture.differences(before), 50);
    dc.Ellipse(CRect(5, 5, 35, 35));

    EXPECT_EQ(picture.differences(before), 0);
    dc.SelectStockObject(BLACK_PEN);
}

TEST_F(DcDrawing, RegionsAreFilledFramedAndInverted)
{
    CRgn region;
    region.CreateRectRgn(0, 0, 10, 10);
    CBrush red(kRed);
    CBrush blue(kBlue);

    dc.FillRgn(&region, &red);
    EXPECT_EQ(picture.count(kRed), 100);
    dc.FrameRgn(&region, &blue, 1, 1);
    EXPECT_EQ(picture.count(kBlue), 36);
    dc.InvertRgn(&region);
    EXPECT_THAT(picture.at(5, 5), IsColour(RGB(0, 255, 255)));
}

TEST_F(DcDrawing, APathIsFilled)
{
    CBrush brush(kGreen);
    CBrush* former = dc.SelectObject(&brush);

    dc.BeginPath();
    dc.MoveTo(0, 0);
    dc.LineTo(20, 0);
    dc.LineTo(20, 20);
    dc.LineTo(0, 20);
    dc.CloseFigure();
    dc.EndPath();
    EXPECT_EQ(dc.GetPath(nullptr, nullptr, 0), 4);
    EXPECT_TRUE(dc.FillPath());

    EXPECT_THAT(picture.at(10, 10), IsColour(kGreen));
    dc.SelectObject(former);
}

TEST_F(DcDrawing, BlitsCopyStretchAndLeaveOutAColour)
{
    Picture source(4, 4, kRed);
    CDC* from = CDC::FromHandle(source.dc());
    from->SetPixel(0, 0, kBlue);

    EXPECT_TRUE(dc.BitBlt(0, 0, 4, 4, from, 0, 0, SRCCOPY));
    EXPECT_THAT(picture.at(0, 0), IsColour(kBlue));
    EXPECT_THAT(picture.at(3, 3), IsColour(kRed));

    EXPECT_TRUE(dc.StretchBlt(10, 0, 8, 8, from, 0, 0, 4, 4, SRCCOPY));
    EXPECT_THAT(picture.at(11, 1), IsColour(kBlue));
    EXPECT_THAT(picture.at(17, 7), IsColour(kRed));

    EXPECT_TRUE(dc.TransparentBlt(20, 20, 4, 4, from, 0, 0, 4, 4, kRed));
    EXPECT_THAT(picture.at(20, 20), IsColour(kBlue));
    EXPECT_THAT(picture.at(22, 22), IsColour(kWhite));

    EXPECT_TRUE(dc.PatBlt(30, 30, 4, 4, BLACKNESS));
    EXPECT_EQ(picture.count(RGB(0, 0, 0)), 16);
}

TEST_F(DcDrawing, AlphaBlendMixes)
{
    Picture source(4, 4, RGB(0, 0, 0));

    EXPECT_TRUE(
        dc.AlphaBlend(0, 0, 4, 4, CDC::FromHandle(source.dc()), 0, 0, 4, 4, {AC_SRC_OVER, 0, 128, 0}));

    EXPECT_THAT(picture.at(1, 1), IsColour(RGB(127, 127, 127), 2));
}

TEST_F(DcDrawing, AGradientGoesFromColourToColour)
{
    TRIVERTEX corners[] = {{0, 0, 0xFF00, 0, 0, 0}, {40, 40, 0, 0, 0xFF00, 0}};
    GRADIENT_RECT mesh{0, 1};

    EXPECT_TRUE(dc.GradientFill(corners, 2, &mesh, 1, GRADIENT_FILL_RECT_H));

    EXPECT_THAT(picture.at(0, 20), IsColour(kRed, 8));
    EXPECT_THAT(picture.at(39, 20), IsColour(kBlue, 8));
}

TEST_F(DcDrawing, PixelsAreSetAndFlooded)
{
    EXPECT_EQ(dc.SetPixel(CPoint(3, 3), kRed), kRed);
    EXPECT_EQ(dc.GetPixel(3, 3), kRed);
    EXPECT_TRUE(dc.SetPixelV(4, 4, kGreen));
    EXPECT_THAT(picture.at(4, 4), IsColour(kGreen));

    CBrush brush(kBlue);
    CBrush* former = dc.SelectObject(&brush);
    EXPECT_TRUE(dc.ExtFloodFill(30, 30, kWhite, FLOODFILLSURFACE));
    EXPECT_EQ(picture.count(kBlue), 1600 - 2);
    dc.SelectObject(former);
}

TEST_F(DcDrawing, ADragRectangleMovesWithoutATrace)
{
    const CSize thickness(2, 2);
    CRect first(2, 2, 20, 20);
    CRect second(10, 10, 30, 30);

    dc.DrawDragRect(first, thickness, nullptr, thickness);
    const int frame = 1600 - picture.count(kWhite);
    EXPECT_GT(frame, 50);
    EXPECT_THAT(picture.at(10, 10), IsColour(kWhite)) << "only the outline is drawn";

    dc.DrawDragRect(second, thickness, first, thickness);
    EXPECT_EQ(picture.count(kWhite, 0, CRect(0, 0, 10, 10)), 100) << "the former outline is erased";
    EXPECT_LT(picture.count(kWhite, 0, CRect(10, 10, 30, 12)), 40);

    dc.DrawDragRect(CRect(0, 0, 0, 0), thickness, second, thickness);
    EXPECT_EQ(picture.count(kWhite), 1600);
}

TEST_F(DcDrawing, TheHalftoneBrushIsAChessBoard)
{
    dc.SetTextColor(RGB(0, 0, 0));
    dc.SetBkColor(kWhite);
    dc.FillRect(CRect(0, 0, 8, 8), CDC::GetHalftoneBrush());

    EXPECT_EQ(picture.count(RGB(0, 0, 0), 0, CRect(0, 0, 8, 8)), 32);
    EXPECT_NE(picture.at(0, 0), picture.at(1, 0));
    EXPECT_EQ(CDC::GetHalftoneBrush()->m_hObject, CDC::GetHalftoneBrush()->m_hObject);
}

TEST_F(DcDrawing, EdgesAndControlsAndFocusAreDrawn)
{
    CRect edge(0, 0, 20, 20);
    EXPECT_TRUE(dc.DrawEdge(edge, EDGE_RAISED, BF_RECT | BF_ADJUST));
    EXPECT_LT(edge.Width(), 20) << "the rectangle shrinks to what is inside";
    EXPECT_TRUE(dc.DrawFrameControl(CRect(20, 20, 36, 36), DFC_BUTTON, DFCS_BUTTONCHECK));
    EXPECT_LT(picture.count(kWhite), 1600);

    Picture other(20, 20);
    CDC* clean = CDC::FromHandle(other.dc());
    clean->DrawFocusRect(CRect(2, 2, 18, 18));
    EXPECT_LT(other.count(kWhite), 400);
    clean->DrawFocusRect(CRect(2, 2, 18, 18));
    EXPECT_EQ(other.count(kWhite), 400);
}

TEST_F(DcDrawing, IconsAndBitmapsAreDrawnInAState)
{
    EXPECT_TRUE(dc.DrawIcon(CPoint(0, 0), ::LoadIconW(nullptr, IDI_WARNING)));
    EXPECT_LT(picture.count(kWhite), 1600);

    Picture canvas(10, 10);
    CDC* target = CDC::FromHandle(canvas.dc());
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(target, 4, 4);
    CDC painter;
    painter.CreateCompatibleDC(target);
    CBitmap* former = painter.SelectObject(&bitmap);
    painter.FillSolidRect(CRect(0, 0, 4, 4), kRed);
    painter.SelectObject(former);
    EXPECT_TRUE(target->DrawState(CPoint(1, 1), CSize(4, 4), &bitmap, DSS_NORMAL));
    EXPECT_EQ(canvas.count(kRed), 16);
}
