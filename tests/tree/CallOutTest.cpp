// What the tree calls in its host raises every kind of exception: what is documented happens, and the tree is
// as good as before.
#include <support/NextDialog.h>
#include <support/NestedMessages.h>
#include <support/Raising.h>
#include <testkit/Desktop.h>
#include <testkit/GuiThread.h>
#include <testkit/RecordingParent.h>

#include <ovoui/tree/MultiTreeCtrl.h>
#include <ovoui/tree/PlainText.h>

#include <ovocor/OvoError.h>

#include <afxole.h>

#include <gtest/gtest.h>

#include <ostream>

using namespace ovo::testkit;

namespace
{

constexpr UINT kPaint = 4001; // a command that nodes offer
constexpr UINT kDelete = 5146;
constexpr UINT kRefresh = 5234;
constexpr UINT kDrag = 4711; // a notification, at which the parent drags something over the tree
constexpr unsigned kOwnPlace = 0x10000;

class RaisingNode : public MultiTreeCtrl::Node, public MultiTreeCtrl::Checkable
{
public:
    explicit RaisingNode(const wchar_t* name)
        : m_name(name)
    {
        ++s_live;
        children = 1;
        m_offered.id = kPaint;
        m_offered.offered = 1;
    }
    ~RaisingNode() override { --s_live; }

    static int live() { return s_live; }

    bool hasOwnPlaces = false;
    bool fails = false; ///< activate always does

    std::wstring text(const MultiTreeCtrl&) const override { return with("text", m_name); }
    int closedImage() const override { return with("closedImage", 0); }
    int openImage() const override { return with("openImage", 0); }
    void activate(MultiTreeCtrl&) override
    {
        Raising::here("activate");
        if (fails)
            throw OvoError(L"cannot be activated");
    }
    bool expand(MultiTreeCtrl& tree) override
    {
        Raising::here("expand");
        return (new RaisingNode(L"child"))->insert(tree, hTreeItem(), TVI_LAST) != nullptr;
    }
    void collapse(MultiTreeCtrl&) override { Raising::here("collapse"); }
    bool refresh() override { return with("refresh", true); }
    std::wstring infotip(MultiTreeCtrl&) const override { return with("infotip", m_name); }

    bool canRename() const override { return with("canRename", true); }
    std::wstring renameText(MultiTreeCtrl&) const override { return with("renameText", m_name); }
    void rename(MultiTreeCtrl&, const std::wstring& name) override
    {
        Raising::here("rename");
        m_name = name;
    }
    void beginLabelEdit(MultiTreeCtrl&) override { Raising::here("beginLabelEdit"); }
    void endLabelEdit(MultiTreeCtrl&) override { Raising::here("endLabelEdit"); }

    bool canErase() const override { return with("canErase", true); }
    bool erase(MultiTreeCtrl&) override { return with("erase", false); }
    DWORD dragStarting(MultiTreeCtrl& tree, DWORD effects, const MultiTreeCtrl::DragCursorSet*& set) override
    {
        Raising::here("dragStarting");
        return Node::dragStarting(tree, effects, set);
    }
    void dragEnding(MultiTreeCtrl&, DWORD) override { Raising::here("dragEnding"); }

    void hitTest(const MultiTreeCtrl&, CPoint, unsigned& flags) const override
    {
        Raising::here("hitTest");
        if (hasOwnPlaces)
            flags = kOwnPlace;
    }
    bool buttonDown(const MultiTreeCtrl&, unsigned, CPoint, unsigned) override
    {
        return with("buttonDown", true);
    }
    bool handleLButtonUp(MultiTreeCtrl&, CPoint, unsigned) override { return with("handleLButtonUp", true); }

    DWORD dragInto(COleDataObject&, DWORD& effects, bool&, int) const override
    {
        effects = DROPEFFECT_COPY;
        return with("dragInto", DWORD{DROPEFFECT_COPY});
    }
    bool dropInto(COleDataObject&, DWORD, MultiTreeCtrl&, int) override { return with("dropInto", true); }

    void getCommands(CommandSupported*& first, CommandSupported*& last) const override
    {
        Raising::here("getCommands");
        first = const_cast<CommandSupported*>(&m_offered);
        last = first + 1;
    }
    void doUpdateCmd(CCmdUI*, bool) const override { Raising::here("doUpdateCmd"); }
    void doCommand(MultiTreeCtrl&, unsigned) override { Raising::here("doCommand"); }

    Check check() const override { return with("check", m_checked ? Check::On : Check::Off); }
    void setCheck(MultiTreeCtrl&, bool on) override
    {
        Raising::here("setCheck");
        m_checked = on;
    }

private:
    template <class Result>
    static Result with(const char* callOut, Result result)
    {
        Raising::here(callOut);
        return result;
    }

    inline static int s_live = 0;

    std::wstring m_name;
    bool m_checked = false;
    CommandSupported m_offered;
};

/// The top level, where nodes are inserted.
class RaisingPlace : public MultiTreeCtrl::InsertionPoint
{
public:
    HTREEITEM hTreeItem() const override
    {
        Raising::here("hTreeItem");
        return TVI_ROOT;
    }
    bool canCompare() const override
    {
        Raising::here("canCompare");
        return true;
    }
    bool expanded() const override
    {
        Raising::here("expanded");
        return true;
    }
    int compareChildren(MultiTreeCtrl&, const MultiTreeCtrl::Node&, const MultiTreeCtrl::Node&) const override
    {
        Raising::here("compareChildren");
        return 1;
    }
    DWORD dragInto(COleDataObject&, DWORD&, bool&, int) const override { return 0; }
    bool dropInto(COleDataObject&, DWORD, MultiTreeCtrl&, int) override { return false; }
};

class RaisingTree : public MultiTreeCtrl
{
public:
    std::vector<std::wstring> errors;

private:
    void reportError(const wchar_t* message) override
    {
        Raising::here("reportError");
        errors.push_back(message);
    }
    bool isCommandDisabled(unsigned) override
    {
        Raising::here("isCommandDisabled");
        return false;
    }
    bool dragScroll(unsigned code, unsigned reserved, bool doIt) override
    {
        Raising::here("dragScroll");
        return MultiTreeCtrl::dragScroll(code, reserved, doIt);
    }
    bool doSelectItem(HTREEITEM item) override
    {
        Raising::here("doSelectItem");
        return MultiTreeCtrl::doSelectItem(item);
    }
};

/// A tree with two items, of which the first is selected.
class TreeHost
{
public:
    TreeHost()
    {
        tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_EDITLABELS, CRect(10, 10, 200, 150), &parent,
                    7);
        first = (node = new RaisingNode(L"first"))->insert(tree, TVI_ROOT, TVI_LAST);
        second = (new RaisingNode(L"second"))->insert(tree, TVI_ROOT, TVI_LAST);
        parent.answer(kDrag, [this](NMHDR*) -> LRESULT {
            drag();
            return 0;
        });
        present(parent);
        tree.SetFocus();
        tree.SelectItem(first);
    }
    ~TreeHost() { parent.DestroyWindow(); }

    /// Lets the parent raise in a notification of the tree.
    void raiseIn(UINT notification, const char* name)
    {
        parent.answer(notification, [name](NMHDR*) -> LRESULT {
            Raising::here(name);
            return 0;
        });
    }

    LRESULT press(UINT key) { return tree.SendMessage(WM_KEYDOWN, key, 1); }
    LRESULT command(UINT id) { return tree.SendMessage(WM_COMMAND, id); }

    void click()
    {
        tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(middle().x, middle().y));
        tree.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(middle().x, middle().y));
    }

    void rename()
    {
        if (CEdit* const edit = tree.EditLabel(first)) {
            edit->SetWindowText(L"renamed");
            tree.SendMessage(TVM_ENDEDITLABELNOW, FALSE);
        }
    }

    void eraseSelected()
    {
        const NextDialogAnswered yes(IDYES);
        command(kDelete);
    }

    void showMenu()
    {
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, kPaint, L"Paint");
        menu.AppendMenu(MF_STRING, kDelete, L"Delete");
        tree.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    }

    void askForTip()
    {
        wchar_t buffer[20] = L"";
        NMTVGETINFOTIPW request{};
        request.hdr = {tree.m_hWnd, 7, static_cast<UINT>(TVN_GETINFOTIPW)};
        request.pszText = buffer;
        request.cchTextMax = 20;
        request.hItem = first;
        parent.SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&request));
    }

    /// Drags something to a point of the tree, as the system does while the drag's source waits.
    void dragTo(CPoint client)
    {
        m_goal = client;
        NMHDR header{tree.m_hWnd, 7, kDrag};
        parent.SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&header));
    }
    void dragToFirst() { dragTo(middle()); }
    void dragToEdge() { dragTo({30, 3}); }

    void insert()
    {
        const OVO::Handle<MultiTreeCtrl::Node> third(new RaisingNode(L"third"));
        tree.insert(third.get(), place, -1);
    }

    RecordingParent parent;
    RaisingTree tree;
    RaisingPlace place;
    const EVSubscription gestures = tree.gestureEV().subscribe([](const int&) { Raising::here("gesture"); });
    RaisingNode* node = nullptr; ///< behind the first item
    HTREEITEM first = nullptr;
    HTREEITEM second = nullptr;

private:
    CPoint middle()
    {
        CRect rect;
        tree.GetItemRect(first, &rect, TRUE);
        return rect.CenterPoint();
    }

    void drag()
    {
        COleDataSource source;
        cachePlaintext(source, L"dragged");
        auto* const data = static_cast<IDataObject*>(source.GetInterface(&IID_IDataObject));
        auto* const target = static_cast<IDropTarget*>(tree.m_pDropTarget->GetInterface(&IID_IDropTarget));
        CPoint point = m_goal;
        tree.ClientToScreen(&point);
        DWORD effect = DROPEFFECT_COPY;
        target->DragEnter(data, MK_LBUTTON, {point.x, point.y}, &effect);
        effect = DROPEFFECT_COPY;
        target->Drop(data, 0, {point.x, point.y}, &effect);
    }

    CPoint m_goal;
};

struct TreeCallOut
{
    const char* name;
    void (*provoke)(TreeHost& host);
    Outcomes outcomes;
};

void PrintTo(const TreeCallOut& callOut, std::ostream* out)
{
    *out << callOut.name;
}

const std::vector<TreeCallOut>& callOuts()
{
    using enum Outcome;
    // Where the host's own call leads to the call-out
    constexpr Outcomes kToCaller{Passes, Passes, Passes};
    // Where the user or the tree view does
    constexpr Outcomes kReported{Reported, Shown, Passes};
    constexpr Outcomes kAsAHandler{Passes, Shown, Passes};
    // Where it is asked whether a command is enabled, which also comes before the command
    constexpr Outcomes kNoOfAMenu{Quiet, Shown, Passes};
    static const std::vector<TreeCallOut> all{
        {"text", [](TreeHost& host) { host.tree.updateUI(host.first); }, kToCaller},
        {"closedImage", [](TreeHost& host) { host.tree.updateUI(host.first); }, kToCaller},
        {"openImage",
         [](TreeHost& host) {
             host.node->state |= TVIS_EXPANDED;
             host.tree.updateUI(host.first);
         },
         kToCaller},
        {"expand", [](TreeHost& host) { host.tree.Expand(host.first, TVE_EXPAND); }, kReported},
        {"collapse",
         [](TreeHost& host) {
             host.tree.Expand(host.first, TVE_EXPAND);
             host.tree.Expand(host.first, TVE_COLLAPSE);
         },
         kReported},
        {"activate", [](TreeHost& host) { host.press(VK_RETURN); }, kReported},
        {"refresh", [](TreeHost& host) { host.command(kRefresh); }, kReported},
        {"infotip", [](TreeHost& host) { host.askForTip(); }, kReported},
        {"canRename", [](TreeHost& host) { host.rename(); }, kReported},
        {"renameText", [](TreeHost& host) { host.rename(); }, kReported},
        {"beginLabelEdit", [](TreeHost& host) { host.rename(); }, kReported},
        {"rename", [](TreeHost& host) { host.rename(); }, kReported},
        {"endLabelEdit", [](TreeHost& host) { host.rename(); }, kReported},
        {"canErase", [](TreeHost& host) { host.command(kDelete); }, kNoOfAMenu},
        {"canErase", [](TreeHost& host) { host.tree.eraseSelectedNodes(); }, kToCaller},
        {"canErase", [](TreeHost& host) { host.showMenu(); }, kNoOfAMenu},
        {"erase", [](TreeHost& host) { host.eraseSelected(); }, kReported},
        {"dragStarting", [](TreeHost& host) { host.eraseSelected(); }, kReported},
        {"dragEnding", [](TreeHost& host) { host.eraseSelected(); }, kReported},
        {"hitTest", [](TreeHost& host) { host.tree.HitTest(CPoint(30, 5)); }, kToCaller},
        {"hitTest", [](TreeHost& host) { host.click(); }, kAsAHandler},
        {"hitTest", [](TreeHost& host) { host.dragToFirst(); }, {Quiet, Passes, Passes}},
        {"buttonDown",
         [](TreeHost& host) {
             host.node->hasOwnPlaces = true;
             host.click();
         },
         kAsAHandler},
        {"handleLButtonUp",
         [](TreeHost& host) {
             host.node->hasOwnPlaces = true;
             host.click();
         },
         kAsAHandler},
        {"getCommands", [](TreeHost& host) { host.command(kPaint); }, kNoOfAMenu},
        {"getCommands",
         [](TreeHost& host) { host.tree.OnCmdMsg(kPaint, CN_COMMAND, nullptr, nullptr); },
         {Reported, Passes, Passes}},
        {"getCommands", [](TreeHost& host) { host.showMenu(); }, kNoOfAMenu},
        {"doCommand", [](TreeHost& host) { host.command(kPaint); }, kReported},
        {"doUpdateCmd", [](TreeHost& host) { host.showMenu(); }, kNoOfAMenu},
        {"dragInto", [](TreeHost& host) { host.dragToFirst(); }, {Quiet, Passes, Passes}},
        {"dropInto", [](TreeHost& host) { host.dragToFirst(); }, {Reported, Passes, Passes}},
        {"dragScroll", [](TreeHost& host) { host.dragToEdge(); }, {Passes, Passes, Passes}},
        {"hTreeItem", [](TreeHost& host) { host.insert(); }, kToCaller},
        {"canCompare", [](TreeHost& host) { host.insert(); }, kToCaller},
        {"expanded", [](TreeHost& host) { host.insert(); }, kToCaller},
        {"compareChildren", [](TreeHost& host) { host.insert(); }, kToCaller},
        {"check",
         [](TreeHost& host) {
             host.tree.setExtras(MultiTreeCtrl::CheckBoxes);
             host.press(VK_SPACE);
         },
         kToCaller},
        {"setCheck",
         [](TreeHost& host) {
             host.tree.setExtras(MultiTreeCtrl::CheckBoxes);
             host.press(VK_SPACE);
         },
         kReported},
        {"keeps",
         [](TreeHost& host) {
             host.tree.setFilter([](const MultiTreeCtrl::Node&) {
                 Raising::here("keeps");
                 return true;
             });
         },
         kToCaller},
        {"reportError",
         [](TreeHost& host) {
             host.node->fails = true;
             host.press(VK_RETURN);
         },
         kAsAHandler},
        {"isCommandDisabled", [](TreeHost& host) { host.command(kPaint); }, kAsAHandler},
        {"isCommandDisabled", [](TreeHost& host) { host.showMenu(); }, kAsAHandler},
        {"doSelectItem", [](TreeHost& host) { host.tree.SelectItem(host.second); }, kToCaller},
        {"doSelectItem", [](TreeHost& host) { host.press(VK_DOWN); }, kAsAHandler},
        {"gesture", [](TreeHost& host) { host.command(kPaint); }, kAsAHandler},
        {"gesture", [](TreeHost& host) { host.press(VK_RETURN); }, kReported},
        {"gesture", [](TreeHost& host) { host.eraseSelected(); }, kAsAHandler},
        {"TVN_SELCHANGING",
         [](TreeHost& host) {
             host.raiseIn(TVN_SELCHANGINGW, "TVN_SELCHANGING");
             host.press(VK_DOWN);
         },
         kAsAHandler},
        {"TVN_SELCHANGED",
         [](TreeHost& host) {
             host.raiseIn(TVN_SELCHANGEDW, "TVN_SELCHANGED");
             host.press(VK_DOWN);
         },
         kAsAHandler},
        {"TVN_SELCHANGED",
         [](TreeHost& host) {
             host.raiseIn(TVN_SELCHANGEDW, "TVN_SELCHANGED");
             host.tree.SelectItem(host.second);
         },
         kAsAHandler},
        {"TVN_ITEMEXPANDING",
         [](TreeHost& host) {
             host.raiseIn(TVN_ITEMEXPANDINGW, "TVN_ITEMEXPANDING");
             host.tree.Expand(host.first, TVE_EXPAND);
         },
         kAsAHandler},
        {"TVN_ITEMEXPANDED",
         [](TreeHost& host) {
             host.raiseIn(TVN_ITEMEXPANDEDW, "TVN_ITEMEXPANDED");
             host.tree.Expand(host.first, TVE_EXPAND);
         },
         kAsAHandler},
        {"TVN_BEGINLABELEDIT",
         [](TreeHost& host) {
             host.raiseIn(TVN_BEGINLABELEDITW, "TVN_BEGINLABELEDIT");
             host.rename();
         },
         kAsAHandler},
    };
    return all;
}

class TreeCallOuts : public ::testing::TestWithParam<TreeCallOut>
{
protected:
    /// What a user could do before can still be done.
    static void expectSound(TreeHost& host)
    {
        if (host.tree.GetEditControl())
            host.tree.SendMessage(TVM_ENDEDITLABELNOW, TRUE);
        GuiThread::settle();
        EXPECT_EQ(host.tree.GetEditControl(), nullptr);
        host.node->hasOwnPlaces = host.node->fails = false;
        const std::size_t errors = host.tree.errors.size();
        host.tree.SelectItem(host.second);
        EXPECT_EQ(host.tree.GetSelectedItem(), host.second);
        host.press(VK_HOME);
        EXPECT_EQ(host.tree.GetSelectedItem(), host.first);
        host.tree.updateUI(host.first);
        host.command(kPaint);
        EXPECT_EQ(host.tree.errors.size(), errors);
    }
};

} // namespace

TEST_P(TreeCallOuts, DoWithAnExceptionWhatIsDocumented)
{
    const TreeCallOut& callOut = GetParam();
    const int nested = nestedMessages();
    for (const Raising::Kind& kind : Raising::kinds()) {
        SCOPED_TRACE(kind.name);
        TreeHost host;
        {
            const Raising raising(callOut.name, kind);
            EXPECT_EQ(outcomeOf([&] { callOut.provoke(host); }, [&] { return host.tree.errors.size(); }),
                      callOut.outcomes.of(kind.group));
            EXPECT_TRUE(raising.happened()) << "it was not called";
        }
        expectSound(host);
        ASSERT_EQ(nestedMessages(), nested) << "what was raised flew through the system's code";
    }
    EXPECT_EQ(RaisingNode::live(), 0);
}

INSTANTIATE_TEST_SUITE_P(Table, TreeCallOuts, ::testing::ValuesIn(callOuts()), [](const auto& info) {
    return std::string(info.param.name) + std::to_string(info.index);
});
