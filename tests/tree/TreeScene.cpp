#include "TreeScene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

using namespace ovo::testkit;

namespace
{

int g_liveNodes = 0;

} // namespace

std::wstring wide(const std::string& text)
{
    return {text.begin(), text.end()};
}

std::string narrow(const std::wstring& text)
{
    std::string result;
    for (const wchar_t character : text)
        result += character < 128 ? static_cast<char>(character) : '?';
    return result;
}

// TestNode

TestNode::TestNode(std::string nodeName, Journal* nodeJournal)
    : name(std::move(nodeName))
    , journal(nodeJournal)
{
    ++g_liveNodes;
}

TestNode::~TestNode()
{
    --g_liveNodes;
    if (onDestroyed)
        onDestroyed();
}

int TestNode::live()
{
    return g_liveNodes;
}

void TestNode::note(const std::string& what) const
{
    if (journal)
        journal->push_back(what + " " + name);
}

std::wstring TestNode::text(const MultiTreeCtrl&) const
{
    return texting ? texting() : wide(name);
}

void TestNode::activate(MultiTreeCtrl& tree)
{
    note("activate");
    if (activating)
        activating(tree);
}

void TestNode::collapse(MultiTreeCtrl& tree)
{
    note("collapse");
    if (collapsing)
        collapsing(tree);
}

bool TestNode::expand(MultiTreeCtrl& tree)
{
    note("expand");
    if (expanding)
        return expanding(tree);
    for (const std::string& child : childNames)
        (new TestNode(child, journal))->insert(tree, hTreeItem(), TVI_LAST);
    return childNames.empty() ? Node::expand(tree) : true;
}

std::wstring TestNode::infotip(MultiTreeCtrl& tree) const
{
    if (tipping)
        return tipping();
    return tip.empty() ? Node::infotip(tree) : wide(tip);
}

bool TestNode::erase(MultiTreeCtrl& tree)
{
    note("erase");
    return erasing ? erasing(tree) : Node::erase(tree);
}

bool TestNode::refresh()
{
    note("refresh");
    return refreshing ? refreshing() : Node::refresh();
}

void TestNode::rename(MultiTreeCtrl& tree, const std::wstring& newText)
{
    note("rename to " + narrow(newText) + ":");
    if (renaming)
        renaming(tree, newText);
}

std::wstring TestNode::renameText(MultiTreeCtrl& tree) const
{
    return offeringText ? offeringText() : Node::renameText(tree);
}

DWORD TestNode::dragStarting(MultiTreeCtrl& tree, DWORD effects, const DragCursorSet*& cursors)
{
    note("dragStarting " + std::to_string(effects));
    if (draggingStarts)
        draggingStarts(tree);
    return Node::dragStarting(tree, effects, cursors);
}

void TestNode::dragEnding(MultiTreeCtrl& tree, DWORD effect)
{
    note("dragEnding " + std::to_string(effect));
    if (draggingEnds)
        draggingEnds(tree, effect);
}

void TestNode::hitTest(const MultiTreeCtrl&, CPoint point, unsigned& flags) const
{
    if (hitting)
        hitting(point, flags);
}

bool TestNode::buttonDown(const MultiTreeCtrl& tree, unsigned message, CPoint point, unsigned flags)
{
    note("buttonDown");
    return pressing ? pressing(message, point, flags) : Node::buttonDown(tree, message, point, flags);
}

bool TestNode::handleLButtonUp(MultiTreeCtrl& tree, CPoint point, unsigned flags)
{
    note("buttonUp");
    return releasing ? releasing(point, flags) : Node::handleLButtonUp(tree, point, flags);
}

void TestNode::beginLabelEdit(MultiTreeCtrl& tree)
{
    note("beginLabelEdit");
    if (editBegins)
        editBegins(tree);
}

void TestNode::endLabelEdit(MultiTreeCtrl& tree)
{
    note("endLabelEdit");
    if (editEnds)
        editEnds(tree);
}

DWORD TestNode::dragInto(COleDataObject& data, DWORD& effect, bool& flag, int zone) const
{
    return draggingInto ? draggingInto(data, effect, flag, zone) : Node::dragInto(data, effect, flag, zone);
}

bool TestNode::dropInto(COleDataObject& data, DWORD effect, MultiTreeCtrl& tree, int zone)
{
    note("dropInto " + std::to_string(effect) + " zone " + std::to_string(zone));
    return droppingInto ? droppingInto(data, effect, tree, zone) : Node::dropInto(data, effect, tree, zone);
}

void TestNode::getCommands(CommandSupported*& first, CommandSupported*& last) const
{
    if (askingCommands)
        askingCommands();
    if (commands.empty()) {
        Node::getCommands(first, last);
        return;
    }
    first = const_cast<CommandSupported*>(commands.data());
    last = first + commands.size();
}

void TestNode::doUpdateCmd(CCmdUI* ui, bool flag) const
{
    note(std::string("doUpdateCmd ") + std::to_string(ui->m_nID) + (flag ? " single" : " several"));
    if (updating)
        updating(ui, flag);
}

void TestNode::doCommand(MultiTreeCtrl& tree, unsigned id)
{
    note("doCommand " + std::to_string(id));
    if (commanding)
        commanding(tree, id);
}

void TestNode::offer(unsigned id, bool now)
{
    CommandSupported command;
    command.id = id;
    command.offered = now ? 1 : 0;
    commands.push_back(command);
}

// TestPlace

int TestPlace::compareChildren(MultiTreeCtrl& tree, const MultiTreeCtrl::Node& a,
                               const MultiTreeCtrl::Node& b) const
{
    ++const_cast<TestPlace*>(this)->comparisons;
    return comparing ? comparing(tree, a, b) : InsertionPoint::compareChildren(tree, a, b);
}

// TestTree

void TestTree::reportError(const wchar_t* message)
{
    errors.push_back(narrow(message));
    if (reporting)
        reporting();
}

bool TestTree::isCommandDisabled(unsigned id)
{
    return std::find(disabled.begin(), disabled.end(), id) != disabled.end();
}

LRESULT TestTree::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (counting && message == WM_PAINT) {
        CRect update;
        GetUpdateRect(&update);
        ++paints;
        painted.push_back(update);
    }
    if (message == WM_CONTEXTMENU) {
        ++contextMenus;
        if (swallowsContextMenu)
            return 0;
    }
    return MultiTreeCtrl::WindowProc(message, wParam, lParam);
}

// Scene

std::ostream& operator<<(std::ostream& out, const Change& change)
{
    return out << "{action " << change.action << ", " << change.oldItem << " -> " << change.newItem << "}";
}

Scene::Scene(const std::vector<std::string>& names, DWORD style)
    : Scene(std::make_unique<RecordingParent>(CSize(420, 380), L"Tree"), names, style)
{
}

Scene::Scene(std::unique_ptr<RecordingParent> parent, const std::vector<std::string>& names, DWORD style)
    : m_parent(std::move(parent))
{
    tree.Create(style, CRect(10, 10, 400, 360), m_parent.get(), 7);
    for (const std::string& name : names)
        add(name);
    m_gestures = tree.gestureEV().subscribe(
        [this](const int& code) { journal.push_back("gesture " + std::to_string(code)); });
    present(*m_parent);
    m_parent->log().clear();
}

Scene::~Scene()
{
    // The parent first, as in a program.
    m_parent->DestroyWindow();
}

TestNode& Scene::addTo(HTREEITEM parent, const std::string& name)
{
    auto* node = new TestNode(name, &journal);
    node->insert(tree, parent, TVI_LAST);
    return *node;
}

TestNode& Scene::add(const std::string& name, const std::string& parent)
{
    return addTo(parent.empty() ? TVI_ROOT : item(parent), name);
}

HTREEITEM Scene::item(const std::string& name)
{
    for (HTREEITEM at = tree.GetRootItem(); at;) {
        if (nameOf(at) == name)
            return at;
        HTREEITEM next = tree.GetChildItem(at);
        for (; !next && at; at = tree.GetParentItem(at))
            next = tree.GetNextSiblingItem(at);
        at = next;
    }
    ADD_FAILURE() << "there is no item named " << name;
    return nullptr;
}

TestNode& Scene::node(const std::string& name)
{
    const OVO::Handle<MultiTreeCtrl::Node> found = tree.node(item(name));
    if (!found)
        throw std::runtime_error("no node named " + name);
    return static_cast<TestNode&>(*found);
}

std::string Scene::nameOf(HTREEITEM item)
{
    return item ? narrow(std::wstring(tree.GetItemText(item))) : "-";
}

void Scene::open(const std::string& name)
{
    tree.Expand(item(name), TVE_EXPAND);
    ASSERT_TRUE(isExpanded(name));
}

CPoint Scene::labelPoint(const std::string& name)
{
    CRect rect;
    tree.GetItemRect(item(name), &rect, TRUE);
    return rect.CenterPoint();
}

Spot Scene::label(const std::string& name)
{
    return Spot([this, name] {
        CPoint point = labelPoint(name);
        tree.ClientToScreen(&point);
        return point;
    });
}

Spot Scene::button(const std::string& name)
{
    return Spot([this, name] {
        const CPoint label = labelPoint(name);
        for (int x = 0; x < label.x; ++x) {
            UINT flags = 0;
            tree.CTreeCtrl::HitTest(CPoint(x, label.y), &flags);
            if (flags & TVHT_ONITEMBUTTON) {
                CPoint point(x + 3, label.y);
                tree.ClientToScreen(&point);
                return point;
            }
        }
        throw std::runtime_error("no button at " + name);
    });
}

Spot Scene::beside(const std::string& name)
{
    return Spot([this, name] {
        CRect rect;
        tree.GetItemRect(item(name), &rect, TRUE);
        CPoint point(rect.right + 20, rect.CenterPoint().y);
        tree.ClientToScreen(&point);
        return point;
    });
}

Spot Scene::below()
{
    return Spot([this] {
        CRect client;
        tree.GetClientRect(&client);
        CPoint point(60, client.bottom - 6);
        tree.ClientToScreen(&point);
        return point;
    });
}

std::vector<std::string> Scene::all()
{
    std::vector<std::string> names;
    const std::function<void(HTREEITEM)> walk = [&](HTREEITEM first) {
        for (HTREEITEM at = first; at; at = tree.GetNextSiblingItem(at)) {
            names.push_back(nameOf(at));
            walk(tree.GetChildItem(at));
        }
    };
    walk(tree.GetRootItem());
    return names;
}

std::vector<std::string> Scene::selected()
{
    std::vector<std::string> names;
    const std::function<void(HTREEITEM)> walk = [&](HTREEITEM first) {
        for (HTREEITEM at = first; at; at = tree.GetNextSiblingItem(at)) {
            if (tree.GetItemState(at, TVIS_SELECTED))
                names.push_back(nameOf(at));
            walk(tree.GetChildItem(at));
        }
    };
    walk(tree.GetRootItem());
    return names;
}

std::vector<std::string> Scene::childrenOf(const std::string& name)
{
    std::vector<std::string> names;
    HTREEITEM at = name.empty() ? tree.GetRootItem() : tree.GetChildItem(item(name));
    for (; at; at = tree.GetNextSiblingItem(at))
        names.push_back(nameOf(at));
    return names;
}

std::string Scene::caret()
{
    return nameOf(tree.GetSelectedItem());
}

bool Scene::isExpanded(const std::string& name)
{
    return tree.GetItemState(item(name), TVIS_EXPANDED) != 0;
}

std::vector<Change> Scene::changes()
{
    std::vector<Change> result;
    for (const Notification& each : m_parent->log().all())
        if (each.message == WM_NOTIFY && each.code == static_cast<UINT>(TVN_SELCHANGEDW))
            result.push_back({each.action, nameOf(each.oldItem), nameOf(each.newItem)});
    return result;
}

void Scene::forget()
{
    journal.clear();
    m_parent->log().clear();
    tree.errors.clear();
}

RootScene::RootScene(const std::vector<std::string>& names, DWORD style)
    : Scene(std::make_unique<RootParent>(CSize(420, 380), L"Tree"), names, style)
{
}

Names numbered(int count)
{
    Names names;
    for (int i = 0; i < count; ++i)
        names.push_back(std::to_string(100 + i));
    return names;
}
