/// A tree two levels deep, for tests that change what is above or below an item.
#pragma once

#include "TreeScene.h"

/// "p" is open and has the child "c", which has "x" and "y" when it is opened; "q" stands behind "p".
class NestedScene : public Scene
{
public:
    NestedScene()
        : Scene({"p", "q"})
    {
        grow("p", {"c"});
        open("p");
        grow("c", {"x", "y"});
    }

    /// Gives an item children, which come when it is opened.
    void grow(const std::string& name, const Names& children)
    {
        node(name).children = 1;
        node(name).childNames = children;
        tree.updateUI(item(name));
    }
    void closeParent() { tree.Expand(item("p"), TVE_COLLAPSE); }
    int items() { return static_cast<int>(tree.GetCount()); }
};
