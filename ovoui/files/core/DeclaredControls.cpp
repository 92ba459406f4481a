#include <ovoui/files/core/DeclaredControls.h>

#include <utility>

namespace ovoui
{

namespace
{

/// The entry, or an empty one.
template <class Value>
const Value& entryOf(const std::map<ControlId, Value>& map, ControlId id)
{
    static const Value s_none{};
    const auto found = map.find(id);
    return found == map.end() ? s_none : found->second;
}

} // namespace

void DeclaredControls::addPushButton(ControlId id)
{
    m_clicks[id] = {Click::Meaning::PushButton};
}

void DeclaredControls::addMenu(ControlId id)
{
    m_clicks[id] = {Click::Meaning::Menu};
}

void DeclaredControls::addMenuItem(ControlId menu, MenuItem item)
{
    m_menus[menu].push_back(std::move(item));
}

void DeclaredControls::addRadioGroup(ControlId group, std::vector<ControlId> buttons)
{
    for (const ControlId button : buttons)
        m_clicks[button] = {Click::Meaning::RadioButton, group};
    m_groups[group] = std::move(buttons);
}

Click DeclaredControls::clickOn(ControlId id) const
{
    return entryOf(m_clicks, id);
}

const std::vector<MenuItem>& DeclaredControls::menuItems(ControlId menu) const
{
    return entryOf(m_menus, menu);
}

const std::vector<ControlId>& DeclaredControls::radioButtons(ControlId group) const
{
    return entryOf(m_groups, group);
}

} // namespace ovoui
