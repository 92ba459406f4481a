// Image lists.
#include "resource.h"

#include <afxcmn.h>
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

/// Three pictures of 4 by 4 pixels: red, green, blue.
struct Squares : CImageList
{
    Squares()
    {
        Create(4, 4, ILC_COLORDDB, 3, 1); // as deep as the screen
        CBitmap bitmap;
        bitmap.LoadBitmap(IDB_SQUARES);
        Add(&bitmap, static_cast<CBitmap*>(nullptr));
    }
};

/// A bitmap of 4 by 4 pixels in one colour.
void makeBitmap(CBitmap& bitmap, COLORREF colour)
{
    CClientDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    bitmap.CreateCompatibleBitmap(&screen, 4, 4);
    CBitmap* former = dc.SelectObject(&bitmap);
    dc.FillSolidRect(CRect(0, 0, 4, 4), colour);
    dc.SelectObject(former);
}

COLORREF colourOf(CImageList& list, int image)
{
    Picture picture(4, 4, RGB(1, 1, 1));
    list.Draw(CDC::FromHandle(picture.dc()), image, CPoint(0, 0), ILD_NORMAL);
    return picture.at(2, 2);
}

} // namespace

TEST(ImageList, FromHandleKnowsAttachedAndForeignLists)
{
    Squares list;
    EXPECT_EQ(CImageList::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CImageList::FromHandlePermanent(nullptr), nullptr);
    EXPECT_EQ(CImageList::FromHandle(list), &list);
    EXPECT_EQ(CImageList::FromHandlePermanent(list), &list);

    const HIMAGELIST foreign = ::ImageList_Create(4, 4, ILC_COLOR, 1, 1);
    EXPECT_EQ(CImageList::FromHandlePermanent(foreign), nullptr);
    CImageList* temporary = CImageList::FromHandle(foreign);
    EXPECT_EQ(CImageList::FromHandle(foreign), temporary);
    EXPECT_EQ(CImageList::FromHandlePermanent(foreign), nullptr);
    CImageList::DeleteTempMap();
    EXPECT_TRUE(::ImageList_Destroy(foreign)) << "a temporary object must not destroy the list";
}

TEST(ImageList, AttachDetachAndDelete)
{
    const HIMAGELIST handle = ::ImageList_Create(4, 4, ILC_COLOR, 1, 1);
    CImageList list;

    EXPECT_FALSE(list.Attach(nullptr));
    EXPECT_TRUE(list.Attach(handle));
    EXPECT_FALSE(list.Attach(handle));
    EXPECT_EQ(list.GetSafeHandle(), handle);
    EXPECT_EQ(list.Detach(), handle);
    EXPECT_EQ(list.m_hImageList, nullptr);
    EXPECT_FALSE(list.DeleteImageList());
    list.Attach(handle);
    EXPECT_TRUE(list.DeleteImageList());
    EXPECT_EQ(CImageList::FromHandlePermanent(handle), nullptr);
}

TEST(ImageList, TheDestructorDestroysTheList)
{
    HIMAGELIST handle = nullptr;
    {
        Squares list;
        handle = list;
        EXPECT_EQ(::ImageList_GetImageCount(handle), 3);
    }
    EXPECT_EQ(CImageList::FromHandlePermanent(handle), nullptr);
    EXPECT_EQ(::ImageList_GetImageCount(handle), 0);
}

TEST(ImageList, TheSafeHandleOfNoObjectIsNull)
{
    CImageList* volatile none = nullptr;

    EXPECT_EQ(none->GetSafeHandle(), nullptr);
}

TEST(ImageList, ComesFromABitmapAlongTheResourceChain)
{
    CImageList list;

    ASSERT_TRUE(list.Create(IDB_SQUARES, 4, 1, CLR_NONE));
    EXPECT_EQ(list.GetImageCount(), 3);
    EXPECT_THAT(colourOf(list, 0), IsColour(kRed));
    EXPECT_THAT(colourOf(list, 2), IsColour(kBlue));
    EXPECT_FALSE(CImageList().Create(IDB_NONE, 4, 1, CLR_NONE));
}

TEST(ImageList, AMaskColourIsTransparent)
{
    CImageList list;

    ASSERT_TRUE(list.Create(MAKEINTRESOURCE(IDB_SQUARES), 4, 1, kGreen));
    EXPECT_THAT(colourOf(list, 0), IsColour(kRed));
    EXPECT_THAT(colourOf(list, 1), IsColour(RGB(1, 1, 1))) << "what was there shows through";
}

TEST(ImageList, PicturesAreAddedRemovedAndReplaced)
{
    Squares list;
    CBitmap bitmap;
    bitmap.LoadBitmap(IDB_SQUARES);
    CBitmap red;
    makeBitmap(red, kRed);

    EXPECT_EQ(list.Add(&bitmap, CLR_NONE), 3);
    EXPECT_EQ(list.GetImageCount(), 6);
    EXPECT_TRUE(list.Remove(0));
    EXPECT_THAT(colourOf(list, 0), IsColour(kGreen));
    EXPECT_TRUE(list.Replace(0, &red, nullptr));
    EXPECT_THAT(colourOf(list, 0), IsColour(kRed));
    EXPECT_EQ(list.Add(::LoadIconW(nullptr, IDI_APPLICATION)), 5);
    EXPECT_EQ(list.Replace(0, ::LoadIconW(nullptr, IDI_WARNING)), 0);
    EXPECT_TRUE(list.Remove(-1));
    EXPECT_EQ(list.GetImageCount(), 0);
    EXPECT_FALSE(list.Remove(0));
}

TEST(ImageList, CopiesMoveAndSwap)
{
    Squares list;

    EXPECT_TRUE(list.Copy(1, 2));
    EXPECT_THAT(colourOf(list, 1), IsColour(kBlue));
    EXPECT_TRUE(list.Copy(1, &list, 0));
    EXPECT_THAT(colourOf(list, 1), IsColour(kRed));
    // Wine's list loses the other half of a swap.
    EXPECT_TRUE(list.Copy(0, 2, ILCF_SWAP));
    EXPECT_THAT(colourOf(list, 0), IsColour(kBlue));
}

TEST(ImageList, ACopyOfAListIsIndependent)
{
    Squares list;
    CImageList copy;

    EXPECT_TRUE(copy.Create(&list));
    list.Remove(-1);
    EXPECT_EQ(copy.GetImageCount(), 3);
    EXPECT_THAT(colourOf(copy, 1), IsColour(kGreen));
}

TEST(ImageList, TwoPicturesMerge)
{
    Squares list;
    CImageList merged;
    IMAGEINFO info{};

    ASSERT_TRUE(merged.Create(list, 0, list, 2, 2, 0));
    ASSERT_TRUE(merged.GetImageInfo(0, &info));
    EXPECT_EQ(CRect(info.rcImage).Width(), 6);
}

TEST(ImageList, InfoAndIconsComeOut)
{
    Squares list;
    IMAGEINFO info{};

    EXPECT_TRUE(list.GetImageInfo(1, &info));
    EXPECT_EQ(CRect(info.rcImage).Size(), CSize(4, 4));
    EXPECT_FALSE(list.GetImageInfo(3, &info));

    const HICON icon = list.ExtractIcon(0);
    ASSERT_NE(icon, nullptr);
    EXPECT_TRUE(::DestroyIcon(icon)) << "the icon is the caller's";
}

TEST(ImageList, TheBackgroundColourIsKept)
{
    Squares list;

    EXPECT_EQ(list.GetBkColor(), CLR_NONE);
    EXPECT_EQ(list.SetBkColor(kRed), CLR_NONE);
    EXPECT_EQ(list.GetBkColor(), kRed);
}

TEST(ImageList, DrawsScaledToASizeAndWithAnOverlay)
{
    Squares list;
    Picture picture(8, 8);
    CDC* dc = CDC::FromHandle(picture.dc());

    EXPECT_TRUE(list.DrawEx(dc, 1, CPoint(0, 0), CSize(2, 2), CLR_NONE, CLR_NONE, ILD_NORMAL));
    EXPECT_EQ(picture.count(kGreen), 4);
    EXPECT_TRUE(list.SetOverlayImage(2, 1));
    EXPECT_TRUE(list.Draw(dc, 0, CPoint(4, 4), ILD_NORMAL | INDEXTOOVERLAYMASK(1)));
    EXPECT_TRUE(list.DrawIndirect(dc, 0, CPoint(4, 0), CSize(4, 4), CPoint(0, 0)));
    EXPECT_THAT(picture.at(6, 2), IsColour(kRed));
    EXPECT_EQ(picture.count(kRed, 0, CRect(4, 0, 8, 4)), 16);
}

TEST(ImageList, ADragHasAnImageUntilItEnds)
{
    Squares list;
    CPoint position;
    CPoint hotSpot;

    EXPECT_EQ(CImageList::GetDragImage(nullptr, nullptr), nullptr);
    ASSERT_TRUE(list.BeginDrag(0, CPoint(1, 2)));
    CImageList* image = CImageList::GetDragImage(&position, &hotSpot);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(hotSpot, CPoint(1, 2));
    EXPECT_EQ(image->GetImageCount(), 1);
    EXPECT_TRUE(CImageList::DragEnter(nullptr, CPoint(5, 5)));
    EXPECT_TRUE(CImageList::DragMove(CPoint(9, 9)));
    CImageList::GetDragImage(&position, nullptr);
    EXPECT_EQ(position, CPoint(9, 9));
    EXPECT_TRUE(CImageList::DragLeave(nullptr));
    CImageList::EndDrag();
    EXPECT_EQ(CImageList::GetDragImage(nullptr, nullptr), nullptr);
}
