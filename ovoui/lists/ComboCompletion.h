/// Not exported: finds the item of a combo box that completes what is typed.
#pragma once

#include <ovoui/frame/Lifeline.h>
#include <ovoui/lists/core/CompletionSearch.h>

#include <afxwin.h>

#include <string>

class COVOComboBox;

namespace ovoui::lists
{

/// Lives with its combo box. Watches the list from the first search on, or earlier, since items may be
/// changed by messages to the list itself too. The platform's combo box searches the list as well, for each
/// text that the field shows, before ours or afterwards: each goes on where the other one has ended.
class ComboCompletion
{
public:
    explicit ComboCompletion(COVOComboBox& combo);
    ~ComboCompletion();
    ComboCompletion(const ComboCompletion&) = delete;
    ComboCompletion& operator=(const ComboCompletion&) = delete;

    /// To be called before anything is typed.
    void watch() { watchesList(); }

    /// -1 for none.
    int itemFor(const std::wstring& text);

private:
    static LRESULT CALLBACK listProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool watchesList();
    void leaveList();
    LRESULT search(WNDPROC procedure, const wchar_t* text);

    class Change;

    COVOComboBox& m_combo;
    HWND m_list = nullptr; ///< null while it is not watched
    CompletionSearch m_search;
    int m_changes = 0; ///< that the list is in the middle of
    Lifeline m_lifeline;
};

} // namespace ovoui::lists
