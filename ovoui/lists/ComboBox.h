/// A combo box that completes what is typed and decides whether to accept it.
///
///     COVOComboBox name; // a member of the parent
///     name.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | CBS_DROPDOWN, rect, this, IDC_NAME);
///     name.AddString(L"Herbs");
///     name.ConfirmAnyText(true); // names that are not in the list are fine
///
///     ON_CBN_SELENDOK(IDC_NAME, &NameDlg::OnNameChosen)
#pragma once

#include <ovoui/export.h>
#include <ovoui/lists/ComboBoxDeletion.h>
#include <ovoui/lists/ComboFunctions.h>

#include <afxcmn.h>
#include <afxwin.h>

#include <memory>
#include <string>
#include <vector>

// Notifications beside those of any combo box; only with NotifyEditReturn.
constexpr UINT OVOCBN_RETURN = 0x40; ///< Enter was pressed while the list was closed
constexpr UINT OVOCBN_UP = 0x41;     ///< the up arrow, while the list was closed
constexpr UINT OVOCBN_DOWN = 0x42;   ///< the down arrow, while the list was closed

namespace ovoui::lists
{
class ComboCompletion;
class ComboHistory;
class ComboHits;
class ComboItems;
class ComboSearch;
struct ComboSettings;
struct ItemLook;
struct Taking;
struct Verdict;
enum class Told;
} // namespace ovoui::lists

/// To be made with the style CBS_DROPDOWN, since it needs an edit field.
///
/// On Enter, on the arrow keys while the list is closed, and when the focus leaves, the text is accepted if
/// it is an item: the parent gets CBN_SELCHANGE and CBN_SELENDOK. When the focus leaves with another text,
/// and on Escape, what was there before comes back: the parent gets CBN_SELCHANGE and CBN_SELENDCANCEL. The
/// notifications go to the parent with SendMessage; it may destroy the combo box in any of them.
class OVOUI_API COVOComboBox : public CComboBox
{
public:
    COVOComboBox();
    ~COVOComboBox() override;

    /// Whether typing completes the text from the list. On at first. Without it a text is also not looked up
    /// in the list when it is judged while the list is closed, except by the arrow keys.
    void AutoComplete(bool complete);
    /// Whether typing completes the text from the list.
    bool AutoComplete() const;

    /// A note of the host's: the control keeps it and does nothing with it.
    void TextMayBeEmpty(bool mayBe);

    /// Whether a text that is no item is accepted too. Off at first.
    void ConfirmAnyText(bool confirm);

    /// Whether the parent also gets OVOCBN_RETURN, OVOCBN_UP and OVOCBN_DOWN. Off at first.
    void NotifyEditReturn(bool notify);

    /// Whether the object, which must have been made with new then, deletes itself when its window has gone.
    void AutoDelete(bool autoDelete);

    /// Sets the observer that is told before the object deletes itself. The host owns it and keeps it alive
    /// until then. Null for none.
    void AutoDeleteNotify(COVOComboBoxDeletion* observer);

    /// Selects the item that is exactly the edit field's text. False when there is none.
    bool SelectListboxFromText();

    // Off unless asked for

    /// Whether typing also shows the items that have the text anywhere in theirs, below the field, with the
    /// text emphasised. The arrow and page keys choose among them; a click accepts one. While they are shown
    /// Enter judges the text as always, and the first Escape takes them away.
    void SearchInside(bool search);

    /// Keeps the texts that were accepted last at the top of the list, the last one first, and in the
    /// application's profile, in `section` under `entry` with a number, from 1 on; at most `limit`. Items
    /// with these texts move, other texts become items. Del in the open list removes a text from the history,
    /// and from the list if it was no item before. To be called when the list is filled.
    void KeepHistory(LPCWSTR section, LPCWSTR entry, int limit);

    /// A grey text in the field while it is empty, with and without the focus. Needs visual styles; false
    /// without them.
    bool CueText(const std::wstring& text);

    // With the styles CBS_OWNERDRAWFIXED and CBS_HASSTRINGS the items of the list can have colours and
    // images. These stay with their items while others come and go, and are gone with the item.

    /// The colour of the item `item`: a COLORREF with the alpha in its highest byte, 255 for opaque. Needs
    /// the styles CBS_OWNERDRAWFIXED and CBS_HASSTRINGS, as images do. Both stay with their items while
    /// others come and go, and are gone with the item. An open list shows them at once. Nothing happens when
    /// there is no such item.
    void SetItemColour(int item, DWORD colour);
    /// The image of the item `item`, of the list of images, or -1 for none.
    void SetItemImage(int item, int image);
    /// The list that `image` of SetItemImage counts in: the host's, which keeps it alive; null for none. The
    /// items of the list are at least as high as its images, also when it is set before the window is made.
    void SetImageList(CImageList* images);

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

    afx_msg void OnEditUpdate();
    afx_msg BOOL OnSetFocus();
    afx_msg BOOL OnKillFocus();
    afx_msg BOOL OnSelEndOk();
    afx_msg BOOL OnCloseup();

    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override;
    afx_msg BOOL OnDropdown();
    afx_msg LRESULT OnAddItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAddFiles(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnResetItems(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnFont(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    ovoui::lists::ComboSettings settings() const;
    std::wstring editText() const;
    std::wstring itemText(int item) const;
    bool changed() const;
    bool itemsHaveTexts() const;

    void onReturn();
    void onArrow(ovoui::lists::Told arrow);
    void complete();
    void selectTail(DWORD before, std::size_t typed);
    bool matches(const ovoui::lists::Taking& taking, int listSelection);
    void restore();
    void carryOut(const ovoui::lists::Verdict& verdict);
    bool tell(UINT code);

    friend class ovoui::lists::ComboCompletion;

    // What is off unless asked for
    friend class ovoui::lists::ComboHistory;
    friend class ovoui::lists::ComboHits;
    friend class ovoui::lists::ComboSearch;

    bool helperTakes(WPARAM virtualKey);
    bool forgetsItem(WPARAM virtualKey);
    void rememberAccepted();
    void onRemember();
    void takeHit(int item);
    void onHit();
    void onFindHits();
    void itemsChange();
    void showTyped(const std::wstring& text);
    int itemWith(const std::wstring& text) const;
    void insertItem(int place, const std::wstring& text);
    void moveItem(int from, int to);
    void removeItem(int item);
    template <class Change, class IndexAfter>
    void changeItems(const Change& change, const IndexAfter& indexAfter);
    void setLook(int item, const ovoui::lists::ItemLook& look);
    CWnd* openList() const;
    void drawItems();
    void setListItemHeight();
    int listItemHeight();
    void drawListItem(const DRAWITEMSTRUCT& draw, int item, const std::wstring& foldedFound);

    COVOComboBoxDeletion* m_deletionObserver = nullptr;
    bool m_autoDelete = false;
    bool m_autoComplete = true;
    bool m_completionAllowed = true; ///< false after Backspace and Delete
    int m_savedSelection = -1;
    std::wstring m_savedText; ///< only when nothing was selected
    bool m_textMayBeEmpty = true;
    bool m_confirmAnyText = false;
    bool m_notifyEditReturn = false;
    bool m_completing = false; ///< the control itself is changing the text

    std::unique_ptr<ovoui::lists::ComboCompletion> m_completion;
    std::unique_ptr<ovoui::lists::ComboItems> m_items;
    std::unique_ptr<ovoui::lists::ComboSearch> m_search;
    std::unique_ptr<ovoui::lists::ComboHistory> m_history;
    std::vector<std::wstring> m_accepted; ///< texts that the history will be told of
    int m_clickedHit = -1;
    bool m_keyed = false;        ///< the last message to the field was one of the keyboard
    bool m_editedInList = false; ///< the text was edited after the list had been opened, or a key used in it
};
