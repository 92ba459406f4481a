/// Finds rows of an extended list by typing.
///
///     COVOListFinder finder;       // a member beside the list
///     finder.Attach(m_list);
#pragma once

#include <ovoui/export.h>
#include <ovoui/lists/ListCtrlEx.h>
#include <ovoui/lists/ListHelper.h>

#include <memory>
#include <string>

namespace ovoui::lists
{
enum class FindKey;
enum class Search;
struct FindState;
} // namespace ovoui::lists

/// Whether `part` stands anywhere in `text`, capitals and small letters alike. An empty part does.
OVOUI_API bool containsText(const std::wstring& text, const std::wstring& part);

/// What is typed in the list is looked for in all columns, capitals and small letters alike. The next row
/// that has it, from the focused one on, becomes the only selected one, and every place of the text is
/// emphasised in all rows. A character with which nothing is found is left out, with a beep.
///
/// F3 goes to the next row and Shift+F3 to the one before, Backspace takes the last character back, Escape
/// ends the search. After a step by other keys, a click, or a loss of focus, the next character begins
/// another text. A space that would begin one goes to the list.
///
/// A list with LVS_OWNERDATA is not read: its parent gets LVN_ODFINDITEM with LVFI_STRING, LVFI_PARTIAL and
/// LVFI_WRAP, and answers with the first row from `iStart` on that has the text, or -1. Shift+F3 finds
/// nothing there.
class OVOUI_API COVOListFinder : private ovoui::lists::ListHelper
{
public:
    COVOListFinder();
    ~COVOListFinder() override;

    /// The list must have its window. It may be destroyed before this object. Replaces the list of before.
    void Attach(COVOListCtrlEx& list);
    /// Ends the search.
    void Detach();

    /// Looks for a text from the focused row on, as if it had been typed. False when it is in no row: then
    /// the search of before goes on. An empty text ends the search.
    bool Find(const std::wstring& text);
    /// Goes to the next row, or, without `forward`, to the one before. False without a search.
    bool FindNext(bool forward);

    /// What is looked for; empty without a search.
    const std::wstring& Text() const;

private:
    bool takes(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void left() override;
    bool takesKey(UINT message, WPARAM wParam);
    bool key(ovoui::lists::FindKey key, wchar_t character);
    bool search(const ovoui::lists::FindState& state, ovoui::lists::Search how);
    int rowWith(const std::wstring& text, ovoui::lists::Search how) const;
    void keep(const ovoui::lists::FindState& state);
    bool goTo(int row);

    COVOListCtrlEx* m_list = nullptr;
    std::unique_ptr<ovoui::lists::FindState> m_state;
};
