// What hosts may do while the helpers of lists ask them for texts or tell them of changes.
#include "ListScene.h"

#include "support/TemporaryProfile.h"

#include <ovoui/lists/ListCellTips.h>
#include <ovoui/lists/ListCopier.h>
#include <ovoui/lists/ListLayout.h>
#include <ovoui/lists/ListSorter.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>

using namespace ovotest;

namespace
{

/// A list whose texts the host gives, but for the labels, and all its helpers.
struct Helped
{
    Helped()
    {
        for (int column = 0; column < 3; ++column)
            scene.addColumn(L"c" + std::to_wstring(column), 40);
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 3; ++column)
                addCell(row, column);
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
    }

    void addCell(int row, int column)
    {
        LVITEM item{};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.iSubItem = column;
        // Labels are asked for within the platform's hit test, which does not stand everything.
        wchar_t label[] = L"label";
        item.pszText = column ? LPSTR_TEXTCALLBACK : label;
        if (column)
            scene.list.SetItem(&item);
        else
            scene.list.InsertItem(&item);
    }

    ListScene scene;
    CPoint middle; ///< of a cell; to ask for it later would call the host
    std::unique_ptr<COVOListSorter> sorter;
    std::unique_ptr<COVOListCellTips> tips;
    std::unique_ptr<COVOListCopier> copier;
};

struct Deed
{
    const char* name;
    std::function<void(Helped&)> act;
};

void PrintTo(const Deed& deed, std::ostream* out)
{
    *out << deed.name;
}

const std::vector<Deed> kCalls{
    {"sorting by text", [](Helped& helped) { helped.sorter->Sort(1, true); }},
    {"sorting by number",
     [](Helped& helped) {
         helped.sorter->SetKind(1, COVOListSorter::Kind::Number);
         helped.sorter->Sort(1, false);
     }},
    {"copying", [](Helped& helped) { copySelectedRows(helped.scene.list, true); }},
    {"pointing at a cell",
     [](Helped& helped) {
         helped.scene.list.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(helped.middle.x, helped.middle.y));
     }},
    {"restoring the layout",
     [](Helped& helped) {
         AfxGetApp()->WriteProfileString(L"Lists", L"test", L"+c1/c2=70/c0=60/c1=50");
         restoreColumnLayout(helped.scene.list, L"Lists", L"test", nullptr);
     }},
};

const std::vector<Deed> kMisdeeds{
    {"nothing", [](Helped&) {}},
    {"deletes a row", [](Helped& helped) { helped.scene.list.DeleteItem(3); }},
    {"empties the list", [](Helped& helped) { helped.scene.list.DeleteAllItems(); }},
    {"deletes a column", [](Helped& helped) { helped.scene.list.DeleteColumn(2); }},
    {"destroys the helpers",
     [](Helped& helped) {
         helped.sorter.reset();
         helped.tips.reset();
         helped.copier.reset();
     }},
    {"destroys the list", [](Helped& helped) { helped.scene.list.DestroyWindow(); }},
    {"destroys all",
     [](Helped& helped) {
         helped.scene.list.DestroyWindow();
         helped.sorter.reset();
         helped.tips.reset();
         helped.copier.reset();
     }},
    {"throws", [](Helped&) { throw std::runtime_error("host"); }},
};

} // namespace

class ListHelpers : public ::testing::TestWithParam<std::tuple<Deed, Deed>>
{
};

TEST_P(ListHelpers, StandAHostThatDoesAnything)
{
    const auto& [call, misdeed] = GetParam();
    const std::string deed = misdeed.name;
    if (call.name == std::string("pointing at a cell") &&
        (deed == "empties the list" || deed == "destroys the list" || deed == "destroys all"))
        GTEST_SKIP() << "the platform's own hit test, which asks for the text first, does not stand it";
    const TemporaryProfile profile;
    for (const int code : {static_cast<int>(LVN_GETDISPINFO), static_cast<int>(HDN_ITEMCHANGED),
                           static_cast<int>(HDN_ITEMCHANGING)}) {
        Helped helped;
        helped.scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), [](NMHDR* header) -> LRESULT {
            LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
            if (item.mask & LVIF_TEXT)
                ::lstrcpynW(item.pszText, (L"a long text " + std::to_wstring(9 - item.iItem)).c_str(),
                            item.cchTextMax);
            return 0;
        });
        bool done = false;
        helped.scene.parent.answer(static_cast<UINT>(code), [&](NMHDR* header) -> LRESULT {
            if (header->code == static_cast<UINT>(LVN_GETDISPINFO))
                ::lstrcpynW(reinterpret_cast<NMLVDISPINFO*>(header)->item.pszText, L"a long text", 9);
            if (!std::exchange(done, true))
                misdeed.act(helped);
            return 0;
        });
        try {
            call.act(helped);
        } catch (const std::runtime_error&) {
        }
        helped.scene.parent.answer(static_cast<UINT>(code), 0);
        if (helped.scene.list.m_hWnd) {
            helped.scene.list.RedrawWindow();
        }
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
            ::lstrcpynW(reinterpret_cast<NMLVDISPINFO*>(header)->item.pszText, L"a long text", 12);
            ++texts;
            return 0;
        });
        kCalls[i].act(helped);
        EXPECT_GT(texts, 0) << kCalls[i].name;
    }
}
