// A text that stands out in the cells.
#include "ListScene.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

class ListEmphasis : public ::testing::Test
{
protected:
    void SetUp() override
    {
        for (const int format : {LVCFMT_LEFT, LVCFMT_RIGHT, LVCFMT_CENTER})
            scene.addColumn(L"c", 130, false, format);
        for (int column = 0; column < 3; ++column)
            scene.list.AddItem(0, column, L"Banana", 0, -1);
        scene.show();
        scene.button.SetFocus();
        highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    }

    int extent(const wchar_t* text)
    {
        CClientDC dc(&scene.list);
        CFont* const old = dc.SelectObject(scene.list.GetFont());
        const int width = dc.GetTextExtent(text, ::lstrlenW(text)).cx;
        dc.SelectObject(old);
        return width;
    }

    /// The left edge of the first `count` characters' end in a cell's text "Banana".
    int edge(int column, const wchar_t* beginning)
    {
        const CRect cell = scene.cell(0, column);
        const int whole = extent(L"Banana");
        const int left = column == 0   ? cell.left + 2
                         : column == 1 ? cell.right - 6 - whole
                                       : cell.left + 6 + (cell.Width() - 12 - whole) / 2;
        return left + extent(beginning);
    }

    /// Which pixels of a row's second line have the colour of a selection.
    std::vector<bool> marked(COLORREF colour)
    {
        scene.list.RedrawWindow();
        const Picture shown = Picture::ofClient(scene.list);
        const int left = scene.rect(0, LVIR_LABEL).left;
        std::vector<bool> line;
        for (int x = 0; x < 390; ++x)
            line.push_back(x >= left && shown.at(x, scene.itemRect(0).top) == colour);
        return line;
    }

    void expectMarked(const std::vector<std::pair<int, int>>& spans, COLORREF colour)
    {
        std::vector<bool> expected(390);
        for (const auto& [from, to] : spans)
            std::fill(expected.begin() + from, expected.begin() + to, true);
        EXPECT_EQ(marked(colour), expected);
    }

    ListScene scene;
    COLORREF highlight = 0;
};

} // namespace

TEST_F(ListEmphasis, NothingStandsOutAtFirst)
{
    expectMarked({}, highlight);
}

TEST_F(ListEmphasis, EveryPlaceInEveryColumnWhateverTheCase)
{
    scene.list.EmphasiseText(L"AN");
    std::vector<std::pair<int, int>> spans;
    for (int column = 0; column < 3; ++column) {
        spans.push_back({edge(column, L"B"), edge(column, L"Ban")});
        spans.push_back({edge(column, L"Ban"), edge(column, L"Banan")});
    }
    expectMarked(spans, highlight);
    scene.list.EmphasiseText(L"");
    expectMarked({}, highlight);
}

TEST_F(ListEmphasis, TheLettersAreThoseOfASelection)
{
    scene.list.EmphasiseText(L"nan");
    scene.list.RedrawWindow();
    const Picture shown = Picture::ofClient(scene.list);
    const CRect row = scene.itemRect(0);
    const CRect part(edge(1, L"Ba"), row.top, edge(1, L"Banan"), row.bottom);
    EXPECT_GT(shown.count(::GetSysColor(COLOR_HIGHLIGHTTEXT), 0, part), 10);
    EXPECT_EQ(shown.count(::GetSysColor(COLOR_WINDOWTEXT), 0, part), 0);
    const CRect before(scene.cell(0, 1).left, row.top, part.left, row.bottom);
    EXPECT_GT(shown.count(::GetSysColor(COLOR_WINDOWTEXT), 0, before), 10) << "the others stay";
    EXPECT_EQ(shown.count(highlight, 0, before), 0);
}

TEST_F(ListEmphasis, InASelectedRowItIsTheOtherWayRound)
{
    scene.list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    scene.list.SetFocus();
    scene.list.EmphasiseText(L"nan");
    std::vector<std::pair<int, int>> spans;
    for (int column = 0; column < 3; ++column)
        spans.push_back({edge(column, L"Ba"), edge(column, L"Banan")});
    expectMarked(spans, ::GetSysColor(COLOR_WINDOW));
}

TEST_F(ListEmphasis, IsSeenAtOnce)
{
    const auto highlighted = [&] {
        GuiThread::settle(); // the list paints what it has to, and nothing else
        return Picture::ofClient(scene.list).count(highlight, 0, scene.itemRect(0));
    };
    ASSERT_EQ(highlighted(), 0);
    scene.list.EmphasiseText(L"nan");
    EXPECT_GT(highlighted(), 30);
    scene.list.EmphasiseText(L"");
    EXPECT_EQ(highlighted(), 0);
}

TEST_F(ListEmphasis, TheLettersStayOnTheirLine)
{
    const CRect row = scene.itemRect(0);
    // The first and the last line of pixels with ink of the letters that do not stand out.
    const auto linesWithInk = [&](int column) {
        const Picture shown = Picture::ofClient(scene.list);
        std::pair<int, int> lines{row.bottom, row.top};
        for (int y = row.top; y < row.bottom; ++y)
            if (shown.count(::GetSysColor(COLOR_WINDOWTEXT), 0,
                            CRect(edge(column, L"") - 2, y, edge(column, L"Ba") - 1, y + 1)) > 0)
                lines = {std::min(lines.first, y), std::max(lines.second, y)};
        return lines;
    };
    for (int column = 0; column < 3; ++column) {
        SCOPED_TRACE(column);
        scene.list.EmphasiseText(L"");
        scene.list.RedrawWindow();
        const auto before = linesWithInk(column);
        ASSERT_LT(before.first, before.second);
        scene.list.EmphasiseText(L"nan");
        scene.list.RedrawWindow();
        EXPECT_EQ(linesWithInk(column), before);
    }
}

TEST_F(ListEmphasis, DotsStandForWhatWasCutOff)
{
    scene.list.SetColumnWidth(0, extent(L"Ban...") + extent(L"l"));
    // What is looked for begins near the cut, or far behind it.
    for (const auto& [text, part] :
         {std::pair(L"Banana", L"anana"), std::pair(L"Banana and more of it", L"of")}) {
        SCOPED_TRACE(text);
        scene.list.SetItemText(0, 0, text);
        const int left = scene.cell(0, 0).left + 2;
        CClientDC dc(&scene.list);
        CFont* const old = dc.SelectObject(scene.list.GetFont());
        const CRect label = scene.rect(0, LVIR_LABEL);
        const std::wstring shown = COVOListCtrlEx::MakeShortString(&dc, text, label.Width(), 4);
        dc.SelectObject(old);
        ASSERT_TRUE(shown.ends_with(L"...")) << "the label is cut";
        scene.list.EmphasiseText(part);
        const std::vector<bool> line = marked(highlight);
        const int from = left + extent(shown.substr(0, shown.size() - 3).c_str());
        const int to = left + extent(shown.c_str());
        EXPECT_FALSE(line[static_cast<std::size_t>(from - 1)]);
        for (int x = from; x < to; ++x)
            EXPECT_TRUE(line[static_cast<std::size_t>(x)]) << x;
        EXPECT_FALSE(line[static_cast<std::size_t>(to)]);
    }
}

TEST(ListEmphasisMirrored, StandsOutWhereTheLettersAre)
{
    ListScene scene(0, WS_EX_LAYOUTRTL);
    scene.addColumn(L"c", 200);
    scene.list.AddItem(0, 0, L"lllWWW", 0, -1);
    scene.list.AddItem(1, 0, L"lll", 0, -1);
    scene.show();
    scene.button.SetFocus();
    const auto plainLetters = [&](int row) {
        scene.list.RedrawWindow();
        return Picture::ofClient(scene.list).count(::GetSysColor(COLOR_WINDOWTEXT), 0, scene.itemRect(row));
    };
    const int narrow = plainLetters(1);
    ASSERT_GT(plainLetters(0), narrow);
    scene.list.EmphasiseText(L"www");
    EXPECT_NEAR(plainLetters(0), narrow, 5) << "the wide letters stand out, and no others";
}

TEST_F(ListEmphasis, OverASwatchToo)
{
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"colour", 100, true);
    scene.list.AddItem(1, 0, L"x", 0xFF00FF00, -1);
    scene.list.AddItem(1, 3, L"green", 0, -1);
    scene.list.SetColumnWidth(0, 20);
    scene.list.SetColumnWidth(1, 20);
    scene.list.SetColumnWidth(2, 20);
    const CRect cell = scene.cell(1, 3);
    const auto highlighted = [&] {
        scene.list.RedrawWindow();
        return Picture::ofClient(scene.list).count(highlight, 0, cell);
    };
    EXPECT_EQ(highlighted(), 0);
    scene.list.EmphasiseText(L"ree");
    EXPECT_GT(highlighted(), 20);
}
