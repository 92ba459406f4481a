/// Not exported. Where a part of the picker has the keyboard focus.
#pragma once

#include <ovoui/colour/AccessibleColours.h>
#include <ovoui/colour/core/WheelKeys.h>
#include <ovoui/frame/Lifeline.h>

#include <afxwin.h>

#include <optional>

namespace ovoui::colour
{

/// A window over a part of the picker that takes the keyboard focus and nothing else: the dialog draws what
/// is seen there, and gets the mouse. It tells the dialog of a key as a slider would, by WM_HSCROLL with
/// SB_ENDSCROLL, so that errors are the dialog's to show.
class PickerStop : public CWnd
{
public:
    struct Calls
    {
        std::function<bool(UINT key)> uses; ///< whether a key does something here
        std::function<void()> focus;        ///< the focus came or went
    };

    PickerStop(Calls calls, std::shared_ptr<ColourIdentity> identity);
    ~PickerStop() override;

    /// Behind the control `before` in the order of Tab.
    bool create(CWnd& dialog, const CRect& place, UINT id, CWnd* before);

    /// The key that the dialog is being told of; 0 for none.
    UINT key() const { return m_key; }

    bool hasFocus() const { return m_hWnd && ::GetFocus() == m_hWnd; }

    /// Tells accessibility that the value has changed, or that the mark is at another cell.
    void announceValue() const;
    void announceCell(int cell) const;

protected:
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* other);
    afx_msg LRESULT OnNcHitTest(CPoint) { return HTTRANSPARENT; }
    afx_msg void OnPaint();
    afx_msg void OnSetFocus(CWnd* other);
    DECLARE_MESSAGE_MAP()

private:
    const Calls m_calls;
    const std::shared_ptr<ColourIdentity> m_identity;
    UINT m_key = 0;
    Lifeline m_lifeline;
};

} // namespace ovoui::colour
