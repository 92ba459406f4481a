// Menus as objects: who owns what, items, loading, tracking.
#include "TestFrame.h"
#include "resource.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

std::wstring itemText(const CMenu& menu, UINT position)
{
    CString text;
    menu.GetMenuString(position, text, MF_BYPOSITION);
    return text.GetString();
}

} // namespace

// Objects and handles

TEST(Menu, FindsItsObjectByItsHandle)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_EQ(CMenu::FromHandlePermanent(menu), &menu);
    EXPECT_EQ(CMenu::FromHandle(menu), &menu);
    EXPECT_EQ(CMenu::FromHandle(nullptr), nullptr);
}

TEST(Menu, AStrangersHandleGetsATemporaryObject)
{
    const HMENU handle = ::CreatePopupMenu();
    CMenu* temporary = CMenu::FromHandle(handle);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->m_hMenu, handle);
    EXPECT_EQ(CMenu::FromHandle(handle), temporary) << "the same one while it lives";
    EXPECT_EQ(CMenu::FromHandlePermanent(handle), nullptr);
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsMenu(handle)) << "temporary objects leave the menu alone";
    ::DestroyMenu(handle);
}

TEST(Menu, IsDestroyedWithItsObjectUnlessDetached)
{
    HMENU destroyed = nullptr;
    HMENU kept = nullptr;
    {
        CMenu one;
        one.CreateMenu();
        destroyed = one;
        CMenu other;
        other.CreateMenu();
        kept = other.Detach();
        EXPECT_EQ(other.m_hMenu, nullptr);
        EXPECT_EQ(CMenu::FromHandlePermanent(kept), nullptr);
    }
    EXPECT_FALSE(::IsMenu(destroyed));
    EXPECT_TRUE(::IsMenu(kept));
    ::DestroyMenu(kept);
}

TEST(Menu, AttachRefusesWhatIsTaken)
{
    CMenu menu;
    EXPECT_FALSE(menu.Attach(nullptr));
    ASSERT_TRUE(menu.CreateMenu());
    CMenu other;
    EXPECT_FALSE(other.Attach(menu)) << "the handle has an object";
    EXPECT_EQ(other.m_hMenu, nullptr);
    const HMENU second = ::CreateMenu();
    EXPECT_FALSE(menu.Attach(second)) << "the object has a handle";
    EXPECT_TRUE(other.Attach(second));
}

TEST(Menu, DestroyingATemporaryObjectsMenuForgetsIt)
{
    const HMENU handle = ::CreatePopupMenu();
    CMenu* temporary = CMenu::FromHandle(handle);
    EXPECT_TRUE(temporary->DestroyMenu());
    EXPECT_FALSE(::IsMenu(handle));
    EXPECT_EQ(temporary->m_hMenu, nullptr) << "the pointer is good until idle time, the menu is not";
    EXPECT_FALSE(temporary->DestroyMenu());
}

TEST(Menu, ANullObjectHasNoHandle)
{
    CMenu* none = nullptr;
    EXPECT_EQ(none->GetSafeHmenu(), nullptr);
    EXPECT_EQ(CMenu().GetSafeHmenu(), nullptr);
}

// Items

TEST(Menu, ItemsAreAddedChangedAndTakenOut)
{
    CMenu menu;
    menu.CreatePopupMenu();
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 1, L"One"));
    EXPECT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 3, L"Three"));
    EXPECT_TRUE(menu.InsertMenu(3, MF_BYCOMMAND | MF_STRING, 2, L"Two"));
    EXPECT_EQ(menu.GetMenuItemCount(), 4);
    EXPECT_EQ(itemText(menu, 2), L"Two");
    EXPECT_EQ(menu.GetMenuItemID(1), 0u) << "a separator";

    EXPECT_TRUE(menu.ModifyMenu(2, MF_BYCOMMAND | MF_STRING, 22, L"Twenty-two"));
    EXPECT_EQ(menu.GetMenuItemID(2), 22u);
    EXPECT_TRUE(menu.DeleteMenu(1, MF_BYPOSITION));
    EXPECT_TRUE(menu.RemoveMenu(3, MF_BYCOMMAND));
    EXPECT_EQ(menu.GetMenuItemCount(), 2);
    EXPECT_FALSE(menu.DeleteMenu(4711, MF_BYCOMMAND));
}

TEST(Menu, ItemsAreCheckedAndEnabled)
{
    CMenu menu;
    menu.CreatePopupMenu();
    for (UINT id = 1; id <= 3; ++id)
        menu.AppendMenu(MF_STRING, id, L"Item");
    EXPECT_EQ(menu.CheckMenuItem(1, MF_CHECKED), static_cast<UINT>(MF_UNCHECKED)) << "what it was before";
    EXPECT_TRUE(menu.GetMenuState(1, MF_BYCOMMAND) & MF_CHECKED);
    menu.EnableMenuItem(0, MF_BYPOSITION | MF_GRAYED);
    EXPECT_TRUE(menu.GetMenuState(1, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_TRUE(menu.CheckMenuRadioItem(1, 3, 2, MF_BYCOMMAND));
    EXPECT_TRUE(menu.GetMenuState(2, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_FALSE(menu.GetMenuState(1, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_TRUE(menu.SetDefaultItem(3));
    EXPECT_EQ(menu.GetDefaultItem(0), 3u);
    EXPECT_EQ(menu.GetDefaultItem(0, TRUE), 2u);
}

TEST(Menu, ItemInformationNeedsNoSize)
{
    CMenu menu;
    menu.CreatePopupMenu();
    MENUITEMINFO info{};
    info.fMask = MIIM_ID | MIIM_STRING;
    info.wID = 9;
    info.dwTypeData = const_cast<LPTSTR>(L"Nine");
    EXPECT_TRUE(menu.InsertMenuItem(0, &info, TRUE));
    MENUITEMINFO read{};
    read.fMask = MIIM_ID;
    EXPECT_TRUE(menu.GetMenuItemInfo(0, &read, TRUE));
    EXPECT_EQ(read.wID, 9u);
    read.wID = 10;
    EXPECT_TRUE(menu.SetMenuItemInfo(9, &read));
    EXPECT_EQ(menu.GetMenuItemID(0), 10u);
    EXPECT_EQ(itemText(menu, 0), L"Nine");

    MENUINFO whole{};
    whole.fMask = MIM_MENUDATA;
    whole.cbSize = sizeof whole;
    whole.dwMenuData = 77;
    EXPECT_TRUE(menu.SetMenuInfo(&whole));
    MENUINFO answer{};
    answer.fMask = MIM_MENUDATA;
    EXPECT_TRUE(menu.GetMenuInfo(&answer));
    EXPECT_EQ(answer.dwMenuData, 77u);
    EXPECT_TRUE(menu.SetMenuContextHelpId(5));
    EXPECT_EQ(menu.GetMenuContextHelpId(), 5u);
}

TEST(Menu, TextsOfAnyLengthAreRead)
{
    CMenu menu;
    menu.CreatePopupMenu();
    const CString longText(L'x', 600);
    menu.AppendMenu(MF_STRING, 1, longText);
    CString read;
    EXPECT_EQ(menu.GetMenuString(0, read, MF_BYPOSITION), 600);
    EXPECT_EQ(read, longText);
    EXPECT_EQ(menu.GetMenuString(4711, read, MF_BYCOMMAND), 0);
    EXPECT_TRUE(read.IsEmpty());
    wchar_t buffer[4];
    menu.GetMenuString(0, buffer, 4, MF_BYPOSITION);
    EXPECT_STREQ(buffer, L"xxx");
}

TEST(Menu, ABitmapStandsForAnItem)
{
    CBitmap bitmap;
    bitmap.CreateBitmap(8, 8, 1, 1, nullptr);
    CMenu menu;
    menu.CreatePopupMenu();
    EXPECT_TRUE(menu.AppendMenu(MF_ENABLED, 1, &bitmap));
    EXPECT_TRUE(menu.InsertMenu(0, MF_BYPOSITION, 2, &bitmap));
    menu.AppendMenu(MF_STRING, 3, L"Three");
    EXPECT_TRUE(menu.ModifyMenu(2, MF_BYPOSITION, 3, &bitmap));
    for (UINT position = 0; position < 3; ++position)
        EXPECT_TRUE(menu.GetMenuState(position, MF_BYPOSITION) & MF_BITMAP) << position;
    EXPECT_TRUE(menu.SetMenuItemBitmaps(0, MF_BYPOSITION, &bitmap, &bitmap));
}

TEST(Menu, PopupsHangInMenus)
{
    CMenu menu;
    menu.CreateMenu();
    CMenu popup;
    popup.CreatePopupMenu();
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.m_hMenu), L"Popup");
    EXPECT_EQ(menu.GetSubMenu(0), &popup);
    EXPECT_EQ(menu.GetMenuItemID(0), static_cast<UINT>(-1));
    EXPECT_EQ(menu.GetSubMenu(1), nullptr);
    popup.Detach(); // it goes with the menu now
}

// Loading

TEST(Menu, IsLoadedAlongTheResourceChain)
{
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDR_FRAME));
    EXPECT_EQ(menu.GetMenuItemCount(), 1);
    EXPECT_EQ(menu.GetSubMenu(0)->GetMenuItemID(0), static_cast<UINT>(ID_TEST_ACT));
    CMenu missing;
    EXPECT_FALSE(missing.LoadMenu(IDR_FRAME_MISSING));
    EXPECT_FALSE(missing.LoadMenu(L"NO_SUCH_MENU"));
    EXPECT_EQ(missing.m_hMenu, nullptr);
}

TEST(Menu, IsLoadedFromATemplateInMemory)
{
    // version and offset; one item that is the last: flags, id, text
    const WORD memory[] = {0, 0, MF_END, 7, 'O', 'a', 'k', 0};
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenuIndirect(memory));
    EXPECT_EQ(menu.GetMenuItemID(0), 7u);
    EXPECT_EQ(itemText(menu, 0), L"Oak");
}

// Tracking

TEST(Menu, AContextMenuGivesTheChosenCommand)
{
    const MainFrame frame;
    present(*frame);
    CMenu menu;
    menu.LoadMenu(IDR_POPUP);
    auto choosing =
        Robot().waitFor("the menu", [] { return shownMenu(); }).key(VK_DOWN, 2).key(VK_RETURN).start();
    EXPECT_EQ(menu.GetSubMenu(0)->TrackPopupMenu(TPM_RETURNCMD, 100, 100, &*frame), ID_TEST_OTHER);
    choosing.finish();

    auto leaving = Robot().waitFor("the menu", [] { return shownMenu(); }).key(VK_ESCAPE).start();
    EXPECT_EQ(menu.GetSubMenu(0)->TrackPopupMenu(TPM_RETURNCMD, 100, 100, &*frame), 0);
}

TEST(Menu, AContextMenuSendsTheCommandToItsWindow)
{
    const MainFrame frame;
    present(*frame);
    CMenu menu;
    menu.LoadMenu(IDR_POPUP);
    auto choosing =
        Robot().waitFor("the menu", [] { return shownMenu(); }).key(VK_DOWN).key(VK_RETURN).start();
    EXPECT_TRUE(menu.GetSubMenu(0)->TrackPopupMenu(TPM_LEFTALIGN, 100, 100, &*frame));
    choosing.finish();
    EXPECT_EQ(frame->acted, 1);
}

TEST(Menu, AnErrorInAnUpdateHandlerComesOutOfTheTracking)
{
    struct Oak
    {
    };
    const MainFrame frame;
    present(*frame);
    frame->updates[ID_TEST_ACT] = [](CCmdUI&) { throw Oak{}; };
    CMenu menu;
    menu.LoadMenu(IDR_POPUP);
    auto leaving = Robot().waitFor("the menu", [] { return shownMenu(); }).key(VK_ESCAPE).start();
    EXPECT_THROW(menu.GetSubMenu(0)->TrackPopupMenu(TPM_RETURNCMD, 100, 100, &*frame), Oak);
}

TEST(Menu, AnAttachedMenuMeasuresAndDrawsItsOwnerDrawnItems)
{
    class DrawnMenu : public CMenu
    {
    public:
        int measured = 0;
        int drawn = 0;
        void MeasureItem(LPMEASUREITEMSTRUCT item) override
        {
            ++measured;
            item->itemWidth = 60;
            item->itemHeight = 24;
        }
        void DrawItem(LPDRAWITEMSTRUCT item) override
        {
            ++drawn;
            EXPECT_EQ(item->itemID, 7u);
            EXPECT_EQ(item->rcItem.bottom - item->rcItem.top, 24);
        }
    } menu;
    const MainFrame frame;
    present(*frame);
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_OWNERDRAW, 7, L"data");
    auto leaving = Robot()
                       .waitFor("the item to be drawn", [&] { return shownMenu() && menu.drawn > 0; })
                       .key(VK_ESCAPE)
                       .start();
    menu.TrackPopupMenu(TPM_RETURNCMD, 100, 100, &*frame);
    leaving.finish();
    EXPECT_GT(menu.measured, 0);
    EXPECT_GT(menu.drawn, 0);
}
