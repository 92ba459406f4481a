// Header controls.
#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/RecordingParent.h>

using ovo::testkit::RecordingParent;

namespace
{

struct HeaderCtrlTest : ::testing::Test
{
    HeaderCtrlTest()
    {
        header.Create(WS_CHILD | WS_VISIBLE | HDS_HORZ, CRect(0, 0, 300, 20), &parent, 7);
        add(L"One", 50);
        add(L"Two", 70);
        add(L"Three", 90);
    }
    int add(const wchar_t* text, int width)
    {
        HDITEM item{};
        item.mask = HDI_TEXT | HDI_WIDTH;
        item.pszText = const_cast<LPWSTR>(text);
        item.cxy = width;
        return header.InsertItem(header.GetItemCount(), &item);
    }

    RecordingParent parent;
    CHeaderCtrl header;
};

} // namespace

TEST_F(HeaderCtrlTest, ItemsGoInComeOutAndGo)
{
    HDITEM item{};
    wchar_t text[20]{};
    item.mask = HDI_TEXT | HDI_WIDTH;
    item.pszText = text;
    item.cchTextMax = 20;

    EXPECT_EQ(header.GetItemCount(), 3);
    ASSERT_TRUE(header.GetItem(1, &item));
    EXPECT_STREQ(text, L"Two");
    EXPECT_EQ(item.cxy, 70);
    item.mask = HDI_WIDTH;
    item.cxy = 75;
    EXPECT_TRUE(header.SetItem(1, &item));
    CRect rect;
    EXPECT_TRUE(header.GetItemRect(1, &rect));
    EXPECT_EQ(rect.left, 50);
    EXPECT_EQ(rect.Width(), 75);
    EXPECT_TRUE(header.DeleteItem(0));
    EXPECT_EQ(header.GetItemCount(), 2);
}

TEST_F(HeaderCtrlTest, TheOrderCanBeChanged)
{
    int order[] = {2, 0, 1};
    int got[3]{};

    EXPECT_TRUE(header.SetOrderArray(3, order));
    EXPECT_TRUE(header.GetOrderArray(got, 3));
    EXPECT_EQ(got[0], 2);
    EXPECT_EQ(header.OrderToIndex(0), 2);
}

TEST_F(HeaderCtrlTest, APointFindsItsItem)
{
    HDHITTESTINFO info{};
    info.pt = CPoint(60, 10);

    EXPECT_EQ(header.HitTest(&info), 1);
    EXPECT_EQ(info.flags, static_cast<UINT>(HHT_ONHEADER));
}

TEST_F(HeaderCtrlTest, LayoutSaysWhereItBelongs)
{
    CRect area(0, 0, 200, 100);
    WINDOWPOS place{};
    HDLAYOUT layout{&area, &place};

    EXPECT_TRUE(header.Layout(&layout));
    EXPECT_EQ(place.cx, 200);
    EXPECT_GT(area.top, 0) << "the rest is for the rows";
    EXPECT_EQ(area.top, place.cy);
}

TEST_F(HeaderCtrlTest, MarginsAndListsAreKept)
{
    CImageList images;
    images.Create(4, 4, ILC_COLOR24, 1, 1);

    header.SetBitmapMargin(11);
    EXPECT_EQ(header.GetBitmapMargin(), 11);
    EXPECT_EQ(header.SetBitmapMargin(5), 11);
    EXPECT_EQ(header.SetImageList(&images), nullptr);
    EXPECT_EQ(header.GetImageList(), &images);
    EXPECT_EQ(header.SetImageList(nullptr), &images);
}

TEST_F(HeaderCtrlTest, ADragImageIsATemporaryObject)
{
    CImageList* const image = header.CreateDragImage(1);

    ASSERT_TRUE(image);
    const HIMAGELIST list = image->m_hImageList;
    EXPECT_EQ(image->GetImageCount(), 1);
    EXPECT_EQ(CImageList::FromHandlePermanent(list), nullptr) << "nobody has to delete the object";
    EXPECT_EQ(CImageList::FromHandle(list), image);
    EXPECT_TRUE(image->DeleteImageList());
}
