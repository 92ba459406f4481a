// Call-outs of what helps lists: sorter, finder, copier, tips of cells and the layout of columns. Their own
// virtual functions are of a class that is not exported, and are reached through the helpers.
#include "ListCallOutScene.h"

#include <support/HeldCtrl.h>
#include <testkit/Clipboard.h>

#include <ovoui/lists/ListCellTips.h>
#include <ovoui/lists/ListCopier.h>
#include <ovoui/lists/ListFinder.h>
#include <ovoui/lists/ListSorter.h>

using namespace ovo::testkit;

namespace
{

// Sorting

/// Sorts by the texts, or as the host compares.
class SortScene : public ListCallOutScene
{
public:
    SortScene() { sorter.Attach(list); }
    void provoke() override { sorter.Sort(1, true); }
    void expectSound() override
    {
        EXPECT_TRUE(sorter.Sort(1, true));
        EXPECT_EQ(firstRow(), L"row 2");
    }

protected:
    COVOListSorter sorter;
};

class CompareScene : public SortScene
{
public:
    CompareScene()
    {
        sorter.SetCompare(1, [](COVOListCtrlEx& sorted, int row, int other) {
            Raising::here("Compare");
            return sorted.GetItemText(row, 1).Compare(sorted.GetItemText(other, 1));
        });
    }
    void expectSound() override
    {
        EXPECT_EQ(firstRow(), L"row 0") << "nothing was sorted";
        SortScene::expectSound();
    }
};

/// Compares when a heading is clicked.
class CompareByHeadingScene : public CompareScene
{
public:
    void provoke() override { notifyOfHeading(HDN_ITEMCLICKW, 1); }
};

/// Rows of the same data: they have others while they are sorted, of which the host hears.
class SameDataScene : public SortScene
{
public:
    SameDataScene()
    {
        for (int row = 0; row < kRows; ++row)
            list.SetItemData(row, kData);
    }
    void expectSound() override
    {
        for (int row = 0; row < kRows; ++row)
            EXPECT_EQ(list.GetItemData(row), kData);
        SortScene::expectSound();
    }

private:
    static constexpr DWORD_PTR kData = 7;
};

/// Sorts when a heading is clicked.
class HeadingScene : public SortScene
{
public:
    void provoke() override { notifyOfHeading(HDN_ITEMCLICKW, 1); }
    void expectSound() override
    {
        SortScene::expectSound();
        provoke(); // the other way round
        EXPECT_EQ(firstRow(), L"row 0");
    }
};

// Finding

constexpr wchar_t kLast = L'7'; // of all texts that of the last row alone has it

/// Looks for what is typed.
class TypingScene : public ListCallOutScene
{
public:
    explicit TypingScene(DWORD style = 0)
        : ListCallOutScene(style)
    {
        finder.Attach(list);
    }
    void provoke() override { type(); }
    void expectSound() override
    {
        press(list, VK_ESCAPE);
        EXPECT_EQ(finder.Text(), L"");
        type();
        EXPECT_EQ(finder.Text(), std::wstring(1, kLast));
        EXPECT_EQ(list.GetCurSel(), kRows - 1);
    }

protected:
    void type() { list.SendMessage(WM_CHAR, kLast, 1); }

    COVOListFinder finder;
};

/// Asks its host, since it knows none of its rows.
class VirtualScene : public TypingScene
{
public:
    VirtualScene()
        : TypingScene(LVS_OWNERDATA)
    {
    }
};

/// Looks for what the host wants.
class FindScene : public TypingScene
{
public:
    void provoke() override { finder.Find(std::wstring(1, kLast)); }
};

// Copying, tips, layout

class CopyScene : public ListCallOutScene
{
public:
    void provoke() override { copySelectedRows(list, true); }
    void expectSound() override
    {
        emptyClipboard();
        provoke();
        EXPECT_NE(clipboardText().find(L"9 is a long text"), std::wstring::npos);
    }
};

/// Copies when it is asked by the keyboard.
class CopyKeyScene : public CopyScene
{
public:
    CopyKeyScene() { copier.Attach(list, true); }
    void provoke() override
    {
        const HeldCtrl held;
        press(list, 'C');
    }

private:
    COVOListCopier copier;
};

/// Points at a cell that has no room for its text.
class TipScene : public ListCallOutScene
{
public:
    TipScene()
    {
        tips.Attach(list);
        CRect row;
        list.GetItemRect(0, &row, LVIR_BOUNDS);
        cell = CPoint(kWidth + kWidth / 2, row.CenterPoint().y);
    }
    void provoke() override { list.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(cell.x, cell.y)); }
    void expectSound() override
    {
        list.SendMessage(WM_MOUSELEAVE);
        provoke();
        ASSERT_TRUE(tips.Window());
        EXPECT_TRUE(::IsWindowVisible(tips.Window()));
    }

private:
    COVOListCellTips tips;
    CPoint cell;
};

const std::vector<CallOut> kHelpers{
    {"Compare", &make<CompareScene>, kToCaller},
    {"Compare", &make<CompareByHeadingScene>, kAsAHandler},
    {"LVN_GETDISPINFO", &make<SortScene>, kAsAHandler},
    {"LVN_ITEMCHANGING", &make<SameDataScene>, kAsAHandler},
    {"LVN_ITEMCHANGED", &make<SameDataScene>, kAsAHandler},
    {"LVN_GETDISPINFO", &make<HeadingScene>, kAsAHandler},
    {"LVN_COLUMNCLICK", &make<HeadingScene>, kAsAHandler},
    {"LVN_GETDISPINFO", &make<TypingScene>, kAsAHandler},
    {"LVN_ITEMCHANGING", &make<TypingScene>, kAsAHandler},
    {"LVN_ITEMCHANGED", &make<TypingScene>, kAsAHandler},
    {"LVN_ODFINDITEM", &make<VirtualScene>, kAsAHandler},
    {"LVN_GETDISPINFO", &make<FindScene>, kAsAHandler},
    {"LVN_ITEMCHANGED", &make<FindScene>, kAsAHandler},
    {"LVN_GETDISPINFO", &make<CopyScene>, kAsAHandler},
    {"LVN_GETDISPINFO", &make<CopyKeyScene>, kAsAHandler},
    {"LVN_KEYDOWN", &make<CopyKeyScene>, kAsAHandler},
    {"LVN_GETDISPINFO", &make<TipScene>, kAsAHandler},
};

} // namespace

INSTANTIATE_TEST_SUITE_P(ListHelpers, CallOuts, ::testing::ValuesIn(kHelpers), &nameOfCallOut);
