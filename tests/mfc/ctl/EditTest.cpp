// Edit controls.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

using namespace ovo::testkit;

namespace
{

struct EditTest : ::testing::Test
{
    void create(DWORD style = ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL, const wchar_t* text = L"")
    {
        ASSERT_TRUE(
            edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | style, CRect(10, 10, 210, 80), &parent, 7));
        edit.SetWindowText(text);
        parent.log().clear();
    }

    CString text()
    {
        CString text;
        edit.GetWindowText(text);
        return text;
    }

    RecordingParent parent;
    CEdit edit;
};

} // namespace

TEST_F(EditTest, TypingIsToldAndMarksTheText)
{
    create(ES_AUTOHSCROLL);
    present(parent);
    EXPECT_FALSE(edit.GetModify());

    Robot().click(Spot(edit)).type(L"abc");

    EXPECT_STREQ(text(), L"abc");
    EXPECT_EQ(parent.log().count(EN_CHANGE), 3);
    EXPECT_TRUE(edit.GetModify());
    edit.SetModify(FALSE);
    EXPECT_FALSE(edit.GetModify());
}

TEST_F(EditTest, TheSelectionIsSetAndGotInEveryForm)
{
    create(0, L"0123456789");
    int start = 0;
    int end = 0;

    edit.SetSel(2, 5);
    edit.GetSel(start, end);
    EXPECT_EQ(start, 2);
    EXPECT_EQ(end, 5);
    EXPECT_EQ(edit.GetSel(), static_cast<DWORD>(MAKELONG(2, 5)));
    edit.SetSel(MAKELONG(3, 4));
    EXPECT_EQ(edit.GetSel(), static_cast<DWORD>(MAKELONG(3, 4)));
    edit.SetSel(0, -1);
    EXPECT_EQ(edit.GetSel(), static_cast<DWORD>(MAKELONG(0, 10)));
    edit.SetSel(MAKELONG(0, -1));
    EXPECT_EQ(edit.GetSel(), static_cast<DWORD>(MAKELONG(0, 10)));
    edit.SetSel(-1, 0);
    edit.GetSel(start, end);
    EXPECT_EQ(start, end) << "the selection is taken back";
}

TEST_F(EditTest, SelectingScrollsTheCaretIntoView)
{
    create();
    CString lines;
    for (int i = 0; i < 50; ++i)
        lines += L"line\r\n";
    edit.SetWindowText(lines);
    edit.SetSel(0, 0);
    EXPECT_EQ(edit.GetFirstVisibleLine(), 0);

    edit.SetSel(lines.GetLength(), lines.GetLength());
    EXPECT_GT(edit.GetFirstVisibleLine(), 30);
}

TEST_F(EditTest, ReplacingTheSelectionCanBeUndoneWhenAskedFor)
{
    create(0, L"one two");
    edit.SetSel(0, 3);

    edit.ReplaceSel(L"1", TRUE);
    EXPECT_STREQ(text(), L"1 two");
    EXPECT_TRUE(edit.CanUndo());
    EXPECT_TRUE(edit.Undo());
    EXPECT_STREQ(text(), L"one two");
    edit.EmptyUndoBuffer();
    EXPECT_FALSE(edit.CanUndo());
    edit.SetSel(0, 3);
    edit.ReplaceSel(L"2");
    EXPECT_FALSE(edit.CanUndo());
}

TEST_F(EditTest, CutCopyPasteAndClear)
{
    create(0, L"abcdef");

    edit.SetSel(0, 2);
    edit.Cut();
    EXPECT_STREQ(text(), L"cdef");
    edit.SetSel(4, 4);
    edit.Paste();
    EXPECT_STREQ(text(), L"cdefab");
    edit.SetSel(0, 2);
    edit.Copy();
    edit.Clear();
    EXPECT_STREQ(text(), L"efab");
    edit.Paste();
    EXPECT_STREQ(text(), L"cdefab");
}

TEST_F(EditTest, LinesAreCountedFoundAndFetched)
{
    create(ES_MULTILINE, L"first\r\nsecond\r\nthird");
    wchar_t buffer[10]{};

    EXPECT_EQ(edit.GetLineCount(), 3);
    EXPECT_EQ(edit.LineIndex(1), 7);
    EXPECT_EQ(edit.LineLength(7), 6);
    EXPECT_EQ(edit.LineFromChar(8), 1);
    EXPECT_EQ(edit.GetLine(1, buffer, 9), 6);
    EXPECT_EQ(std::wstring(buffer, 6), L"second");
    EXPECT_EQ(edit.GetLine(1, buffer, 3), 3);
    EXPECT_EQ(std::wstring(buffer, 3), L"sec");
    edit.SetSel(0, 0);
    edit.LineScroll(2);
    EXPECT_GE(edit.GetFirstVisibleLine(), 0);
}

TEST_F(EditTest, PointsAndPositionsAreConverted)
{
    create(ES_MULTILINE, L"abcdef\r\nghi");

    const CPoint first = edit.PosFromChar(0);
    const CPoint later = edit.PosFromChar(3);
    EXPECT_GT(later.x, first.x);
    EXPECT_EQ(later.y, first.y);
    EXPECT_GT(edit.PosFromChar(8).y, first.y);
    EXPECT_EQ(LOWORD(edit.CharFromPos(later + CSize(1, 2))), 3);
    EXPECT_EQ(HIWORD(edit.CharFromPos(edit.PosFromChar(8) + CSize(1, 2))), 1);
}

TEST_F(EditTest, TheLimitHoldsForTyping)
{
    create(ES_AUTOHSCROLL);
    present(parent);
    edit.LimitText(3);
    EXPECT_EQ(edit.GetLimitText(), 3u);

    Robot().click(Spot(edit)).type(L"abcdef");

    EXPECT_STREQ(text(), L"abc");
    EXPECT_EQ(parent.log().count(EN_MAXTEXT), 3);
    edit.SetLimitText(10);
    EXPECT_EQ(edit.GetLimitText(), 10u);
}

TEST_F(EditTest, AReadOnlyFieldTakesNoKeys)
{
    create(ES_AUTOHSCROLL, L"kept");
    present(parent);

    EXPECT_TRUE(edit.SetReadOnly());
    EXPECT_TRUE(edit.GetStyle() & ES_READONLY);
    Robot().click(Spot(edit)).type(L"x");
    EXPECT_STREQ(text(), L"kept");
}

TEST_F(EditTest, MarginsAndTheFormattingRectangleAreKept)
{
    create(ES_MULTILINE);
    CRect rect;

    edit.SetRect(CRect(20, 10, 100, 50));
    edit.GetRect(&rect);
    EXPECT_NEAR(rect.left, 20, 4); // a border may count
    EXPECT_NEAR(rect.top, 10, 4);
    const int first = rect.left;
    edit.SetRectNP(CRect(30, 10, 100, 50));
    edit.GetRect(&rect);
    EXPECT_EQ(rect.left, first + 10);
    edit.SetMargins(7, 9);
    EXPECT_EQ(edit.GetMargins(), static_cast<DWORD>(MAKELONG(7, 9)));
}

TEST_F(EditTest, TabStopsMoveTheText)
{
    create(ES_MULTILINE, L"\tx");
    int stops[] = {40};

    const int standard = edit.PosFromChar(1).x;
    EXPECT_TRUE(edit.SetTabStops(1, stops));
    edit.SetWindowText(L"\tx");
    const int wider = edit.PosFromChar(1).x;
    EXPECT_GT(wider, standard);
    EXPECT_TRUE(edit.SetTabStops(8));
    edit.SetWindowText(L"\tx");
    EXPECT_LT(edit.PosFromChar(1).x, standard);
    edit.SetTabStops();
    edit.SetWindowText(L"\tx");
    EXPECT_EQ(edit.PosFromChar(1).x, standard);
}

TEST_F(EditTest, APasswordIsHiddenByACharacter)
{
    create(ES_PASSWORD);

    edit.SetPasswordChar(L'#');
    EXPECT_EQ(edit.GetPasswordChar(), L'#');
}

TEST_F(EditTest, ACueIsKept)
{
    create(0);

    ASSERT_TRUE(edit.SetCueBanner(L"Search"));
    EXPECT_STREQ(edit.GetCueBanner(), L"Search");
    wchar_t buffer[20]{};
    EXPECT_TRUE(edit.GetCueBanner(buffer, 20));
    EXPECT_STREQ(buffer, L"Search");
    EXPECT_STREQ(text(), L"") << "the cue is no text";
}
