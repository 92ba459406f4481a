/// Not exported: what the user does with the mouse. The rules are in core/ClickRules.h.
#pragma once

#include <ovoui/tree/Concern.h>
#include <ovoui/tree/core/ClickRules.h>

class MultiTreeCtrl::Mouse final : public Concern
{
public:
    enum class Button
    {
        Left,
        Right
    };

    using Concern::Concern;

    void doButtonDown(Button button, UINT keys, CPoint point);
    /// A release that comes as a message of its own.
    void release(Button button, UINT keys, CPoint point);
    void doubleClick(Button button, UINT keys, CPoint point);
    void askForMenu() const;

    /// The item whose label is to be edited, if the timer is the one that was waited for. It is forgotten.
    HTREEITEM takeItemToEdit(UINT_PTR timer);

    void itemGoes(HTREEITEM item) override;

private:
    struct Click;

    void perform(const ovoui::tree::Actions& actions, const Click& click);
    void perform(ovoui::tree::Action action, const Click& click);
    void awaitDrag(const Click& click);
    void beginDrag(const Click& click) const;
    void selectRange(const Click& click);
    void addRange(const Click& click);
    void takeFocus();
    void editLater(HTREEITEM item);
    void stopEditTimer();
    HTREEITEM itemBeyond(unsigned hit) const;
};
