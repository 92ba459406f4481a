#include <ovoui/tree/core/SelectRule.h>

namespace ovoui::tree
{

AfterAsking afterAsking(const CaretAsked& asked)
{
    const bool othersWere = asked.selectedBefore > (asked.wanted ? 1u : 0u);
    if (asked.stayed && othersWere)
        return asked.wanted ? AfterAsking::SelectAndTell : AfterAsking::Tell;
    if (!asked.wanted)
        return AfterAsking::Nothing;
    if (asked.reached)
        return AfterAsking::Select;
    return asked.stayed ? AfterAsking::Deselect : AfterAsking::Nothing;
}

bool selectsForCertain(bool caretReached, bool caretStayed)
{
    return caretReached || caretStayed;
}

bool treeViewSelects(std::size_t selected, bool caretAlone, bool range)
{
    return !range && (selected == 0 || caretAlone);
}

TreeKeyRoute treeKeyRoute(bool keyboard, bool editing, bool hasAccelerators)
{
    if (!keyboard)
        return TreeKeyRoute::PassOn;
    if (editing)
        return TreeKeyRoute::ToEditor;
    return hasAccelerators ? TreeKeyRoute::Accelerators : TreeKeyRoute::PassOn;
}

} // namespace ovoui::tree
