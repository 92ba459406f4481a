/// Not exported: finds the item of a combo box that completes what is typed.
#pragma once

#include <ovoui/frame/Lifeline.h>
#include <ovoui/lists/core/CompletionSearch.h>

#include <afxwin.h>

#include <string>

class COVOComboBox;

namespace ovoui::lists
{

/// Lives with its combo box. Watches the list from the first search on, since items may be changed by
/// messages to the list itself too.
class ComboCompletion
{
public:
    explicit ComboCompletion(COVOComboBox& combo);
    ~ComboCompletion();
    ComboCompletion(const ComboCompletion&) = delete;
    ComboCompletion& operator=(const ComboCompletion&) = delete;

    /// -1 for none.
    int itemFor(const std::wstring& text);

private:
    static LRESULT CALLBACK listProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool watchesList();
    void leaveList();

    COVOComboBox& m_combo;
    HWND m_list = nullptr; ///< null while it is not watched
    CompletionSearch m_search;
    Lifeline m_lifeline;
};

} // namespace ovoui::lists
