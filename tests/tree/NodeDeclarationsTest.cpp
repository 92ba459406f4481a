// What the declarations of nodes promise.
#include "TreeScene.h"

#include <gtest/gtest.h>

#include <cstring>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<TestNode> && !std::is_copy_assignable_v<TestNode>);

namespace
{

/// The place of a virtual operation in its table, counted from 1.
template <class Operation>
std::size_t slotOf(Operation operation)
{
    std::size_t offset = 0; // one more than it, says the ABI
    std::memcpy(&offset, &operation, sizeof offset);
    return (offset - 1) / sizeof(void*) + 1;
}

} // namespace

TEST(TreeDeclarations, OperationsAreCalledThroughInTheOrderOfTheirTable)
{
    using Node = MultiTreeCtrl::Node;
    const std::size_t slots[] = {slotOf(&Node::hTreeItem),      slotOf(&Node::compareChildren),
                                 slotOf(&Node::canCompare),     slotOf(&Node::dragInto),
                                 slotOf(&Node::dropInto),       slotOf(&Node::getCommands),
                                 slotOf(&Node::doUpdateCmd),    slotOf(&Node::doCommand),
                                 slotOf(&Node::expanded),       slotOf(&Node::collapse),
                                 slotOf(&Node::activate),       slotOf(&Node::expand),
                                 slotOf(&Node::infotip),        slotOf(&Node::text),
                                 slotOf(&Node::erase),          slotOf(&Node::refresh),
                                 slotOf(&Node::rename),         slotOf(&Node::renameText),
                                 slotOf(&Node::drawPreview),    slotOf(&Node::dragStarting),
                                 slotOf(&Node::dragEnding),     slotOf(&Node::closedImage),
                                 slotOf(&Node::openImage),      slotOf(&Node::canRename),
                                 slotOf(&Node::canErase),       slotOf(&Node::hitTest),
                                 slotOf(&Node::buttonDown),     slotOf(&Node::handleLButtonUp),
                                 slotOf(&Node::beginLabelEdit), slotOf(&Node::endLabelEdit)};
    std::size_t expected = 0;
    for (const std::size_t slot : slots)
        EXPECT_EQ(slot, ++expected);
}
