// WM_NOTIFY and the notifications of controls: ranges, results, and the macros named after codes.
#include "Windows.h"

#include <afxcmn.h>

#include <gtest/gtest.h>

using namespace wndtest;

namespace
{

class Parent : public Hidden<>
{
public:
    Log log;
    BOOL take = TRUE;

protected:
    void note(const char* what, UINT id = 0) { log.push_back(what + (id ? " " + std::to_string(id) : "")); }

    void OnChange() { note("change"); }
    void OnKillFocusRange(UINT id) { note("killfocus", id); }
    void OnSelChange() { note("selchange"); }
    void OnDblClk() { note("dblclk"); }
    void OnStatic() { note("static"); }
    void OnPlain(NMHDR* header, LRESULT* result)
    {
        note("plain", static_cast<UINT>(header->idFrom));
        *result = 3;
    }
    void OnRange(UINT id, NMHDR*, LRESULT* result)
    {
        note("range", id);
        *result = 4;
    }
    BOOL OnEx(UINT id, NMHDR*, LRESULT* result)
    {
        note("ex", id);
        *result = 5;
        return take;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Parent, Hidden<>)
    ON_EN_CHANGE(10, &Parent::OnChange)
    ON_CONTROL_RANGE(EN_KILLFOCUS, 10, 12, &Parent::OnKillFocusRange)
    ON_CBN_SELCHANGE(20, &Parent::OnSelChange)
    ON_LBN_DBLCLK(21, &Parent::OnDblClk)
    ON_STN_CLICKED(22, &Parent::OnStatic)
    ON_NOTIFY(TVN_SELCHANGED, 30, &Parent::OnPlain)
    ON_NOTIFY_RANGE(TVN_SELCHANGED, 31, 33, &Parent::OnRange)
    ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &Parent::OnEx)
    ON_NOTIFY_EX_RANGE(NM_DBLCLK, 30, 39, &Parent::OnEx)
END_MESSAGE_MAP()

class Notifications : public ::testing::Test
{
protected:
    Notifications() { parent.create(); }

    LRESULT command(int id, UINT code)
    {
        const HWND control = plainControl(parent, L"STATIC", id);
        return ::SendMessageW(parent, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
    }

    LRESULT notify(int id, int code, UINT_PTR idFrom = 999)
    {
        NMHDR header{plainControl(parent, L"STATIC", id), idFrom, static_cast<UINT>(code)};
        return ::SendMessageW(parent, WM_NOTIFY, idFrom, reinterpret_cast<LPARAM>(&header));
    }

    Parent parent;
};

} // namespace

TEST_F(Notifications, OfStandardControlsAreFoundByCodeAndNumber)
{
    EXPECT_EQ(command(10, EN_CHANGE), 1);
    EXPECT_EQ(command(11, EN_CHANGE), 0);
    EXPECT_EQ(command(20, CBN_SELCHANGE), 1);
    EXPECT_EQ(command(21, LBN_DBLCLK), 1);
    EXPECT_EQ(command(22, STN_CLICKED), 1);
    EXPECT_EQ(parent.log, (Log{"change", "selchange", "dblclk", "static"}));
}

TEST_F(Notifications, OfARangeTellTheirNumber)
{
    command(9, EN_KILLFOCUS);
    command(10, EN_KILLFOCUS);
    command(12, EN_KILLFOCUS);
    command(13, EN_KILLFOCUS);
    EXPECT_EQ(parent.log, (Log{"killfocus 10", "killfocus 12"}));
}

TEST_F(Notifications, OfCommonControlsGiveTheHandlersResult)
{
    EXPECT_EQ(notify(30, static_cast<int>(TVN_SELCHANGED)), 3);
    EXPECT_EQ(notify(31, static_cast<int>(TVN_SELCHANGED)), 4);
    EXPECT_EQ(notify(33, static_cast<int>(TVN_SELCHANGED)), 4);
    EXPECT_EQ(notify(34, static_cast<int>(TVN_SELCHANGED)), 0);
    EXPECT_EQ(parent.log, (Log{"plain 999", "range 31", "range 33"}));
}

TEST_F(Notifications, MayBeDeclined)
{
    EXPECT_EQ(notify(39, NM_DBLCLK), 5);
    parent.take = FALSE;
    EXPECT_EQ(notify(39, NM_DBLCLK), 0) << "the default procedure's result counts then";
    EXPECT_EQ(parent.log, (Log{"ex 39", "ex 39"}));
}

TEST_F(Notifications, OfATooltipHaveTheNumberZero)
{
    const HWND tip = ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP, 0, 0, 0, 0, parent, nullptr, nullptr,
                                       nullptr);
    NMHDR header{tip, 0x7654321098, static_cast<UINT>(TTN_NEEDTEXTW)};
    EXPECT_EQ(::SendMessageW(parent, WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header)), 5);
    EXPECT_EQ(parent.log, Log{"ex"});
    ::DestroyWindow(tip);
}

TEST_F(Notifications, WithoutAStructureGoToTheDefault)
{
    EXPECT_EQ(::SendMessageW(parent, WM_NOTIFY, 30, 0), 0);
    EXPECT_TRUE(parent.log.empty());
}

TEST_F(Notifications, OfARealTreeReachTheParent)
{
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_CHILD, CRect(0, 0, 100, 100), &parent, 30));
    const HTREEITEM item = tree.InsertItem(L"oak");
    parent.log.clear();
    tree.SelectItem(item);
    EXPECT_EQ(parent.log, Log{"plain 30"});
    tree.DestroyWindow();
}
