// Owner-drawn menu items: the window that shows them lets their menu measure and draw.
#include "Windows.h"

#include <gtest/gtest.h>

using namespace wndtest;

namespace
{

class DrawnMenu : public CMenu
{
public:
    UINT measured = 0;
    UINT drawn = 0;

    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        measured = item->itemID;
        item->itemHeight = 21;
    }
    void DrawItem(LPDRAWITEMSTRUCT item) override { drawn = item->itemID; }
};

class OwnerDrawnMenu : public ::testing::Test
{
protected:
    OwnerDrawnMenu()
    {
        wnd.create(WS_OVERLAPPEDWINDOW);
        popup.CreatePopupMenu();
        ::AppendMenuW(popup.m_hMenu, MF_OWNERDRAW, 70, L"data");
    }

    UINT heightOf(UINT id)
    {
        MEASUREITEMSTRUCT item{};
        item.CtlType = ODT_MENU;
        item.itemID = id;
        wnd.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item));
        return item.itemHeight;
    }

    Hidden<> wnd;
    DrawnMenu popup;
};

} // namespace

TEST_F(OwnerDrawnMenu, OfAPopupIsMeasuredByTheMenuAboutToBeShown)
{
    wnd.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup.m_hMenu), 0);
    EXPECT_EQ(heightOf(70), 21u);
    EXPECT_EQ(popup.measured, 70u);
    EXPECT_NE(heightOf(71), 21u) << "no such item";
}

TEST_F(OwnerDrawnMenu, OfTheMenuBarIsMeasuredToo)
{
    DrawnMenu bar;
    bar.CreateMenu();
    ::AppendMenuW(bar.m_hMenu, MF_OWNERDRAW, 80, L"data");
    ::SetMenu(wnd, bar.m_hMenu);
    EXPECT_EQ(heightOf(80), 21u);
    EXPECT_EQ(bar.measured, 80u);
    ::SetMenu(wnd, nullptr);
}

TEST_F(OwnerDrawnMenu, ItemsAreDrawnByTheirMenu)
{
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_MENU;
    item.itemID = 70;
    item.hwndItem = reinterpret_cast<HWND>(popup.m_hMenu);
    wnd.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(popup.drawn, 70u);
}
