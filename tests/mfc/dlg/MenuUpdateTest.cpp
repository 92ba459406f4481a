// How a frame brings a menu up to date before it opens.
#include "TestFrame.h"
#include "resource.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

class MenuUpdate : public ::testing::Test
{
protected:
    MenuUpdate()
    {
        m_menu.LoadMenu(IDR_FRAME);
        m_popup = m_menu.GetSubMenu(0)->m_hMenu;
    }

    void open(HMENU popup, bool system = false)
    {
        m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup), MAKELPARAM(0, system));
    }
    void open() { open(m_popup); }

    UINT state(UINT position) const { return ::GetMenuState(m_popup, position, MF_BYPOSITION); }
    bool greyed(UINT position) const { return (state(position) & MF_GRAYED) != 0; }

    std::map<UINT, std::function<void(CCmdUI&)>>& updates() { return m_frame->updates; }

    enum Position
    {
        Act,
        Separator,
        Other,
        Unhandled,
        More
    };

    MainFrame m_frame;
    CMenu m_menu;
    HMENU m_popup;
};

} // namespace

TEST_F(MenuUpdate, ItemsWithoutAHandlerAreDisabled)
{
    open();
    EXPECT_FALSE(greyed(Act)) << "the view and the frame handle the command";
    EXPECT_FALSE(greyed(Other));
    EXPECT_TRUE(greyed(Unhandled));
}

TEST_F(MenuUpdate, UnlessTheFrameSaysOtherwise)
{
    m_frame->m_bAutoMenuEnable = FALSE;
    open();
    EXPECT_FALSE(greyed(Unhandled));
}

TEST_F(MenuUpdate, AnItemIsEnabledAgainOnceThereIsAHandler)
{
    ::EnableMenuItem(m_popup, Act, MF_BYPOSITION | MF_GRAYED);
    open();
    EXPECT_FALSE(greyed(Act));
}

TEST_F(MenuUpdate, AnUpdateHandlersWordCounts)
{
    updates()[ID_TEST_ACT] = [](CCmdUI& ui) { ui.Enable(FALSE); };
    updates()[ID_TEST_UNHANDLED] = [](CCmdUI& ui) { ui.Enable(); };
    open();
    EXPECT_TRUE(greyed(Act)) << "though there is a command handler";
    EXPECT_FALSE(greyed(Unhandled)) << "though there is none";
}

TEST_F(MenuUpdate, AnUpdateHandlerThatDoesNotEnableLeavesTheItemAsItIs)
{
    updates()[ID_TEST_UNHANDLED] = [](CCmdUI& ui) { ui.SetCheck(); };
    open();
    EXPECT_FALSE(greyed(Unhandled));
    EXPECT_TRUE(state(Unhandled) & MF_CHECKED);
}

TEST_F(MenuUpdate, AHandlerThatContinuesTheRoutingIsAsIfItWereNotThere)
{
    updates()[ID_TEST_UNHANDLED] = [](CCmdUI& ui) { ui.ContinueRouting(); };
    updates()[ID_TEST_OTHER] = [](CCmdUI& ui) { ui.ContinueRouting(); };
    open();
    EXPECT_TRUE(greyed(Unhandled));
    EXPECT_FALSE(greyed(Other));
}

TEST_F(MenuUpdate, SeparatorsAreNotAskedFor)
{
    std::vector<UINT> asked;
    updates()[0] = [&](CCmdUI& ui) { asked.push_back(ui.m_nIndex); };
    open();
    EXPECT_TRUE(asked.empty());
    EXPECT_TRUE(state(Separator) & MF_SEPARATOR);
}

TEST_F(MenuUpdate, AHandlerSeesWhereTheItemIs)
{
    std::vector<UINT> facts;
    updates()[ID_TEST_OTHER] = [&](CCmdUI& ui) {
        facts = {ui.m_nID, ui.m_nIndex, ui.m_nIndexMax};
        EXPECT_EQ(ui.m_pMenu->m_hMenu, m_popup);
        EXPECT_EQ(ui.m_pSubMenu, nullptr);
        EXPECT_EQ(ui.m_pOther, nullptr);
    };
    open();
    EXPECT_EQ(facts, (std::vector<UINT>{ID_TEST_OTHER, Other, 5}));
}

TEST_F(MenuUpdate, APopupIsAskedForByItsFirstItem)
{
    std::vector<HMENU> popups;
    updates()[ID_TEST_FIRST] = [&](CCmdUI& ui) {
        popups.push_back(ui.m_pSubMenu->GetSafeHmenu());
        ui.Enable(FALSE);
        ui.SetCheck();
        ui.SetText(L"Changed");
    };
    open();
    const HMENU more = ::GetSubMenu(m_popup, More);
    EXPECT_EQ(popups, std::vector<HMENU>{more});
    EXPECT_FALSE(greyed(More)) << "Enable leaves popups alone";
    wchar_t text[16];
    ::GetMenuStringW(m_popup, More, text, 16, MF_BYPOSITION);
    EXPECT_STREQ(text, L"&More");

    popups.clear();
    open(more);
    EXPECT_EQ(popups, std::vector<HMENU>{nullptr}) << "now it is the item itself";
    EXPECT_TRUE(::GetMenuState(more, 0, MF_BYPOSITION) & MF_GRAYED);
}

TEST_F(MenuUpdate, AHandlerMayDisableAPopupItself)
{
    updates()[ID_TEST_FIRST] = [](CCmdUI& ui) {
        if (ui.m_pSubMenu)
            ui.m_pMenu->EnableMenuItem(ui.m_nIndex, MF_BYPOSITION | MF_GRAYED);
    };
    open();
    EXPECT_TRUE(greyed(More));
}

TEST_F(MenuUpdate, APopupIsNotDisabledForAnItemWithoutAHandler)
{
    ::DeleteMenu(::GetSubMenu(m_popup, More), 0,
                 MF_BYPOSITION); // ID_TEST_SECOND is first now; it has no handler
    open();
    EXPECT_FALSE(greyed(More));
}

TEST_F(MenuUpdate, TheMenuAboveIsKnown)
{
    const HMENU bar = m_menu.m_hMenu;
    m_frame->SetMenu(&m_menu);
    HMENU above = nullptr;
    updates()[ID_TEST_FIRST] = [&](CCmdUI& ui) {
        if (!ui.m_pSubMenu)
            above = ui.m_pParentMenu->GetSafeHmenu();
    };
    open(::GetSubMenu(m_popup, More));
    EXPECT_EQ(above, m_popup);
    updates()[ID_TEST_ACT] = [&](CCmdUI& ui) { above = ui.m_pParentMenu->GetSafeHmenu(); };
    open();
    EXPECT_EQ(above, bar);
    m_frame->SetMenu(nullptr);
}

TEST_F(MenuUpdate, TheSystemMenuIsLeftAlone)
{
    open(m_popup, true);
    EXPECT_FALSE(greyed(Unhandled));
}

TEST_F(MenuUpdate, ItemsThatAHandlerInsertsAreUpdatedToo)
{
    updates()[ID_TEST_ACT] = [](CCmdUI& ui) {
        if (ui.m_pMenu->GetMenuItemCount() == 5)
            ui.m_pMenu->InsertMenu(ui.m_nIndex + 1, MF_BYPOSITION | MF_STRING, ID_TEST_UNHANDLED, L"New");
        ui.Enable();
    };
    open();
    ASSERT_EQ(::GetMenuItemCount(m_popup), 6);
    EXPECT_TRUE(greyed(1)) << "the new one";
    EXPECT_FALSE(greyed(3));
    EXPECT_TRUE(greyed(4)) << "the last one that was there";
}

TEST_F(MenuUpdate, ItemsAfterThoseThatAHandlerDeletesAreUpdatedToo)
{
    updates()[ID_TEST_ACT] = [](CCmdUI& ui) {
        ui.m_pMenu->DeleteMenu(0, MF_BYPOSITION); // itself
        ui.m_pMenu->DeleteMenu(0, MF_BYPOSITION); // and the separator
    };
    updates()[ID_TEST_OTHER] = [](CCmdUI& ui) { ui.SetCheck(); };
    open();
    ASSERT_EQ(::GetMenuItemCount(m_popup), 3);
    EXPECT_TRUE(state(0) & MF_CHECKED);
    EXPECT_TRUE(greyed(1));
}

TEST_F(MenuUpdate, AMenuThatAHandlerEmptiesIsDone)
{
    updates()[ID_TEST_OTHER] = [](CCmdUI& ui) {
        while (ui.m_pMenu->DeleteMenu(0, MF_BYPOSITION)) {
        }
    };
    open();
    EXPECT_EQ(::GetMenuItemCount(m_popup), 0);
}

TEST_F(MenuUpdate, MarksAreChecksOrDots)
{
    const auto isDot = [this](UINT position) {
        MENUITEMINFO info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE;
        ::GetMenuItemInfoW(m_popup, position, TRUE, &info);
        return (info.fType & MFT_RADIOCHECK) != 0;
    };
    updates()[ID_TEST_ACT] = [](CCmdUI& ui) { ui.SetRadio(); };
    updates()[ID_TEST_OTHER] = [](CCmdUI& ui) { ui.SetCheck(); };
    open();
    EXPECT_TRUE((state(Act) & MF_CHECKED) && isDot(Act));
    EXPECT_TRUE((state(Other) & MF_CHECKED) && !isDot(Other));

    updates()[ID_TEST_ACT] = [](CCmdUI& ui) { ui.SetCheck(); };
    updates()[ID_TEST_OTHER] = [](CCmdUI& ui) { ui.SetRadio(FALSE); };
    open();
    EXPECT_TRUE((state(Act) & MF_CHECKED) && !isDot(Act)) << "a check mark takes the dot's place";
    EXPECT_FALSE(state(Other) & MF_CHECKED);
    open();
    EXPECT_EQ(::GetMenuItemID(m_popup, Act), static_cast<UINT>(ID_TEST_ACT)) << "nothing else has changed";
}

TEST_F(MenuUpdate, TheTextIsSetWithoutTouchingTheRest)
{
    updates()[ID_TEST_ACT] = [](CCmdUI& ui) {
        ui.SetCheck();
        ui.SetText(L"&Undo oak");
        ui.Enable(FALSE);
    };
    open();
    wchar_t text[16];
    ::GetMenuStringW(m_popup, Act, text, 16, MF_BYPOSITION);
    EXPECT_STREQ(text, L"&Undo oak");
    EXPECT_TRUE(state(Act) & MF_CHECKED);
    EXPECT_TRUE(greyed(Act));
}

TEST_F(MenuUpdate, ADisabledCommandIsNotCarriedOut)
{
    m_frame->SendMessage(WM_COMMAND, ID_TEST_ACT);
    EXPECT_EQ(m_frame->acted, 1);
    updates()[ID_TEST_ACT] = [](CCmdUI& ui) { ui.Enable(FALSE); };
    m_frame->SendMessage(WM_COMMAND, ID_TEST_ACT);
    m_frame->SendMessage(WM_COMMAND, MAKEWPARAM(ID_TEST_ACT, 1)); // as from an accelerator
    EXPECT_EQ(m_frame->acted, 1);
}
