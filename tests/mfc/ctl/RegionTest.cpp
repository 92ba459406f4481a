// Regions.
#include <afxwin.h>
#include <gtest/gtest.h>

TEST(Region, ARectangleExcludesItsRightAndBottomEdges)
{
    CRgn region;
    ASSERT_TRUE(region.CreateRectRgn(10, 10, 20, 20));

    EXPECT_TRUE(region.PtInRegion(10, 19));
    EXPECT_FALSE(region.PtInRegion(CPoint(20, 15)));
    EXPECT_TRUE(region.RectInRegion(CRect(19, 19, 40, 40)));
    EXPECT_FALSE(region.RectInRegion(CRect(20, 20, 40, 40)));
}

TEST(Region, CombinesInPlace)
{
    CRgn region;
    CRgn hole;
    region.CreateRectRgnIndirect(CRect(0, 0, 30, 30));
    hole.CreateRectRgnIndirect(CRect(10, 10, 20, 20));

    EXPECT_EQ(region.CombineRgn(&region, &hole, RGN_DIFF), COMPLEXREGION);
    EXPECT_FALSE(region.PtInRegion(15, 15));
    EXPECT_TRUE(region.PtInRegion(5, 5));
}

TEST(Region, CopiesComparesAndMoves)
{
    CRgn source;
    CRgn copy;
    source.CreateEllipticRgn(0, 0, 40, 20);
    copy.CreateRectRgn(0, 0, 1, 1);
    CRect box;

    EXPECT_NE(copy.CopyRgn(&source), ERROR);
    EXPECT_TRUE(copy.EqualRgn(&source));
    copy.OffsetRgn(CPoint(5, 0));
    EXPECT_FALSE(copy.EqualRgn(&source));
    copy.GetRgnBox(&box);
    EXPECT_GE(box.left, 5);
    EXPECT_LE(box.right, 45);
}

TEST(Region, SetRectRgnReplacesTheArea)
{
    CRgn region;
    region.CreateEllipticRgn(0, 0, 50, 50);
    CRect box;

    region.SetRectRgn(CRect(3, 4, 5, 6));
    EXPECT_EQ(region.GetRgnBox(&box), SIMPLEREGION);
    EXPECT_EQ(box, CRect(3, 4, 5, 6));
}

TEST(Region, RoundTripsThroughItsData)
{
    CRgn region;
    CRgn copy;
    CPoint corners[] = {{0, 0}, {20, 0}, {0, 20}};
    ASSERT_TRUE(region.CreatePolygonRgn(corners, 3, ALTERNATE));

    const int size = region.GetRegionData(nullptr, 0);
    ASSERT_GT(size, 0);
    std::vector<BYTE> data(static_cast<std::size_t>(size));
    EXPECT_EQ(region.GetRegionData(reinterpret_cast<LPRGNDATA>(data.data()), size), size);
    EXPECT_TRUE(copy.CreateFromData(nullptr, size, reinterpret_cast<LPRGNDATA>(data.data())));
    EXPECT_TRUE(copy.EqualRgn(&region));
}

TEST(Region, ComesFromAClosedPath)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    dc.BeginPath();
    dc.Rectangle(2, 2, 12, 12);
    dc.EndPath();
    CRgn region;

    EXPECT_TRUE(region.CreateFromPath(&dc));
    EXPECT_TRUE(region.PtInRegion(5, 5));
    EXPECT_FALSE(region.PtInRegion(30, 5));
}
