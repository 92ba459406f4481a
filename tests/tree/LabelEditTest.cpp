// Renaming in place.
#include "TreeScene.h"

#include <ovocor/OvoError.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// Items that can be renamed and take what is typed; the first has the focus.
class EditScene : public Scene
{
public:
    explicit EditScene(const Names& names)
        : Scene(names)
    {
        for (const std::string& name : names) {
            TestNode* const node = &this->node(name);
            node->renamable = true;
            node->renaming = [node](MultiTreeCtrl&, const std::wstring& text) { node->name = narrow(text); };
        }
        user.click(label(names.front()));
        forget();
    }

    bool isEditing() { return tree.GetEditControl() != nullptr; }
    std::function<bool()> editing()
    {
        return [this] { return isEditing(); };
    }
    std::string typed()
    {
        CString text;
        if (CEdit* const edit = tree.GetEditControl())
            edit->GetWindowText(text);
        return narrow(text.GetString());
    }

    /// A click by messages: no time passes until the edit's timer is asked to run out.
    void clickNow(const std::string& name)
    {
        const CPoint at = labelPoint(name);
        tree.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
        tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    }
    void letTheTimeRunOut() { tree.SendMessage(WM_TIMER, 2115); }
};

} // namespace

TEST(TreeLabelEdit, F2EditsTheCaretAndClearsTheSelection)
{
    EditScene scene({"a", "b"});
    Names selected{"?"};
    std::string offered;
    scene.user.key(VK_F2)
        .waitFor("the editor", scene.editing())
        .then([&] {
            selected = scene.selected();
            offered = scene.typed();
        })
        .type(L"new")
        .key(VK_RETURN);
    EXPECT_EQ(selected, Names{});
    EXPECT_EQ(offered, "a");
    EXPECT_EQ(scene.all(), (Names{"new", "b"}));
    EXPECT_EQ(scene.journal, (Journal{"beginLabelEdit a", "rename to new: a", "endLabelEdit new"}));
    EXPECT_FALSE(scene.isEditing());
}

TEST(TreeLabelEdit, TheTextOfferedIsTheNodesChoice)
{
    EditScene scene({"a.txt"});
    scene.node("a.txt").offeringText = [] { return std::wstring(L"a"); };
    std::string offered;
    scene.user.key(VK_F2)
        .waitFor("the editor", scene.editing())
        .then([&] { offered = scene.typed(); })
        .key(VK_ESCAPE);
    EXPECT_EQ(offered, "a");
}

TEST(TreeLabelEdit, EscapeGivesTheTextUp)
{
    EditScene scene({"a"});
    scene.user.key(VK_F2).waitFor("the editor", scene.editing()).type(L"new").key(VK_ESCAPE);
    EXPECT_EQ(scene.all(), Names{"a"});
    EXPECT_EQ(scene.journal, (Journal{"beginLabelEdit a", "endLabelEdit a"}));
}

TEST(TreeLabelEdit, TheSameTextRenamesNothing)
{
    EditScene scene({"a"});
    scene.user.key(VK_F2).waitFor("the editor", scene.editing()).type(L"a").key(VK_RETURN);
    EXPECT_EQ(scene.journal, (Journal{"beginLabelEdit a", "endLabelEdit a"}));
    EXPECT_FALSE(scene.isEditing());
}

TEST(TreeLabelEdit, WhatTheNodeMakesOfTheTextIsShown)
{
    EditScene scene({"a"});
    scene.node("a").renaming = [&](MultiTreeCtrl&, const std::wstring& text) {
        scene.node("a").name = narrow(text) + ".txt";
    };
    scene.user.key(VK_F2).waitFor("the editor", scene.editing()).type(L"b").key(VK_RETURN);
    EXPECT_EQ(scene.all(), Names{"b.txt"});
    EXPECT_FALSE(scene.isEditing());
}

TEST(TreeLabelEdit, ANodeThatRefusesHasTheUserCorrectTheText)
{
    EditScene scene({"a"});
    TestNode& a = scene.node("a");
    a.renaming = [&](MultiTreeCtrl&, const std::wstring& text) {
        if (text != L"bad")
            a.name = narrow(text);
    };
    scene.user.key(VK_F2)
        .waitFor("the editor", scene.editing())
        .type(L"bad")
        .key(VK_RETURN)
        .waitFor("the editor once more", scene.editing())
        .type(L"good")
        .key(VK_RETURN);
    EXPECT_EQ(scene.all(), Names{"good"});
    EXPECT_EQ(scene.journal, (Journal{"beginLabelEdit a", "rename to bad: a", "endLabelEdit a",
                                      "beginLabelEdit a", "rename to good: a", "endLabelEdit good"}));
}

TEST(TreeLabelEdit, ANodeThatSortsItselfAnewEndsSelectedAlone)
{
    EditScene scene({"a", "b", "c"});
    TestNode& a = scene.node("a");
    const OVO::Handle<MultiTreeCtrl::Node> kept(&a);
    a.renaming = [&](MultiTreeCtrl& tree, const std::wstring& text) {
        a.name = narrow(text);
        tree.DeleteItem(a.hTreeItem());
        TestPlace root;
        tree.insert(&a, root, 0);
    };
    scene.user.holding(VK_CONTROL).click(scene.label("b"));
    scene.user.key(VK_F2).waitFor("the editor", scene.editing()).type(L"bb").key(VK_RETURN);
    EXPECT_EQ(scene.all(), (Names{"b", "bb", "c"}));
    EXPECT_EQ(scene.selected(), Names{"bb"});
    EXPECT_EQ(scene.caret(), "bb");
}

TEST(TreeLabelEdit, ANodeThatDeletesItselfDoesNoHarm)
{
    EditScene scene({"a", "b"});
    scene.node("a").renaming = [&](MultiTreeCtrl& tree, const std::wstring&) {
        tree.DeleteItem(scene.item("a"));
    };
    scene.user.key(VK_F2).waitFor("the editor", scene.editing()).type(L"new").key(VK_RETURN);
    EXPECT_EQ(scene.all(), Names{"b"});
    EXPECT_FALSE(scene.isEditing());
}

TEST(TreeLabelEdit, ANodeThatCannotBeRenamedOpensNoEditor)
{
    EditScene scene({"a"});
    scene.node("a").renamable = false;
    scene.user.key(VK_F2);
    EXPECT_FALSE(scene.isEditing());
    EXPECT_EQ(scene.journal, Journal{});
}

TEST(TreeLabelEdit, AForbiddenRenameOpensNoEditor)
{
    EditScene scene({"a"});
    scene.tree.disabled = {5598};
    scene.user.key(VK_F2);
    EXPECT_FALSE(scene.isEditing());
    EXPECT_EQ(scene.tree.EditLabel(scene.item("a")), nullptr);
    EXPECT_EQ(scene.journal, Journal{});
}

TEST(TreeLabelEdit, WithoutACaretTheSelectionStays)
{
    Scene scene{{"a", "b"}};
    scene.node("b").renamable = true;
    scene.tree.SelectItem(nullptr);
    scene.tree.SetItemState(scene.item("b"), TVIS_SELECTED, TVIS_SELECTED);
    ASSERT_EQ(scene.caret(), "-");
    EXPECT_TRUE(scene.tree.OnCmdMsg(5598, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(scene.selected(), Names{"b"});
    EXPECT_EQ(scene.tree.GetEditControl(), nullptr);
    EXPECT_EQ(scene.journal, Journal{});
}

TEST(TreeLabelEdit, AnErrorAtTheBeginningRefusesTheEdit)
{
    EditScene scene({"a"});
    scene.node("a").editBegins = [](MultiTreeCtrl&) { throw OvoError(L"locked"); };
    scene.user.key(VK_F2);
    EXPECT_FALSE(scene.isEditing());
    EXPECT_EQ(scene.tree.errors, (Journal{"locked"}));
}

TEST(TreeLabelEdit, AnErrorOfRenamingIsReportedAndTheEditEnds)
{
    EditScene scene({"a"});
    scene.node("a").renaming = [](MultiTreeCtrl&, const std::wstring&) {
        throw std::runtime_error("exists already");
    };
    scene.user.key(VK_F2).waitFor("the editor", scene.editing()).type(L"new").key(VK_RETURN);
    EXPECT_EQ(scene.tree.errors, (Journal{"exists already"}));
    EXPECT_EQ(scene.all(), Names{"a"});
    EXPECT_EQ(scene.journal.back(), "endLabelEdit a");
}

TEST(TreeLabelEdit, AnErrorAtTheEndIsReported)
{
    EditScene scene({"a"});
    scene.node("a").editEnds = [](MultiTreeCtrl&) { throw OvoError(L"late"); };
    scene.user.key(VK_F2).waitFor("the editor", scene.editing()).key(VK_ESCAPE);
    EXPECT_EQ(scene.tree.errors, (Journal{"late"}));
}

TEST(TreeLabelEdit, ASecondClickOnTheCaretsLabelEditsItAfterAWhile)
{
    EditScene scene({"a", "b"});
    scene.user.click(scene.label("a")).waitFor("the editor", scene.editing()).key(VK_ESCAPE);
    EXPECT_EQ(scene.journal, (Journal{"beginLabelEdit a", "endLabelEdit a"}));
}

TEST(TreeLabelEdit, AClickThatMovesTheCaretEditsNothing)
{
    EditScene scene({"a", "b"});
    bool passed = false;
    scene.user.click(scene.label("b"));
    scene.tree.SetTimer(99, ::GetDoubleClickTime() + 200, [](HWND, UINT, UINT_PTR, DWORD) {});
    scene.user.waitFor("the double-click time to pass", [&, since = ::GetTickCount()] {
        return passed = ::GetTickCount() - since > ::GetDoubleClickTime() + 100;
    });
    EXPECT_TRUE(passed);
    EXPECT_FALSE(scene.isEditing());
    EXPECT_EQ(scene.journal, Journal{});
}

TEST(TreeLabelEdit, AClickOnASelectedItemThatIsNotTheCaretEditsNothing)
{
    EditScene scene({"a", "b"});
    scene.user.holding(VK_CONTROL).click(scene.label("b"));
    ASSERT_EQ(scene.caret(), "a");
    scene.user.click(scene.label("b"));
    EXPECT_EQ(scene.selected(), Names{"b"});
    scene.user.waitFor("the double-click time to pass", [since = ::GetTickCount()] {
        return ::GetTickCount() - since > ::GetDoubleClickTime() + 100;
    });
    EXPECT_FALSE(scene.isEditing());
}

TEST(TreeLabelEdit, AnotherPressComesBeforeTheEditor)
{
    EditScene scene({"a", "b"});
    scene.user.click(scene.label("a")).click(scene.label("b"));
    scene.user.waitFor("the double-click time to pass", [since = ::GetTickCount()] {
        return ::GetTickCount() - since > ::GetDoubleClickTime() + 100;
    });
    EXPECT_FALSE(scene.isEditing());
    EXPECT_EQ(scene.selected(), Names{"b"});
}

TEST(TreeLabelEdit, ADoubleClickComesBeforeTheEditor)
{
    EditScene scene({"a"});
    scene.user.doubleClick(scene.label("a"));
    scene.user.waitFor("the double-click time to pass", [since = ::GetTickCount()] {
        return ::GetTickCount() - since > ::GetDoubleClickTime() + 100;
    });
    EXPECT_FALSE(scene.isEditing());
    EXPECT_EQ(scene.journal, (Journal{"gesture 1118", "activate a", "gesture 0"}));
}

TEST(TreeLabelEdit, ARightDoubleClickComesBeforeTheEditor)
{
    EditScene scene({"a"});
    scene.clickNow("a");
    const CPoint at = scene.labelPoint("a");
    scene.tree.SendMessage(WM_RBUTTONDBLCLK, MK_RBUTTON, MAKELPARAM(at.x, at.y));
    scene.letTheTimeRunOut();
    EXPECT_FALSE(scene.isEditing());
    EXPECT_EQ(scene.selected(), Names{"a"});
}

/// As when Enter comes right after the second click, and the node shows a modal dialog.
TEST(TreeLabelEdit, NoEditorOpensWhereNobodyCouldType)
{
    for (const bool disabled : {false, true}) {
        SCOPED_TRACE(disabled);
        EditScene scene({"a", "b"});
        scene.clickNow("a");
        scene.parent().EnableWindow(!disabled);
        scene.letTheTimeRunOut();
        EXPECT_EQ(scene.isEditing(), !disabled);
        EXPECT_EQ(scene.selected(), disabled ? Names{"a"} : Names{});
        scene.parent().EnableWindow(TRUE);
        scene.letTheTimeRunOut();
        EXPECT_EQ(scene.isEditing(), !disabled) << "the click is forgotten";
        scene.tree.EndEditLabelNow(TRUE);
    }
}

TEST(TreeLabelEdit, OkKeepsTheTextOfAnOpenEditor)
{
    EditScene scene({"a"});
    CEdit* const edit = scene.tree.EditLabel(scene.item("a"));
    ASSERT_NE(edit, nullptr);
    edit->SetWindowText(L"kept");
    scene.tree.SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(scene.all(), Names{"kept"});
    EXPECT_EQ(scene.journal.back(), "endLabelEdit kept");
}

TEST(TreeLabelEdit, KeysOfADialogBelongToTheOpenEditor)
{
    EditScene scene({"a"});
    ASSERT_NE(scene.tree.EditLabel(scene.item("a")), nullptr);
    MSG escape{scene.tree.GetEditControl()->m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
    EXPECT_TRUE(scene.tree.PreTranslateMessage(&escape));
    EXPECT_FALSE(scene.isEditing());
    EXPECT_EQ(scene.all(), Names{"a"});
}

TEST(TreeLabelEdit, DeletingTheItemMeanwhileDoesNoHarm)
{
    EditScene scene({"a", "b"});
    ASSERT_NE(scene.tree.EditLabel(scene.item("a")), nullptr);
    scene.tree.DeleteItem(scene.item("a"));
    scene.user.click(scene.label("b"));
    EXPECT_EQ(scene.all(), Names{"b"});
    EXPECT_FALSE(scene.isEditing());
}

TEST(TreeLabelEdit, AForeignExceptionAtTheEndOfADeletedItemsEditLosesNoNode)
{
    for (const bool all : {false, true}) {
        EditScene scene({"a", "b"});
        scene.node("a").editEnds = [](MultiTreeCtrl&) { throw 7; };
        ASSERT_NE(scene.tree.EditLabel(scene.item("a")), nullptr);
        EXPECT_THROW(all ? scene.tree.DeleteAllItems() : scene.tree.DeleteItem(scene.item("a")), int);
        EXPECT_EQ(scene.all(), all ? Names{} : Names{"b"});
        EXPECT_EQ(TestNode::live(), all ? 0 : 1);
        EXPECT_FALSE(scene.isEditing());
    }
}

// Tooltips

TEST(TreeTips, TheTipIsTheNodesCutToTheBuffer)
{
    Scene scene{{"a"}};
    scene.node("a").tip = "a long tip";
    wchar_t buffer[7] = L"??????";
    NMTVGETINFOTIPW request{};
    request.hdr = {scene.tree.m_hWnd, 7, static_cast<UINT>(TVN_GETINFOTIPW)};
    request.pszText = buffer;
    request.cchTextMax = 7;
    request.hItem = scene.item("a");
    scene.parent().SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&request));
    EXPECT_STREQ(buffer, L"a long");

    scene.node("a").tip = "";
    buffer[0] = L'x';
    scene.parent().SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&request));
    EXPECT_STREQ(buffer, L"x long"); // left as it was
}

TEST(TreeTips, AnErrorIsReported)
{
    Scene scene{{"a"}};
    scene.node("a").tipping = []() -> std::wstring { throw OvoError(L"no tip"); };
    wchar_t buffer[20] = L"";
    NMTVGETINFOTIPW request{};
    request.hdr = {scene.tree.m_hWnd, 7, static_cast<UINT>(TVN_GETINFOTIPW)};
    request.pszText = buffer;
    request.cchTextMax = 20;
    request.hItem = scene.item("a");
    scene.parent().SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&request));
    EXPECT_EQ(scene.tree.errors, (Journal{"no tip"}));
}

TEST(TreeTips, ComeToTheFrontWithoutMovingOrTakingTheFocus)
{
    Scene scene{{"a"}};
    RecordingParent tip(CSize(50, 20), L"tip");
    tip.ShowWindow(SW_SHOWNOACTIVATE);
    scene.parent().BringWindowToTop();
    CRect before;
    tip.GetWindowRect(&before);
    const HWND focus = ::GetFocus();
    NMHDR header{tip.m_hWnd, 0, static_cast<UINT>(TTN_SHOW)};
    EXPECT_EQ(scene.tree.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header)), 0);
    CRect after;
    tip.GetWindowRect(&after);
    EXPECT_EQ(after, before);
    EXPECT_EQ(::GetFocus(), focus);
    HWND above = scene.parent().m_hWnd;
    while (above && above != tip.m_hWnd)
        above = ::GetWindow(above, GW_HWNDPREV);
    EXPECT_EQ(above, tip.m_hWnd) << "the tip is above the window";
}
