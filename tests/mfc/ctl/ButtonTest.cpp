// Buttons.
#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

using namespace ovo::testkit;

namespace
{

struct ButtonTest : ::testing::Test
{
    void create(DWORD style)
    {
        ASSERT_TRUE(
            button.Create(L"Press", WS_CHILD | WS_VISIBLE | style, CRect(10, 10, 110, 40), &parent, 7));
    }

    RecordingParent parent;
    CButton button;
};

} // namespace

TEST_F(ButtonTest, AClickIsToldToTheParent)
{
    create(BS_PUSHBUTTON);
    present(parent);

    Robot().click(Spot(button));

    EXPECT_EQ(parent.log().count(BN_CLICKED), 1);
    EXPECT_EQ(parent.log().last(BN_CLICKED).id, 7u);
}

TEST_F(ButtonTest, AnAutomaticCheckBoxChecksItself)
{
    create(BS_AUTOCHECKBOX);
    present(parent);

    EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
    Robot().click(Spot(button));
    EXPECT_EQ(button.GetCheck(), BST_CHECKED);
}

TEST_F(ButtonTest, ThreeStatesAreSetAndGot)
{
    create(BS_3STATE);

    button.SetCheck(BST_INDETERMINATE);
    EXPECT_EQ(button.GetCheck(), BST_INDETERMINATE);
    EXPECT_EQ(parent.log().count(BN_CLICKED), 0) << "what code does is not a click";
}

TEST_F(ButtonTest, HighlightingShowsInTheState)
{
    create(BS_PUSHBUTTON);

    button.SetState(TRUE);
    EXPECT_TRUE(button.GetState() & BST_PUSHED);
    button.SetState(FALSE);
    EXPECT_FALSE(button.GetState() & BST_PUSHED);
}

TEST_F(ButtonTest, TheButtonStyleIsTheButtonsPartOfTheStyle)
{
    create(BS_AUTORADIOBUTTON | BS_RIGHT);

    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTORADIOBUTTON | BS_RIGHT));
    button.SetButtonStyle(BS_CHECKBOX);
    EXPECT_EQ(button.GetButtonStyle() & BS_TYPEMASK, static_cast<UINT>(BS_CHECKBOX));
    EXPECT_TRUE(button.GetStyle() & WS_VISIBLE);
}

TEST_F(ButtonTest, PicturesAreGivenBack)
{
    create(BS_BITMAP);
    CBitmap bitmap;
    bitmap.CreateBitmap(4, 4, 1, 1, nullptr);
    const HICON icon = ::LoadIconW(nullptr, IDI_WARNING);

    EXPECT_EQ(button.SetBitmap(bitmap), nullptr);
    EXPECT_EQ(button.GetBitmap(), static_cast<HBITMAP>(bitmap));
    EXPECT_EQ(button.SetBitmap(nullptr), static_cast<HBITMAP>(bitmap));
    button.SetButtonStyle(BS_ICON);
    button.SetIcon(icon);
    EXPECT_EQ(button.GetIcon(), icon);
}

TEST_F(ButtonTest, AnImageListIsKept)
{
    create(BS_PUSHBUTTON);
    CImageList list;
    list.Create(4, 4, ILC_COLOR24, 1, 1);
    BUTTON_IMAGELIST wanted{list, {1, 2, 3, 4}, BUTTON_IMAGELIST_ALIGN_LEFT};
    BUTTON_IMAGELIST got{};

    ASSERT_TRUE(button.SetImageList(&wanted));
    EXPECT_TRUE(button.GetImageList(&got));
    EXPECT_EQ(got.himl, static_cast<HIMAGELIST>(list));
    EXPECT_EQ(got.margin.bottom, 4);
}

TEST_F(ButtonTest, TheTextMarginIsKept)
{
    create(BS_PUSHBUTTON);
    CRect wanted(1, 2, 3, 4);
    CRect got;

    ASSERT_TRUE(button.SetTextMargin(&wanted));
    EXPECT_TRUE(button.GetTextMargin(&got));
    EXPECT_EQ(got, wanted);
}

TEST_F(ButtonTest, TheIdealSizeHoldsTheText)
{
    create(BS_PUSHBUTTON);
    CSize size;
    CClientDC dc(&button);

    ASSERT_TRUE(button.GetIdealSize(&size));
    EXPECT_GE(size.cy, 5);
    EXPECT_GT(size.cx, size.cy);
}

TEST_F(ButtonTest, ACommandLinkHasANote)
{
    create(BS_COMMANDLINK);

    ASSERT_TRUE(button.SetNote(L"In more words"));
    EXPECT_EQ(button.GetNoteLength(), 13u);
    EXPECT_STREQ(button.GetNote(), L"In more words");
    wchar_t buffer[3];
    UINT room = 3;
    EXPECT_FALSE(button.GetNote(buffer, &room));
    EXPECT_GE(room, 13u) << "what would have been needed";
}

TEST_F(ButtonTest, ASplitButtonKeepsItsSettings)
{
    create(BS_SPLITBUTTON);
    CSize size(20, 21);
    CSize got;
    CImageList list;
    list.Create(4, 4, ILC_COLOR24, 1, 1);

    EXPECT_TRUE(button.SetSplitStyle(BCSS_ALIGNLEFT));
    EXPECT_EQ(button.GetSplitStyle(), static_cast<UINT>(BCSS_ALIGNLEFT));
    EXPECT_TRUE(button.SetSplitSize(&size));
    EXPECT_TRUE(button.GetSplitSize(&got));
    EXPECT_EQ(got, size);
    EXPECT_TRUE(button.SetSplitGlyph(L'6'));
    EXPECT_EQ(button.GetSplitGlyph(), L'6');
    EXPECT_TRUE(button.SetSplitImageList(&list));
    EXPECT_EQ(button.GetSplitImageList(), &list);
}
