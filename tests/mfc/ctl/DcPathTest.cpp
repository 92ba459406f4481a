// Device contexts: curves, transformations, metafiles, and what else is seldom used.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Picture.h>

using ovo::testkit::IsColour;
using ovo::testkit::Picture;

namespace
{

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

class DcPath : public ::testing::Test
{
protected:
    DcPath()
    {
        formerPen = dc.SelectObject(&pen);
        formerBrush = dc.SelectObject(&brush);
    }
    ~DcPath() override
    {
        dc.SelectObject(formerPen);
        dc.SelectObject(formerBrush);
    }

    int ink() const { return 1600 - picture.count(kWhite); }
    void wipe() { dc.PatBlt(0, 0, 40, 40, WHITENESS); }

    Picture picture{40, 40};
    CDC& dc = *CDC::FromHandle(picture.dc());
    CPen pen{PS_SOLID, 1, kRed};
    CBrush brush{kGreen};
    CPen* formerPen = nullptr;
    CBrush* formerBrush = nullptr;
};

} // namespace

TEST_F(DcPath, LinesOfManyPointsAreDrawn)
{
    CPoint points[] = {{0, 0}, {20, 0}, {20, 20}};
    EXPECT_TRUE(dc.Polyline(points, 3));
    EXPECT_EQ(picture.count(kRed), 40);

    wipe();
    dc.MoveTo(0, 0);
    EXPECT_TRUE(dc.PolylineTo(points + 1, 2));
    EXPECT_EQ(picture.count(kRed), 40);
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(20, 20)) << "this one moves";

    wipe();
    CPoint two[] = {{0, 0}, {10, 0}, {0, 20}, {10, 20}};
    const DWORD counts[] = {2, 2};
    EXPECT_TRUE(dc.PolyPolyline(two, counts, 2));
    EXPECT_EQ(picture.count(kRed), 20);
}

TEST_F(DcPath, CurvesAreDrawn)
{
    const CPoint curve[] = {{0, 0}, {0, 30}, {30, 30}, {30, 0}};
    EXPECT_TRUE(dc.PolyBezier(curve, 4));
    EXPECT_GT(ink(), 30);
    wipe();
    dc.MoveTo(0, 0);
    EXPECT_TRUE(dc.PolyBezierTo(curve + 1, 3));
    EXPECT_GT(ink(), 30);
    wipe();
    EXPECT_TRUE(dc.Arc(CRect(0, 0, 30, 30), CPoint(30, 15), CPoint(0, 15)));
    EXPECT_GT(ink(), 20);
    EXPECT_EQ(picture.count(kGreen), 0) << "an arc is not filled";
    wipe();
    EXPECT_TRUE(dc.ArcTo(CRect(0, 0, 30, 30), CPoint(30, 15), CPoint(0, 15)));
    EXPECT_GT(ink(), 20);
    wipe();
    dc.MoveTo(20, 20);
    EXPECT_TRUE(dc.AngleArc(20, 20, 15, 0, 90));
    EXPECT_GT(ink(), 20);
}

TEST_F(DcPath, ClosedShapesAreFilled)
{
    EXPECT_TRUE(dc.Chord(CRect(0, 0, 30, 30), CPoint(30, 15), CPoint(0, 15)));
    EXPECT_GT(picture.count(kGreen), 100);
    wipe();
    EXPECT_TRUE(dc.Pie(CRect(0, 0, 30, 30), CPoint(30, 15), CPoint(15, 0)));
    EXPECT_THAT(picture.at(20, 10), IsColour(kGreen));
    EXPECT_THAT(picture.at(5, 25), IsColour(kWhite));
    wipe();
    EXPECT_TRUE(dc.RoundRect(CRect(0, 0, 30, 30), CPoint(15, 15)));
    EXPECT_THAT(picture.at(0, 0), IsColour(kWhite)) << "the corners are round";
    EXPECT_THAT(picture.at(15, 15), IsColour(kGreen));
    wipe();
    CPoint points[] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {20, 20}, {30, 20}, {30, 30}, {20, 30}};
    int counts[] = {4, 4};
    EXPECT_TRUE(dc.PolyPolygon(points, counts, 2));
    EXPECT_THAT(picture.at(5, 5), IsColour(kGreen));
    EXPECT_THAT(picture.at(25, 25), IsColour(kGreen));
    EXPECT_THAT(picture.at(15, 15), IsColour(kWhite));
}

TEST_F(DcPath, APathIsStrokedWidenedAndClipsTo)
{
    const auto square = [this] {
        dc.BeginPath();
        dc.Rectangle(5, 5, 25, 25);
        dc.EndPath();
    };
    square();
    EXPECT_TRUE(dc.StrokePath());
    EXPECT_GT(picture.count(kRed), 60);
    EXPECT_EQ(picture.count(kGreen), 0);
    wipe();
    square();
    EXPECT_TRUE(dc.StrokeAndFillPath());
    EXPECT_GT(picture.count(kGreen), 300);
    wipe();
    square();
    EXPECT_TRUE(dc.FlattenPath());
    EXPECT_TRUE(dc.SelectClipPath(RGN_COPY));
    dc.FillSolidRect(CRect(0, 0, 40, 40), kRed);
    EXPECT_THAT(picture.at(2, 2), IsColour(kWhite));
    EXPECT_THAT(picture.at(15, 15), IsColour(kRed));
    dc.SelectClipRgn(nullptr);
    square();
    EXPECT_TRUE(dc.AbortPath());
    EXPECT_FALSE(dc.StrokePath()) << "there is none";
    EXPECT_TRUE(dc.SetMiterLimit(4.0f));
    EXPECT_FLOAT_EQ(dc.GetMiterLimit(), 4.0f);
}

TEST_F(DcPath, ATransformationMovesWhatIsDrawn)
{
    XFORM got{};
    EXPECT_EQ(dc.SetGraphicsMode(GM_ADVANCED), GM_COMPATIBLE);
    EXPECT_EQ(dc.GetGraphicsMode(), GM_ADVANCED);

    EXPECT_TRUE(dc.SetWorldTransform({2, 0, 0, 2, 5, 5}));
    EXPECT_TRUE(dc.GetWorldTransform(got));
    EXPECT_FLOAT_EQ(got.eM11, 2);
    dc.FillSolidRect(CRect(0, 0, 5, 5), kRed);
    EXPECT_EQ(picture.count(kRed), 100);
    EXPECT_THAT(picture.at(5, 5), IsColour(kRed));
    EXPECT_TRUE(dc.ModifyWorldTransform({1, 0, 0, 1, 0, 0}, MWT_IDENTITY));
    CPoint point(3, 4);
    dc.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(3, 4));
    dc.SetGraphicsMode(GM_COMPATIBLE);
}

TEST_F(DcPath, OriginsAndExtentsAreMovedAndScaled)
{
    EXPECT_EQ(dc.SetWindowOrg(3, 4), CPoint(0, 0));
    EXPECT_EQ(dc.OffsetWindowOrg(1, 1), CPoint(3, 4));
    EXPECT_EQ(dc.GetWindowOrg(), CPoint(4, 5));
    dc.SetWindowOrg(CPoint(0, 0));
    EXPECT_EQ(dc.OffsetViewportOrg(7, 8), CPoint(0, 0));
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(7, 8));
    dc.SetViewportOrg(CPoint(0, 0));
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(CSize(10, 10));
    dc.SetViewportExt(10, 10);
    EXPECT_EQ(dc.ScaleViewportExt(3, 1, 2, 1), CSize(10, 10));
    EXPECT_EQ(dc.GetViewportExt(), CSize(30, 20));
    EXPECT_EQ(dc.ScaleWindowExt(2, 1, 2, 1), CSize(10, 10));
    EXPECT_EQ(dc.GetWindowExt(), CSize(20, 20));
    CSize size(2540, 2540);
    dc.HIMETRICtoLP(&size);
    EXPECT_EQ(size.cx, ::MulDiv(dc.GetDeviceCaps(LOGPIXELSX), 20, 30));
}

TEST_F(DcPath, AMetafileIsRecordedAndPlayed)
{
    const BYTE comment[] = {1, 2, 3};
    CDC recorder;
    recorder.Attach(::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr));
    EXPECT_TRUE(recorder.AddMetaFileComment(sizeof comment, comment));
    recorder.SelectObject(&brush);
    recorder.Rectangle(0, 0, 20, 20);
    const HENHMETAFILE metafile = ::CloseEnhMetaFile(recorder.Detach());

    EXPECT_TRUE(dc.PlayMetaFile(metafile, CRect(0, 0, 39, 39)));

    EXPECT_GT(picture.count(kGreen), 400);
    ::DeleteEnhMetaFile(metafile);
}

TEST_F(DcPath, TheContextsOwnColoursAndTools)
{
    dc.SelectStockObject(DC_BRUSH);
    dc.SelectStockObject(DC_PEN);
    dc.SetDCBrushColor(RGB(1, 2, 3));
    EXPECT_EQ(dc.SetDCBrushColor(RGB(4, 5, 6)), RGB(1, 2, 3));
    EXPECT_EQ(dc.GetDCBrushColor(), RGB(4, 5, 6));
    dc.SetDCPenColor(RGB(7, 8, 9));
    EXPECT_EQ(dc.GetDCPenColor(), RGB(7, 8, 9));
    dc.Rectangle(0, 0, 10, 10);
    EXPECT_EQ(picture.count(RGB(4, 5, 6)), 64);
    EXPECT_EQ(picture.count(RGB(7, 8, 9)), 36);
    dc.SelectObject(&pen);
    dc.SelectObject(&brush);
    EXPECT_NE(dc.GetCurrentFont(), nullptr);
    EXPECT_NE(dc.GetCurrentPalette(), nullptr);
    EXPECT_EQ(dc.GetNearestColor(kRed), kRed);
}

TEST_F(DcPath, AMaskKeepsTheSourceOut)
{
    Picture source(8, 8, kRed);
    const WORD rows[] = {0x00F0, 0x00F0, 0x00F0, 0x00F0, 0x00F0, 0x00F0, 0x00F0, 0x00F0};
    CBitmap mask;
    mask.CreateBitmap(8, 8, 1, 1, rows);

    EXPECT_TRUE(dc.MaskBlt(0, 0, 8, 8, CDC::FromHandle(source.dc()), 0, 0, mask, 0, 0,
                           MAKEROP4(SRCCOPY, 0x00AA0029)));

    EXPECT_EQ(picture.count(kRed), 32);
}

TEST_F(DcPath, RegionsArePaintedWithTheBrush)
{
    CRgn region;
    region.CreateRectRgn(0, 0, 5, 5);

    EXPECT_TRUE(dc.PaintRgn(&region));
    EXPECT_EQ(picture.count(kGreen), 25);
}

TEST_F(DcPath, ALayoutIsKeptForTheContext)
{
    EXPECT_EQ(dc.GetLayout(), 0u);
    EXPECT_EQ(dc.SetLayout(LAYOUT_RTL), 0u);
    EXPECT_EQ(dc.GetLayout(), static_cast<DWORD>(LAYOUT_RTL));
    dc.SetLayout(0);
}
