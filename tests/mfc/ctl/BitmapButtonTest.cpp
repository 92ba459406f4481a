// Buttons that show pictures of their states.
#include <afxext.h>
#include <afxwin.h>

#include "resource.h"

#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/GdiCounter.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

using namespace ovo::testkit;

namespace
{

constexpr COLORREF kReleased = RGB(255, 0, 0);
constexpr COLORREF kPressed = RGB(0, 255, 0);
constexpr COLORREF kFocused = RGB(0, 0, 255);
constexpr COLORREF kDisabled = RGB(192, 192, 192);

struct BitmapButtonTest : ::testing::Test
{
    void create()
    {
        ASSERT_TRUE(button.Create(L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW,
                                  CRect(10, 10, 110, 60), &parent, 7));
    }

    /// The colour in the middle of the picture that the button draws for these states.
    COLORREF drawn(UINT state)
    {
        CClientDC screen(&parent);
        CBitmap canvas;
        canvas.CreateCompatibleBitmap(&screen, 40, 40);
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap* const before = dc.SelectObject(&canvas);
        dc.FillSolidRect(0, 0, 40, 40, RGB(1, 1, 1));
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_BUTTON;
        item.hwndItem = button.m_hWnd;
        item.hDC = dc.m_hDC;
        item.rcItem = CRect(8, 8, 40, 40);
        item.itemState = state;
        button.DrawItem(&item);
        const COLORREF colour = dc.GetPixel(9, 9);
        outside = dc.GetPixel(8 + 4, 8 + 4);
        dc.SelectObject(before);
        return colour;
    }

    RecordingParent parent;
    CBitmapButton button;
    COLORREF outside = 0;
};

} // namespace

TEST_F(BitmapButtonTest, EachStateHasItsPicture)
{
    create();
    ASSERT_TRUE(button.LoadBitmaps(IDB_RELEASED, IDB_PRESSED, IDB_FOCUSED, IDB_DISABLED));
    EXPECT_EQ(drawn(0), kReleased);
    EXPECT_EQ(drawn(ODS_SELECTED), kPressed);
    EXPECT_EQ(drawn(ODS_SELECTED | ODS_FOCUS), kPressed);
    EXPECT_EQ(drawn(ODS_FOCUS), kFocused);
    EXPECT_EQ(drawn(ODS_DISABLED), kDisabled);
    EXPECT_EQ(drawn(ODS_DISABLED | ODS_FOCUS | ODS_SELECTED), kDisabled);
    EXPECT_EQ(outside, RGB(1, 1, 1)) << "the picture has 4 by 4 pixels, in the corner";
}

TEST_F(BitmapButtonTest, AStateWithoutAPictureShowsTheFirst)
{
    create();
    ASSERT_TRUE(button.LoadBitmaps(IDB_RELEASED));
    for (const UINT state : {0u, UINT{ODS_SELECTED}, UINT{ODS_FOCUS}, UINT{ODS_DISABLED}})
        EXPECT_EQ(drawn(state), kReleased) << state;
}

TEST_F(BitmapButtonTest, OtherPicturesReplaceAllOfBefore)
{
    create();
    ASSERT_TRUE(button.LoadBitmaps(IDB_RELEASED, IDB_PRESSED));
    ASSERT_TRUE(button.LoadBitmaps(IDB_FOCUSED));
    EXPECT_EQ(drawn(0), kFocused);
    EXPECT_EQ(drawn(ODS_SELECTED), kFocused);
}

TEST_F(BitmapButtonTest, AMissingPictureIsTold)
{
    create();
    EXPECT_FALSE(button.LoadBitmaps(IDB_RELEASED, IDB_NONE));
    EXPECT_EQ(drawn(ODS_SELECTED), kReleased);
    EXPECT_FALSE(button.LoadBitmaps(IDB_NONE));
    EXPECT_EQ(drawn(0), RGB(1, 1, 1)) << "nothing is drawn";
}

TEST_F(BitmapButtonTest, TakesTheSizeOfItsPicture)
{
    create();
    ASSERT_TRUE(button.LoadBitmaps(IDB_RELEASED));
    button.SizeToContent();
    CRect rect;
    button.GetWindowRect(&rect);
    EXPECT_EQ(rect.Size(), CSize(4, 4));
}

TEST_F(BitmapButtonTest, InADialogTheCaptionNamesThePictures)
{
    const HWND control =
        ::CreateWindowExW(0, WC_BUTTONW, L"OPEN", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, 5, 6, 70, 20,
                          parent.m_hWnd, reinterpret_cast<HMENU>(31), nullptr, nullptr);
    ASSERT_TRUE(button.AutoLoad(31, &parent));
    EXPECT_EQ(button.m_hWnd, control);
    EXPECT_EQ(drawn(0), kReleased);
    EXPECT_EQ(drawn(ODS_SELECTED), kPressed);
    EXPECT_EQ(drawn(ODS_FOCUS), kReleased) << "there is no such resource";
    CRect rect;
    button.GetWindowRect(&rect);
    parent.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(5, 6, 9, 10));
}

TEST_F(BitmapButtonTest, WithoutControlOrPictureThereIsNoBitmapButton)
{
    EXPECT_FALSE(button.AutoLoad(31, &parent));
    CButton plain;
    ASSERT_TRUE(plain.Create(L"NOSUCH", WS_CHILD | BS_OWNERDRAW, CRect(0, 0, 9, 9), &parent, 32));
    const HWND control = plain.UnsubclassWindow();
    EXPECT_FALSE(button.AutoLoad(32, &parent));
    ::DestroyWindow(control);
}

TEST_F(BitmapButtonTest, AUserSeesThePressedPictureAndTheParentHearsTheClick)
{
    create();
    ASSERT_TRUE(button.LoadBitmaps(IDB_RELEASED, IDB_PRESSED));
    present(parent);
    const auto shown = [&](COLORREF colour) {
        return [&, colour] {
            button.UpdateWindow();
            return CClientDC(&button).GetPixel(1, 1) == colour;
        };
    };
    Robot()
        .waitFor("the picture", shown(kReleased))
        .press(Spot(button, CPoint(2, 2)))
        .waitFor("the pressed picture", shown(kPressed))
        .release()
        .waitFor("the first picture", shown(kReleased));
    EXPECT_EQ(parent.log().count(BN_CLICKED), 1);
    Robot().key(VK_SPACE);
    EXPECT_EQ(parent.log().count(BN_CLICKED), 2);
    button.EnableWindow(FALSE);
    Robot().click(Spot(button, CPoint(2, 2)));
    EXPECT_EQ(parent.log().count(BN_CLICKED), 2);
}

TEST(BitmapButton, LeavesNoGdiObjectsBehind)
{
    RecordingParent parent;
    const auto once = [&] {
        CBitmapButton button;
        button.Create(L"", WS_CHILD | BS_OWNERDRAW, CRect(0, 0, 9, 9), &parent, 7);
        button.LoadBitmaps(IDB_RELEASED, IDB_PRESSED, IDB_FOCUSED, IDB_DISABLED);
        button.LoadBitmaps(IDB_RELEASED);
    };
    once();
    const GdiCounter objects;
    for (int i = 0; i < 100; ++i)
        once();
    EXPECT_EQ(objects.grown(), 0);
}
