/// Not exported: what a host has said of the controls in its template, for the classic file dialog.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace ovoui
{

using ControlId = std::uint32_t;

/// What a click on a control means.
struct Click
{
    enum class Meaning
    {
        CheckButton, ///< of every control that nothing was said of
        PushButton,
        Menu,
        RadioButton
    };
    Meaning meaning = Meaning::CheckButton;
    ControlId group = 0; ///< of a radio button
};

struct MenuItem
{
    ControlId id;
    std::wstring label;
};

class DeclaredControls
{
public:
    void addPushButton(ControlId id);
    void addMenu(ControlId id);
    void addMenuItem(ControlId menu, MenuItem item);
    void addRadioGroup(ControlId group, std::vector<ControlId> buttons);

    Click clickOn(ControlId id) const;
    /// In the order in which they were added; empty for what is no menu.
    const std::vector<MenuItem>& menuItems(ControlId menu) const;
    const std::vector<ControlId>& radioButtons(ControlId group) const;

private:
    std::map<ControlId, Click> m_clicks;
    std::map<ControlId, std::vector<MenuItem>> m_menus;
    std::map<ControlId, std::vector<ControlId>> m_groups;
};

} // namespace ovoui
