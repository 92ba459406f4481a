/// Copies a list's selected rows to the clipboard.
///
///     COVOListCopier copier;            // a member beside the list
///     copier.Attach(m_list, true);      // Ctrl+C copies from now on, with headings
#pragma once

#include <ovoui/export.h>
#include <ovoui/lists/ListHelper.h>

#include <afxcmn.h>

/// Copies the selected rows as text with tabs and as an HTML table, the columns in the order in which they
/// are shown, with the headings above them if `headings`. False when no row is selected or the clipboard
/// cannot be had: then the clipboard keeps what it has. Works with any list in report view.
OVOUI_API bool copySelectedRows(CListCtrl& list, bool headings);

/// Lets a list copy its selected rows when Ctrl+C or Ctrl+Insert is pressed in it.
class OVOUI_API COVOListCopier : private ovoui::lists::ListHelper
{
public:
    COVOListCopier();
    ~COVOListCopier() override;

    /// The list must have its window. It may be destroyed before this object. Replaces the list of before.
    /// With `headings` they stand above the copied rows.
    void Attach(CListCtrl& list, bool headings);
    /// The keys copy nothing any more; nothing happens without a list.
    void Detach();

private:
    bool takes(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void heard(UINT message, WPARAM wParam, LPARAM lParam) override;
    void left() override;

    CListCtrl* m_list = nullptr;
    bool m_headings = false;
    bool m_asked = false; ///< by a key that the list is handling
};
