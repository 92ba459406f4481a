/// Not exported: finding items by typing a part of their text. The rules of the keys are those of the lists,
/// lists/core/FindRules.h.
#pragma once

#include <ovoui/tree/Concern.h>

#include <ovoui/lists/core/FindRules.h>

class MultiTreeCtrl::Find final : public Concern
{
public:
    using Concern::Concern;

    void extrasChange() override;
    bool takesKey(UINT message, UINT key) override;
    /// Whether Escape ends a search, and is not the dialog's.
    bool isSearching() const
    {
        return m_on && !m_finding.over && !m_finding.text.empty() && m_found == view().caret();
    }

    void itemGoes(HTREEITEM item) override;
    void allGo() override;
    void begins(const Message& message) override;

private:
    bool press(ovoui::lists::FindKey key, wchar_t character = 0);
    bool search(const ovoui::lists::FindState& wanted, ovoui::lists::Search how);
    HTREEITEM itemWith(const std::wstring& text, ovoui::lists::Search how) const;

    bool m_on = false;
    ovoui::lists::FindState m_finding;
    HTREEITEM m_found = nullptr; ///< where the search stands; when the caret is elsewhere, it is over
};
