#include <ovoui/tree/core/ExpansionRule.h>

namespace ovoui::tree
{

ExpansionStep expansionRule(Moment moment, unsigned action, bool isOpen)
{
    const bool opens = action == kExpand || action == kExpandPartial;
    const bool closes = action == kCollapse || action == kCollapseReset;
    if (moment == Moment::After)
        return opens || isOpen ? ExpansionStep::Show : ExpansionStep::Empty;
    if (closes || (opens && isOpen))
        return ExpansionStep::PassOn;
    return isOpen ? ExpansionStep::TakeState : ExpansionStep::Open;
}

} // namespace ovoui::tree
