// Colours and images of items, and the cue in the empty field.
#include "ComboScene.h"
#include "ListScene.h"

#include <testkit/Picture.h>
#include <testkit/TemporaryFiles.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr DWORD kOwnerDrawn = CBS_DROPDOWN | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
constexpr COLORREF kGreen = RGB(0, 200, 0);
constexpr COLORREF kRed = RGB(220, 0, 0);
constexpr DWORD kOpaque = 0xFF000000;

/// The open list's pixels.
Picture openList(ComboScene& scene)
{
    scene.combo.ShowDropDown();
    GuiThread::settle();
    ::RedrawWindow(scene.listBox(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    return Picture::ofClient(scene.listBox());
}

/// An item as it is drawn, 120 pixels wide.
Picture drawnItem(ComboScene& scene, int item, int height, UINT state)
{
    Picture picture(120, height);
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_COMBOBOX;
    draw.itemID = static_cast<UINT>(item);
    draw.itemState = state;
    draw.hDC = picture.dc();
    draw.hwndItem = scene.combo;
    draw.rcItem = {0, 0, 120, height};
    const HGDIOBJ old = ::SelectObject(picture.dc(), scene.combo.GetFont()->GetSafeHandle());
    scene.parent.SendMessage(WM_DRAWITEM, 21, reinterpret_cast<LPARAM>(&draw));
    ::SelectObject(picture.dc(), old);
    return picture;
}

Picture firstItem(ComboScene& scene, int height, UINT state)
{
    return drawnItem(scene, 0, height, state);
}

bool hasColour(ComboScene& scene, int item, COLORREF colour)
{
    return drawnItem(scene, item, 20, 0).count(colour) > 0;
}

using Texts = std::vector<std::wstring>;

/// The texts of the items that have a colour.
Texts withColour(ComboScene& scene, COLORREF colour)
{
    Texts texts;
    CString text;
    for (int item = 0; item < scene.combo.GetCount(); ++item)
        if (hasColour(scene, item, colour)) {
            scene.combo.GetLBText(item, text);
            texts.emplace_back(text.GetString());
        }
    return texts;
}

CRect itemRect(ComboScene& scene, int item)
{
    CRect rect;
    ::SendMessageW(scene.listBox(), LB_GETITEMRECT, static_cast<WPARAM>(item),
                   reinterpret_cast<LPARAM>(static_cast<RECT*>(&rect)));
    return rect;
}

/// Whether the text of the first item begins where a swatch would stand, as the open list shows it.
bool reachesTheLeft(ComboScene& scene)
{
    CRect left = itemRect(scene, 0);
    left.right = left.left + 12;
    return Picture::ofClient(scene.listBox()).count(::GetSysColor(COLOR_WINDOWTEXT), 0, left) > 0;
}

} // namespace

TEST(ComboItemLooks, AColourForEachItem)
{
    ComboScene scene({L"leaf", L"rose", L"none"}, kOwnerDrawn);
    scene.combo.SetItemColour(0, kOpaque | kGreen);
    scene.combo.SetItemColour(1, kOpaque | kRed);
    scene.enter();
    const Picture list = openList(scene);
    EXPECT_GT(list.count(kGreen, 0, itemRect(scene, 0)), 50);
    EXPECT_GT(list.count(kRed, 0, itemRect(scene, 1)), 50);
    for (const COLORREF colour : {kGreen, kRed})
        EXPECT_EQ(list.count(colour, 0, itemRect(scene, 2)), 0);
    EXPECT_EQ(list.count(kRed, 0, itemRect(scene, 0)), 0);
    const CPoint corner = itemRect(scene, 0).TopLeft() + CSize(2, 2);
    EXPECT_THAT(list.at(corner), IsColour(::GetSysColor(COLOR_GRAYTEXT))) << "the frame of the swatch";
    EXPECT_THAT(list.at(corner + CSize(1, 1)), IsColour(kGreen));
}

TEST(ComboItemLooks, TransparencyOverSquares)
{
    ComboScene scene({L"glass"}, kOwnerDrawn);
    scene.combo.SetItemColour(0, 0x80000000 | kGreen);
    scene.enter();
    const Picture list = openList(scene);
    EXPECT_GT(list.count(kGreen, 0, itemRect(scene, 0)), 20);
    EXPECT_GT(list.count(RGB(0, 200 * 128 / 255, 0), 1, itemRect(scene, 0)), 10);
    EXPECT_GT(list.count(RGB(127, 227, 127), 2, itemRect(scene, 0)), 10);
}

TEST(ComboItemLooks, AnImageForEachItem)
{
    CImageList images;
    fillImages(images, 16, {kGreen, kRed});
    ComboScene scene({L"leaf", L"rose", L"none"}, kOwnerDrawn);
    scene.combo.SetImageList(&images);
    scene.combo.SetItemImage(0, 1);
    scene.combo.SetItemImage(1, 0);
    scene.enter();
    const Picture list = openList(scene);
    EXPECT_EQ(list.count(kRed, 0, itemRect(scene, 0)), 12 * 12);
    EXPECT_EQ(list.count(kGreen, 0, itemRect(scene, 1)), 12 * 12);
    EXPECT_EQ(list.count(kRed, 0, itemRect(scene, 2)), 0);
    EXPECT_GE(itemRect(scene, 0).Height(), 16);
}

TEST(ComboItemLooks, ItemsAreAsHighAsTheirImages)
{
    CImageList images;
    fillImages(images, 40, {kGreen});
    ComboScene scene({L"leaf"}, kOwnerDrawn);
    scene.combo.SetImageList(&images);
    scene.combo.SetItemImage(0, 0);
    scene.enter();
    const Picture list = openList(scene);
    EXPECT_GE(itemRect(scene, 0).Height(), 40);
    EXPECT_EQ(list.count(kGreen, 0, itemRect(scene, 0)), 36 * 36);
}

TEST(ComboItemLooks, TheHeightIsThatOfTheImagesOfNow)
{
    CImageList images;
    fillImages(images, 40, {kGreen});
    ComboScene scene({L"leaf"}, kOwnerDrawn);
    scene.combo.SetItemColour(0, kOpaque | kGreen);
    const int without = scene.combo.GetItemHeight(0);
    scene.combo.SetImageList(&images);
    EXPECT_GE(scene.combo.GetItemHeight(0), 40);
    scene.combo.SetImageList(nullptr);
    EXPECT_EQ(scene.combo.GetItemHeight(0), without);
}

TEST(ComboItemLooks, TheHeightIsThatOfTheFontOfNow)
{
    CFont font;
    font.CreatePointFont(400, L"Tahoma");
    ComboScene scene({L"leaf"}, kOwnerDrawn);
    scene.combo.SetItemColour(0, kOpaque | kGreen);
    const int before = scene.combo.GetItemHeight(0);
    scene.combo.SetFont(&font);
    EXPECT_GE(scene.combo.GetItemHeight(0), 40);
    scene.combo.SetFont(nullptr);
    EXPECT_EQ(scene.combo.GetItemHeight(0), before);

    // Where the host draws, it is the host's.
    COVOComboBox hosts;
    CComboBox platforms;
    hosts.Create(WS_CHILD | kOwnerDrawn, CRect(220, 10, 390, 160), &scene.parent, 33);
    platforms.Create(WS_CHILD | kOwnerDrawn, CRect(220, 10, 390, 160), &scene.parent, 34);
    for (CComboBox* const combo : {static_cast<CComboBox*>(&hosts), &platforms})
        combo->SetFont(&font);
    EXPECT_EQ(hosts.GetItemHeight(0), platforms.GetItemHeight(0));
}

TEST(ComboItemLooks, ImagesThatAreThereBeforeTheWindowMakeItemsAsHighAndNotTheField)
{
    CImageList images;
    fillImages(images, 40, {kGreen});
    ComboScene scene({L"leaf"}, kOwnerDrawn);
    const int field = scene.combo.GetItemHeight(-1);
    scene.combo.SetImageList(&images);
    COVOComboBox early;
    early.SetImageList(&images);
    early.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | kOwnerDrawn, CRect(220, 10, 390, 160), &scene.parent,
                 33);
    EXPECT_EQ(early.GetItemHeight(0), scene.combo.GetItemHeight(0));
    EXPECT_EQ(early.GetItemHeight(-1), field) << "it shows the text only";
    EXPECT_EQ(scene.combo.GetItemHeight(-1), field);
}

TEST(ComboItemLooks, TheTextStandsInTheMiddleOfAHighItem)
{
    ComboScene scene({L"MMM"}, kOwnerDrawn);
    scene.combo.SetItemImage(0, -1);
    constexpr int kHeight = 60;
    const Picture item = firstItem(scene, kHeight, 0);
    int ink = 0;
    int sum = 0;
    for (int y = 0; y < kHeight; ++y) {
        const int here = item.count(::GetSysColor(COLOR_WINDOWTEXT), 0, CRect(0, y, 120, y + 1));
        ink += here;
        sum += here * y;
    }
    ASSERT_GT(ink, 0);
    EXPECT_NEAR(sum / ink, kHeight / 2, 5);
}

TEST(ComboItemLooks, AnAmpersandIsACharacter)
{
    const auto endOf = [](const wchar_t* text) {
        ComboScene scene({text}, kOwnerDrawn);
        scene.combo.SetItemImage(0, -1);
        const Picture item = firstItem(scene, 20, 0);
        int x = item.width();
        while (x > 0 && item.count(::GetSysColor(COLOR_WINDOWTEXT), 0, CRect(x - 1, 0, x, 20)) == 0)
            --x;
        return x;
    };
    const int without = endOf(L"MM");
    ASSERT_GT(without, 0);
    EXPECT_GE(endOf(L"M&M"), without + 4);
}

TEST(ComboItemLooks, AnotherWindowHasOtherItems)
{
    ComboScene scene({L"MMM"}, kOwnerDrawn);
    scene.combo.SetItemImage(0, -1);
    const auto reachesTheLeft = [&] {
        return firstItem(scene, 20, 0).count(::GetSysColor(COLOR_WINDOWTEXT), 0, CRect(0, 0, 12, 20)) > 0;
    };
    ASSERT_TRUE(reachesTheLeft());
    scene.combo.SetItemColour(0, kOpaque | kRed);
    ASSERT_FALSE(reachesTheLeft()) << "the swatch stands there";
    scene.combo.DestroyWindow();
    scene.combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | kOwnerDrawn, CRect(10, 10, 210, 160),
                       &scene.parent, 21);
    scene.combo.AddString(L"MMM");
    EXPECT_TRUE(reachesTheLeft()) << "none of these items has a colour";
    EXPECT_EQ(firstItem(scene, 20, 0).count(kRed), 0);
}

TEST(ComboItemLooks, StayWithTheirItems)
{
    ComboScene scene({L"leaf", L"rose"}, kOwnerDrawn);
    scene.combo.SetItemColour(1, kOpaque | kRed);
    scene.combo.InsertString(0, L"first");
    scene.combo.DeleteString(1);
    scene.enter();
    EXPECT_GT(openList(scene).count(kRed, 0, itemRect(scene, 1)), 50);
    scene.combo.ShowDropDown(FALSE);
    scene.combo.ResetContent();
    scene.combo.AddString(L"a");
    scene.combo.AddString(L"b");
    EXPECT_EQ(openList(scene).count(kRed), 0);
}

TEST(ComboItemLooks, StayWithTheirItemsAtEveryChange)
{
    ComboScene scene({L"leaf", L"rose", L"stem"}, kOwnerDrawn);
    const Texts rose{L"rose"};
    scene.combo.SetItemColour(1, kOpaque | kRed);
    ASSERT_EQ(withColour(scene, kRed), rose);
    scene.combo.InsertString(0, L"first");
    EXPECT_EQ(withColour(scene, kRed), rose);
    scene.combo.InsertString(-1, L"last");
    EXPECT_EQ(withColour(scene, kRed), rose);
    scene.combo.AddString(L"more");
    EXPECT_EQ(withColour(scene, kRed), rose);
    scene.combo.DeleteString(0);
    EXPECT_EQ(withColour(scene, kRed), rose);
    scene.combo.DeleteString(4);
    EXPECT_EQ(withColour(scene, kRed), rose);
    scene.combo.DeleteString(1);
    EXPECT_EQ(withColour(scene, kRed), Texts{}) << "it is gone with the rose";
    scene.combo.SetItemColour(0, kOpaque | kRed);
    ASSERT_EQ(withColour(scene, kRed), Texts{L"leaf"});
    scene.combo.ResetContent();
    scene.combo.AddString(L"leaf");
    EXPECT_EQ(withColour(scene, kRed), Texts{});
}

TEST(ComboItemLooks, StayWithTheirItemsWhenFilesComeBetween)
{
    const TemporaryFiles files{L"apple.txt", L"cherry.txt"};
    ComboScene scene({L"berry", L"date"}, kOwnerDrawn | CBS_SORT);
    scene.combo.SetItemColour(0, kOpaque | kRed);
    scene.combo.SetItemColour(1, kOpaque | kGreen);
    scene.combo.Dir(0, files.path(L"*.txt").c_str());
    ASSERT_EQ(scene.combo.GetCount(), 4);
    ASSERT_EQ(scene.combo.FindStringExact(-1, L"berry"), 1);
    ASSERT_EQ(scene.combo.FindStringExact(-1, L"date"), 3);
    EXPECT_EQ(withColour(scene, kRed), Texts{L"berry"});
    EXPECT_EQ(withColour(scene, kGreen), Texts{L"date"});
}

TEST(ComboItemLooks, AFileTakesNoColourFromAnItemWithItsName)
{
    const TemporaryFiles files{L"apple.txt"};
    ComboScene scene({L"apple.txt"}, kOwnerDrawn | CBS_SORT);
    scene.combo.SetItemData(0, 7);
    scene.combo.SetItemColour(0, kOpaque | kRed);
    scene.combo.Dir(0, files.path(L"*.txt").c_str());
    ASSERT_EQ(scene.combo.GetCount(), 2);
    for (int item = 0; item < 2; ++item)
        EXPECT_EQ(hasColour(scene, item, kRed), scene.combo.GetItemData(item) == 7) << item;
}

TEST(ComboItemLooks, AnOpenListShowsANewOneAtOnce)
{
    CImageList images;
    fillImages(images, 16, {kGreen});
    ComboScene scene({L"leaf", L"rose", L"none"}, kOwnerDrawn);
    scene.combo.SetImageList(&images);
    scene.combo.SetItemColour(0, kOpaque | kGreen);
    scene.enter();
    openList(scene);
    const auto changed = [&] {
        CRect place;
        ::GetUpdateRect(scene.listBox(), &place, FALSE);
        return place;
    };
    ASSERT_TRUE(changed().IsRectEmpty());
    scene.combo.SetItemColour(1, kOpaque | kRed);
    EXPECT_EQ(changed(), itemRect(scene, 1)) << "the others stay as they are";
    EXPECT_GT(Picture::ofClient(scene.listBox()).count(kRed, 0, itemRect(scene, 1)), 50);
    scene.combo.SetItemImage(2, 0);
    EXPECT_EQ(changed(), itemRect(scene, 2));
    EXPECT_EQ(Picture::ofClient(scene.listBox()).count(kGreen, 0, itemRect(scene, 2)), 12 * 12);
}

TEST(ComboItemLooks, TheFirstColourMovesAllTextsOfAnOpenList)
{
    ComboScene scene({L"MMM", L"rose"}, kOwnerDrawn);
    scene.combo.SetItemImage(1, -1);
    scene.enter();
    scene.robot.moveTo(Spot{scene.button}); // a pointer over the opening list would select
    openList(scene);
    ASSERT_TRUE(reachesTheLeft(scene));
    scene.combo.SetItemColour(1, kOpaque | kRed);
    EXPECT_FALSE(reachesTheLeft(scene)) << "the swatches stand there";
}

TEST(ComboItemLooks, TextsOfAnOpenListMoveBackWhenTheLastColourGoes)
{
    ComboScene scene({L"MMM", L"rose", L"leaf"}, kOwnerDrawn);
    scene.combo.SetItemColour(1, kOpaque | kRed);
    scene.combo.SetItemColour(2, kOpaque | kGreen);
    scene.enter();
    scene.robot.moveTo(Spot{scene.button}); // a pointer over the opening list would select
    openList(scene);
    ASSERT_FALSE(reachesTheLeft(scene)) << "the swatches stand there";
    scene.combo.DeleteString(2);
    ASSERT_FALSE(reachesTheLeft(scene)) << "there is one left";
    scene.combo.DeleteString(1);
    EXPECT_TRUE(reachesTheLeft(scene));
}

TEST(ComboItemLooks, AnOpenListShowsOtherImagesAtOnce)
{
    CImageList green;
    CImageList red;
    fillImages(green, 16, {kGreen});
    fillImages(red, 16, {kRed}); // of the same size
    ComboScene scene({L"leaf"}, kOwnerDrawn);
    scene.combo.SetImageList(&green);
    scene.combo.SetItemImage(0, 0);
    scene.enter();
    ASSERT_EQ(openList(scene).count(kGreen, 0, itemRect(scene, 0)), 12 * 12);
    scene.combo.SetImageList(&red);
    EXPECT_EQ(Picture::ofClient(scene.listBox()).count(kRed, 0, itemRect(scene, 0)), 12 * 12);
}

TEST(ComboItemLooks, OnesOfNoItemAreLeftOut)
{
    ComboScene scene({L"MMM"}, kOwnerDrawn);
    scene.combo.SetItemImage(0, -1);
    scene.enter();
    scene.robot.moveTo(Spot{scene.button}); // a pointer over the opening list would select
    for (const int item : {-1, 1, 7})
        scene.combo.SetItemColour(item, kOpaque | kRed);
    openList(scene);
    EXPECT_TRUE(reachesTheLeft(scene)) << "there is no swatch";
}

TEST(ComboItemLooks, TheFirstOneInAnOpenListBringsAllTexts)
{
    ComboScene scene({L"leaf", L"rose"}, kOwnerDrawn);
    scene.enter();
    ASSERT_EQ(openList(scene).count(::GetSysColor(COLOR_WINDOWTEXT)), 0) << "this host draws nothing";
    scene.combo.SetItemImage(0, -1);
    const Picture list = Picture::ofClient(scene.listBox());
    EXPECT_GT(list.count(::GetSysColor(COLOR_WINDOWTEXT), 0, itemRect(scene, 1)), 5);
}

TEST(ComboItemLooks, WithoutThemTheHostDraws)
{
    ComboScene scene({L"leaf", L"rose"}, kOwnerDrawn);
    scene.enter();
    EXPECT_EQ(openList(scene).count(::GetSysColor(COLOR_WINDOWTEXT)), 0) << "this host draws nothing";
    scene.combo.ShowDropDown(FALSE);
    scene.combo.SetItemImage(0, -1);
    EXPECT_GT(openList(scene).count(::GetSysColor(COLOR_WINDOWTEXT)), 20);
}

TEST(ComboItemLooks, SortedItemsHaveTheirOwn)
{
    ComboScene scene({L"b"}, kOwnerDrawn | CBS_SORT);
    scene.combo.SetItemColour(0, kOpaque | kRed);
    EXPECT_EQ(scene.combo.AddString(L"a"), 0);
    scene.enter();
    const Picture list = openList(scene);
    EXPECT_EQ(list.count(kRed, 0, itemRect(scene, 0)), 0);
    EXPECT_GT(list.count(kRed, 0, itemRect(scene, 1)), 50);
}

TEST(ComboItemLooks, TheSelectedItemIsHighlighted)
{
    ComboScene scene({L"leaf", L"rose"}, kOwnerDrawn);
    scene.combo.SetItemColour(0, kOpaque | kGreen);
    scene.enterWith(1);
    scene.robot.moveTo(Spot{scene.button});
    const Picture list = openList(scene);
    EXPECT_GT(list.count(::GetSysColor(COLOR_HIGHLIGHT), 0, itemRect(scene, 1)), 100);
    EXPECT_EQ(list.count(::GetSysColor(COLOR_HIGHLIGHT), 0, itemRect(scene, 0)), 0);
}

TEST(ComboItemLooks, TheTextStandsBehindSwatchAndImage)
{
    CImageList images;
    fillImages(images, 16, {kGreen, kRed});
    ComboScene scene({L"MMM"}, kOwnerDrawn);
    const auto firstInk = [&] {
        const Picture list = openList(scene);
        scene.combo.ShowDropDown(FALSE);
        const CRect row = CRect(0, 0, list.width(), scene.combo.GetItemHeight(0));
        for (int x = row.left; x < row.right; ++x)
            if (list.count(::GetSysColor(COLOR_WINDOWTEXT), 0, CRect(x, row.top, x + 1, row.bottom)))
                return x;
        return -1;
    };
    scene.enter();
    scene.combo.SetItemImage(0, -1);
    const int alone = firstInk();
    scene.combo.SetItemColour(0, kOpaque | kGreen);
    const int behindSwatch = firstInk();
    scene.combo.SetImageList(&images);
    scene.combo.SetItemImage(0, 1);
    const int behindBoth = firstInk();
    EXPECT_GE(alone, 0);
    EXPECT_LT(alone, 8);
    EXPECT_GE(behindSwatch, alone + 15);
    EXPECT_GE(behindBoth, behindSwatch + 16);
    scene.combo.ResetContent(); // takes the colours with it
    scene.combo.SetImageList(nullptr);
    scene.combo.AddString(L"MMM");
    EXPECT_EQ(firstInk(), alone);
}

TEST(ComboItemLooks, TextsOfADisabledListAreGrey)
{
    ComboScene scene({L"MMM"}, kOwnerDrawn);
    scene.combo.SetItemColour(0, kOpaque | kGreen);
    for (const UINT state : {0u, UINT{ODS_SELECTED}, UINT{ODS_DISABLED}}) {
        const Picture picture = firstItem(scene, 20, state);
        const CRect text(45, 0, 120, 20);
        const int colour = state == ODS_DISABLED   ? COLOR_GRAYTEXT
                           : state == ODS_SELECTED ? COLOR_HIGHLIGHTTEXT
                                                   : COLOR_WINDOWTEXT;
        EXPECT_GT(picture.count(::GetSysColor(colour), 0, text), 10) << "state " << state;
        EXPECT_EQ(
            picture.count(::GetSysColor(state == ODS_SELECTED ? COLOR_HIGHLIGHT : COLOR_WINDOW), 0, text) > 0,
            true);
    }
}

TEST(ComboCue, ShowsWhileTheFieldIsEmpty)
{
    ComboScene scene{L"fir"};
    const COLORREF grey = ::GetSysColor(COLOR_GRAYTEXT);
    const auto greyPixels = [&] {
        ::RedrawWindow(scene.edit(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        return Picture::ofClient(scene.edit()).count(grey);
    };
    scene.show();
    EXPECT_EQ(greyPixels(), 0) << "off at first";
    EXPECT_TRUE(scene.combo.CueText(L"A plant"));
    EXPECT_GT(greyPixels(), 10) << "without the focus";
    scene.combo.SetFocus();
    GuiThread::settle();
    EXPECT_GT(greyPixels(), 10) << "with the focus";
    scene.robot.type(L"f");
    EXPECT_EQ(greyPixels(), 0);
    EXPECT_TRUE(scene.combo.CueText(L""));
    scene.setText(L"");
    EXPECT_EQ(greyPixels(), 0);
}

TEST(ComboCue, ThereIsNoneWithoutAField)
{
    ComboScene scene({L"fir"}, CBS_DROPDOWNLIST);
    EXPECT_FALSE(scene.combo.CueText(L"A plant"));
}
