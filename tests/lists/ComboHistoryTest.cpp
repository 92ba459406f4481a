// The texts that were used last.
#include "ComboScene.h"

#include <support/Perishing.h>
#include <testkit/Picture.h>
#include <testkit/TemporaryProfile.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace ovo::testkit;

namespace
{

using Texts = std::vector<std::wstring>;

constexpr DWORD kOwnerDrawn = CBS_DROPDOWN | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;

/// Gets the data of an item that is deleted, for its owner to free.
using Freeing = std::function<void(ULONG_PTR)>;

LRESULT CALLBACK hearDeletions(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                               DWORD_PTR freeing)
{
    if (message == WM_DELETEITEM)
        (*reinterpret_cast<const Freeing*>(freeing))(
            reinterpret_cast<const DELETEITEMSTRUCT*>(lParam)->itemData);
    return ::DefSubclassProc(window, message, wParam, lParam);
}

class ComboRemembering : public ::testing::Test
{
protected:
    void keep(ComboScene& scene, int limit = 3) { scene.combo.KeepHistory(L"Combo", L"Plant", limit); }

    static Texts items(const ComboScene& scene)
    {
        Texts texts;
        for (int i = 0; i < scene.combo.GetCount(); ++i) {
            CString text;
            scene.combo.GetLBText(i, text);
            texts.emplace_back(text.GetString());
        }
        return texts;
    }

    /// Types a text in place of what is there, and accepts it.
    static void accept(ComboScene& scene, const std::wstring& text)
    {
        scene.robot.key(VK_HOME).holding(VK_SHIFT).key(VK_END).letGo(VK_SHIFT).type(text).key(VK_DELETE).key(
            VK_RETURN);
    }

    static Texts inProfile()
    {
        Texts texts;
        for (int number = 1; number < 10; ++number) {
            const CString text =
                AfxGetApp()->GetProfileString(L"Combo", (L"Plant" + std::to_wstring(number)).c_str());
            if (!text.IsEmpty())
                texts.emplace_back(text.GetString());
        }
        return texts;
    }

    TemporaryProfile profile;
};

} // namespace

TEST_F(ComboRemembering, OffAtFirst)
{
    ComboScene scene{L"fir"};
    scene.combo.ConfirmAnyText(true);
    scene.enter();
    accept(scene, L"oak");
    EXPECT_EQ(items(scene), Texts{L"fir"});
    EXPECT_EQ(inProfile(), Texts{});
}

TEST_F(ComboRemembering, TheLastAcceptedTextComesFirst)
{
    ComboScene scene{L"fir"};
    scene.combo.ConfirmAnyText(true);
    keep(scene);
    scene.enter();
    accept(scene, L"oak");
    accept(scene, L"elm");
    EXPECT_EQ(items(scene), (Texts{L"elm", L"oak", L"fir"}));
    accept(scene, L"oak");
    EXPECT_EQ(items(scene), (Texts{L"oak", L"elm", L"fir"}));
    EXPECT_EQ(inProfile(), (Texts{L"oak", L"elm"}));
    EXPECT_EQ(scene.text(), L"oak");
}

TEST_F(ComboRemembering, ItemsOfTheHostMove)
{
    ComboScene scene{L"fir", L"ash", L"yew"};
    keep(scene);
    scene.combo.SetItemData(2, 77);
    scene.enter();
    accept(scene, L"yew");
    EXPECT_EQ(items(scene), (Texts{L"yew", L"fir", L"ash"}));
    EXPECT_EQ(scene.combo.GetItemData(0), 77u);
    EXPECT_EQ(scene.combo.GetCurSel(), 0);
    scene.robot.key(VK_ESCAPE);
    EXPECT_EQ(scene.text(), L"yew") << "nothing has changed since it was accepted";
}

TEST_F(ComboRemembering, ItemsMoveWithTheirColours)
{
    ComboScene scene({L"fir", L"yew"}, kOwnerDrawn);
    keep(scene);
    scene.combo.SetItemColour(1, 0xFF000000 | RGB(0, 200, 0));
    scene.enter();
    accept(scene, L"yew");
    ASSERT_EQ(items(scene), (Texts{L"yew", L"fir"}));
    scene.robot.moveTo(Spot{scene.button});
    scene.combo.ShowDropDown();
    GuiThread::settle();
    const Picture list = Picture::ofClient(scene.listBox());
    const int height = scene.combo.GetItemHeight(0);
    EXPECT_GT(list.count(RGB(0, 200, 0), 0, CRect(0, 0, list.width(), height)), 50);
    EXPECT_EQ(list.count(RGB(0, 200, 0), 0, CRect(0, height, list.width(), 2 * height)), 0);
}

TEST_F(ComboRemembering, TheOwnerOfAnItemThatMovesIsNotToldToFreeItsData)
{
    constexpr ULONG_PTR kData = 77;
    std::vector<ULONG_PTR> freed;
    const Freeing freeing = [&](ULONG_PTR data) { freed.push_back(data); };
    ComboScene scene({L"fir", L"yew"}, kOwnerDrawn);
    keep(scene);
    scene.combo.SetItemData(1, kData);
    scene.enter();
    ::SetWindowSubclass(scene.parent, &hearDeletions, 1, reinterpret_cast<DWORD_PTR>(&freeing));
    accept(scene, L"yew");
    EXPECT_EQ(items(scene), (Texts{L"yew", L"fir"}));
    EXPECT_EQ(scene.combo.GetItemData(0), kData);
    EXPECT_EQ(std::ranges::count(freed, kData), 0);
    scene.combo.DeleteString(0);
    EXPECT_EQ(std::ranges::count(freed, kData), 1) << "when it goes";
    ::RemoveWindowSubclass(scene.parent, &hearDeletions, 1);
}

namespace
{

/// A combo box that its parent deletes as soon as an item goes.
class Doomed
{
public:
    Doomed()
    {
        combo->Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | kOwnerDrawn, CRect(10, 10, 210, 160), &m_parent,
                      21);
        for (const wchar_t* item : {L"fir", L"ash", L"oak"})
            combo->AddString(item);
    }
    ~Doomed()
    {
        ::RemoveWindowSubclass(m_parent, &hearDeletions, 1);
        if (!isDeleted())
            delete combo;
    }
    Doomed(const Doomed&) = delete;
    Doomed& operator=(const Doomed&) = delete;

    void begin() { ::SetWindowSubclass(m_parent, &hearDeletions, 1, reinterpret_cast<DWORD_PTR>(&m_end)); }
    bool isDeleted() const { return m_window != nullptr; }

    Perishing<COVOComboBox>* const combo = new Perishing<COVOComboBox>;

private:
    ComboParent m_parent;
    HWND m_window = nullptr; ///< which the platform goes on with
    const Freeing m_end = [this](ULONG_PTR) {
        if (isDeleted())
            return;
        m_window = combo->UnsubclassWindow();
        delete combo;
    };
};

} // namespace

TEST_F(ComboRemembering, TheComboBoxMayBeDeletedWhenAnAcceptedItemMoves)
{
    Doomed doomed;
    COVOComboBox* const combo = doomed.combo;
    combo->KeepHistory(L"Combo", L"Plant", 1);
    const auto acceptNow = [combo](const wchar_t* text) {
        combo->SetWindowText(text);
        combo->SendMessage(WM_COMMAND, 0x0400, 0); // Enter
        GuiThread::settle();
    };
    acceptNow(L"oak");
    ASSERT_EQ(inProfile(), Texts{L"oak"});
    doomed.begin();
    acceptNow(L"ash"); // moves to the top, and oak is to make room then
    EXPECT_TRUE(doomed.isDeleted());
    EXPECT_EQ(inProfile(), Texts{L"ash"});
}

TEST_F(ComboRemembering, TheComboBoxMayBeDeletedWhenItsHistoryComesBack)
{
    AfxGetApp()->WriteProfileString(L"Combo", L"Plant1", L"ash");
    AfxGetApp()->WriteProfileString(L"Combo", L"Plant2", L"oak");
    Doomed doomed;
    doomed.begin();
    doomed.combo->KeepHistory(L"Combo", L"Plant", 3);
    EXPECT_TRUE(doomed.isDeleted());
}

TEST_F(ComboRemembering, WhatIsMarkedInTheFieldStaysMarked)
{
    ComboScene scene{L"fir"};
    scene.combo.ConfirmAnyText(true);
    keep(scene);
    scene.enter();
    scene.robot.type(L"oak").key(VK_HOME).holding(VK_SHIFT).key(VK_RIGHT).letGo(VK_SHIFT).key(VK_RETURN);
    EXPECT_EQ(items(scene), (Texts{L"oak", L"fir"}));
    EXPECT_EQ(scene.marked(), std::make_pair(0, 1));
}

TEST_F(ComboRemembering, WhatEscapeBringsBackIsTheSameItemInAnotherPlace)
{
    ComboScene scene{L"fir", L"ash", L"yew"};
    keep(scene);
    scene.enterWith(0);
    scene.combo.KeepHistory(L"Combo", L"Plant", 3);
    // Texts of the history come before the item that was there when the focus came.
    AfxGetApp()->WriteProfileString(L"Combo", L"Plant1", L"yew");
    scene.combo.KeepHistory(L"Combo", L"Plant", 3);
    ASSERT_EQ(items(scene), (Texts{L"yew", L"fir", L"ash"}));
    ASSERT_EQ(scene.combo.GetCurSel(), 1);
    scene.combo.SetCurSel(2);
    scene.robot.key(VK_ESCAPE);
    EXPECT_EQ(scene.text(), L"fir");
    EXPECT_EQ(scene.combo.GetCurSel(), 1);
}

TEST_F(ComboRemembering, ASelectionInTheListCounts)
{
    ComboScene scene{L"fir", L"ash", L"yew"};
    keep(scene);
    scene.enter();
    scene.robot.moveTo(Spot{scene.button}).key(VK_F4).key(VK_DOWN, 2).key(VK_RETURN);
    EXPECT_EQ(scene.text(), L"ash");
    EXPECT_EQ(items(scene), (Texts{L"ash", L"fir", L"yew"}));
    EXPECT_EQ(scene.combo.GetCurSel(), 0);
}

TEST_F(ComboRemembering, RejectedTextsDoNotCount)
{
    ComboScene scene{L"fir"};
    keep(scene);
    scene.enter();
    accept(scene, L"oak");
    scene.button.SetFocus();
    GuiThread::settle();
    EXPECT_EQ(items(scene), Texts{L"fir"});
    EXPECT_EQ(inProfile(), Texts{});
}

TEST_F(ComboRemembering, AnEmptyTextThatIsAcceptedIsNotKept)
{
    ComboScene scene{L"fir"};
    scene.combo.ConfirmAnyText(true);
    keep(scene);
    scene.enter();
    scene.robot.key(VK_RETURN);
    EXPECT_EQ(scene.take(), (Heard{"SELCHANGE", "SELENDOK"}));
    EXPECT_EQ(items(scene), Texts{L"fir"});
    EXPECT_EQ(inProfile(), Texts{});
}

TEST_F(ComboRemembering, ALimitOf0KeepsNothing)
{
    ComboScene scene{L"fir", L"ash"};
    keep(scene, 0);
    scene.enter();
    accept(scene, L"ash");
    EXPECT_EQ(scene.combo.GetCurSel(), 1);
    EXPECT_EQ(items(scene), (Texts{L"fir", L"ash"}));
    EXPECT_EQ(inProfile(), Texts{});
}

TEST_F(ComboRemembering, TextsThatDifferInCaseOnlyAreToldApart)
{
    ComboScene scene{L"fir", L"Oak", L"oak"};
    scene.combo.AutoComplete(false); // it would take the one that is there
    scene.combo.ConfirmAnyText(true);
    keep(scene);
    scene.enter();
    accept(scene, L"oak");
    EXPECT_EQ(items(scene), (Texts{L"oak", L"fir", L"Oak"}));
    accept(scene, L"OAK");
    EXPECT_EQ(items(scene), (Texts{L"OAK", L"oak", L"fir", L"Oak"}));
    EXPECT_EQ(inProfile(), (Texts{L"OAK", L"oak"}));
}

TEST_F(ComboRemembering, WhatHasNoRoomGoes)
{
    ComboScene scene{L"fir", L"ash"};
    scene.combo.ConfirmAnyText(true);
    keep(scene, 2);
    scene.enter();
    accept(scene, L"ash");
    accept(scene, L"oak");
    accept(scene, L"elm");
    EXPECT_EQ(items(scene), (Texts{L"elm", L"oak", L"ash", L"fir"})) << "an item of the host's stays";
    accept(scene, L"yew");
    EXPECT_EQ(items(scene), (Texts{L"yew", L"elm", L"ash", L"fir"})) << "other texts go";
    EXPECT_EQ(inProfile(), (Texts{L"yew", L"elm"}));
}

TEST_F(ComboRemembering, ItComesBackFromTheProfile)
{
    {
        ComboScene scene{L"fir"};
        scene.combo.ConfirmAnyText(true);
        keep(scene);
        scene.enter();
        for (const wchar_t* text : {L"oak", L"fir", L"elm"})
            accept(scene, text);
    }
    ComboScene scene{L"ash", L"fir"};
    scene.combo.SetCurSel(1);
    keep(scene);
    EXPECT_EQ(items(scene), (Texts{L"elm", L"fir", L"oak", L"ash"}));
    EXPECT_EQ(scene.combo.GetCurSel(), 1);
    EXPECT_EQ(scene.text(), L"fir");
    ComboScene shorter{};
    keep(shorter, 2);
    EXPECT_EQ(items(shorter), (Texts{L"elm", L"fir"}));
}

TEST_F(ComboRemembering, DelInTheOpenListForgets)
{
    ComboScene scene{L"fir"};
    scene.combo.ConfirmAnyText(true);
    keep(scene);
    scene.enter();
    for (const wchar_t* text : {L"oak", L"elm", L"yew"})
        accept(scene, text);
    scene.robot.moveTo(Spot{scene.button}).key(VK_F4).key(VK_DOWN);
    ASSERT_EQ(scene.text(), L"elm");
    scene.robot.key(VK_DELETE);
    EXPECT_EQ(items(scene), (Texts{L"yew", L"oak", L"fir"}));
    EXPECT_EQ(inProfile(), (Texts{L"yew", L"oak"}));
    EXPECT_TRUE(scene.combo.GetDroppedState());
    EXPECT_EQ(scene.text(), L"oak") << "the next one is selected";
    scene.robot.key(VK_DELETE).key(VK_DELETE);
    EXPECT_EQ(items(scene), (Texts{L"yew", L"fir"})) << "an item of the host's is not removed";
}

TEST_F(ComboRemembering, AfterTheLastItemIsForgottenTheOneBeforeIsSelected)
{
    ComboScene scene{};
    scene.combo.ConfirmAnyText(true);
    keep(scene);
    scene.enter();
    accept(scene, L"oak");
    accept(scene, L"elm");
    scene.robot.moveTo(Spot{scene.button}).key(VK_F4).key(VK_DOWN);
    ASSERT_EQ(scene.text(), L"oak");
    scene.robot.key(VK_DELETE);
    EXPECT_EQ(items(scene), Texts{L"elm"});
    EXPECT_EQ(scene.text(), L"elm");
    EXPECT_EQ(scene.combo.GetCurSel(), 0);
    scene.robot.key(VK_DELETE);
    EXPECT_EQ(items(scene), Texts{});
    EXPECT_EQ(scene.text(), L"");
}

TEST_F(ComboRemembering, EscapeBringsBackATextThatWasForgottenMeanwhile)
{
    ComboScene scene{};
    scene.combo.ConfirmAnyText(true);
    keep(scene);
    scene.enter();
    accept(scene, L"elm");
    accept(scene, L"oak");
    accept(scene, L"oak"); // the item, now that it is one
    ASSERT_EQ(scene.combo.GetCurSel(), 0);
    scene.robot.moveTo(Spot{scene.button}).key(VK_F4).key(VK_DELETE);
    ASSERT_EQ(items(scene), Texts{L"elm"});
    ASSERT_EQ(scene.text(), L"elm");
    scene.robot.key(VK_ESCAPE);
    EXPECT_EQ(scene.text(), L"oak");
    EXPECT_EQ(scene.combo.GetCurSel(), -1);
}

TEST_F(ComboRemembering, DelForgetsNoTextThatIsBeingEdited)
{
    ComboScene scene{};
    scene.combo.ConfirmAnyText(true);
    keep(scene);
    scene.enter();
    accept(scene, L"oak");
    scene.robot.key(VK_HOME).key(VK_DELETE);
    EXPECT_EQ(scene.text(), L"ak") << "the list is closed";
    EXPECT_EQ(items(scene), Texts{L"oak"});
    scene.robot.key(VK_ESCAPE)
        .moveTo(Spot{scene.button})
        .key(VK_F4)
        .key(VK_END)
        .type(L"s")
        .key(VK_HOME)
        .key(VK_DELETE);
    EXPECT_EQ(scene.text(), L"aks");
    EXPECT_EQ(items(scene), Texts{L"oak"});
}

TEST_F(ComboRemembering, DelInTheClosedListEditsAChosenTextToo)
{
    ComboScene scene{};
    scene.combo.ConfirmAnyText(true);
    keep(scene);
    scene.enter();
    accept(scene, L"oak");
    accept(scene, L"oak");
    ASSERT_EQ(scene.combo.GetCurSel(), 0);
    scene.robot.key(VK_HOME).key(VK_DELETE);
    EXPECT_EQ(scene.text(), L"ak");
    EXPECT_EQ(items(scene), Texts{L"oak"});
}

TEST_F(ComboRemembering, DelAfterAnEditInTheOpenListEditsAChosenTextToo)
{
    ComboScene scene{};
    scene.combo.ConfirmAnyText(true);
    keep(scene);
    scene.enter();
    accept(scene, L"oak");
    accept(scene, L"elm");
    scene.robot.moveTo(Spot{scene.button}).key(VK_F4).key(VK_DOWN);
    ASSERT_EQ(scene.text(), L"oak");
    scene.robot.key(VK_END).type(L"s").key(VK_HOME).key(VK_DELETE);
    EXPECT_EQ(scene.text(), L"aks");
    EXPECT_EQ(items(scene), (Texts{L"elm", L"oak"}));
}

TEST_F(ComboRemembering, ATextOfTheHostsThatIsForgottenStaysInTheList)
{
    ComboScene scene{L"fir", L"ash"};
    keep(scene);
    scene.enter();
    accept(scene, L"ash");
    ASSERT_EQ(items(scene), (Texts{L"ash", L"fir"}));
    scene.robot.moveTo(Spot{scene.button}).key(VK_F4).key(VK_DELETE);
    EXPECT_EQ(items(scene), (Texts{L"ash", L"fir"}));
    EXPECT_EQ(inProfile(), Texts{});
}

TEST_F(ComboRemembering, TheParentMayDestroyItWhenATextIsAccepted)
{
    ComboScene scene{L"fir"};
    keep(scene);
    scene.enter();
    scene.parent.hearing = [&](const std::string& heard) {
        if (heard == "SELENDOK")
            scene.combo.DestroyWindow();
    };
    accept(scene, L"fir");
    EXPECT_FALSE(scene.combo.m_hWnd);
    EXPECT_EQ(inProfile(), Texts{L"fir"});
}

TEST_F(ComboRemembering, ATextThatIsAcceptedAsTheWindowGoesIsKept)
{
    ComboScene scene{L"fir"};
    scene.combo.ConfirmAnyText(true);
    keep(scene, 1);
    scene.enter();
    accept(scene, L"elm");
    ASSERT_EQ(inProfile(), Texts{L"elm"});
    scene.setText(L"oak");
    scene.button.SetFocus();
    scene.combo.DestroyWindow(); // before any message, as when a button that ends a dialog is pressed by Alt
    EXPECT_EQ(inProfile(), Texts{L"oak"});
}

TEST_F(ComboRemembering, TheHostMayEmptyTheListMeanwhile)
{
    ComboScene scene{L"fir", L"ash"};
    scene.combo.ConfirmAnyText(true);
    keep(scene, 2);
    scene.enter();
    accept(scene, L"oak");
    scene.combo.ResetContent();
    accept(scene, L"elm");
    EXPECT_EQ(items(scene), Texts{L"elm"});
    accept(scene, L"yew");
    EXPECT_EQ(items(scene), (Texts{L"yew", L"elm"}));
    EXPECT_EQ(inProfile(), (Texts{L"yew", L"elm"}));
}
