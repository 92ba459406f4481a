// Call-outs of the list: colours of rows, and the texts that the host is asked for.
#include "ListCallOutScene.h"

#include <support/PlatformSetting.h>

using namespace ovo::testkit;

namespace
{

class ColouredList : public COVOListCtrlEx
{
    DWORD rowColour(int) override
    {
        Raising::here("rowColour");
        return 0xFF0000FF;
    }
};

class RowColourScene : public CallOutScene
{
public:
    RowColourScene()
    {
        list.Create(kChild, CRect(0, 0, 200, 100), &parent, 1);
        addColumns(list);
        for (const wchar_t* text : {L"b", L"c", L"a"})
            list.AddItem(list.GetItemCount(), 0, text, 0, -1);
        list.UseRowColours(TRUE);
    }
    void provoke() override { paint(list); }
    void expectSound() override
    {
        paint(list);
        EXPECT_EQ(list.GetItemCount(), 3);
    }

private:
    ColouredList list;
};

/// Asks for the texts when it draws them.
class DrawnScene : public ListCallOutScene
{
public:
    void provoke() override { paint(list); }
    void expectSound() override
    {
        host.asked = 0;
        paint(list);
        EXPECT_GE(host.asked, kRows);
    }
};

/// A virtual list of many rows: its columns are made as wide as the texts of the rows that are shown.
class FittedScene : public ListCallOutScene
{
public:
    FittedScene()
        : ListCallOutScene(LVS_OWNERDATA)
    {
        setting->measuresEachRow = true;
        list.SetItemCount(kMany);
    }
    void provoke() override { list.SetColumnWidth(1, LVSCW_AUTOSIZE); }
    void expectSound() override
    {
        list.SetColumnWidth(1, LVSCW_AUTOSIZE);
        EXPECT_GT(list.GetColumnWidth(1), kWidth);
    }

private:
    static constexpr int kMany = 2000;

    PlatformSetting setting;
};

/// By a double click on the divider, of which the host hears, too.
class DividerScene : public FittedScene
{
public:
    void provoke() override { notifyOfHeading(HDN_DIVIDERDBLCLICKW, 1); }
};

const std::vector<CallOut> kLists{
    {"rowColour", &make<RowColourScene>, kAsAHandler},
    {"LVN_GETDISPINFO", &make<DrawnScene>, kAsAHandler},
    {"LVN_GETDISPINFO", &make<FittedScene>, kAsAHandler},
    {"LVN_GETDISPINFO", &make<DividerScene>, kAsAHandler},
    {"HDN_DIVIDERDBLCLICK", &make<DividerScene>, kAsAHandler},
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Lists, CallOuts, ::testing::ValuesIn(kLists), &nameOfCallOut);
