// Device contexts: text.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Picture.h>

using ovo::testkit::Picture;

namespace
{

class DcText : public ::testing::Test
{
protected:
    DcText()
    {
        font.CreatePointFont(90, L"Tahoma");
        former = dc.SelectObject(&font);
    }
    ~DcText() override { dc.SelectObject(former); }

    int ink() const { return 200 * 60 - picture.count(RGB(255, 255, 255)); }

    Picture picture{200, 60};
    CDC& dc = *CDC::FromHandle(picture.dc());
    CFont font;
    CFont* former = nullptr;
};

} // namespace

TEST_F(DcText, ExtentsCountTheCharactersGiven)
{
    const CSize whole = dc.GetTextExtent(L"Hello");
    const CSize part = dc.GetTextExtent(L"Hello", 2);

    EXPECT_GT(whole.cx, part.cx);
    EXPECT_EQ(whole.cy, part.cy);
    EXPECT_EQ(whole, dc.GetTextExtent(CString(L"Hello")));
    EXPECT_EQ(whole, dc.GetOutputTextExtent(CString(L"Hello")));
    EXPECT_EQ(dc.GetTextExtent(CString()).cx, 0);
}

TEST_F(DcText, MetricsMatchTheExtent)
{
    TEXTMETRIC metrics{};
    TEXTMETRIC output{};

    EXPECT_TRUE(dc.GetTextMetrics(&metrics));
    EXPECT_TRUE(dc.GetOutputTextMetrics(&output));
    EXPECT_EQ(metrics.tmHeight, dc.GetTextExtent(L"x").cy);
    EXPECT_EQ(metrics.tmHeight, output.tmHeight);
}

TEST_F(DcText, TextOutDrawsAtThePoint)
{
    EXPECT_TRUE(dc.TextOut(100, 30, CString(L"Ink")));

    EXPECT_GT(ink(), 5);
    EXPECT_EQ(picture.count(RGB(255, 255, 255), 0, CRect(0, 0, 200, 30)), 200 * 30);
    EXPECT_EQ(picture.count(RGB(255, 255, 255), 0, CRect(0, 0, 99, 60)), 99 * 60);
}

TEST_F(DcText, ExtTextOutFillsAndClipsToItsRectangle)
{
    dc.SetBkColor(RGB(255, 255, 0));
    EXPECT_TRUE(
        dc.ExtTextOut(0, 0, ETO_OPAQUE | ETO_CLIPPED, CRect(0, 0, 10, 10), CString(L"WWWWWW"), nullptr));

    EXPECT_EQ(picture.count(RGB(255, 255, 255)), 200 * 60 - 100);
}

TEST_F(DcText, DrawTextMeasuresAndDraws)
{
    CRect measured(0, 0, 0, 0);
    const int height = dc.DrawText(L"Two\nlines", -1, &measured, DT_CALCRECT);

    EXPECT_EQ(height, measured.Height());
    EXPECT_NEAR(height, 2 * dc.GetTextExtent(L"T").cy, 2);
    EXPECT_EQ(ink(), 0) << "measuring draws nothing";
    dc.DrawText(CString(L"Two\nlines"), CRect(0, 0, 200, 60), DT_LEFT);
    EXPECT_GT(ink(), 10);
}

TEST_F(DcText, AStringThatDrawTextMayChangeStaysTheCallers)
{
    const CString text(L"A text that is much too long for the rectangle that it gets");

    dc.DrawText(text, CRect(0, 0, 50, 20), DT_END_ELLIPSIS | DT_MODIFYSTRING | DT_SINGLELINE);
    dc.DrawTextEx(text, CRect(0, 0, 50, 20), DT_END_ELLIPSIS | DT_MODIFYSTRING | DT_SINGLELINE, nullptr);

    EXPECT_STREQ(text, L"A text that is much too long for the rectangle that it gets");
}

TEST_F(DcText, ADerivedContextSeesTextOfBothForms)
{
    struct Recorder : CDC
    {
        int DrawText(LPCTSTR text, int count, LPRECT, UINT) override
        {
            last.SetString(text, count);
            return 0;
        }
        CString last;
    } recorder;
    CRect rect(0, 0, 10, 10);

    static_cast<CDC&>(recorder).DrawText(CString(L"seen"), rect, 0);

    EXPECT_STREQ(recorder.last, L"seen");
}

TEST_F(DcText, TabsAreAsWideAsTheyAreSet)
{
    int stop = 50;
    const CSize extent = dc.GetTabbedTextExtent(CString(L"\tx"), 1, &stop);

    EXPECT_EQ(extent.cx, 50 + dc.GetTextExtent(L"x").cx);
    EXPECT_EQ(dc.TabbedTextOut(0, 0, CString(L"\tx"), 1, &stop, 0).cx, extent.cx);
    EXPECT_EQ(picture.count(RGB(255, 255, 255), 0, CRect(0, 0, 49, 60)), 49 * 60);
}

TEST_F(DcText, TheFaceIsTheSelectedOne)
{
    CString face;
    wchar_t buffer[LF_FACESIZE]{};

    EXPECT_GT(dc.GetTextFace(face), 0);
    dc.GetTextFace(LF_FACESIZE, buffer);
    EXPECT_STREQ(face, buffer);
    EXPECT_FALSE(face.IsEmpty());
}

TEST_F(DcText, CharacterWidthsAddUpToTheExtent)
{
    int widths[3]{};

    EXPECT_TRUE(dc.GetCharWidth(L'a', L'c', widths));
    EXPECT_EQ(widths[0] + widths[1] + widths[2], dc.GetTextExtent(L"abc").cx);
    EXPECT_EQ(dc.SetTextCharacterExtra(5), 0);
    EXPECT_EQ(dc.GetTextCharacterExtra(), 5);
    EXPECT_EQ(widths[0] + widths[1] + widths[2] + 15, dc.GetTextExtent(L"abc").cx);
}
