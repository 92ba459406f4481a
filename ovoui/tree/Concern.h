/// Not exported: what the parts of the tree have in common.
#pragma once

#include <ovoui/tree/Message.h>
#include <ovoui/tree/TreeState.h>

/// One concern of the tree, such as its selection. The state owns all of them, so that they outlive the
/// control while the host is called. The gate tells them of every message to the tree view that may change
/// something, and the state of every item that goes.
class MultiTreeCtrl::Concern
{
public:
    explicit Concern(State& state)
        : m_state(state)
    {
        state.listeners.push_back(this);
    }
    virtual ~Concern() = default;
    Concern(const Concern&) = delete;
    Concern& operator=(const Concern&) = delete;

    /// The tree view is about to delete an item, which can still be asked about.
    virtual void itemGoes(HTREEITEM) {}
    /// All items have gone with the window.
    virtual void allGo() {}

    /// The children of an item go, since it closes; or have come, since it has opened.
    virtual void childrenGo(HTREEITEM) {}
    virtual void childrenCame(HTREEITEM) {}

    /// The host has asked for other extras.
    virtual void extrasChange() {}
    /// The window is there.
    virtual void windowMade() {}
    /// A key went down, or a character was typed (WM_KEYDOWN, WM_CHAR), before the rules of keys. True when
    /// that is all.
    virtual bool takesKey(UINT, UINT) { return false; }

    /// The tree has taken over a tree view that may have items already.
    virtual void takesOver() {}

    // The way of a message. The host may be called in the first and the last of these only.

    /// It comes in and may be changed. False when there is nothing left to do for the tree view.
    virtual bool arrives(Message&) { return true; }
    /// The tree view is about to get it.
    virtual void begins(const Message&) {}
    /// The tree view has handled it, with this result.
    virtual void ends(const Message&, LRESULT) {}
    /// An exception came in place of a result: what has happened is not known.
    virtual void fails() {}
    /// All is over. `item` is that of the message, if it is still there.
    virtual void settles(const Message&, HTREEITEM) {}

protected:
    MultiTreeCtrl& tree() const { return *m_state.control(); }
    const View& view() const { return m_state.view; }
    /// For what follows items while the host is called.
    std::shared_ptr<State> shared() const { return tree().m_state; }

    State& m_state;
};
