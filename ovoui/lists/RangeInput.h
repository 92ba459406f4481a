/// Not exported: inputs that select or deselect many rows of a virtual list.
#pragma once

#include <ovoui/frame/RedrawHold.h>

#include <optional>

class COVOListCtrlEx;

namespace ovoui::lists
{

/// While it lives, a list handles a message, or many rows are deselected by code. Where the platform asks the
/// display for each row whose selection changes, a virtual list of many rows does not draw meanwhile: a key
/// would take a minute.
class RangeInput
{
public:
    RangeInput(const COVOListCtrlEx& list, UINT message);
    /// All that is selected is to be deselected.
    explicit RangeInput(const COVOListCtrlEx& list);

private:
    std::optional<frame::RedrawHold> m_hold;
};

} // namespace ovoui::lists
