// What nodes raise: reported where the user or the tree view caused the call, passed on where nobody knows
// it. Each operation is tried with an error of the library, one of the standard library, and one of somebody
// else.
#include "TreeScene.h"

#include <ovocor/OvoError.h>

#include <gtest/gtest.h>

using namespace ovotest;

namespace
{

constexpr UINT kPaint = 4001;

struct Operation
{
    const char* name;
    std::function<void(TestNode&, std::function<void()>)> arm; ///< makes the operation raise
    std::function<void(Scene&)> act;                           ///< causes the call
};

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

void endEdit(Scene& scene, const wchar_t* typed)
{
    CEdit* const edit = scene.tree.EditLabel(scene.item("a"));
    if (!edit)
        return;
    edit->SetWindowText(typed);
    scene.tree.SendMessage(TVM_ENDEDITLABELNOW, FALSE);
}

LRESULT press(Scene& scene, UINT key)
{
    return scene.tree.SendMessage(WM_KEYDOWN, key, 1);
}

const Operation kOperations[] = {
    {"expand",
     [](TestNode& node, auto raise) {
         node.expanding = [=](MultiTreeCtrl&) {
             raise();
             return true;
         };
     },
     [](Scene& scene) { scene.tree.Expand(scene.item("a"), TVE_EXPAND); }},
    {"collapse", [](TestNode& node, auto raise) { node.collapsing = [=](MultiTreeCtrl&) { raise(); }; },
     [](Scene& scene) {
         scene.tree.Expand(scene.item("a"), TVE_EXPAND);
         scene.tree.Expand(scene.item("a"), TVE_COLLAPSE);
     }},
    {"activate", [](TestNode& node, auto raise) { node.activating = [=](MultiTreeCtrl&) { raise(); }; },
     [](Scene& scene) { press(scene, VK_RETURN); }},
    {"refresh",
     [](TestNode& node, auto raise) {
         node.refreshing = [=] {
             raise();
             return true;
         };
     },
     [](Scene& scene) { scene.tree.SendMessage(WM_COMMAND, 5234); }},
    {"doCommand",
     [](TestNode& node, auto raise) {
         node.offer(kPaint);
         node.commanding = [=](MultiTreeCtrl&, unsigned) { raise(); };
     },
     [](Scene& scene) { scene.tree.SendMessage(WM_COMMAND, kPaint); }},
    {"infotip",
     [](TestNode& node, auto raise) {
         node.tipping = [=]() -> std::wstring {
             raise();
             return {};
         };
     },
     [](Scene& scene) {
         wchar_t buffer[20] = L"";
         NMTVGETINFOTIPW request{};
         request.hdr = {scene.tree.m_hWnd, 7, static_cast<UINT>(TVN_GETINFOTIPW)};
         request.pszText = buffer;
         request.cchTextMax = 20;
         request.hItem = scene.item("a");
         scene.parent().SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&request));
     }},
    {"beginLabelEdit", [](TestNode& node, auto raise) { node.editBegins = [=](MultiTreeCtrl&) { raise(); }; },
     [](Scene& scene) { scene.tree.EditLabel(scene.item("a")); }},
    {"renameText",
     [](TestNode& node, auto raise) {
         node.offeringText = [=]() -> std::wstring {
             raise();
             return {};
         };
     },
     [](Scene& scene) { scene.tree.EditLabel(scene.item("a")); }},
    {"rename",
     [](TestNode& node, auto raise) {
         node.renaming = [=](MultiTreeCtrl&, const std::wstring&) { raise(); };
     },
     [](Scene& scene) { endEdit(scene, L"new"); }},
    {"endLabelEdit", [](TestNode& node, auto raise) { node.editEnds = [=](MultiTreeCtrl&) { raise(); }; },
     [](Scene& scene) { endEdit(scene, L"a"); }},
};

class TreeErrors : public ::testing::TestWithParam<Operation>
{
protected:
    TreeErrors()
    {
        TestNode& a = scene.node("a");
        a.children = 1;
        a.childNames = {"x", "y"};
        a.renamable = true;
        scene.tree.updateUI(a);
        scene.tree.SelectItem(scene.item("a"));
        scene.tree.SetFocus();
    }

    void arm(std::function<void()> raise)
    {
        GetParam().arm(scene.node("a"), [this, raise] {
            if (armed)
                raise();
        });
    }

    /// What a user could do before can still be done.
    void expectSound()
    {
        armed = false;
        if (scene.tree.GetEditControl())
            scene.tree.SendMessage(TVM_ENDEDITLABELNOW, TRUE);
        scene.user.waitFor("the queue to be empty", [] { return true; });
        EXPECT_EQ(scene.tree.GetEditControl(), nullptr);
        scene.tree.SelectItem(scene.item("b"));
        EXPECT_EQ(scene.selected(), Names{"b"});
        scene.node("a").expanding = nullptr;
        scene.tree.Expand(scene.item("a"), TVE_COLLAPSE);
        scene.node("a").state = 0;
        scene.tree.SetItemState(scene.item("a"), 0, TVIS_EXPANDED | TVIS_EXPANDEDONCE);
        scene.tree.Expand(scene.item("a"), TVE_EXPAND);
        EXPECT_EQ(scene.all(), (Names{"a", "x", "y", "b"}));
        EXPECT_EQ(TestNode::live(), 4);
    }

    Scene scene{{"a", "b"}};
    bool armed = true;
};

} // namespace

TEST_P(TreeErrors, OfTheLibraryAreReported)
{
    arm([] { throw OvoError(L"ours"); });
    GetParam().act(scene);
    EXPECT_EQ(scene.tree.errors, (Journal{"ours"}));
    expectSound();
}

TEST_P(TreeErrors, OfTheStandardLibraryAreReported)
{
    arm([] { throw std::runtime_error("standard"); });
    GetParam().act(scene);
    EXPECT_EQ(scene.tree.errors, (Journal{"standard"}));
    expectSound();
}

TEST_P(TreeErrors, OfSomebodyElsePassOn)
{
    arm([] { throw 42; });
    EXPECT_THROW(GetParam().act(scene), int);
    EXPECT_EQ(scene.tree.errors, Journal{});
    expectSound();
}

INSTANTIATE_TEST_SUITE_P(Operations, TreeErrors, ::testing::ValuesIn(kOperations),
                         [](const auto& info) { return info.param.name; });

// Where the host's own code caused the call, it gets the error itself.

TEST(TreeErrorsOfCalls, GoToTheHostThatCalls)
{
    Scene scene{{"a"}};
    scene.node("a").texting = []() -> std::wstring { throw OvoError(L"no text"); };
    EXPECT_THROW(scene.tree.updateUI(scene.item("a")), OvoError);
    EXPECT_EQ(scene.tree.errors, Journal{});
}

TEST(TreeErrorsOfCalls, WhileAMenuIsShownCountAsNo)
{
    Scene scene{{"a"}};
    scene.node("a").askingErase = []() -> bool { throw std::runtime_error("cannot say"); };
    scene.tree.SelectItem(scene.item("a"));
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 5146, L"Delete");
    scene.tree.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    EXPECT_TRUE(menu.GetMenuState(5146, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_EQ(scene.tree.errors, Journal{});
}
