// What hosts may do while the helpers of lists ask them for texts or tell them of changes.
#include "ListScene.h"

#include <testkit/TemporaryProfile.h>

#include <ovoui/lists/ListCellTips.h>
#include <ovoui/lists/ListCopier.h>
#include <ovoui/lists/ListLayout.h>
#include <ovoui/lists/ListSorter.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <stdexcept>

using namespace ovo::testkit;

namespace
{

using Texts = std::vector<std::wstring>;

/// What the host gives as a cell's text: a number that falls from row to row, too long for its column.
void giveText(NMHDR* header)
{
    LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
    if (item.mask & LVIF_TEXT)
        ::lstrcpynW(item.pszText, (std::to_wstring(9 - item.iItem) + L" is a long text").c_str(),
                    item.cchTextMax);
}

/// Four rows "row 0" to "row 3", the second and the third selected, with their numbers as data. The host
/// gives the texts of the other columns.
struct Helped
{
    Helped()
    {
        for (int column = 0; column < 3; ++column)
            scene.addColumn(L"c" + std::to_wstring(column), 40);
        for (int row = 0; row < 4; ++row)
            addRow(row);
        scene.list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
        scene.list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
        sorter = std::make_unique<COVOListSorter>();
        sorter->Attach(scene.list);
        tips = std::make_unique<COVOListCellTips>();
        tips->Attach(scene.list);
        copier = std::make_unique<COVOListCopier>();
        copier->Attach(scene.list, true);
        scene.show();
        middle = scene.cell(1, 1).CenterPoint();
        answerWithTexts();
    }

    // Labels are asked for within the platform's hit test, which does not stand everything: they are stored.
    void addRow(int row)
    {
        scene.list.InsertItem(row, (L"row " + std::to_wstring(row)).c_str());
        scene.list.SetItemData(row, static_cast<DWORD_PTR>(row));
        for (int column = 1; column < 3; ++column)
            scene.list.SetItemText(row, column, LPSTR_TEXTCALLBACK);
    }

    void answerWithTexts()
    {
        scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), [](NMHDR* header) -> LRESULT {
            giveText(header);
            return 0;
        });
    }

    ListScene scene;
    CPoint middle; ///< of a cell; to ask for it later would call the host
    std::unique_ptr<COVOListSorter> sorter;
    std::unique_ptr<COVOListCellTips> tips;
    std::unique_ptr<COVOListCopier> copier;
    bool result = false; ///< what the call gave
};

using Rows = std::vector<int>;

struct Call
{
    const char* name;
    bool sorts; ///< by a text that falls from row to row
    std::function<void(Helped&)> act;
    std::optional<DWORD_PTR> data = {}; ///< of all rows; else their numbers
};

/// When the host does its misdeed.
enum class When
{
    AskedForText,
    ToldOfItem,   ///< while the rows' data are changed for the sorting
    ToldOfHeading ///< after the sorting
};

struct Misdeed
{
    const char* name;
    bool endsSorting; ///< when it is done before all texts are known
    std::function<void(Helped&)> act;
    std::function<void(Rows&)> leaves; ///< takes out the rows that it takes out of the list
};

void PrintTo(const Call& call, std::ostream* out)
{
    *out << call.name;
}

void PrintTo(const Misdeed& misdeed, std::ostream* out)
{
    *out << misdeed.name;
}

const std::vector<Call> kCalls{
    {"sorting by text", true, [](Helped& helped) { helped.result = helped.sorter->Sort(1, true); }},
    {"sorting by number", true,
     [](Helped& helped) {
         helped.sorter->SetKind(1, COVOListSorter::Kind::Number);
         helped.result = helped.sorter->Sort(1, true);
     }},
    {"sorting rows with the same data", true,
     [](Helped& helped) { helped.result = helped.sorter->Sort(1, true); }, 7},
    {"copying", false, [](Helped& helped) { helped.result = copySelectedRows(helped.scene.list, true); }},
    {"pointing at a cell", false,
     [](Helped& helped) {
         helped.scene.list.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(helped.middle.x, helped.middle.y));
         helped.result = helped.tips && helped.tips->Window() && ::IsWindowVisible(helped.tips->Window());
     }},
    {"restoring the layout", false,
     [](Helped& helped) {
         AfxGetApp()->WriteProfileString(L"Lists", L"test", L"+c1/c2=70/c0=60/c1=50");
         helped.result = restoreColumnLayout(helped.scene.list, L"Lists", L"test", nullptr);
     }},
};

void destroyHelpers(Helped& helped)
{
    helped.sorter.reset();
    helped.tips.reset();
    helped.copier.reset();
}

void keepAll(Rows&) {}

void keepNone(Rows& rows)
{
    rows.clear();
}

const std::vector<Misdeed> kMisdeeds{
    {"nothing", false, [](Helped&) {}, &keepAll},
    {"deletes a row", true, [](Helped& helped) { helped.scene.list.DeleteItem(3); },
     [](Rows& rows) { rows.pop_back(); }},
    {"empties the list", true, [](Helped& helped) { helped.scene.list.DeleteAllItems(); }, &keepNone},
    {"deletes a column", false, [](Helped& helped) { helped.scene.list.DeleteColumn(2); }, &keepAll},
    {"destroys the helpers", true, &destroyHelpers, &keepAll},
    {"destroys the list", true, [](Helped& helped) { helped.scene.list.DestroyWindow(); }, &keepNone},
    {"destroys all", true,
     [](Helped& helped) {
         helped.scene.list.DestroyWindow();
         destroyHelpers(helped);
     },
     &keepNone},
    {"throws", true, [](Helped&) { throw std::runtime_error("host"); }, &keepAll},
};

/// The sorter is not needed any more when the rows are brought into their order.
bool endsSorting(const Misdeed& misdeed, When when)
{
    return misdeed.endsSorting && when != When::ToldOfHeading &&
           !(when == When::ToldOfItem && misdeed.name == std::string("destroys the helpers"));
}

/// `done` is null when the host was not called.
Rows expectedRows(const Call& call, const Misdeed* done, When when)
{
    Rows rows{0, 1, 2, 3};
    if (done && when != When::ToldOfHeading)
        done->leaves(rows);
    if (call.sorts && !(done && endsSorting(*done, when)))
        std::reverse(rows.begin(), rows.end());
    if (done && when == When::ToldOfHeading)
        done->leaves(rows);
    return rows;
}

/// Each row has still its own label, data and selection, and is drawn.
void expectRows(Helped& helped, const Rows& expected, std::optional<DWORD_PTR> data)
{
    List& list = helped.scene.list;
    if (!list.m_hWnd) {
        EXPECT_TRUE(expected.empty());
        return;
    }
    ASSERT_EQ(list.GetItemCount(), static_cast<int>(expected.size()));
    list.drawn.clear();
    list.RedrawWindow();
    EXPECT_EQ(list.drawn.size(), expected.size()) << "redrawing is not held any more";
    for (int place = 0; place < list.GetItemCount(); ++place) {
        const int row = expected[static_cast<std::size_t>(place)];
        EXPECT_EQ(list.GetItemText(place, 0), (L"row " + std::to_wstring(row)).c_str());
        EXPECT_EQ(list.GetItemData(place), data.value_or(static_cast<DWORD_PTR>(row)));
        EXPECT_EQ(list.GetItemState(place, LVIS_SELECTED) != 0, row == 1 || row == 2) << row;
    }
}

} // namespace

class ListHelpers : public ::testing::TestWithParam<std::tuple<Call, Misdeed>>
{
};

TEST_P(ListHelpers, StandAHostThatDoesAnything)
{
    const auto& [call, misdeed] = GetParam();
    const std::string deed = misdeed.name;
    const TemporaryProfile profile;
    constexpr std::pair<int, When> kCodes[] = {{LVN_GETDISPINFO, When::AskedForText},
                                               {LVN_ITEMCHANGING, When::ToldOfItem},
                                               {LVN_ITEMCHANGED, When::ToldOfItem},
                                               {HDN_ITEMCHANGING, When::ToldOfHeading},
                                               {HDN_ITEMCHANGED, When::ToldOfHeading}};
    for (const auto& [code, when] : kCodes) {
        SCOPED_TRACE(code);
        Helped helped;
        for (int row = 0; call.data && row < 4; ++row)
            helped.scene.list.SetItemData(row, *call.data);
        bool done = false;
        helped.scene.parent.answer(static_cast<UINT>(code), [&](NMHDR* header) -> LRESULT {
            if (header->code == static_cast<UINT>(LVN_GETDISPINFO))
                giveText(header);
            if (!std::exchange(done, true))
                misdeed.act(helped);
            return 0;
        });
        try {
            call.act(helped);
        } catch (const std::runtime_error&) {
            EXPECT_EQ(deed, "throws");
        }
        helped.scene.parent.answer(static_cast<UINT>(code), 0);
        helped.answerWithTexts();
        if (!done || deed == "nothing") {
            EXPECT_TRUE(helped.result);
        }
        if (done && call.sorts && misdeed.endsSorting && when != When::ToldOfHeading) {
            EXPECT_FALSE(helped.result);
        }
        expectRows(helped, expectedRows(call, done ? &misdeed : nullptr, when), call.data);
    }
}

INSTANTIATE_TEST_SUITE_P(Misdeeds, ListHelpers,
                         ::testing::Combine(::testing::ValuesIn(kCalls), ::testing::ValuesIn(kMisdeeds)));

TEST(ListHelpersCalls, AskForTextsInAllButTheLast)
{
    for (std::size_t i = 0; i + 1 < kCalls.size(); ++i) {
        Helped helped;
        int texts = 0;
        helped.scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), [&](NMHDR* header) -> LRESULT {
            giveText(header);
            ++texts;
            return 0;
        });
        kCalls[i].act(helped);
        EXPECT_GT(texts, 0) << kCalls[i].name;
    }
}

// The memory of the one that is destroyed is spoilt at once, so that nothing can be asked of it unnoticed.
TEST(ListHelpersTogether, OneIsDestroyedWhileAnotherIsTold)
{
    Helped helped;
    alignas(COVOListCellTips) std::byte room[sizeof(COVOListCellTips)];
    auto* const first = new (room) COVOListCellTips;
    first->Attach(helped.scene.list);
    COVOListCellTips second; // is told before the first one
    second.Attach(helped.scene.list);
    int asked = 0;
    helped.scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), [&](NMHDR* header) -> LRESULT {
        giveText(header);
        if (asked++ == 0) {
            first->~COVOListCellTips();
            std::fill(std::begin(room), std::end(room), std::byte{0xDD});
        }
        return 0;
    });
    helped.scene.list.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(helped.middle.x, helped.middle.y));
    EXPECT_GT(asked, 0);
    ASSERT_TRUE(second.Window());
    EXPECT_TRUE(::IsWindowVisible(second.Window()));
}

TEST(ListHelpersTogether, AnotherListReplacesTheOneOfBefore)
{
    Helped helped;
    List other;
    other.Create(WS_CHILD, CRect(0, 0, 50, 50), &helped.scene.parent, 9);
    helped.tips->Attach(other);
    helped.scene.list.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(helped.middle.x, helped.middle.y));
    EXPECT_FALSE(helped.tips->Window());
    other.DestroyWindow();
}

TEST(ListHelpersTogether, TheListOfBeforeForgetsTheOneThatWentToAnother)
{
    Helped helped;
    List other;
    other.Create(WS_CHILD, CRect(0, 0, 50, 50), &helped.scene.parent, 9);
    alignas(COVOListCellTips) std::byte room[sizeof(COVOListCellTips)];
    auto* const moved = new (room) COVOListCellTips;
    moved->Attach(helped.scene.list);
    moved->Attach(other);
    moved->~COVOListCellTips();
    std::fill(std::begin(room), std::end(room), std::byte{0xDD});
    helped.scene.list.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(helped.middle.x, helped.middle.y));
    ASSERT_TRUE(helped.tips->Window()) << "the list's own helper still hears of the pointer";
    EXPECT_TRUE(::IsWindowVisible(helped.tips->Window()));
    other.DestroyWindow();
}
