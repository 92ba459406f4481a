#include "MonkeyNode.h"

#include "Monkey.h"

namespace
{

CommandSupported g_commands[1];

} // namespace

MonkeyNode::MonkeyNode(Monkey& monkey, int nodeId, std::string nodeName, bool canHaveChildren)
    : id(nodeId)
    , name(std::move(nodeName))
    , m_monkey(monkey)
{
    children = canHaveChildren ? 1 : 0;
    m_monkey.onCreated(*this);
}

MonkeyNode::~MonkeyNode()
{
    m_monkey.onDestroyed(*this);
}

void MonkeyNode::callOut(const char* operation) const
{
    // Nothing of this object is used after the misdeed before it is known to be alive.
    Monkey& monkey = m_monkey;
    const int self = id;
    try {
        monkey.callOut(operation, self);
    } catch (...) {
        monkey.expectAlive(operation, self);
        throw;
    }
    monkey.expectAlive(operation, self);
}

int MonkeyNode::compareChildren(MultiTreeCtrl& tree, const Node& a, const Node& b) const
{
    callOut("compareChildren");
    return Node::compareChildren(tree, a, b);
}

bool MonkeyNode::canCompare() const
{
    callOut("canCompare");
    return sortsChildren;
}

void MonkeyNode::getCommands(CommandSupported*& first, CommandSupported*& last) const
{
    callOut("getCommands");
    g_commands[0].id = Monkey::kCommand;
    g_commands[0].offered = 1;
    first = offers ? g_commands : nullptr;
    last = offers ? g_commands + 1 : nullptr;
}

void MonkeyNode::doUpdateCmd(CCmdUI*, bool) const
{
    callOut("doUpdateCmd");
}

void MonkeyNode::doCommand(MultiTreeCtrl&, unsigned)
{
    callOut("doCommand");
}

bool MonkeyNode::expanded() const
{
    callOut("expanded");
    return Node::expanded();
}

void MonkeyNode::collapse(MultiTreeCtrl&)
{
    const Monkey::ChildrenGo atTheEnd(m_monkey, id);
    callOut("collapse");
}

void MonkeyNode::activate(MultiTreeCtrl& tree)
{
    callOut("activate");
    if (hTreeItem() && m_monkey.pick(2))
        tree.Expand(hTreeItem(), TVE_TOGGLE);
}

bool MonkeyNode::expand(MultiTreeCtrl&)
{
    callOut("expand");
    m_monkey.growChildren(id);
    callOut("expand");
    return m_monkey.pick(8) != 0;
}

std::wstring MonkeyNode::infotip(MultiTreeCtrl&) const
{
    callOut("infotip");
    return L"tip";
}

std::wstring MonkeyNode::text(const MultiTreeCtrl&) const
{
    callOut("text");
    return {name.begin(), name.end()};
}

bool MonkeyNode::erase(MultiTreeCtrl&)
{
    callOut("erase");
    const bool goes = m_monkey.pick(4) != 0;
    if (goes)
        m_monkey.forget(id);
    return goes;
}

bool MonkeyNode::refresh()
{
    if (m_monkey.pick(12) == 0) {
        m_monkey.forget(id);
        return false;
    }
    callOut("refresh");
    return true;
}

void MonkeyNode::rename(MultiTreeCtrl&, const std::wstring& newText)
{
    callOut("rename");
    if (m_monkey.pick(4))
        name.assign(newText.begin(), newText.end());
}

std::wstring MonkeyNode::renameText(MultiTreeCtrl& tree) const
{
    callOut("renameText");
    return Node::renameText(tree);
}

DWORD MonkeyNode::dragStarting(MultiTreeCtrl& tree, DWORD effects, const DragCursorSet*& cursors)
{
    callOut("dragStarting");
    return Node::dragStarting(tree, effects, cursors);
}

void MonkeyNode::dragEnding(MultiTreeCtrl&, DWORD)
{
    callOut("dragEnding");
}

int MonkeyNode::closedImage() const
{
    callOut("closedImage");
    return 0;
}

int MonkeyNode::openImage() const
{
    callOut("openImage");
    return 0;
}

bool MonkeyNode::canRename() const
{
    callOut("canRename");
    return true;
}

bool MonkeyNode::canErase() const
{
    callOut("canErase");
    return erasable;
}

void MonkeyNode::hitTest(const MultiTreeCtrl&, CPoint, unsigned& flags) const
{
    callOut("hitTest");
    if (ownPart)
        flags = 0x10000;
}

bool MonkeyNode::buttonDown(const MultiTreeCtrl&, unsigned, CPoint, unsigned)
{
    callOut("buttonDown");
    return true;
}

bool MonkeyNode::handleLButtonUp(MultiTreeCtrl&, CPoint, unsigned)
{
    callOut("handleLButtonUp");
    return true;
}

void MonkeyNode::beginLabelEdit(MultiTreeCtrl&)
{
    callOut("beginLabelEdit");
}

void MonkeyNode::endLabelEdit(MultiTreeCtrl&)
{
    callOut("endLabelEdit");
}

// The top level

int MonkeyRoot::compareChildren(MultiTreeCtrl& tree, const MultiTreeCtrl::Node& a,
                                const MultiTreeCtrl::Node& b) const
{
    m_monkey.callOut("compareChildren", MonkeyModel::kRoot);
    return InsertionPoint::compareChildren(tree, a, b);
}

bool MonkeyRoot::canCompare() const
{
    m_monkey.callOut("canCompare", MonkeyModel::kRoot);
    return m_sorted;
}

bool MonkeyRoot::expanded() const
{
    m_monkey.callOut("expanded", MonkeyModel::kRoot);
    return true;
}
