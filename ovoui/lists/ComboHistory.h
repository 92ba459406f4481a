/// Not exported: the texts that were accepted last, first in the list of a combo box and in the profile.
#pragma once

#include <ovoui/frame/ProfileSection.h>
#include <ovoui/lists/core/TextHistory.h>

#include <afxwin.h>

#include <set>
#include <string>
#include <vector>

class COVOComboBox;

namespace ovoui::lists
{

/// The parent of an owner-drawn list hears of changes while they are made, and may destroy the combo box:
/// what is kept is written before.
class ComboHistory
{
public:
    /// Reads what the profile has.
    ComboHistory(COVOComboBox& combo, LPCWSTR section, LPCWSTR entry, int limit);

    /// Brings all texts to the top of the list.
    void bringBack();

    /// Brings a text to the top, and keeps it.
    void use(const std::wstring& text);

    /// Keeps a text without looking at the list. Gives the texts that have no room any more.
    std::vector<std::wstring> keep(const std::wstring& text);

    /// Removes the item if its text is one of the history's: from the list too, unless it is an item of the
    /// host's. False for any other item.
    bool forget(int item);

private:
    void bringToTop(const std::wstring& text, int place);
    void drop(const std::wstring& text);
    std::wstring entryOf(int number) const;
    std::vector<std::wstring> read() const;
    void write() const;

    COVOComboBox& m_combo;
    const frame::ProfileSection m_profile;
    const std::wstring m_entry;
    const int m_limit;
    TextHistory m_texts;
    std::set<std::wstring> m_added; ///< texts that were no items before
};

} // namespace ovoui::lists
