// CEditView: a view that is an editor of plain text.
#pragma once

#include <afx/CtrlView.h>
#include <afx/Edit.h>
#include <afx/Font.h>

#include <memory>

namespace afxdetail
{
class FindDialog;
}

/// A multi-line edit control of up to 1,048,575 characters, with the commands of an Edit menu: undo, cut,
/// copy, paste, clear, select all, find, replace and repeat the search. It does not print, and does not read
/// or write files.
class OVOMFC_API CEditView : public CCtrlView
{
    DECLARE_DYNCREATE(CEditView)

public:
    CEditView();
    ~CEditView() override;

    static const DWORD
        dwStyleDefault; ///< What a frame gives the view; without ES_AUTOHSCROLL lines are wrapped.

    /// The view's window as an edit control; valid as long as the view.
    CEdit& GetEditCtrl() const;

    // The text, with \r\n between lines
    UINT GetBufferLength() const; ///< In characters.
    /// A copy of the text that stays valid until UnlockBuffer.
    LPCTSTR LockBuffer() const;
    void UnlockBuffer() const;
    /// What is selected, up to the first end of a line.
    void GetSelectedText(CString& result) const;
    void SetTabStops(int width); ///< In dialog units, for the whole view.

    /// Selects the next place of a text, after the selection or before it; FALSE when there is none.
    BOOL FindText(LPCTSTR text, BOOL next = TRUE, BOOL matchCase = TRUE);

protected:
    // What the user asks for in the dialogs
    virtual void OnFindNext(LPCTSTR text, BOOL next, BOOL matchCase);
    /// Replaces the selection if it is the text looked for, and goes to the next place.
    virtual void OnReplaceSel(LPCTSTR text, BOOL next, BOOL matchCase, LPCTSTR replacement);
    /// From the selection to the end. A selection that is not the text looked for only goes to the next
    /// place, so that the user sees what will be replaced.
    virtual void OnReplaceAll(LPCTSTR text, LPCTSTR replacement, BOOL matchCase);
    virtual void OnTextNotFound(LPCTSTR text); ///< Beeps.

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnEditUndo();
    afx_msg void OnEditCut();
    afx_msg void OnEditCopy();
    afx_msg void OnEditPaste();
    afx_msg void OnEditClear();
    afx_msg void OnEditSelectAll();
    afx_msg void OnEditFind();
    afx_msg void OnEditReplace();
    afx_msg void OnEditRepeat();
    afx_msg void OnUpdateNeedSel(CCmdUI* ui);  ///< Enabled while something is selected.
    afx_msg void OnUpdateNeedText(CCmdUI* ui); ///< Enabled unless the text is empty.
    afx_msg void OnUpdateNeedClip(CCmdUI* ui); ///< Enabled while the clipboard holds text.
    afx_msg void OnUpdateNeedFind(CCmdUI* ui); ///< Enabled when something has been looked for.
    afx_msg void OnUpdateEditUndo(CCmdUI* ui);
    afx_msg LRESULT OnFindReplaceCmd(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void openFindDialog(bool replace);
    bool isSelected(LPCTSTR text, BOOL matchCase) const;
    CString text() const;

    mutable CEdit m_edit; ///< not attached: the window's object is the view
    mutable CString m_locked;
    CFont m_font;
    std::unique_ptr<afxdetail::FindDialog> m_find; ///< what the user has looked for last, and its dialog
};
