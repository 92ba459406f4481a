// The grid of colours.
#include "ColourControlsScene.h"

#include <support/Perishing.h>
#include <testkit/AccessibleView.h>
#include <testkit/ImportPatch.h>
#include <testkit/Picture.h>
#include <testkit/WinEvents.h>

#include <ovoui/colour/ColourGrid.h>

#include <memory>

using namespace ovo::testkit;

namespace
{

class ColourGrid : public ColourControls
{
protected:
    void show()
    {
        grid = std::make_unique<CColourGrid>();
        grid->Create(WS_VISIBLE | WS_TABSTOP, CRect(20, 20, 284, 60), &parent, 7);
        grid->SetWindowText(L"Leaves");
        grid->SetColours({kLeaf, kRust, kSky, RGB(255, 0, 0), RGB(0, 0, 255)}, 3);
        present(parent);
    }
    Spot cell(int index) const { return Spot{*grid, grid->CellRect(index).CenterPoint()}; }

    std::unique_ptr<CColourGrid> grid;
};

HWND WINAPI noWindow(DWORD, LPCWSTR, LPCWSTR, DWORD, int, int, int, int, HWND, HMENU, HINSTANCE, void*)
{
    return nullptr;
}

} // namespace

TEST_F(ColourGrid, ShowsItsColours)
{
    show();
    const Picture picture = Picture::ofClient(*grid);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(picture.at(grid->CellRect(i).CenterPoint()), grid->Colours()[static_cast<std::size_t>(i)]);
    EXPECT_EQ(grid->Current(), 0);
}

TEST_F(ColourGrid, AClickChooses)
{
    show();
    user.click(cell(3));
    EXPECT_EQ(grid->Current(), 3);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kGridPointed, kGridChosen}));
    user.click(cell(3));
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kGridPointed, kGridChosen, kGridChosen}));
}

TEST_F(ColourGrid, AReleaseOnAnotherColourChoosesNothing)
{
    show();
    user.drag(cell(3), cell(1));
    EXPECT_EQ(grid->Current(), 3);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kGridPointed}));
}

TEST_F(ColourGrid, KeysMoveTheMarkAndChoose)
{
    show();
    grid->SetFocus();
    user.key(VK_DOWN).key(VK_RIGHT);
    EXPECT_EQ(grid->Current(), 4);
    user.key(VK_SPACE);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kGridPointed, kGridPointed, kGridChosen}));
    user.key(VK_HOME).key(VK_RETURN);
    EXPECT_EQ(grid->Current(), 0);
    EXPECT_EQ(parent.codes().size(), 5u);
}

TEST_F(ColourGrid, FromRightToLeftTheKeysGoWhereTheyPoint)
{
    show();
    grid->ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    ASSERT_LT(cell(1).find().x, cell(0).find().x);
    grid->SetFocus();
    user.key(VK_LEFT);
    EXPECT_EQ(grid->Current(), 1);
    user.key(VK_DOWN);
    EXPECT_EQ(grid->Current(), 4);
    user.key(VK_RIGHT);
    EXPECT_EQ(grid->Current(), 3);
}

TEST_F(ColourGrid, TheMarkIsShownWithTheFocus)
{
    show();
    const Picture without = Picture::ofClient(*grid);
    grid->SetFocus();
    EXPECT_GT(without.differences(Picture::ofClient(*grid)), 20);
    parent.SetFocus();
    EXPECT_EQ(without.differences(Picture::ofClient(*grid)), 0);
}

TEST_F(ColourGrid, CodeTellsNoOne)
{
    show();
    grid->SetCurrent(2);
    EXPECT_EQ(grid->Current(), 2);
    grid->SetCurrent(5);
    grid->SetCurrent(-1);
    EXPECT_EQ(grid->Current(), 2) << "there are no such colours";
    grid->SetColours({}, 3);
    EXPECT_EQ(grid->Current(), -1);
    grid->SetFocus();
    user.key(VK_RIGHT).key(VK_SPACE);
    EXPECT_TRUE(parent.codes().empty());
}

TEST_F(ColourGrid, DisabledItIsPaleAndDeaf)
{
    show();
    grid->EnableWindow(FALSE);
    EXPECT_NE(Picture::ofClient(*grid).at(grid->CellRect(3).CenterPoint()), RGB(255, 0, 0));
    user.click(cell(3));
    EXPECT_TRUE(parent.codes().empty());
}

TEST_F(ColourGrid, TakesThePlaceOfAControl)
{
    CStatic place;
    place.Create(L"Leaves", WS_CHILD | WS_VISIBLE, CRect(30, 40, 130, 60), &parent, 9);
    grid = std::make_unique<CColourGrid>();
    CString before;
    parent.GetDlgItemText(9, before);
    ASSERT_TRUE(grid->createInPlace(parent, 9));
    CString text;
    grid->GetWindowText(text);
    EXPECT_FALSE(before.IsEmpty());
    EXPECT_EQ(text, before);
    EXPECT_FALSE(place.m_hWnd);
    EXPECT_EQ(parent.GetDlgItem(9), grid.get());
    CRect rect = placeOf(*grid);
    parent.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(30, 40, 130, 60));
    EXPECT_TRUE(grid->GetStyle() & WS_TABSTOP);
    EXPECT_FALSE(CColourGrid().createInPlace(parent, 10)) << "there is no such control";
}

TEST_F(ColourGrid, LeavesTheControlWhosePlaceItCannotTake)
{
    CStatic place;
    place.Create(L"Leaves", WS_CHILD | WS_VISIBLE, CRect(30, 40, 130, 60), &parent, 9);
    CColourGrid own;
    {
        const ImportPatch patch(L"ovomfc.dll", "CreateWindowExW", reinterpret_cast<void*>(&noWindow));
        EXPECT_FALSE(own.createInPlace(parent, 9));
    }
    EXPECT_FALSE(own.m_hWnd);
    EXPECT_EQ(parent.GetDlgItem(9), &place);
}

TEST_F(ColourGrid, TakesTheStateAndTheTurnOfTheControl)
{
    for (const DWORD state : {DWORD{WS_VISIBLE}, DWORD{WS_VISIBLE | WS_DISABLED}, DWORD{WS_DISABLED}}) {
        CStatic before;
        CStatic place;
        CStatic after;
        before.Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &parent, 20);
        place.Create(L"", WS_CHILD | state, CRect(30, 40, 130, 60), &parent, 9);
        after.Create(L"", WS_CHILD, CRect(0, 80, 10, 90), &parent, 21);
        CColourGrid own;
        ASSERT_TRUE(own.createInPlace(parent, 9));
        EXPECT_EQ(own.GetStyle() & (WS_VISIBLE | WS_DISABLED), state);
        EXPECT_EQ(::GetWindow(own, GW_HWNDPREV), before.m_hWnd);
        EXPECT_EQ(::GetWindow(own, GW_HWNDNEXT), after.m_hWnd);
    }
}

TEST_F(ColourGrid, NewColoursBeginWithTheFirstInAColumnAtLeast)
{
    show();
    grid->SetCurrent(4);
    Picture::ofClient(*grid); // all is painted
    grid->SetColours({kLeaf, kRust}, 0);
    EXPECT_EQ(grid->Current(), 0);
    EXPECT_EQ(grid->CellRect(0).left, grid->CellRect(1).left);
    EXPECT_LT(grid->CellRect(0).bottom, grid->CellRect(1).top);
    EXPECT_EQ(Picture::ofClient(*grid).at(grid->CellRect(1).CenterPoint()), kRust) << "at once";
}

TEST_F(ColourGrid, ColoursThatAreExchangedDuringAPressAreNotChosen)
{
    show();
    parent.onCode = [this](UINT code) {
        if (code == kGridPointed)
            grid->SetColours({kSky, kRust, kLeaf, kSky, kRust}, 3);
    };
    user.click(cell(3));
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kGridPointed}));
    EXPECT_EQ(grid->Current(), 0);
}

TEST_F(ColourGrid, BesideItsColoursIsTheBrushOfTheParent)
{
    show();
    const CPoint beside(grid->CellRect(2).CenterPoint().x, grid->CellRect(3).CenterPoint().y);
    EXPECT_EQ(Picture::ofClient(*grid).at(beside), ::GetSysColor(COLOR_BTNFACE));
    constexpr COLORREF kPink = RGB(255, 0, 200);
    const CBrush brush(kPink);
    parent.onMessage = [&](UINT message, WPARAM, LPARAM control) -> std::optional<LRESULT> {
        if (message != WM_CTLCOLORSTATIC || reinterpret_cast<HWND>(control) != grid->m_hWnd)
            return std::nullopt;
        return reinterpret_cast<LRESULT>(brush.GetSafeHandle());
    };
    grid->Invalidate(FALSE);
    EXPECT_EQ(Picture::ofClient(*grid).at(beside), kPink);
    parent.onMessage = nullptr;
}

TEST_F(ColourGrid, AccessibilityHearsOfTheColourWhenTheFocusComes)
{
    show();
    grid->SetCurrent(3);
    WinEvents moves(EVENT_OBJECT_FOCUS);
    grid->SetFocus();
    EXPECT_EQ(moves.of(*grid, 4), 1);
}

TEST_F(ColourGrid, DisabledItsColoursAreNotTakenByAccessibilityEither)
{
    show();
    const AccessibleView list(*grid);
    EXPECT_EQ(list.action(4), L"Take");
    grid->EnableWindow(FALSE);
    EXPECT_EQ(list.action(4), L"");
    EXPECT_EQ(list->accDoDefaultAction(AccessibleView::numbered(4)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(grid->Current(), 0);
    EXPECT_TRUE(parent.codes().empty());
    grid->DestroyWindow();
    BSTR text = nullptr;
    EXPECT_EQ(list->get_accName(AccessibleView::numbered(1), &text), CO_E_OBJNOTCONNECTED);
}

TEST_F(ColourGrid, AccessibilitySeesAList)
{
    show();
    grid->SetFocus();
    const AccessibleView list(*grid);
    ASSERT_TRUE(list);
    EXPECT_EQ(list.role(), ROLE_SYSTEM_LIST);
    EXPECT_EQ(list.name(), L"Leaves");
    EXPECT_EQ(list.childCount(), 5);
    EXPECT_EQ(list.name(4), L"red");
    EXPECT_EQ(list.name(1), L"#548235");
    EXPECT_EQ(list.focused(), 1);
    WinEvents moves(EVENT_OBJECT_FOCUS);
    user.key(VK_RIGHT);
    EXPECT_EQ(moves.of(*grid, 2), 1);
    EXPECT_EQ(list->accDoDefaultAction(AccessibleView::numbered(4)), S_OK);
    EXPECT_EQ(grid->Current(), 1) << "the client has its answer first";
    user.waitFor("the choice", [this] { return parent.codes().back() == kGridChosen; });
    EXPECT_EQ(grid->Current(), 3);
}

TEST_F(ColourGrid, TheParentMayDestroyOrDeleteItInEveryCall)
{
    for (const UINT code : {kGridPointed, kGridChosen})
        for (const bool erase : {false, true})
            for (const bool mouse : {false, true}) {
                show();
                parent.onCode = [&](UINT told) {
                    if (told == code)
                        erase ? grid.reset() : static_cast<void>(grid->DestroyWindow());
                };
                const CPoint point = grid->CellRect(2).CenterPoint();
                const LPARAM at = MAKELPARAM(point.x, point.y);
                const HWND wnd = *grid;
                if (mouse) {
                    ::SendMessageW(wnd, WM_LBUTTONDOWN, MK_LBUTTON, at);
                    ::SendMessageW(wnd, WM_LBUTTONUP, 0, at);
                } else {
                    ::SendMessageW(wnd, WM_KEYDOWN, VK_RIGHT, 0);
                    ::SendMessageW(wnd, WM_KEYDOWN, VK_SPACE, 0);
                }
                EXPECT_TRUE(!grid || !grid->m_hWnd) << code << erase << mouse;
                parent.onCode = nullptr;
                grid.reset();
            }
}

TEST_F(ColourGrid, TheParentMayDestroyOrDeleteItWhenItIsAskedForTheBrush)
{
    for (const bool erase : {false, true}) {
        SCOPED_TRACE(erase);
        show();
        grid = std::make_unique<Perishing<CColourGrid>>();
        grid->Create(WS_VISIBLE, CRect(20, 20, 284, 60), &parent, 7);
        grid->SetColours({kLeaf, kRust}, 2);
        const HWND wnd = *grid;
        bool asked = false;
        parent.onMessage = [&](UINT message, WPARAM, LPARAM control) -> std::optional<LRESULT> {
            if (message != WM_CTLCOLORSTATIC || reinterpret_cast<HWND>(control) != wnd)
                return std::nullopt;
            asked = true;
            erase ? grid.reset() : static_cast<void>(grid->DestroyWindow());
            return reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_BTNFACE));
        };
        ::RedrawWindow(wnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        parent.onMessage = nullptr;
        EXPECT_TRUE(asked);
        EXPECT_TRUE(!grid || !grid->m_hWnd);
    }
}
