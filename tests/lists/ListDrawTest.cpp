// Rows pixel by pixel, in memory and on the screen.
#include "ListScene.h"

#include <support/Perishing.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace ovo::testkit;

namespace
{

constexpr DWORD kOpaque = 0xFF000000;

Knowledge known(const ListScene& scene)
{
    CRect client;
    scene.list.GetClientRect(&client);
    Knowledge result;
    result.clientWidth = client.Width();
    return result;
}

/// Draws a row in the list's font.
void drawRow(Picture& picture, List& list, int item)
{
    const HGDIOBJ old = ::SelectObject(picture.dc(), list.GetFont()->GetSafeHandle());
    CRect bounds;
    list.GetItemRect(item, &bounds, LVIR_BOUNDS);
    DRAWITEMSTRUCT draw{};
    draw.itemID = static_cast<UINT>(item);
    draw.hDC = picture.dc();
    draw.rcItem = bounds;
    list.DrawItem(&draw);
    ::SelectObject(picture.dc(), old);
}

} // namespace

TEST(ListDraw, APlainRow)
{
    ListScene scene;
    scene.fill({100, 80, 60}, 4);
    scene.show();
    for (int row = 0; row < 4; ++row)
        scene.expectRow(row, known(scene));
}

TEST(ListDraw, ASelectedRowOfTheFocusedList)
{
    ListScene scene;
    scene.fill({100, 80, 60}, 3);
    scene.show();
    scene.list.SetFocus();
    scene.list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    scene.expectRow(1, known(scene));
    // The selection reaches the window's edge, beyond the last column.
    const CRect row = scene.itemRect(1);
    EXPECT_THAT(Picture::ofClient(scene.list).at(row.right + 100, row.CenterPoint().y),
                IsColour(::GetSysColor(COLOR_HIGHLIGHT)));
}

TEST(ListDraw, ASelectedRowWithoutTheFocus)
{
    for (const bool always : {false, true}) {
        ListScene scene(always ? LVS_SHOWSELALWAYS : 0);
        scene.fill({100, 80}, 3);
        scene.show();
        scene.list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        scene.button.SetFocus();
        scene.expectRow(1, known(scene));
        const CRect row = scene.itemRect(1);
        EXPECT_THAT(Picture::ofClient(scene.list).at(row.right - 3, row.top + 3),
                    IsColour(::GetSysColor(always ? COLOR_HIGHLIGHT : COLOR_WINDOW)));
    }
}

TEST(ListDraw, ADropHighlightedRowLooksSelectedWithoutTheFocus)
{
    ListScene scene;
    scene.fill({100, 80}, 3);
    scene.show();
    scene.button.SetFocus();
    scene.list.SetItemState(2, LVIS_DROPHILITED, LVIS_DROPHILITED);
    scene.expectRow(2, known(scene));
    const CRect row = scene.itemRect(2);
    EXPECT_THAT(Picture::ofClient(scene.list).at(row.right - 3, row.top + 3),
                IsColour(::GetSysColor(COLOR_HIGHLIGHT)));
}

TEST(ListDraw, TheFocusRectangleGoesRoundTheRow)
{
    ListScene scene;
    scene.fill({100, 80}, 3);
    scene.show();
    scene.list.SetFocus();
    scene.list.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED);
    scene.expectRow(0, known(scene));
    scene.button.SetFocus();
    scene.expectRow(0, known(scene));
}

TEST(ListDraw, TheListsOwnBackgroundColour)
{
    ListScene scene;
    scene.list.SetBkColor(RGB(240, 230, 140));
    scene.fill({100, 80}, 2);
    scene.show();
    scene.expectRow(0, known(scene));
}

TEST(ListDraw, StateImages)
{
    ListScene scene;
    scene.fill({100, 80}, 3);
    CImageList states;
    fillImages(states, 16, {RGB(200, 0, 0), RGB(0, 0, 200)});
    scene.list.SetImageList(&states, LVSIL_STATE);
    scene.list.SetItemState(0, INDEXTOSTATEIMAGEMASK(1), LVIS_STATEIMAGEMASK);
    scene.list.SetItemState(1, INDEXTOSTATEIMAGEMASK(2), LVIS_STATEIMAGEMASK);
    scene.show();
    Knowledge facts = known(scene);
    facts.stateImageWidth = 16;
    for (int row = 0; row < 3; ++row)
        scene.expectRow(row, facts);
    EXPECT_GT(Picture::ofClient(scene.list).count(RGB(200, 0, 0)), 50);

    // The width is known at once when the images are taken away again.
    scene.list.SetImageList(nullptr, LVSIL_STATE);
    scene.expectRow(2, known(scene));
}

TEST(ListDraw, ALabelIsCutEarlierByTheWidthOfAStateImage)
{
    ListScene scene;
    scene.addColumn(L"c", 100);
    scene.addColumn(L"d", 80);
    scene.list.AddItem(0, 0, L"a label that is long enough to be cut", 0, -1);
    scene.list.AddItem(0, 1, L"x", 0, -1);
    CImageList states;
    fillImages(states, 24, {RGB(200, 0, 0)});
    scene.list.SetImageList(&states, LVSIL_STATE);
    scene.list.SetItemState(0, INDEXTOSTATEIMAGEMASK(1), LVIS_STATEIMAGEMASK);
    scene.show();
    Knowledge facts = known(scene);
    facts.stateImageWidth = 24;
    scene.expectRow(0, facts);
    scene.list.SetImageList(nullptr, LVSIL_STATE);
    scene.expectRow(0, known(scene)); // the label has its room again
}

TEST(ListDraw, SmallIconsWithOverlay)
{
    ListScene scene;
    CImageList icons;
    fillImages(icons, 16, {RGB(0, 150, 0), RGB(250, 200, 0), RGB(90, 0, 90)});
    icons.SetOverlayImage(2, 1);
    scene.list.SetImageList(&icons, LVSIL_SMALL);
    scene.addColumn(L"c", 120);
    scene.list.AddItem(0, 0, L"green", 0, 0);
    scene.list.AddItem(1, 0, L"with overlay", 0, 1);
    scene.list.SetItemState(1, INDEXTOOVERLAYMASK(1), LVIS_OVERLAYMASK);
    scene.list.AddItem(2, 0, L"amber", 0, 1);
    scene.show();
    for (int row = 0; row < 3; ++row)
        scene.expectRow(row, known(scene));
    EXPECT_GT(Picture::ofClient(scene.list).count(RGB(0, 150, 0)), 50);
    EXPECT_GT(Picture::ofClient(scene.list).count(RGB(250, 200, 0)), 50);
    EXPECT_GT(Picture::ofClient(scene.list).count(RGB(90, 0, 90)), 50);

    // No icon into a rectangle less than 2 pixels wide.
    for (const int width : {1, 2}) {
        Picture picture(60, 40);
        DRAWITEMSTRUCT draw{};
        draw.hDC = picture.dc();
        draw.rcItem = {0, scene.itemRect(0).top, width, scene.itemRect(0).bottom};
        scene.list.DrawItem(&draw);
        EXPECT_EQ(picture.count(RGB(0, 150, 0)) > 0, width == 2);
    }
    scene.list.SetImageList(nullptr, LVSIL_SMALL);
}

TEST(ListDraw, ColourColumns)
{
    for (const bool first : {true, false})
        for (const DWORD entry : {kOpaque | RGB(200, 30, 30), 0x80000000 | RGB(30, 200, 30),
                                  DWORD{RGB(90, 90, 255)}, kOpaque | RGB(255, 255, 0)}) {
            ListScene scene;
            scene.list.UseRowColours(TRUE);
            scene.addColumn(L"a", 100, first);
            scene.addColumn(L"b", 90, !first);
            scene.addColumn(L"c", 60);
            scene.list.AddItem(0, 0, L"name", entry, -1);
            scene.list.AddItem(0, 1, L"colour", 0, -1);
            scene.list.AddItem(0, 2, L"more", 0, -1);
            scene.show();
            scene.list.SetFocus();
            Knowledge facts = known(scene);
            facts.colourColumns = {first ? 0 : 1};
            facts.entry = entry;
            scene.expectRow(0, facts);
            scene.list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
            scene.expectRow(0, facts);
        }
}

TEST(ListDraw, AlphaShowsOverACheckerboard)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 60);
    scene.addColumn(L"b", 100, true);
    scene.list.AddItem(0, 0, L"opaque", kOpaque | RGB(200, 30, 30), -1);
    scene.list.AddItem(0, 1, L".", 0, -1);
    scene.list.AddItem(1, 0, L"clear", RGB(200, 30, 30), -1);
    scene.list.AddItem(1, 1, L".", 0, -1);
    scene.show();
    const Picture shown = Picture::ofClient(scene.list);
    const CRect opaque = scene.cell(0, 1);
    EXPECT_GT(shown.count(RGB(200, 30, 30), 0, opaque), opaque.Width() * opaque.Height() - 30);
    const CRect clear = scene.cell(1, 1);
    const CRect left(clear.left, clear.top, clear.left + clear.Width() / 2, clear.bottom);
    const CRect right(left.right, clear.top, clear.right, clear.bottom);
    EXPECT_GT(shown.count(RGB(200, 30, 30), 0, left), left.Width() * left.Height() - 30);
    EXPECT_EQ(shown.count(RGB(0, 0, 0), 0, right) + shown.count(RGB(255, 255, 255), 0, right),
              right.Width() * right.Height());
    EXPECT_GT(shown.count(RGB(0, 0, 0), 0, right), right.Width() * right.Height() / 3);
    EXPECT_GT(shown.count(RGB(255, 255, 255), 0, right), right.Width() * right.Height() / 3);
}

TEST(ListDraw, WithoutRowColoursAColourColumnIsPlain)
{
    ListScene scene;
    scene.addColumn(L"a", 100, true);
    scene.addColumn(L"b", 90, true);
    scene.list.AddItem(0, 0, L"name", kOpaque | RGB(200, 30, 30), -1);
    scene.list.AddItem(0, 1, L"colour", 0, -1);
    scene.show();
    Knowledge facts = known(scene);
    facts.colourColumns = {0, 1};
    scene.expectRow(0, facts);
    EXPECT_EQ(Picture::ofClient(scene.list).count(RGB(200, 30, 30)), 0);
    scene.list.SetFocus();
    scene.list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    scene.expectRow(0, facts);
}

TEST(ListDraw, ARowWithoutAColourIsBlackAndTransparent)
{
    ListScene scene;
    scene.addColumn(L"a", 100);
    scene.addColumn(L"b", 90, true);
    scene.list.AddItem(0, 0, L"name", kOpaque | RGB(200, 30, 30), -1); // before row colours are in use
    scene.list.AddItem(0, 1, L"colour", 0, -1);
    scene.list.UseRowColours(TRUE);
    scene.show();
    Knowledge facts = known(scene);
    facts.colourColumns = {1};
    facts.entry = 0;
    scene.expectRow(0, facts);
}

TEST(ListDraw, RightAndCentredColumns)
{
    ListScene scene;
    scene.addColumn(L"a", 60);
    scene.addColumn(L"right", 80, false, LVCFMT_RIGHT);
    scene.addColumn(L"centre", 80, false, LVCFMT_CENTER);
    scene.list.AddItem(0, 0, L"fits", 0, -1);
    scene.list.AddItem(0, 1, L"12", 0, -1);
    scene.list.AddItem(0, 2, L"34", 0, -1);
    scene.list.AddItem(1, 0, L"does not", 0, -1);
    scene.list.AddItem(1, 1, L"a long text for the right", 0, -1);
    scene.list.AddItem(1, 2, L"a long text for the middle", 0, -1);
    scene.show();
    scene.expectRow(0, known(scene));
    scene.expectRow(1, known(scene));

    // What was cut begins at the left.
    const Picture shown = Picture::ofClient(scene.list);
    const auto firstInk = [&](const CRect& cell) {
        for (int x = cell.left; x < cell.right; ++x)
            for (int y = cell.top; y < cell.bottom; ++y)
                if (shown.at(x, y) != ::GetSysColor(COLOR_WINDOW))
                    return x - static_cast<int>(cell.left);
        return -1;
    };
    EXPECT_GT(firstInk(scene.cell(0, 1)), 50);
    EXPECT_LT(firstInk(scene.cell(1, 1)), 10);
    EXPECT_GE(firstInk(scene.cell(1, 1)), 6);
    EXPECT_LT(firstInk(scene.cell(1, 2)), 10);
}

TEST(ListDraw, TheFirstColumnIsAlignedToTheLeftWhateverItsFormat)
{
    for (const int format : {LVCFMT_RIGHT, LVCFMT_CENTER}) {
        ListScene scene;
        scene.addColumn(L"a", 120, false, format);
        scene.addColumn(L"b", 80, false, format);
        scene.list.AddItem(0, 0, L"12", 0, -1);
        scene.list.AddItem(0, 1, L"34", 0, -1);
        scene.show();
        scene.expectRow(0, known(scene));
    }
}

TEST(ListDraw, TheStateImageStandsWhereTheCallerSaysTheRowIs)
{
    ListScene scene;
    scene.fill({100, 80}, 1);
    CImageList states;
    fillImages(states, 16, {RGB(200, 0, 0)});
    scene.list.SetImageList(&states, LVSIL_STATE);
    scene.list.SetItemState(0, INDEXTOSTATEIMAGEMASK(1), LVIS_STATEIMAGEMASK);
    Picture picture(300, 120);
    DRAWITEMSTRUCT draw{};
    draw.hDC = picture.dc();
    draw.rcItem = {200, 80, 260, 100};
    scene.list.DrawItem(&draw);
    EXPECT_EQ(picture.count(RGB(200, 0, 0)), 12 * 12);
    EXPECT_EQ(picture.count(RGB(200, 0, 0), 0, CRect(202, 82, 214, 94)), 12 * 12);

    // An icon at the same place lies above it.
    CImageList icons;
    fillImages(icons, 16, {RGB(0, 0, 200)});
    scene.list.SetImageList(&icons, LVSIL_SMALL);
    draw.rcItem = scene.rect(0, LVIR_ICON);
    scene.list.DrawItem(&draw);
    EXPECT_EQ(picture.count(RGB(200, 0, 0), 0, scene.rect(0, LVIR_ICON)), 0);
    EXPECT_EQ(picture.count(RGB(0, 0, 200)), 12 * 12);
    scene.list.SetImageList(nullptr, LVSIL_SMALL);
    scene.list.SetImageList(nullptr, LVSIL_STATE);
}

TEST(ListDraw, EmptySubitemsShowNothingNotEvenTheirColour)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 60);
    scene.addColumn(L"b", 80, true);
    scene.addColumn(L"c", 80);
    scene.list.AddItem(0, 0, L"name", kOpaque | RGB(200, 30, 30), -1);
    scene.list.AddItem(0, 2, L"behind", 0, -1);
    scene.show();
    Knowledge facts = known(scene);
    facts.colourColumns = {1};
    facts.entry = kOpaque | RGB(200, 30, 30);
    scene.expectRow(0, facts);
    EXPECT_EQ(Picture::ofClient(scene.list).count(RGB(200, 30, 30)), 0);
}

TEST(ListDraw, AnEmptyLabelStillGetsItsColour)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 60, true);
    scene.list.AddItem(0, 0, L"", kOpaque | RGB(200, 30, 30), -1);
    scene.show();
    EXPECT_GT(Picture::ofClient(scene.list).count(RGB(200, 30, 30)), 300);
}

TEST(ListDraw, ColumnsNarrowerThanTheirInsets)
{
    for (int width = 0; width <= 24; ++width) {
        ListScene scene;
        scene.addColumn(L"a", 60);
        scene.addColumn(L"b", 0, true, LVCFMT_RIGHT);
        scene.addColumn(L"c", 50);
        scene.list.UseRowColours(TRUE);
        scene.list.AddItem(0, 0, L"name", 0x40000000 | RGB(200, 30, 30), -1);
        scene.list.AddItem(0, 1, L"text", 0, -1);
        scene.list.AddItem(0, 2, L"W", 0, -1);
        scene.list.SetColumnWidth(1, width);
        scene.list.SetColumnWidth(2, 24 - width);
        scene.show();
        Knowledge facts = known(scene);
        facts.colourColumns = {1};
        facts.entry = 0x40000000 | RGB(200, 30, 30);
        scene.expectRow(0, facts);
    }
}

TEST(ListDraw, ALastColumnLeftAndRightOfTheWindowsEdge)
{
    for (const int width : {50, 200, 270, 275, 280, 285, 290, 400, 900}) {
        ListScene scene;
        scene.fill({120, 10}, 2);
        scene.list.SetColumnWidth(1, width);
        scene.show();
        scene.list.SetFocus();
        scene.list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        scene.expectRow(0, known(scene));
        scene.expectRow(1, known(scene));
    }
}

TEST(ListDraw, ScrolledHorizontally)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 300, true);
    scene.addColumn(L"b", 300, true);
    scene.list.AddItem(0, 0, L"one", 0x80000000 | RGB(0, 0, 200), -1);
    scene.list.AddItem(0, 1, L"two", 0, -1);
    scene.show();
    scene.list.Scroll(CSize(130, 0));
    EXPECT_EQ(scene.itemRect(0).left, -130);
    Knowledge facts = known(scene);
    facts.colourColumns = {0, 1};
    facts.entry = 0x80000000 | RGB(0, 0, 200);
    scene.expectRow(0, facts);
}

TEST(ListDraw, TextsLongerThanTheBuffersAreDrawnAsFarAsTheyReach)
{
    // What the platform gives has at most 259 characters; of that MakeShortString may keep 260.
    for (const std::size_t length : {258u, 259u, 260u, 300u, 5000u}) {
        ListScene scene;
        scene.addColumn(L"a", 120);
        scene.addColumn(L"b", 120);
        const std::wstring text(length, L'M');
        scene.list.AddItem(0, 0, text, 0, -1);
        scene.list.AddItem(0, 1, text, 0, -1);
        scene.show();
        scene.expectRow(0, known(scene)); // cut
        for (const int column : {0, 1}) {
            scene.list.SetColumnWidth(column, 3000);
            scene.list.SetColumnWidth(1 - column, 60);
            const CRect cell = scene.cell(0, column);
            Picture drawn(3100, 40);
            Picture expected(3100, 40);
            drawRow(drawn, scene.list, 0);
            const HGDIOBJ font = ::SelectObject(expected.dc(), scene.list.GetFont()->GetSafeHandle());
            CRect place = cell;
            place.DeflateRect(column ? 6 : 2, 0);
            ::DrawTextW(expected.dc(), text.c_str(), static_cast<int>(std::min<std::size_t>(length, 259)),
                        &place, 0x0924);
            ::SelectObject(expected.dc(), font);
            const auto ink = [&](const Picture& picture) {
                return picture.count(::GetSysColor(COLOR_WINDOWTEXT), 0, cell);
            };
            EXPECT_GT(ink(drawn), 1000);
            EXPECT_EQ(ink(drawn), ink(expected)) << length << " characters in column " << column;
        }
    }
}

TEST(ListDraw, AmpersandsAndTabsAreCharacters)
{
    ListScene scene;
    scene.fill({120, 120}, 1);
    scene.list.SetItemText(0, 0, L"salt & pepper");
    scene.list.SetItemText(0, 1, L"a\tb && c");
    scene.show();
    scene.expectRow(0, known(scene));
}

TEST(ListDraw, FontsHigherThanTheRowAreNotClipped)
{
    ListScene scene;
    scene.fill({120, 120}, 2);
    scene.show();
    const int height = scene.itemRect(0).Height();
    CFont font;
    font.CreateFont(-3 * height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                    CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, L"Tahoma");
    Picture drawn(300, 120);
    const HGDIOBJ old = ::SelectObject(drawn.dc(), font.GetSafeHandle());
    DRAWITEMSTRUCT draw{};
    draw.hDC = drawn.dc();
    draw.rcItem = scene.itemRect(0);
    scene.list.DrawItem(&draw);
    ::SelectObject(drawn.dc(), old);
    const CRect below(0, scene.itemRect(0).bottom, 300, 120);
    EXPECT_GT(drawn.count(::GetSysColor(COLOR_WINDOWTEXT), 0, below), 0);
}

TEST(ListDraw, StateImageIconOverlayAndColourInOneLabel)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    CImageList states;
    fillImages(states, 16, {RGB(200, 0, 0), RGB(0, 0, 200)});
    CImageList icons;
    fillImages(icons, 12, {RGB(0, 150, 0), RGB(90, 0, 90)});
    icons.SetOverlayImage(1, 1);
    for (CImageList* const images : {&states, &icons})
        images->SetBkColor(RGB(0, 255, 255)); // not drawn: what is behind the images is the row
    scene.list.SetImageList(&states, LVSIL_STATE);
    scene.list.SetImageList(&icons, LVSIL_SMALL);
    scene.addColumn(L"a", 150, true);
    scene.addColumn(L"b", 80);
    scene.list.AddItem(0, 0, L"a label that is cut by all of them", 0x80000000 | RGB(250, 200, 0), 0);
    scene.list.AddItem(0, 1, L"more", 0, -1);
    scene.list.SetItemState(0, static_cast<UINT>(INDEXTOSTATEIMAGEMASK(2) | INDEXTOOVERLAYMASK(1)),
                            LVIS_STATEIMAGEMASK | LVIS_OVERLAYMASK);
    scene.show();
    Knowledge facts = known(scene);
    facts.stateImageWidth = 16;
    facts.colourColumns = {0};
    facts.entry = 0x80000000 | RGB(250, 200, 0);
    for (const UINT state : {0u, UINT{LVIS_SELECTED}, UINT{LVIS_SELECTED | LVIS_FOCUSED}}) {
        scene.list.SetFocus();
        scene.list.SetItemState(0, state, LVIS_SELECTED | LVIS_FOCUSED);
        scene.expectRow(0, facts);
    }
    scene.list.SetImageList(nullptr, LVSIL_STATE);
    scene.list.SetImageList(nullptr, LVSIL_SMALL);
}

TEST(ListDraw, RowsWithoutAnEntryKeepTheOneThatLookingMade)
{
    ListScene scene;
    scene.addColumn(L"a", 100);
    scene.addColumn(L"b", 90, true);
    scene.list.AddItem(0, 0, L"name", 0xFF0000C8, -1); // before row colours are in use
    scene.list.AddItem(0, 1, L".", 0, -1);
    scene.list.UseRowColours(TRUE);
    scene.show();
    Knowledge facts = known(scene);
    facts.colourColumns = {1};
    facts.entry = 0;
    scene.expectRow(0, facts);
    // The data is another now: the row shows the entry of that number, and none is there either.
    scene.list.SetItemData(0, 99);
    scene.expectRow(0, facts);
    scene.list.SetItemData(0, 0);
    scene.expectRow(0, facts);
}

TEST(ListDraw, RightToLeft)
{
    ListScene scene(0, WS_EX_LAYOUTRTL);
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 100);
    scene.addColumn(L"b", 100, true);
    scene.list.AddItem(0, 0, L"one", kOpaque | RGB(200, 0, 0), -1);
    scene.list.AddItem(0, 1, L"two", 0, -1);
    scene.list.AddItem(1, 0, L"selected", 0x80000000 | RGB(0, 0, 200), -1);
    scene.list.AddItem(1, 1, L"three", 0, -1);
    scene.list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    scene.show();
    scene.list.SetFocus();
    Knowledge facts = known(scene);
    facts.colourColumns = {1};
    facts.entry = kOpaque | RGB(200, 0, 0);
    scene.expectRowInMemory(0, facts);
    facts.entry = 0x80000000 | RGB(0, 0, 200);
    scene.expectRowInMemory(1, facts);
    // The first column is at the right, the swatch left of it, and the selection reaches the left edge.
    CRect window;
    scene.list.GetWindowRect(&window);
    const auto at = [&](int fromTheRight, int item) {
        return Picture::ofScreen().at(window.right - fromTheRight, window.top + scene.itemRect(item).top + 2);
    };
    GuiThread::settleOnScreen(); // all of the list, not the part that is painted first
    EXPECT_TRUE(GuiThread::runUntil([&] { return at(380, 1) == ::GetSysColor(COLOR_HIGHLIGHT); }));
    EXPECT_THAT(at(150, 0), IsColour(RGB(200, 0, 0)));
    EXPECT_THAT(at(50, 0), IsColour(::GetSysColor(COLOR_WINDOW)));
    // The plain half of a swatch is its right one here.
    EXPECT_THAT(at(105, 1), IsColour(RGB(0, 0, 200)));
    int squares = 0;
    for (int x = 155; x < 195; x += 2)
        squares += isNear(at(x, 1), RGB(127, 127, 227), 1);
    EXPECT_GT(squares, 3);
}

TEST(ListDraw, DraggingAHeaderLeavesTheCellsInTheOrderOfTheirNumbers)
{
    ListScene scene(0);
    scene.list.SetExtendedStyle(LVS_EX_HEADERDRAGDROP);
    scene.fill({100, 80, 60}, 2);
    scene.show();
    Robot robot;
    robot.drag(Spot{*scene.list.GetHeaderCtrl(), CPoint(210, 8)},
               Spot{*scene.list.GetHeaderCtrl(), CPoint(110, 8)});
    int order[3] = {};
    scene.list.GetColumnOrderArray(order, 3);
    ASSERT_EQ(order[1], 2) << "the drag has moved the last column";
    scene.expectRow(0, known(scene));
    scene.expectRow(1, known(scene));
}

TEST(ListDraw, CellsFollowTheirHeadingsWhenTheHostAsksForIt)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 100);
    scene.addColumn(L"b", 80, true);
    scene.addColumn(L"c", 60);
    for (int column = 0; column < 3; ++column)
        scene.list.AddItem(0, column, L"x", kOpaque | RGB(200, 0, 0), -1);
    int order[] = {1, 2, 0};
    scene.list.SetColumnOrderArray(3, order);
    scene.list.FollowColumnOrder(true);
    scene.list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    scene.show();
    scene.list.SetFocus();
    const Picture shown = Picture::ofClient(scene.list);
    const int y = scene.itemRect(0).top + 2;
    EXPECT_THAT(shown.at(1, y), IsColour(RGB(200, 0, 0)));
    EXPECT_THAT(shown.at(78, y), IsColour(RGB(200, 0, 0)));
    for (const int x : {82, 138, 238, 300})
        EXPECT_THAT(shown.at(x, y), IsColour(::GetSysColor(COLOR_HIGHLIGHT))) << x;
    // So does the focus rectangle, which is drawn by inverting, and what the focus repaints.
    scene.list.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED);
    scene.list.RedrawWindow();
    const Picture focused = Picture::ofClient(scene.list);
    int edge = 0;
    for (int line = scene.itemRect(0).top; line < scene.itemRect(0).bottom; ++line)
        edge += focused.at(0, line) != shown.at(0, line);
    EXPECT_GT(edge, 3);
    scene.button.SetFocus();
    EXPECT_EQ(Picture::ofClient(scene.list).count(::GetSysColor(COLOR_HIGHLIGHT), 0, scene.itemRect(0)), 0);
    scene.list.SetFocus();
    scene.list.SetItemState(0, 0, LVIS_FOCUSED);
    // In the usual order nothing differs from a list that was not asked to.
    int usual[] = {0, 1, 2};
    scene.list.SetColumnOrderArray(3, usual);
    Knowledge facts = known(scene);
    facts.colourColumns = {1};
    facts.entry = kOpaque | RGB(200, 0, 0);
    scene.expectRow(0, facts);
}

TEST(ListDraw, ASelectionReachesFromTheFirstMovedColumnToTheLast)
{
    ListScene scene;
    scene.fill({150, 200, 250}, 2);
    int order[] = {1, 2, 0};
    scene.list.SetColumnOrderArray(3, order);
    scene.list.FollowColumnOrder(true);
    scene.list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    scene.show();
    scene.list.SetFocus();
    for (const int right : {0, 100, 100}) { // at last to the end
        scene.list.Scroll(CSize(right, 0));
        scene.list.RedrawWindow();
        const Picture shown = Picture::ofClient(scene.list);
        for (int x = 0; x < shown.width(); x += 10)
            EXPECT_THAT(shown.at(x, scene.itemRect(0).top), IsColour(::GetSysColor(COLOR_HIGHLIGHT))) << x;
    }
}

TEST(ListDraw, CellsThatFollowTheirHeadingsMoveAtOnce)
{
    ListScene scene;
    scene.fill({100, 80}, 2);
    int order[] = {1, 0};
    scene.list.SetColumnOrderArray(2, order);
    scene.show();
    for (const bool follow : {true, false}) {
        GuiThread::settle();
        scene.list.drawn.clear();
        scene.list.FollowColumnOrder(follow);
        GuiThread::settle();
        for (const int row : {0, 1})
            EXPECT_GT(std::ranges::count(scene.list.drawn, row), 0) << follow;
    }
}

namespace
{

/// Rows that are not stored.
class VirtualList : public List
{
public:
    DWORD rowColour(int item) override { return kOpaque | static_cast<DWORD>(item % 256); }
};

} // namespace

TEST(ListDraw, RowsOfAListWithoutStorageTakeTheirColoursFromTheHost)
{
    RecordingParent parent;
    VirtualList list;
    list.Create(WS_CHILD | WS_VISIBLE | LVS_OWNERDATA, CRect(0, 0, 300, 150), &parent, 7);
    list.UseRowColours(TRUE);
    for (const bool colour : {false, true})
        list.AddColumn(L"column", colour, -1, colour, LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM,
                       LVCFMT_LEFT);
    parent.answer(static_cast<UINT>(LVN_GETDISPINFOW), [](NMHDR* header) -> LRESULT {
        auto& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
        if (item.mask & LVIF_TEXT)
            ::lstrcpynW(item.pszText, std::to_wstring(item.iItem).c_str(), item.cchTextMax);
        return 0;
    });
    list.SetItemCountEx(1000000);
    present(parent);
    list.EnsureVisible(999999, FALSE);
    list.RedrawWindow();
    CRect label;
    list.GetItemRect(999999, &label, LVIR_LABEL);
    EXPECT_THAT(Picture::ofClient(list).at(label.right + 2, label.top + 2), IsColour(999999 % 256));
}

namespace
{

/// Deletes itself when it is asked for a colour. Whoever uses it afterwards finds no object there.
class Vanishing : public List
{
public:
    static void* operator new(std::size_t size) { return ::operator new(size); }
    static void operator delete(void* memory, std::size_t size)
    {
        std::fill_n(static_cast<volatile unsigned char*>(memory), size, static_cast<unsigned char>(0xDD));
        ::operator delete(memory);
    }

    DWORD rowColour(int) override
    {
        delete this;
        return kOpaque;
    }
};

} // namespace

TEST(ListDraw, TheListMayBeDeletedWhenItIsAskedForAColour)
{
    RecordingParent parent;
    auto* const list = new Vanishing;
    list->Create(WS_CHILD, CRect(0, 0, 300, 150), &parent, 7);
    list->UseRowColours(TRUE);
    list->InsertColumn(0, L"a", LVCFMT_LEFT, 60);
    list->InsertItem(0, L"x");
    const HWND window = *list;
    Picture picture(200, 60, RGB(9, 9, 9));
    DRAWITEMSTRUCT draw{};
    draw.hDC = picture.dc();
    list->DrawItem(&draw);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(picture.count(RGB(9, 9, 9)), 200 * 60);
}

TEST(ListDraw, TheListMayBeDeletedWhenItIsAskedForAText)
{
    RecordingParent parent;
    auto* const list = new Perishing<List>;
    list->Create(WS_CHILD, CRect(0, 0, 300, 150), &parent, 7);
    for (const int column : {0, 1})
        list->InsertColumn(column, L"c", LVCFMT_LEFT, 100);
    list->InsertItem(0, L"");
    list->SetItemText(0, 1, LPSTR_TEXTCALLBACKW);
    HWND window = nullptr;
    parent.answer(static_cast<UINT>(LVN_GETDISPINFOW), [&](NMHDR* header) -> LRESULT {
        ::lstrcpynW(reinterpret_cast<NMLVDISPINFOW*>(header)->item.pszText, L"MMM", 4);
        window = list->UnsubclassWindow(); // which the platform goes on with
        delete list;
        return 0;
    });
    Picture picture(300, 60, RGB(9, 9, 9));
    DRAWITEMSTRUCT draw{};
    draw.hDC = picture.dc();
    list->DrawItem(&draw);
    ASSERT_TRUE(window);
    EXPECT_GT(picture.count(::GetSysColor(COLOR_WINDOW)), 0) << "the row was begun";
    EXPECT_EQ(picture.count(::GetSysColor(COLOR_WINDOWTEXT)), 0);
    ::DestroyWindow(window);
}

namespace
{

/// A list with one row in a shown parent, which gives the texts, and deletes the list when it is told to.
class DoomedList
{
public:
    DoomedList(RecordingParent& parent, DWORD style)
        : m_parent(parent)
    {
        fillImages(m_icons, 16, {RGB(0, 150, 0)});
        m_list->Create(WS_CHILD | WS_VISIBLE | LVS_SHAREIMAGELISTS | style, CRect(0, 0, 300, 150), &parent,
                       7);
        m_window = *m_list;
        m_list->SetImageList(&m_icons, LVSIL_SMALL);
        for (const int column : {0, 1})
            m_list->InsertColumn(column, L"c", LVCFMT_LEFT, 100);
        answer(0);
        if (style & LVS_OWNERDATA) {
            m_list->SetItemCountEx(1);
        } else {
            m_list->InsertItem(0, LPSTR_TEXTCALLBACKW);
            m_list->SetItemText(0, 1, LPSTR_TEXTCALLBACKW);
        }
        m_list->SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        parent.SetFocus();
        m_list->UpdateWindow();
    }
    ~DoomedList()
    {
        m_parent.answer(static_cast<UINT>(LVN_GETDISPINFOW), 0);
        ::DestroyWindow(m_window);
        if (!m_deleted)
            delete m_list;
    }
    DoomedList(const DoomedList&) = delete;
    DoomedList& operator=(const DoomedList&) = delete;

    List& list() { return *m_list; }
    HWND window() const { return m_window; }
    bool isDeleted() const { return m_deleted; }
    bool isUntouched() const { return Perishing<List>::isUntouched(m_list); }

    /// From now on, until the list is deleted when its parent is asked for the `last`th time; never for 0.
    void answer(int last)
    {
        m_parent.answer(static_cast<UINT>(LVN_GETDISPINFOW), [this, last](NMHDR* header) mutable -> LRESULT {
            auto& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
            if (item.mask & LVIF_TEXT)
                ::lstrcpynW(item.pszText, L"text", item.cchTextMax);
            if (last > 0 && --last == 0) {
                m_list->UnsubclassWindow(); // which the platform goes on with
                delete m_list;
                m_deleted = true;
            }
            return 0;
        });
    }

private:
    RecordingParent& m_parent;
    CImageList m_icons;
    Perishing<List>* const m_list = new Perishing<List>;
    HWND m_window = nullptr;
    bool m_deleted = false;
};

struct Occasion
{
    const char* name;
    void (*act)(DoomedList&);
};

const Occasion kOccasions[] = {
    {"drawing a row",
     [](DoomedList& doomed) {
         Picture picture(300, 60);
         DRAWITEMSTRUCT draw{};
         draw.hDC = picture.dc();
         draw.rcItem = {0, 0, 300, 20};
         doomed.list().DrawItem(&draw);
     }},
    {"painting",
     [](DoomedList& doomed) {
         ::RedrawWindow(doomed.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
     }},
    {"the focus comes", [](DoomedList& doomed) { ::SetFocus(doomed.window()); }},
    {"the focus goes",
     [](DoomedList& doomed) {
         ::SetFocus(doomed.window());
         ::SetFocus(::GetParent(doomed.window()));
     }},
};

} // namespace

// Some platforms ask for the text of a label to tell where it is, too.
TEST(ListDraw, TheListMayBeDeletedWheneverItsParentIsAskedForAnItem)
{
    RecordingParent parent;
    present(parent);
    for (const DWORD style : {DWORD{0}, DWORD{LVS_OWNERDATA}})
        for (const Occasion& occasion : kOccasions) {
            SCOPED_TRACE(occasion.name);
            int last = 0;
            for (bool deleted = true; deleted && last < 100;) {
                DoomedList doomed(parent, style);
                doomed.answer(++last);
                occasion.act(doomed);
                deleted = doomed.isDeleted();
                EXPECT_TRUE(!deleted || doomed.isUntouched()) << "when asked for the " << last << "th time";
            }
            EXPECT_GT(last, 2) << "the parent has been asked for both texts";
            EXPECT_LT(last, 100);
        }
}

TEST(ListDraw, AnotherListMayBeDrawnWhenTheHostIsAskedForAText)
{
    ListScene scene;
    scene.fill({100, 100}, 1);
    for (const int column : {0, 1})
        scene.list.SetItemText(0, column, LPSTR_TEXTCALLBACKW);
    List other;
    other.Create(WS_CHILD, CRect(0, 0, 200, 100), &scene.parent, 9);
    other.InsertColumn(0, L"c", LVCFMT_LEFT, 100);
    other.InsertItem(0, L"another list");
    Picture aside(200, 60);
    bool drawsOther = false;
    scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFOW), [&](NMHDR* header) -> LRESULT {
        if (drawsOther)
            drawRow(aside, other, 0);
        auto& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
        if (item.mask & LVIF_TEXT)
            ::lstrcpynW(item.pszText, item.iSubItem ? L"second" : L"first", item.cchTextMax);
        return 0;
    });
    Picture expected(300, 60);
    drawRow(expected, scene.list, 0);
    EXPECT_GT(expected.count(::GetSysColor(COLOR_WINDOWTEXT)), 0);
    drawsOther = true;
    Picture drawn(300, 60);
    drawRow(drawn, scene.list, 0);
    EXPECT_GT(aside.count(::GetSysColor(COLOR_WINDOWTEXT)), 0) << "the host was asked";
    EXPECT_EQ(drawn.differences(expected), 0);
    other.DestroyWindow();
}

TEST(ListDraw, LeavesTheDeviceContextAsItWas)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 60, true);
    scene.addColumn(L"b", 60, true);
    scene.list.AddItem(0, 0, L"one", 0x80000000, -1);
    scene.list.AddItem(0, 1, L"two", 0, -1);
    Picture picture(200, 60);
    ::SetTextColor(picture.dc(), RGB(1, 2, 3));
    ::SetBkColor(picture.dc(), RGB(4, 5, 6));
    ::SetBkMode(picture.dc(), OPAQUE);
    ::SetDCBrushColor(picture.dc(), RGB(7, 8, 9));
    const HGDIOBJ brush = ::GetCurrentObject(picture.dc(), OBJ_BRUSH);
    DRAWITEMSTRUCT draw{};
    draw.hDC = picture.dc();
    draw.rcItem = scene.itemRect(0);
    scene.list.DrawItem(&draw);
    EXPECT_EQ(::GetTextColor(picture.dc()), RGB(1, 2, 3));
    EXPECT_EQ(::GetBkColor(picture.dc()), RGB(4, 5, 6));
    EXPECT_EQ(::GetBkMode(picture.dc()), OPAQUE);
    EXPECT_EQ(::GetDCBrushColor(picture.dc()), RGB(7, 8, 9));
    EXPECT_EQ(::GetCurrentObject(picture.dc(), OBJ_BRUSH), brush);
}

TEST(ListDraw, ARowThatIsGoneIsNotDrawn)
{
    ListScene scene;
    scene.fill({60}, 1);
    Picture picture(200, 60, RGB(9, 9, 9));
    DRAWITEMSTRUCT draw{};
    draw.hDC = picture.dc();
    draw.itemID = 5;
    scene.list.DrawItem(&draw);
    draw.itemID = static_cast<UINT>(-1);
    scene.list.DrawItem(&draw);
    EXPECT_EQ(picture.count(RGB(9, 9, 9)), 200 * 60);
}

TEST(ListDraw, ATextThatTheHostDoesNotGiveIsEmpty)
{
    ListScene scene;
    scene.fill({60, 60, 60}, 1);
    scene.list.SetItemText(0, 1, LPSTR_TEXTCALLBACKW);
    scene.show();
    scene.expectRow(0, known(scene));
    const CRect cell = scene.cell(0, 1);
    EXPECT_EQ(Picture::ofClient(scene.list).count(::GetSysColor(COLOR_WINDOW), 0, cell),
              cell.Width() * cell.Height());
}

TEST(ListDraw, TextsFromTheHostAreAskedForAndMayChangeTheList)
{
    ListScene scene;
    scene.fill({60, 60}, 1);
    scene.list.SetItemText(0, 0, LPSTR_TEXTCALLBACKW);
    scene.list.SetItemText(0, 1, LPSTR_TEXTCALLBACKW);
    int asked = 0;
    scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFOW), [&](NMHDR* header) -> LRESULT {
        auto& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
        if (item.mask & LVIF_TEXT)
            ::lstrcpynW(item.pszText, item.iSubItem ? L"second" : L"first", item.cchTextMax);
        ++asked;
        return 0;
    });
    scene.show();
    scene.expectRow(0, known(scene));
    EXPECT_GT(asked, 1);

    scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFOW), [&](NMHDR*) -> LRESULT {
        scene.list.DeleteAllItems();
        return 0;
    });
    Picture picture(200, 60);
    DRAWITEMSTRUCT draw{};
    draw.hDC = picture.dc();
    scene.list.DrawItem(&draw);
    EXPECT_EQ(scene.list.GetItemCount(), 0);
}
