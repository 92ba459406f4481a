#include <ovoui/tree/MultiTreeCtrl.h>

#include <ovocor/Text.h>

int MultiTreeCtrl::InsertionPoint::compareChildren(MultiTreeCtrl& tree, const Node& a, const Node& b) const
{
    return collateStrings(a.text(tree), b.text(tree));
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
