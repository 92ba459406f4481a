/// A tree with nodes that do little, for tests that only need one.
#pragma once

#include <ovoui/tree/MultiTreeCtrl.h>

#include <string>

class Leaf : public MultiTreeCtrl::Node, public MultiTreeCtrl::Checkable
{
public:
    Leaf() { children = 1; }
    std::wstring text(const MultiTreeCtrl&) const override { return L"leaf"; }
    int closedImage() const override { return 0; }
    int openImage() const override { return 0; }
    void activate(MultiTreeCtrl&) override {}
    bool expand(MultiTreeCtrl& tree) override
    {
        return (new Leaf)->insert(tree, hTreeItem(), TVI_LAST) != nullptr;
    }
    Check check() const override { return Check::Mixed; }
    void setCheck(MultiTreeCtrl&, bool) override {}
};

class LeafTree : public MultiTreeCtrl
{
    void reportError(const wchar_t*) override {}
    bool isCommandDisabled(unsigned) override { return false; }
};
