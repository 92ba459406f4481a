// Bitmaps: made, loaded along the resource chain, read and written.
#include "resource.h"

#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Picture.h>

#include <commctrl.h>

TEST(Bitmap, LoadsAlongTheResourceChain)
{
    CBitmap bitmap;
    BITMAP description{};

    ASSERT_TRUE(bitmap.LoadBitmap(IDB_SQUARES));
    EXPECT_NE(bitmap.GetBitmap(&description), 0);
    EXPECT_EQ(description.bmWidth, 12);
    EXPECT_EQ(description.bmHeight, 4);

    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap* former = dc.SelectObject(&bitmap);
    EXPECT_EQ(dc.GetPixel(1, 1), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(5, 1), RGB(0, 255, 0));
    EXPECT_EQ(dc.GetPixel(9, 1), RGB(0, 0, 255));
    dc.SelectObject(former);
}

TEST(Bitmap, LoadingWhatIsNotThereFailsAndLeavesTheObjectFree)
{
    CBitmap bitmap;

    EXPECT_FALSE(bitmap.LoadBitmap(IDB_NONE));
    EXPECT_FALSE(bitmap.LoadBitmap(L"NoSuchBitmap"));
    EXPECT_EQ(bitmap.m_hObject, nullptr);
    EXPECT_TRUE(bitmap.LoadBitmap(MAKEINTRESOURCE(IDB_SQUARES)));
}

TEST(Bitmap, AMappedBitmapHasItsColoursReplaced)
{
    COLORMAP map{RGB(255, 0, 0), RGB(1, 2, 3)};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadMappedBitmap(IDB_SQUARES, 0, &map, 1));

    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap* former = dc.SelectObject(&bitmap);
    EXPECT_EQ(dc.GetPixel(1, 1), RGB(1, 2, 3));
    EXPECT_EQ(dc.GetPixel(9, 1), RGB(0, 0, 255));
    dc.SelectObject(former);
}

TEST(Bitmap, ACompatibleBitmapHasTheContextsDepth)
{
    CClientDC screen(nullptr);
    CBitmap bitmap;
    BITMAP description{};

    EXPECT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 30, 20));
    bitmap.GetBitmap(&description);

    EXPECT_EQ(description.bmWidth, 30);
    EXPECT_EQ(description.bmHeight, 20);
    EXPECT_EQ(description.bmBitsPixel, screen.GetDeviceCaps(BITSPIXEL));
}

TEST(Bitmap, BitsGoInAndComeOut)
{
    const WORD rows[] = {0x0180, 0x0140};
    WORD got[2]{};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(16, 2, 1, 1, nullptr));

    EXPECT_EQ(bitmap.SetBitmapBits(sizeof rows, rows), sizeof rows);
    EXPECT_EQ(bitmap.GetBitmapBits(sizeof got, got), sizeof got);

    EXPECT_EQ(got[0], rows[0]);
    EXPECT_EQ(got[1], rows[1]);
}

TEST(Bitmap, CreateBitmapIndirectFollowsTheDescription)
{
    BITMAP wanted{0, 5, 3, 2, 1, 1, nullptr};
    BITMAP got{};
    CBitmap bitmap;

    EXPECT_TRUE(bitmap.CreateBitmapIndirect(&wanted));
    bitmap.GetBitmap(&got);
    EXPECT_EQ(got.bmWidth, 5);
    EXPECT_EQ(got.bmHeight, 3);
}

TEST(Bitmap, TheDimensionIsTheCallersOwn)
{
    CBitmap bitmap;
    bitmap.CreateBitmap(1, 1, 1, 1, nullptr);

    EXPECT_EQ(bitmap.SetBitmapDimension(30, 40), CSize(0, 0));
    EXPECT_EQ(bitmap.SetBitmapDimension(1, 2), CSize(30, 40));
    EXPECT_EQ(bitmap.GetBitmapDimension(), CSize(1, 2));
}
