/// Not exported: renaming in place.
#pragma once

#include <ovoui/tree/Concern.h>

class MultiTreeCtrl::LabelEdit final : public Concern
{
public:
    using Concern::Concern;

    /// Nothing is selected while a label is edited.
    void edit(HTREEITEM item);
    /// The editor is about to open. `result` becomes false when it may.
    void begin(const NMTVDISPINFO& notification, LRESULT& result);
    /// The editor has closed. `result` becomes true when the tree view shall take the text.
    void end(const NMTVDISPINFO& notification, LRESULT& result);
    /// Opens it once more for the item whose node has refused the text.
    void editAgain();

    bool arrives(Message& message) override;
    void itemGoes(HTREEITEM item) override;
    void allGo() override;

private:
    bool prepare(Node& node, const Tracker& item, bool& begun);
    bool apply(Node& node, HTREEITEM item, const std::wstring& typed, LRESULT& result);

    HTREEITEM m_edited = nullptr; ///< while its editor is open
    HTREEITEM m_again = nullptr;
};
