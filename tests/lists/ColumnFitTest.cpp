// Columns as wide as their texts: by LVSCW_AUTOSIZE, by LVSCW_AUTOSIZE_USEHEADER and by a double click on the
// divider of a heading.
#include "ListScene.h"

#include <support/PlatformSetting.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

using namespace ovo::testkit;

namespace
{

constexpr int kRows = 5000;
constexpr int kFirstShown = 2500; // rows of four digits, which the first rows do not have
constexpr int kPadding = 12;

std::wstring textOf(int row, int column)
{
    return column == 2 ? std::wstring(static_cast<std::size_t>(row % 10), L'm') : std::to_wstring(row);
}

/// A virtual list, scrolled to its middle, with texts that get wider.
class Fitted
{
public:
    explicit Fitted(int rows = kRows)
    {
        for (const wchar_t* heading : {L"number", L"the same number again, under a long heading", L"rest"})
            scene.addColumn(heading, 60);
        scene.list.SetItemCountEx(rows);
        answerWithTexts();
        scene.show();
        scene.list.EnsureVisible(rows - 1, FALSE);
        scene.list.EnsureVisible(rows / 2, FALSE);
        scene.list.RedrawWindow();
        asked = 0;
    }

    void answerWithTexts()
    {
        scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), [this](NMHDR* header) -> LRESULT {
            giveText(header);
            return 0;
        });
    }

    void giveText(NMHDR* header)
    {
        LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
        if (!(item.mask & LVIF_TEXT))
            return;
        ++asked;
        ::lstrcpynW(item.pszText, textOf(item.iItem, item.iSubItem).c_str(), item.cchTextMax);
    }

    /// Of the texts of the rows that are shown, in pixels.
    int widestShown(int column)
    {
        int widest = 0;
        const int first = scene.list.GetTopIndex();
        for (int row = first; row <= first + scene.list.GetCountPerPage(); ++row)
            widest = std::max(widest, scene.list.GetStringWidth(textOf(row, column).c_str()));
        return widest;
    }

    Spot divider(int column)
    {
        CRect heading;
        scene.list.GetHeaderCtrl()->GetItemRect(column, &heading);
        return Spot{*scene.list.GetHeaderCtrl(), CPoint(heading.right - 1, heading.CenterPoint().y)};
    }

    ListScene scene{LVS_OWNERDATA};
    int asked = 0; ///< texts
};

class ColumnFits : public ::testing::TestWithParam<bool>
{
protected:
    ColumnFits()
        : isWine(setting->measuresEachRow)
    {
        setting->measuresEachRow = GetParam();
    }

    PlatformSetting setting;
    const bool isWine;
};

INSTANTIATE_TEST_SUITE_P(Platforms, ColumnFits, ::testing::Bool());

/// The switches as they are for a platform that measures all rows.
class LongColumnFits : public ::testing::Test
{
protected:
    LongColumnFits() { setting->measuresEachRow = true; }

    PlatformSetting setting;
};

} // namespace

TEST_P(ColumnFits, ADoubleClickOnADividerMeasuresTheRowsThatAreShown)
{
    Fitted fitted;
    fitted.scene.parent.log().clear();
    int widthWhenTold = 0;
    fitted.scene.parent.answer(static_cast<UINT>(HDN_DIVIDERDBLCLICK), [&](NMHDR*) -> LRESULT {
        widthWhenTold = fitted.scene.list.GetColumnWidth(1);
        return 0;
    });
    Robot().doubleClick(fitted.divider(1));
    const int width = fitted.scene.list.GetColumnWidth(1);
    EXPECT_EQ(fitted.scene.parent.log().count(static_cast<UINT>(HDN_DIVIDERDBLCLICK)), 1);
    EXPECT_EQ(widthWhenTold, width) << "the parent hears of it afterwards";
    EXPECT_GE(width, fitted.widestShown(1) + kPadding);
    if (GetParam()) {
        EXPECT_EQ(width, fitted.widestShown(1) + kPadding);
        EXPECT_LT(fitted.asked, 300);
    } else if (isWine) {
        EXPECT_GE(fitted.asked, kRows) << "the switch is not needed any more";
    }
}

TEST_P(ColumnFits, AShortListIsMeasuredByThePlatform)
{
    constexpr int kFew = 1000;
    Fitted fitted(kFew);
    EXPECT_TRUE(fitted.scene.list.SetColumnWidth(1, LVSCW_AUTOSIZE));
    EXPECT_GE(fitted.scene.list.GetColumnWidth(1), fitted.scene.list.GetStringWidth(L"999"));
    if (isWine) {
        EXPECT_GE(fitted.asked, kFew);
    }
}

TEST_F(LongColumnFits, TextsOfEveryColumnAreShownWhole)
{
    for (const int column : {0, 1, 2}) {
        Fitted fitted;
        EXPECT_TRUE(fitted.scene.list.SetColumnWidth(column, LVSCW_AUTOSIZE));
        const int width = fitted.scene.list.GetColumnWidth(column);
        EXPECT_GE(width, fitted.widestShown(column) + kPadding) << column;
        EXPECT_LT(width, fitted.widestShown(column) + kPadding + 5) << column;
        EXPECT_LT(fitted.asked, 300) << column;
        EXPECT_EQ(fitted.scene.list.GetTopIndex(), kFirstShown) << "nothing else changes";
    }
}

TEST_F(LongColumnFits, IconsAndStateImagesHaveTheirRoomInTheFirstColumn)
{
    Fitted fitted;
    fitted.scene.list.SetColumnWidth(0, LVSCW_AUTOSIZE);
    const int bare = fitted.scene.list.GetColumnWidth(0);
    CImageList icons;
    fillImages(icons, 16, {RGB(255, 0, 0)});
    fitted.scene.list.SetImageList(&icons, LVSIL_SMALL);
    fitted.scene.list.SetColumnWidth(0, LVSCW_AUTOSIZE);
    const int withIcon = fitted.scene.list.GetColumnWidth(0);
    EXPECT_GE(withIcon, bare + 16);
    CImageList states;
    fillImages(states, 20, {RGB(0, 255, 0)});
    fitted.scene.list.SetImageList(&states, LVSIL_STATE);
    fitted.scene.list.SetColumnWidth(0, LVSCW_AUTOSIZE);
    const int label = fitted.scene.rect(kFirstShown, LVIR_LABEL).Width();
    EXPECT_GE(label, fitted.widestShown(0) + 20 + 4)
        << "the state image takes its room from the label once more";
    fitted.scene.list.SetColumnWidth(1, LVSCW_AUTOSIZE);
    EXPECT_EQ(fitted.scene.list.GetColumnWidth(1), fitted.widestShown(1) + kPadding) << "not in the others";
    fitted.scene.list.SetImageList(nullptr, LVSIL_STATE);
    fitted.scene.list.SetImageList(nullptr, LVSIL_SMALL);
}

TEST_F(LongColumnFits, AHeadingCountsWhenItIsAskedFor)
{
    Fitted fitted;
    const int heading =
        fitted.scene.list.GetStringWidth(L"the same number again, under a long heading") + kPadding;
    EXPECT_TRUE(fitted.scene.list.SetColumnWidth(1, LVSCW_AUTOSIZE_USEHEADER));
    EXPECT_EQ(fitted.scene.list.GetColumnWidth(1), heading);
    EXPECT_LT(fitted.asked, 300);
    EXPECT_TRUE(fitted.scene.list.SetColumnWidth(1, LVSCW_AUTOSIZE));
    EXPECT_LT(fitted.scene.list.GetColumnWidth(1), heading);
}

TEST_F(LongColumnFits, TheLastColumnGetsWhatIsLeftOfTheWindow)
{
    Fitted fitted;
    EXPECT_TRUE(fitted.scene.list.SetColumnWidth(2, LVSCW_AUTOSIZE_USEHEADER));
    CRect client;
    fitted.scene.list.GetClientRect(&client);
    EXPECT_EQ(fitted.scene.list.GetColumnWidth(2), client.Width() - 120);
}

TEST_F(LongColumnFits, AWidthInPixelsIsTaken)
{
    Fitted fitted;
    EXPECT_TRUE(fitted.scene.list.SetColumnWidth(1, 33));
    EXPECT_EQ(fitted.scene.list.GetColumnWidth(1), 33);
    EXPECT_FALSE(fitted.scene.list.SetColumnWidth(3, LVSCW_AUTOSIZE)) << "no such column";
    EXPECT_FALSE(fitted.scene.list.SetColumnWidth(-1, LVSCW_AUTOSIZE));
    EXPECT_EQ(fitted.asked, 0);
}

namespace
{

struct Misdeed
{
    const char* name;
    std::function<void(Fitted&)> act;
    bool fits; ///< the column has been fitted nevertheless
};

void PrintTo(const Misdeed& misdeed, std::ostream* out)
{
    *out << misdeed.name;
}

class ColumnFitsWithAHost : public ::testing::TestWithParam<Misdeed>
{
};

} // namespace

TEST_P(ColumnFitsWithAHost, ThatDoesAnythingWhenItIsAskedForATextOrTold)
{
    for (const UINT code : {static_cast<UINT>(LVN_GETDISPINFO), static_cast<UINT>(HDN_DIVIDERDBLCLICK)}) {
        PlatformSetting setting;
        setting->measuresEachRow = true;
        Fitted fitted;
        bool done = false;
        bool measuring = true;
        fitted.scene.parent.answer(code, [&](NMHDR* header) -> LRESULT {
            if (header->code == static_cast<UINT>(LVN_GETDISPINFO))
                fitted.giveText(header);
            if (measuring && !std::exchange(done, true))
                GetParam().act(fitted);
            return 0;
        });
        NMHEADER header{};
        header.hdr = {*fitted.scene.list.GetHeaderCtrl(), 0, static_cast<UINT>(HDN_DIVIDERDBLCLICK)};
        header.iItem = 1;
        try {
            fitted.scene.list.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header));
        } catch (const std::runtime_error&) {
            EXPECT_STREQ(GetParam().name, "throws");
        }
        measuring = false;
        EXPECT_TRUE(done) << "the host was called";
        fitted.answerWithTexts();
        if (!fitted.scene.list.m_hWnd)
            continue;
        const bool isFitted = fitted.scene.list.GetColumnWidth(1) != 60;
        EXPECT_EQ(isFitted, GetParam().fits || code != static_cast<UINT>(LVN_GETDISPINFO));
        fitted.scene.list.RedrawWindow();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Misdeeds, ColumnFitsWithAHost,
    ::testing::Values(
        Misdeed{"nothing", [](Fitted&) {}, true},
        Misdeed{"empties the list", [](Fitted& fitted) { fitted.scene.list.SetItemCountEx(0); }, true},
        Misdeed{"takes rows away", [](Fitted& fitted) { fitted.scene.list.SetItemCountEx(7); }, true},
        Misdeed{"scrolls", [](Fitted& fitted) { fitted.scene.list.EnsureVisible(0, FALSE); }, true},
        Misdeed{"fits another column",
                [](Fitted& fitted) { fitted.scene.list.SetColumnWidth(0, LVSCW_AUTOSIZE); }, true},
        Misdeed{"fits the same column",
                [](Fitted& fitted) { fitted.scene.list.SetColumnWidth(1, LVSCW_AUTOSIZE); }, true},
        Misdeed{"destroys the list", [](Fitted& fitted) { fitted.scene.list.DestroyWindow(); }, false},
        Misdeed{"pumps messages",
                [](Fitted&) {
                    for (MSG msg; ::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE);)
                        ::DispatchMessage(&msg);
                },
                true},
        Misdeed{"throws", [](Fitted&) { throw std::runtime_error("host"); }, false}));

TEST(ColumnFitsWithAHostThat, TakesTheColumnsAway)
{
    PlatformSetting setting;
    setting->measuresEachRow = true;
    Fitted fitted;
    bool done = false;
    fitted.scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), [&](NMHDR* header) -> LRESULT {
        fitted.giveText(header);
        if (!std::exchange(done, true))
            while (fitted.scene.list.DeleteColumn(0)) {
            }
        return 0;
    });
    EXPECT_FALSE(fitted.scene.list.SetColumnWidth(1, LVSCW_AUTOSIZE));
    EXPECT_TRUE(done);
}
