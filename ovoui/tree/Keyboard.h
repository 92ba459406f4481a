/// Not exported: what the user does with the keyboard. The rules are in core/KeyRules.h.
#pragma once

#include <ovoui/tree/Concern.h>
#include <ovoui/tree/core/KeyRules.h>

#include <functional>

class MultiTreeCtrl::Keyboard final : public Concern
{
public:
    using Concern::Concern;

    /// Has the tree view handle the message.
    using Default = std::function<void()>;

    void keyDown(UINT key, const Default& handle);
    void systemKeyDown(UINT key, const Default& handle);
    void character(UINT character, const Default& handle);

    void defaultAction();
    /// The default action as the user wants it: what nodes raise is shown.
    void runDefaultAction();
    /// Whether a message that the framework is about to dispatch was handled here.
    bool translate(MSG& message);

private:
    void perform(const ovoui::tree::KeyRule& rule, const Default& handle);
    void perform(ovoui::tree::Action action, HTREEITEM goal, const Default& handle);
    HTREEITEM goalOf(ovoui::tree::Aim aim) const;
    HTREEITEM pageFrom(HTREEITEM caret, UINT relation) const;
    void selectAll();
    void activateSelection();
};
