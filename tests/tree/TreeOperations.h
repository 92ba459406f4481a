/// The operations of a node that the user or the tree view causes, for tests that try each of them.
#pragma once

#include "TreeScene.h"

#include <functional>
#include <iosfwd>
#include <vector>

/// An operation of node "a" in a scene, and what causes its call.
struct Operation
{
    const char* name;
    std::function<void(TestNode&, std::function<void()>)> arm; ///< gives the operation something to do
    std::function<void(Scene&)> act;                           ///< causes the call
};

void PrintTo(const Operation& operation, std::ostream* out);

const std::vector<Operation>& treeOperations();

/// Makes "a" one of the nodes that can do all that: it can be opened and renamed, is selected and offers a
/// command.
void prepareForOperations(Scene& scene);
