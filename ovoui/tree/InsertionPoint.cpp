#include <ovoui/tree/HostCalls.h>

#include <ovocor/Text.h>

int MultiTreeCtrl::InsertionPoint::compareChildren(MultiTreeCtrl& tree, const Node& a, const Node& b) const
{
    const HostCalls host(tree);
    const std::wstring first = a.text(tree);
    // The text may have taken the tree with it; the answer does not matter then.
    return host.usable() ? collateStrings(first, b.text(tree)) : 0;
}

bool MultiTreeCtrl::InsertionPoint::canCompare() const
{
    return true;
}

void MultiTreeCtrl::InsertionPoint::getCommands(CommandSupported*& first, CommandSupported*& last) const
{
    first = nullptr;
    last = nullptr;
}

void MultiTreeCtrl::InsertionPoint::doUpdateCmd(CCmdUI*, bool) const {}

void MultiTreeCtrl::InsertionPoint::doCommand(MultiTreeCtrl&, unsigned) {}
