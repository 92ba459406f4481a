// Commands: the tree's own, those of the nodes, and the way on to the parent; menus.
#include "TreeScene.h"

#include <support/Perishing.h>

#include <testkit/ImportPatch.h>
#include <testkit/TemporaryProfile.h>

#include <ovocor/OvoError.h>
#include <ovoui/tree/PlainText.h>
#include <ovouires/resource.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr UINT kPaint = 4001;
constexpr UINT kPrint = 4002;

/// A parent that knows one command.
class CommandParent : public RecordingParent
{
public:
    using RecordingParent::RecordingParent;
    int printed = 0;
    std::function<BOOL(UINT, int, void*, AFX_CMDHANDLERINFO*)> routing; ///< where commands go instead

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
    {
        return routing ? routing(id, code, extra, info) : RecordingParent::OnCmdMsg(id, code, extra, info);
    }

protected:
    afx_msg void OnPrint() { ++printed; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CommandParent, RecordingParent)
    ON_COMMAND(kPrint, &CommandParent::OnPrint)
END_MESSAGE_MAP()

class CommandScene : public Scene
{
public:
    explicit CommandScene(const Names& names)
        : Scene(std::make_unique<CommandParent>(CSize(420, 380), L"Tree"), names, kStyle)
    {
    }

    int printed() { return host().printed; }
    CommandParent& host() { return static_cast<CommandParent&>(parent()); }
    void command(UINT id) { tree.SendMessage(WM_COMMAND, id); }
    void select(const Names& names)
    {
        for (const std::string& name : names)
            tree.SetItemState(item(name), TVIS_SELECTED, TVIS_SELECTED);
    }
};

/// A menu with these commands, as it stands after the tree was asked.
class AskedMenu
{
public:
    AskedMenu(CWnd& tree, std::initializer_list<UINT> commands)
    {
        m_menu.CreatePopupMenu();
        for (const UINT id : commands)
            m_menu.AppendMenu(id ? MF_STRING : MF_SEPARATOR, id, L"text");
        askAgain(tree);
    }

    /// As when the same menu is opened once more.
    void askAgain(CWnd& tree)
    {
        tree.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(m_menu.m_hMenu), 0);
    }

    bool isGrey(UINT id) const { return (m_menu.GetMenuState(id, MF_BYCOMMAND) & MF_GRAYED) != 0; }
    bool isChecked(UINT id) const { return (m_menu.GetMenuState(id, MF_BYCOMMAND) & MF_CHECKED) != 0; }

private:
    CMenu m_menu;
};

/// A button outside of menus that shows how a command stands.
class AskedButton : public CCmdUI
{
public:
    AskedButton(CCmdTarget& target, UINT id)
    {
        m_nID = id;
        DoUpdate(&target, TRUE);
    }

    void Enable(BOOL on) override
    {
        m_bEnableChanged = TRUE;
        isGrey = !on;
    }

    bool isGrey = false;
};

int g_menus = 0; ///< that would have been shown

BOOL WINAPI countMenu(HMENU, UINT, int, int, int, HWND, const RECT*)
{
    ++g_menus;
    return FALSE;
}

/// Answers the question before a deletion.
class Answer
{
public:
    Answer(Robot& user, WORD key)
        : m_performance(user.waitFor("the question", [] { return shownDialog() != nullptr; })
                            .then([this] { read(); })
                            .key(key)
                            .start())
    {
    }

    std::wstring text;
    std::wstring caption;
    std::wstring icon; ///< its name
    CRect yes;         ///< where the button is, on the screen

private:
    void read()
    {
        const HWND box = shownDialog();
        wchar_t buffer[256]{};
        ::GetWindowTextW(box, buffer, 256);
        caption = buffer;
        ::GetDlgItemTextW(box, IDC_MESSAGE_TEXT, buffer, 256);
        text = buffer;
        ::GetWindowTextW(::FindWindowExW(box, nullptr, L"STATIC", nullptr), buffer, 256);
        icon = buffer;
        ::GetWindowRect(::GetDlgItem(box, IDYES), &yes);
    }

    Performance m_performance;
};

} // namespace

// Routing

TEST(TreeCommands, GoToTheSelectedNodesThatOfferThem)
{
    CommandScene scene({"a", "b", "c", "d"});
    scene.node("a").offer(kPaint);
    scene.node("b").offer(kPaint, false);
    scene.node("c").offer(kPaint);
    scene.node("d").offer(kPaint); // not selected
    scene.select({"a", "b", "c"});
    scene.command(kPaint);
    EXPECT_EQ(scene.journal, (Journal{"gesture 4001", "doCommand 4001 a", "doCommand 4001 c", "gesture 0"}));
}

TEST(TreeCommands, ThatNoSelectedNodeOffersGoToTheParent)
{
    CommandScene scene({"a", "b"});
    scene.node("b").offer(kPrint);
    scene.select({"a"});
    scene.command(kPrint);
    EXPECT_EQ(scene.journal, Journal{});
    EXPECT_EQ(scene.printed(), 1);
    scene.select({"b"});
    scene.command(kPrint);
    EXPECT_EQ(scene.journal, (Journal{"gesture 4002", "doCommand 4002 b", "gesture 0"}));
    EXPECT_EQ(scene.printed(), 1);
}

TEST(TreeCommands, GoOnToTheParentInTheRoutingItself)
{
    CommandScene scene({"a"});
    EXPECT_TRUE(scene.tree.OnCmdMsg(kPrint, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(scene.printed(), 1);
    EXPECT_FALSE(scene.tree.OnCmdMsg(4003, CN_COMMAND, nullptr, nullptr))
        << "no node and no handler knows it";
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(scene.tree.OnCmdMsg(kPrint, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &scene.parent());
    EXPECT_EQ(scene.printed(), 1) << "asked only";
}

TEST(TreeCommands, AParentThatAsksTheTreeIsAskedOnce)
{
    CommandScene scene({"a"});
    int asked = 0;
    scene.host().routing = [&](UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) {
        ++asked;
        return scene.tree.OnCmdMsg(id, code, extra, info);
    };
    EXPECT_FALSE(scene.tree.OnCmdMsg(4003, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(asked, 1);
    AFX_CMDHANDLERINFO info{};
    EXPECT_FALSE(scene.tree.OnCmdMsg(4003, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(asked, 2) << "the next question is another one";
}

TEST(TreeCommands, ThatAreForbiddenDoNothing)
{
    CommandScene scene({"a"});
    scene.node("a").offer(kPrint);
    scene.select({"a"});
    scene.tree.disabled = {kPrint};
    scene.command(kPrint);
    EXPECT_TRUE(scene.tree.OnCmdMsg(kPrint, CN_COMMAND, nullptr, nullptr)) << "nobody else is to do it";
    EXPECT_EQ(scene.journal, Journal{});
    EXPECT_EQ(scene.printed(), 0);
}

TEST(TreeCommands, AButtonShowsWhatTheSelectedNodesOffer)
{
    CommandScene scene({"a", "b"});
    scene.node("a").offer(kPaint);
    int asked = 0;
    scene.host().routing = [&](UINT, int code, void* extra, AFX_CMDHANDLERINFO*) -> BOOL {
        if (static_cast<UINT>(code) != CN_UPDATE_COMMAND_UI)
            return FALSE;
        ++asked;
        static_cast<CCmdUI*>(extra)->Enable(FALSE);
        return TRUE;
    };
    scene.tree.SelectItem(scene.item("a"));
    EXPECT_FALSE(AskedButton(scene.tree, kPaint).isGrey);
    EXPECT_EQ(asked, 0) << "the command is the node's";
    scene.tree.disabled = {kPaint};
    EXPECT_TRUE(AskedButton(scene.tree, kPaint).isGrey);
    EXPECT_EQ(asked, 0) << "the host has forbidden it";
    scene.tree.disabled = {};
    scene.tree.SelectItem(scene.item("b"));
    EXPECT_TRUE(AskedButton(scene.tree, kPaint).isGrey);
    EXPECT_EQ(asked, 1);
}

TEST(TreeCommands, WhoDoesACommandThatANodeOffersIsTheTree)
{
    CommandScene scene({"a", "b"});
    scene.node("a").offer(kPrint); // which the parent knows too
    const auto target = [&]() -> CCmdTarget* {
        AFX_CMDHANDLERINFO info{};
        return scene.tree.OnCmdMsg(kPrint, CN_COMMAND, nullptr, &info) ? info.pTarget : nullptr;
    };
    scene.tree.SelectItem(scene.item("a"));
    EXPECT_EQ(target(), &scene.tree);
    scene.tree.SelectItem(scene.item("b"));
    EXPECT_EQ(target(), &scene.parent());
    EXPECT_EQ(scene.journal, Journal{});
}

TEST(TreeCommands, APasteThatNoNodeTakesGoesToTheParent)
{
    CommandScene scene({"a"});
    scene.tree.SelectItem(scene.item("a"));
    int pasted = 0;
    scene.host().routing = [&](UINT id, int code, void*, AFX_CMDHANDLERINFO* info) -> BOOL {
        if (id != ID_EDIT_PASTE || code != CN_COMMAND)
            return FALSE;
        pasted += info ? 0 : 1;
        return TRUE;
    };
    EXPECT_FALSE(AskedMenu(scene.tree, {ID_EDIT_PASTE}).isGrey(ID_EDIT_PASTE));
    EXPECT_EQ(pasted, 0) << "asked only";
    scene.command(ID_EDIT_PASTE);
    EXPECT_EQ(pasted, 1);
    scene.node("a").offer(ID_EDIT_PASTE);
    scene.command(ID_EDIT_PASTE);
    EXPECT_EQ(pasted, 1) << "the node's";
    EXPECT_EQ(scene.journal, (Journal{"gesture 57637", "doCommand 57637 a", "gesture 0"}));
}

TEST(TreeCommands, APasteThatANodeAnswersWithAnErrorIsOverWhenThatIsReported)
{
    CommandScene scene({"a"});
    scene.tree.SelectItem(scene.item("a"));
    int pasted = 0;
    scene.host().routing = [&](UINT id, int code, void*, AFX_CMDHANDLERINFO* info) -> BOOL {
        if (id != ID_EDIT_PASTE || code != CN_COMMAND)
            return FALSE;
        pasted += info ? 0 : 1;
        return TRUE;
    };
    copyPlaintext(L"pasted");
    scene.command(ID_EDIT_PASTE);
    EXPECT_EQ(pasted, 1) << "the node takes nothing, so it is the parent's";
    scene.node("a").draggingInto = [](COleDataObject&, DWORD&, bool&, int) -> DWORD {
        throw OvoError(L"locked");
    };
    scene.command(ID_EDIT_PASTE);
    EXPECT_EQ(scene.tree.errors, Journal{"locked"});
    EXPECT_EQ(pasted, 1) << "not pasted elsewhere";
    ::OleSetClipboard(nullptr);
}

TEST(TreeCommands, ANodeThatDeletesTheOthersDoesNoHarm)
{
    CommandScene scene({"a", "b"});
    scene.node("a").offer(kPaint);
    scene.node("b").offer(kPaint);
    scene.node("a").commanding = [](MultiTreeCtrl& tree, unsigned) { tree.DeleteAllItems(); };
    scene.select({"a", "b"});
    scene.command(kPaint);
    EXPECT_EQ(scene.tree.GetCount(), 0u);
    EXPECT_EQ(scene.journal, (Journal{"gesture 4001", "doCommand 4001 a", "doCommand 4001 b", "gesture 0"}));
}

TEST(TreeCommands, AnErrorOfANodeIsReportedAndTheGestureEnds)
{
    CommandScene scene({"a"});
    scene.node("a").offer(kPaint);
    scene.node("a").commanding = [](MultiTreeCtrl&, unsigned) { throw OvoError(L"no paint"); };
    scene.select({"a"});
    scene.command(kPaint);
    EXPECT_EQ(scene.tree.errors, (Journal{"no paint"}));
    EXPECT_EQ(scene.journal.back(), "gesture 0");
}

TEST(TreeCommands, ASubscriberThatDestroysTheTreeDoesNoHarm)
{
    CommandScene scene({"a"});
    scene.node("a").offer(kPaint);
    scene.select({"a"});
    const auto subscription = scene.tree.gestureEV().subscribe([&](const int& code) {
        if (code == static_cast<int>(kPaint))
            scene.tree.DestroyWindow();
    });
    scene.command(kPaint);
    EXPECT_EQ(scene.tree.m_hWnd, nullptr);
    EXPECT_EQ(scene.journal.back(), "gesture 0");
}

TEST(TreeCommands, KeysOfTheAcceleratorTableReachTheNodes)
{
    CommandScene scene({"a"});
    for (const UINT id : {ID_EDIT_CUT, ID_EDIT_COPY, ID_EDIT_PASTE})
        scene.node("a").offer(id);
    scene.user.click(scene.label("a"));
    scene.forget();
    const auto press = [&](WORD modifier, WORD key) {
        scene.journal.clear();
        scene.user.holding(modifier).key(key);
        return scene.journal.size() == 3 ? scene.journal[1] : std::string("nothing");
    };
    EXPECT_EQ(press(VK_CONTROL, 'X'), "doCommand 57635 a");
    EXPECT_EQ(press(VK_CONTROL, 'C'), "doCommand 57634 a");
    EXPECT_EQ(press(VK_CONTROL, 'V'), "doCommand 57637 a");
    EXPECT_EQ(press(VK_SHIFT, VK_DELETE), "doCommand 57635 a");
    EXPECT_EQ(press(VK_CONTROL, VK_INSERT), "doCommand 57634 a");
    EXPECT_EQ(press(VK_SHIFT, VK_INSERT), "doCommand 57637 a");
}

// Menus

TEST(TreeMenus, ShowWhatTheSelectedNodesOffer)
{
    CommandScene scene({"a", "b"});
    scene.node("a").offer(kPaint);
    scene.node("a").updating = [](CCmdUI* ui, bool) { ui->SetCheck(1); };
    scene.select({"a"});
    const AskedMenu menu(scene.tree, {kPaint, 0, kPrint, 4003});
    EXPECT_FALSE(menu.isGrey(kPaint));
    EXPECT_TRUE(menu.isChecked(kPaint));
    EXPECT_FALSE(menu.isGrey(kPrint)) << "the parent does it";
    EXPECT_TRUE(menu.isGrey(4003)) << "it has no handler";
    EXPECT_EQ(scene.journal, (Journal{"doUpdateCmd 4001 single a"}));
}

TEST(TreeMenus, TellTheNodesWhetherTheyAreSeveral)
{
    CommandScene scene({"a", "b"});
    scene.node("a").offer(kPaint);
    scene.node("b").offer(kPaint);
    scene.select({"a", "b"});
    const AskedMenu menu(scene.tree, {kPaint});
    EXPECT_EQ(scene.journal, (Journal{"doUpdateCmd 4001 several a", "doUpdateCmd 4001 several b"}));
}

TEST(TreeMenus, AskFromTheLastItemToTheFirst)
{
    CommandScene scene({"a"});
    scene.node("a").offer(kPaint);
    scene.node("a").offer(kPrint);
    scene.select({"a"});
    const AskedMenu menu(scene.tree, {kPaint, 0, kPrint});
    EXPECT_EQ(scene.journal, (Journal{"doUpdateCmd 4002 single a", "doUpdateCmd 4001 single a"}));
}

TEST(TreeMenus, GreyWhatIsForbiddenEvenIfANodeOffersIt)
{
    CommandScene scene({"a"});
    scene.node("a").offer(kPaint);
    scene.select({"a"});
    scene.tree.disabled = {kPaint, kPrint};
    const AskedMenu menu(scene.tree, {kPaint, kPrint});
    EXPECT_TRUE(menu.isGrey(kPaint));
    EXPECT_TRUE(menu.isGrey(kPrint));
}

TEST(TreeMenus, GreyEveryLineOfAForbiddenCommand)
{
    CommandScene scene({"a"});
    scene.node("a").offer(kPaint);
    scene.select({"a"});
    scene.tree.disabled = {kPaint};
    CMenu menu;
    menu.CreatePopupMenu();
    for (const wchar_t* const text : {L"first", L"second"})
        menu.AppendMenu(MF_STRING, kPaint, text);
    scene.tree.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    for (const UINT line : {0u, 1u})
        EXPECT_TRUE(menu.GetMenuState(line, MF_BYPOSITION) & MF_GRAYED) << line;
}

TEST(TreeMenus, GreyDeleteUnlessEverySelectedNodeCanBeErased)
{
    CommandScene scene({"a", "b"});
    scene.node("a").erasable = true;
    EXPECT_TRUE(AskedMenu(scene.tree, {5146}).isGrey(5146)) << "nothing is selected";
    scene.select({"a"});
    EXPECT_FALSE(AskedMenu(scene.tree, {5146}).isGrey(5146));
    scene.select({"b"});
    EXPECT_TRUE(AskedMenu(scene.tree, {5146}).isGrey(5146));
}

TEST(TreeMenus, GreyRenameUnlessTheCaretCanBeRenamed)
{
    CommandScene scene({"a", "b"});
    scene.node("a").renamable = true;
    const auto isGrey = [&] { return AskedMenu(scene.tree, {5598}).isGrey(5598); };
    scene.tree.SelectItem(scene.item("a"));
    EXPECT_FALSE(isGrey());
    scene.tree.SelectItem(scene.item("b"));
    EXPECT_TRUE(isGrey());
    scene.tree.SelectItem(nullptr);
    EXPECT_TRUE(isGrey()) << "there is no caret";
    scene.tree.SelectItem(scene.item("a"));
    scene.tree.ModifyStyle(TVS_EDITLABELS, 0);
    EXPECT_TRUE(isGrey()) << "labels cannot be edited";
}

/// A menu that the host keeps.
TEST(TreeMenus, ACommandThatWasGreyIsEnabledWhenANodeOffersIt)
{
    CommandScene scene({"a", "b"});
    scene.node("a").offer(kPaint);
    AskedMenu menu(scene.tree, {kPaint});
    EXPECT_TRUE(menu.isGrey(kPaint)) << "nothing is selected";
    scene.tree.SelectItem(scene.item("a"));
    menu.askAgain(scene.tree);
    EXPECT_FALSE(menu.isGrey(kPaint));
    scene.tree.disabled = {kPaint};
    menu.askAgain(scene.tree);
    EXPECT_TRUE(menu.isGrey(kPaint));
    scene.tree.disabled = {};
    menu.askAgain(scene.tree);
    EXPECT_FALSE(menu.isGrey(kPaint));
    scene.node("a").updating = [](CCmdUI* ui, bool) { ui->Enable(FALSE); };
    menu.askAgain(scene.tree);
    EXPECT_TRUE(menu.isGrey(kPaint)) << "the node says so";
}

/// It stands for all in there, whatever becomes of the first command.
TEST(TreeMenus, AnEntryThatOpensAnotherMenuCanBeOpened)
{
    CommandScene scene({"a"});
    scene.node("a").offer(kPaint);
    scene.tree.SelectItem(scene.item("a"));
    scene.tree.disabled = {kPaint};
    std::vector<UINT> asked; // about such an entry
    scene.host().routing = [&](UINT id, int code, void* extra, AFX_CMDHANDLERINFO*) -> BOOL {
        if (static_cast<UINT>(code) != CN_UPDATE_COMMAND_UI || !static_cast<CCmdUI*>(extra)->m_pSubMenu)
            return FALSE;
        asked.push_back(id);
        static_cast<CCmdUI*>(extra)->Enable(FALSE); // which means nothing to an entry
        return TRUE;
    };
    CMenu menu;
    menu.CreatePopupMenu();
    for (const UINT first : {kPaint, kPrint}) {
        CMenu inner;
        inner.CreatePopupMenu();
        inner.AppendMenu(MF_STRING, first, L"first");
        inner.AppendMenu(MF_STRING, 4003, L"second");
        menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(inner.Detach()), L"more");
    }
    scene.tree.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    for (const UINT entry : {0u, 1u})
        EXPECT_FALSE(menu.GetMenuState(entry, MF_BYPOSITION) & MF_GRAYED) << entry;
    EXPECT_EQ(scene.journal, Journal{}) << "the node is asked about its command when that menu opens";
    EXPECT_EQ(asked, std::vector<UINT>{kPrint});
}

TEST(TreeMenus, TheContextMenuOffersTheEditCommands)
{
    CommandScene scene({"a"});
    scene.node("a").erasable = true;
    scene.node("a").renamable = true;
    scene.node("a").offer(ID_EDIT_COPY);
    Names lines;
    CRect place;
    CPoint pointer;
    const auto read = [&] {
        ::GetCursorPos(&pointer);
        ::GetWindowRect(shownMenu(), &place);
        const auto menu = reinterpret_cast<HMENU>(::SendMessageW(shownMenu(), MN_GETHMENU, 0, 0));
        for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
            const UINT id = ::GetMenuItemID(menu, i);
            const bool grey = (::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION) & MF_GRAYED) != 0;
            wchar_t text[64]{};
            ::GetMenuStringW(menu, static_cast<UINT>(i), text, 64, MF_BYPOSITION);
            lines.push_back(id ? std::to_string(id) + " " + narrow(text) + (grey ? " grey" : "") : "-");
        }
    };
    scene.user.rightClick(scene.label("a"))
        .waitFor("the menu", [] { return shownMenu() != nullptr; })
        .then(read)
        .key(VK_ESCAPE);
    EXPECT_EQ(lines, (Names{"57635 Cu&t\tCtrl+X grey", "57634 &Copy\tCtrl+C", "57637 &Paste\tCtrl+V grey",
                            "-", "5146 &Delete\tDel", "5598 Rena&me\tF2", "-", "57642 Select &All\tCtrl+A"}));
    EXPECT_NEAR(place.left, pointer.x, 4);
    EXPECT_NEAR(place.top, pointer.y, 4);
}

TEST(TreeMenus, TheContextMenuReadsFromTheRightWhereTheTreeDoes)
{
    for (const bool mirrored : {false, true}) {
        CommandScene scene({"a"});
        scene.tree.ModifyStyleEx(0, mirrored ? WS_EX_LAYOUTRTL : 0, SWP_FRAMECHANGED);
        DWORD style = 0;
        scene.user.rightClick(scene.label("a"))
            .waitFor("the menu", [] { return shownMenu() != nullptr; })
            .then([&] { style = static_cast<DWORD>(::GetWindowLongPtrW(shownMenu(), GWL_EXSTYLE)); })
            .key(VK_ESCAPE);
        EXPECT_EQ((style & WS_EX_LAYOUTRTL) != 0, mirrored);
    }
}

TEST(TreeMenus, TheContextMenuOpensByKeyboardAtTheCaretAndRunsTheCommand)
{
    CommandScene scene({"a", "b"});
    scene.node("b").offer(ID_EDIT_COPY);
    scene.user.click(scene.label("b"));
    scene.forget();
    CRect menu;
    scene.user.key(VK_APPS)
        .waitFor("the menu", [] { return shownMenu() != nullptr; })
        .then([&] { ::GetWindowRect(shownMenu(), &menu); })
        .type(L"c");
    EXPECT_EQ(scene.journal.back(), "gesture 0");
    EXPECT_NE(std::find(scene.journal.begin(), scene.journal.end(), "doCommand 57634 b"),
              scene.journal.end());
    CRect label;
    scene.tree.GetItemRect(scene.item("b"), &label, TRUE);
    scene.tree.ClientToScreen(&label);
    EXPECT_NEAR(menu.left, label.left, 8);
    EXPECT_NEAR(menu.top, label.bottom, 8);
}

TEST(TreeMenus, TheMenuOfAScrollBarIsTheSystems)
{
    class PassingTree : public TestTree
    {
    public:
        int passedOn = 0;

    protected:
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_CONTEXTMENU)
                return TestTree::DefWindowProc(message, wParam, lParam);
            ++passedOn;
            return 0;
        }
    };
    RecordingParent parent(CSize(200, 200), L"Tree");
    PassingTree tree;
    tree.Create(Scene::kStyle, CRect(0, 0, 150, 120), &parent, 1);
    for (const std::string& name : numbered(60))
        (new TestNode(name))->insert(tree, TVI_ROOT, TVI_LAST);
    present(parent);
    ASSERT_TRUE(tree.GetStyle() & WS_VSCROLL);
    CRect window;
    tree.GetWindowRect(&window);
    const ImportPatch counting(L"ovomfc.dll", "TrackPopupMenu", reinterpret_cast<void*>(&countMenu));
    g_menus = 0;
    const auto ask = [&](int x, int y) {
        tree.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(tree.m_hWnd), MAKELPARAM(x, y));
    };
    ask(window.right - 3, window.CenterPoint().y);
    EXPECT_EQ(tree.passedOn, 1);
    EXPECT_EQ(g_menus, 0);
    ask(window.left + 20, window.top + 20);
    EXPECT_EQ(tree.passedOn, 1);
    EXPECT_EQ(g_menus, 1);
}

/// A tree whose host does a deed instead of bringing an item into view.
class BusyTree : public TestTree
{
public:
    std::function<void()> deed;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != TVM_ENSUREVISIBLE || !deed)
            return TestTree::WindowProc(message, wParam, lParam);
        const std::function<void()> own = deed;
        own();
        return FALSE;
    }
};

/// A tree whose caret "c" is in "a", which refuses to open.
class HiddenCaret
{
public:
    HiddenCaret()
    {
        tree->Create(Scene::kStyle, CRect(0, 0, 200, 200), &parent, 1);
        (new TestNode("top"))->insert(*tree, TVI_ROOT, TVI_LAST);
        (new TestNode("a"))->insert(*tree, TVI_ROOT, TVI_LAST);
        around = tree->GetNextSiblingItem(tree->GetRootItem());
        (new TestNode("c"))->insert(*tree, around, TVI_LAST);
        tree->SelectItem(tree->GetChildItem(around));
    }

    void askForTheMenu()
    {
        const HWND wnd = tree->m_hWnd;
        ::SendMessageW(wnd, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(wnd), MAKELPARAM(-1, -1));
    }
    /// Where the corner of the menu appears, on the screen.
    CPoint cornerOfTheMenu()
    {
        present(parent);
        CRect menu;
        auto closing = Robot()
                           .waitFor("the menu", [] { return shownMenu() != nullptr; })
                           .then([&] { ::GetWindowRect(shownMenu(), &menu); })
                           .key(VK_ESCAPE)
                           .start();
        askForTheMenu();
        closing.finish();
        return menu.TopLeft();
    }

    RecordingParent parent{CSize(200, 200), L"Tree"};
    std::unique_ptr<BusyTree> tree = std::make_unique<Perishing<BusyTree>>();
    HTREEITEM around = nullptr;
};

TEST(TreeMenus, AHostThatDestroysTheTreeWhenTheCaretIsToBeShownDoesNoHarm)
{
    for (const bool wholeObject : {false, true}) {
        SCOPED_TRACE(wholeObject);
        HiddenCaret scene;
        scene.tree->deed = [&] {
            if (wholeObject)
                scene.tree.reset();
            else
                scene.tree->DestroyWindow();
        };
        scene.askForTheMenu();
        EXPECT_EQ(TestNode::live(), 0);
    }
}

TEST(TreeMenus, TheContextMenuOpensAtTheClosedItemThatHidesTheCaret)
{
    HiddenCaret scene;
    const CPoint menu = scene.cornerOfTheMenu();
    CRect label;
    scene.tree->GetItemRect(scene.around, &label, TRUE);
    scene.tree->ClientToScreen(&label);
    EXPECT_NEAR(menu.x, label.left, 8);
    EXPECT_NEAR(menu.y, label.bottom, 8);
}

TEST(TreeMenus, TheContextMenuOpensInTheCornerWhereTheCaretGoesWhenItIsToBeShown)
{
    HiddenCaret scene;
    scene.tree->deed = [&] { scene.tree->DeleteAllItems(); };
    const CPoint menu = scene.cornerOfTheMenu();
    CPoint corner(0, 0);
    scene.tree->ClientToScreen(&corner);
    EXPECT_NEAR(menu.x, corner.x, 8);
    EXPECT_NEAR(menu.y, corner.y, 8);
}

// Deleting

TEST(TreeErasing, DeleteAsksAndErasesTheSelectedNodesThatAgree)
{
    CommandScene scene({"a", "b", "c", "d"});
    for (const char* name : {"a", "b", "c"})
        scene.node(name).erasable = true;
    scene.node("b").erasing = [](MultiTreeCtrl&) { return false; };
    scene.user.click(scene.label("a")).holding(VK_SHIFT).click(scene.label("d"));
    scene.forget();
    {
        const Answer yes(scene.user, VK_RETURN);
        scene.tree.SendMessage(WM_KEYDOWN, VK_DELETE);
        EXPECT_EQ(yes.caption, L"Confirm Delete");
        EXPECT_EQ(yes.text, L"Are you sure you want to delete these 3 items?");
    }
    EXPECT_EQ(scene.journal, (Journal{"gesture 5146", "dragStarting 0 a", "dragStarting 0 b",
                                      "dragStarting 0 c", "erase a", "erase b", "erase c", "dragEnding 0 a",
                                      "dragEnding 0 b", "dragEnding 0 c", "gesture 0"}));
    EXPECT_EQ(scene.all(), (Names{"b", "d"}));
    ASSERT_EQ(scene.changes().size(), 1u) << "the parent hears of it once";
    EXPECT_EQ(scene.changes()[0].newItem, "d");
}

TEST(TreeErasing, TheQuestionNamesASingleNode)
{
    CommandScene scene({"a", "plan"});
    scene.node("plan").erasable = true;
    scene.user.click(scene.label("plan"));
    scene.forget();
    const Answer no(scene.user, VK_ESCAPE);
    // Escape is no answer to Yes or No: the box is left by its No.
    auto answering = scene.user.waitFor("the box to ignore Escape", [] { return shownDialog() != nullptr; })
                         .type(L"n")
                         .start();
    scene.tree.eraseSelectedNodes();
    EXPECT_EQ(no.text, L"Are you sure you want to delete \u201Cplan\u201D?");
    EXPECT_EQ(scene.all(), (Names{"a", "plan"}));
    EXPECT_EQ(scene.journal, Journal{}) << "the node hears of nothing before the answer";
    EXPECT_EQ(scene.changes(), Changes{});
}

TEST(TreeErasing, TheQuestionOpensWhereTheUserHasPutMessages)
{
    const TemporaryProfile profile;
    AfxGetApp()->WriteProfileString(L"settings", L"MsgWindow", L"310,260");
    CommandScene scene({"a", "b"});
    scene.node("a").erasable = true;
    scene.select({"a"});
    const Answer yes(scene.user, VK_RETURN);
    scene.command(5146);
    EXPECT_EQ(yes.icon, L"QUERY");
    EXPECT_EQ(yes.yes.TopLeft(), CPoint(310, 260));
    EXPECT_EQ(scene.all(), Names{"b"});
}

TEST(TreeErasing, TheDeleteKeyDoesTheSame)
{
    CommandScene scene({"a", "b"});
    scene.node("a").erasable = true;
    scene.user.click(scene.label("a"));
    scene.forget();
    scene.user.key(VK_DELETE).waitFor("the question", [] { return shownDialog() != nullptr; }).key(VK_RETURN);
    EXPECT_EQ(scene.all(), Names{"b"});
    EXPECT_EQ(scene.journal.front(), "gesture 5146");
}

TEST(TreeErasing, WithoutAnErasableNodeNothingIsAsked)
{
    CommandScene scene({"a"});
    scene.user.click(scene.label("a"));
    scene.forget();
    scene.tree.eraseSelectedNodes();
    EXPECT_EQ(scene.journal, Journal{});
    EXPECT_EQ(scene.all(), Names{"a"});
}

TEST(TreeErasing, AnErrorIsReportedAndEveryDragEnds)
{
    CommandScene scene({"a", "b"});
    scene.node("a").erasable = scene.node("b").erasable = true;
    scene.node("a").erasing = [](MultiTreeCtrl&) -> bool { throw OvoError(L"in use"); };
    scene.select({"a", "b"});
    {
        const Answer yes(scene.user, VK_RETURN);
        scene.command(5146);
    }
    EXPECT_EQ(scene.tree.errors, (Journal{"in use"}));
    EXPECT_EQ(scene.all(), (Names{"a", "b"}));
    EXPECT_EQ(scene.journal, (Journal{"gesture 5146", "dragStarting 0 a", "dragStarting 0 b", "erase a",
                                      "dragEnding 0 a", "dragEnding 0 b", "gesture 0"}));
}

TEST(TreeErasing, NodesThatDeleteEachOtherDoNoHarm)
{
    CommandScene scene({"a", "b", "c"});
    for (const char* name : {"a", "b", "c"})
        scene.node(name).erasable = true;
    scene.node("a").erasing = [](MultiTreeCtrl& tree) {
        tree.DeleteAllItems();
        return true;
    };
    scene.select({"a", "b", "c"});
    const int before = TestNode::live();
    const Answer yes(scene.user, VK_RETURN);
    scene.command(5146);
    EXPECT_EQ(scene.tree.GetCount(), 0u);
    EXPECT_EQ(TestNode::live(), before - 3);
}

TEST(TreeErasing, AChildGoesWithItsParent)
{
    CommandScene scene({"a", "b"});
    scene.add("x", "a");
    scene.node("a").erasable = scene.node("x").erasable = true;
    scene.select({"a", "x"});
    const Answer yes(scene.user, VK_RETURN);
    scene.command(5146);
    EXPECT_EQ(scene.all(), Names{"b"});
}
