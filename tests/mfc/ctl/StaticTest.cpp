// Static controls.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/RecordingParent.h>

using ovo::testkit::RecordingParent;

TEST(Static, ShowsItsTextUnderItsId)
{
    RecordingParent parent;
    CStatic label;

    ASSERT_TRUE(label.Create(L"Name:", WS_CHILD | WS_VISIBLE, CRect(0, 0, 80, 20), &parent, 12));

    CString text;
    label.GetWindowText(text);
    EXPECT_STREQ(text, L"Name:");
    EXPECT_EQ(label.GetDlgCtrlID(), 12);
    EXPECT_EQ(CWnd::FromHandlePermanent(label), &label);
}

TEST(Static, WithoutAnIdItHasTheStandardOne)
{
    RecordingParent parent;
    CStatic label;

    label.Create(L"", WS_CHILD, CRect(0, 0, 1, 1), &parent);

    EXPECT_EQ(label.GetDlgCtrlID() & 0xFFFF, 0xFFFF);
}

TEST(Static, GivesThePictureOfBefore)
{
    RecordingParent parent;
    CStatic picture;
    picture.Create(L"", WS_CHILD | SS_BITMAP, CRect(0, 0, 20, 20), &parent, 1);
    CBitmap bitmap;
    bitmap.CreateBitmap(4, 4, 1, 1, nullptr);

    EXPECT_EQ(picture.SetBitmap(bitmap), nullptr);
    EXPECT_EQ(picture.GetBitmap(), static_cast<HBITMAP>(bitmap));
    EXPECT_EQ(picture.SetBitmap(nullptr), static_cast<HBITMAP>(bitmap));
}

TEST(Static, ShowsAnIcon)
{
    RecordingParent parent;
    CStatic picture;
    picture.Create(L"", WS_CHILD | SS_ICON, CRect(0, 0, 20, 20), &parent, 1);
    const HICON icon = ::LoadIconW(nullptr, IDI_WARNING);

    EXPECT_EQ(picture.SetIcon(icon), nullptr);
    EXPECT_EQ(picture.GetIcon(), icon);
}
