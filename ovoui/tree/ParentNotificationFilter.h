/// Not exported: a change of the selection in several steps that the parent is to hear of once.
#pragma once

#include <windows.h>

namespace ovoui::tree
{

/// While it lives, the parent window does not get TVN_SELCHANGED of this tree: another window procedure
/// stands in front of the parent's own. Filters may nest, also of several trees in one parent.
class ParentNotificationFilter
{
public:
    explicit ParentNotificationFilter(HWND tree);
    ~ParentNotificationFilter();
    ParentNotificationFilter(const ParentNotificationFilter&) = delete;
    ParentNotificationFilter& operator=(const ParentNotificationFilter&) = delete;

private:
    HWND m_tree;
    HWND m_parent;
};

} // namespace ovoui::tree
