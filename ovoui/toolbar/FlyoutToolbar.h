/// The flyout of a toolbar's button: a small flat toolbar that pops up beside it. CVantorToolBar opens it and
/// tells it where the mouse is, which the bar has captured.
#pragma once

#include <ovoui/export.h>

#include <afxext.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class CFlyoutTip;
class CVantorToolBar;

namespace ovoui::toolbar
{
struct FlyoutRecord;
struct Stop;

/// An entry of a flyout; none of them by itself.
struct FlyoutEntry
{
    int index = -1;       ///< in the order in which the entries were attached; -1 for none
    int command = 0;      ///< that it issues; 0 for none
    bool enabled = false; ///< whether it can be chosen now

    /// Whether it stands for an entry.
    bool isHot() const { return index >= 0; }
};
} // namespace ovoui::toolbar

class OVOUI_API CFlyoutToolbar : public CToolBar, public std::enable_shared_from_this<CFlyoutToolbar>
{
    DECLARE_DYNAMIC(CFlyoutToolbar)

public:
    /// An entry, by value.
    using Entry = ovoui::toolbar::FlyoutEntry;

    CFlyoutToolbar();
    ~CFlyoutToolbar() override;

    /// Makes the window, hidden, for a button of `bar`, with the entries of a `record`, side by side if
    /// `horizontal`. False on failure.
    bool create(CVantorToolBar& bar, const ovoui::toolbar::FlyoutRecord& record, bool horizontal);
    /// The first entry with a command; -1 when there is none.
    int entryOf(int command) const;
    /// Puts it below a `button`, or beside it unless `horizontal`, in screen pixels, inside the work area.
    void placeAt(const CRect& button, bool horizontal);

    /// Brings the entries up to date and shows them, without activating anything.
    void show();
    /// The same after so many `milliseconds`. False when there is no timer.
    bool showLater(UINT milliseconds);

    /// Whether it is shown and the point of the screen lies in it, its border included.
    bool covers(CPoint screen) const;
    /// The pointer is at this point of the screen: makes the entry there hot.
    Entry track(CPoint screen);

    // By button: separators count.
    /// The buttons, separators counted, as the keyboard walks over them.
    std::vector<ovoui::toolbar::Stop> stops() const;
    /// The index of the button that is shown pressed; -1 for none.
    int hotIndex() const { return m_hot; }
    /// The entry of that button.
    Entry hotEntry() const;
    /// The entry of the button `index`, separators counted.
    Entry entryAt(int index) const;
    /// Shows the button `index` pressed, with its prompt and, after a while, its tip; -1 for none.
    void makeHot(int index);
    /// The text of the tip of the button `index`: what its command's string has behind its line feed, else
    /// its name.
    std::wstring nameOf(int index) const;
    /// Tells accessibility that the button `index` has the focus.
    void announceFocus(int index) const;

    /// Called for an entry that was clicked, which happens when the flyout was opened by the keyboard, or
    /// chosen by accessibility.
    std::function<void(const Entry&)> whenChosen;
    /// Whether it answers IAccessible itself; `name` is that of the button that it belongs to.
    void useAccessibleNames(const std::wstring& name);

    /// Asks the bar's owner; `target` is ignored, and `disableIfNoHandler` counts as in CFrameWnd.
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL DestroyWindow() override;

protected:
    UINT m_tipDelay;     ///< in milliseconds, until the first tip is shown
    UINT m_nextTipDelay; ///< in milliseconds, until one is shown after it
    UINT m_tipTime;      ///< in milliseconds, how long a tip stays

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg int OnMouseActivate(CWnd* top, UINT hitTest, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr UINT_PTR kHoldTimer = 42;

    bool fillFromResource(const ovoui::toolbar::FlyoutRecord& record);
    bool fillFromCommands(const ovoui::toolbar::FlyoutRecord& record);
    void addEntries(const std::vector<TBBUTTON>& buttons);
    void breakRowsFor(const CSize& room, bool horizontal);
    CSize sizeOfEntries() const;

    TBBUTTON buttonAt(int index) const;
    int buttonUnder(CPoint screen) const;
    void showPressed(int index, bool pressed);
    void showPrompt(UINT id) const;
    LRESULT onGetObject(WPARAM wParam, LPARAM lParam);
    int clickedButton(int command) const;
    void onPressed(int index);
    void showTip();
    void hideTip();

    HWND m_frame = nullptr; ///< whose message line shows the prompts
    bool m_mirrored = false;
    bool m_accessible = false;
    std::vector<int> m_entries;        ///< by button: the entry in the record
    std::vector<std::wstring> m_names; ///< by entry
    int m_hot = -1;                    ///< index of the hot button
    bool m_tipWasShown = false;
    std::unique_ptr<CFlyoutTip> m_tip;
};
