/// Not exported: tells clients of accessibility what is selected and what is no more. The rule is in
/// core/SelectionNews.h.
#pragma once

#include <ovoui/tree/Selection.h>
#include <ovoui/tree/core/SelectionNews.h>

#include <unordered_set>
#include <vector>

/// The tree view itself tells of its caret, and of no other item. While a client listens, the selection that
/// clients know of is kept here, and compared with that of now by a message that the tree posts to itself: a
/// gesture changes items one by one, and clients hear of it once. While none listens, nothing is kept or
/// compared.
class MultiTreeCtrl::Selection::Events final : public Concern
{
public:
    using Concern::Concern;

    bool arrives(Message& message) override;
    void begins(const Message& message) override;
    void ends(const Message& message, LRESULT result) override;
    void itemGoes(HTREEITEM item) override;
    void allGo() override;
    void takesOver() override { m_listening = false; }

private:
    struct Changed
    {
        std::vector<HTREEITEM> removed;
        std::vector<HTREEITEM> added;
    };
    struct Event
    {
        DWORD id;    ///< EVENT_OBJECT_...
        LONG number; ///< of the item
    };

    void listen();
    void tell();
    Changed takeChanges();
    LONG numberOf(const Changed& changed, const ovoui::tree::SelectionNews& news) const;

    bool m_listening = false;              ///< whether a client did, when the last change began
    bool m_posted = false;                 ///< the message is on its way
    std::unordered_set<HTREEITEM> m_known; ///< what clients know to be selected
    HTREEITEM m_caret = nullptr;           ///< after the last message
};
